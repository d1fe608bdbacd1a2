// The document and its pages; _Apertura.cpp opens it, _Testo.cpp, _Disegno.cpp and _Note.cpp put
// things onto its pages. Their words come from Parole.cpp.
#include "Documentista.h"

#include "Parole.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <stdexcept>

namespace resistenza {

namespace {

struct Misura
{
    int Larga, Alta;
};

// Points of the papers 0 to 16.
constexpr Misura Fogli[] = {{596, 842},   {842, 596},   {842, 1192},  {1192, 842},  {1192, 1685},
                            {1685, 1192}, {1685, 2384}, {2384, 1685}, {2384, 3371}, {421, 596},
                            {596, 421},   {298, 421},   {421, 298},   {210, 298},   {298, 210},
                            {612, 792},   {612, 864}};

// Between what is drawn in two places, so that readers take them for two texts.
constexpr double Distacco = 12;

// At the upper and at the lower edge, for objects that play on many pages.
constexpr double Striscia = 30;

constexpr int FogliProprio = 255;

void ScriviRighe(const std::string& nome, const std::vector<std::string>& righe)
{
    if (righe.empty()) return;
    std::ofstream file(nome, std::ios::binary);
    for (const auto& riga : righe) file << riga << "\n";
    if (!file.flush()) throw std::runtime_error(nome + ": non si scrive");
}

} // namespace

Documentista::Documentista(std::uint64_t seme, Maniera maniera, Conto& conto,
                           std::filesystem::path semi, const std::filesystem::path& font)
    : m_caso(seme)
    , m_maniera(maniera)
    , m_conto(conto)
    , m_semi(std::move(semi))
{
    for (const auto& voce : std::filesystem::recursive_directory_iterator(m_semi)) {
        const auto tipo = voce.path().extension();
        if (tipo == ".bmp" || tipo == ".gif" || tipo == ".jpg") {
            m_figure.push_back(voce.path().string());
        }
    }
    std::sort(m_figure.begin(), m_figure.end());
    if (m_figure.empty()) throw std::runtime_error(m_semi.string() + ": nessuna figura");
    if (m_caso.Una(2)) FontPropri(font);
}

void Documentista::Scrivi(const std::filesystem::path& percorso)
{
    Imposta();
    Apri(percorso);
    Modelli();
    const int pagine = m_caso.Intero(1, 4);
    for (int i = 0; i < pagine; ++i) {
        if (i > 0 && m_caso.Una(6)) CambiaMano();
        Pagina();
    }
    OggettoTardivo();
    Chiudi(percorso);
}

void Documentista::Imposta()
{
    Orologio();
    CHIAMA(ShareFonts, m_caso.Una(2));
    CHIAMA(PDFReader, m_caso.Intero(0, 4));
    if (m_maniera != Maniera::Usuale) Interruttori();
    Carta();
    CHIAMA(Orientation, m_caso.Intero(0, 2));
    m_filtri = m_caso.Intero(0, 15);
    CHIAMA(FilterDecode, m_filtri);
}

void Documentista::Carta()
{
    constexpr double unita[] = {1, 72, 72 / 25.4, 72 / 2.54};
    const int scala = m_caso.Intero(0, 4);
    const float propria = F(0.5, 50);
    CHIAMA(SetScale, scala == 4 ? 255 : scala, propria);
    m_unita = scala == 4 ? static_cast<double>(propria) : unita[scala];

    int foglio = m_caso.Intero(0, 17);
    if (foglio == 17) {
        m_larga = std::floor(m_caso.Reale(220, 1500));
        m_alta = std::floor(m_caso.Reale(220, 1500));
        foglio = FogliProprio;
    } else {
        m_larga = Fogli[foglio].Larga;
        m_alta = Fogli[foglio].Alta;
    }
    CHIAMA(SetPaperSize, foglio, U(m_larga), U(m_alta));
    m_margine = m_caso.Una(2) ? 0 : m_caso.Reale(0, 20);
    CHIAMA(Margin, U(m_margine));
}

// Another writer goes on with the document.
void Documentista::CambiaMano()
{
    clsPDFCreator altra(std::move(m_pdf));
    m_pdf = std::move(altra);
}

// Tilings and objects, which stand before the pages.
void Documentista::Modelli()
{
    const int piastrelle = m_caso.Intero(1, 3);
    for (int i = 0; i < piastrelle; ++i) Piastrella(i);
    const int oggetti = m_caso.Intero(0, 3);
    for (int i = 0; i < oggetti; ++i) Oggetto(i);
    m_tardivo = Nome(m_caso, oggetti);
    m_oggetti.push_back(m_tardivo); // played before it is made
    // Readers would miss it in a document that is not conforming.
    if (m_maniera == Maniera::Conforme && m_caso.Una(4)) m_oggetti.emplace_back("mai fatto");
}

// In the strip at the edge of the page where nothing else is drawn.
void Documentista::Oggetto(int numero)
{
    const std::string nome = Nome(m_caso, numero);
    const int quando = m_caso.Fra(std::vector<int>{0, 1, 2, 4, 7, 12});
    CHIAMA(BeginObject, nome, quando + (m_caso.Una(2) ? 16 : 0));
    SceglieFont();
    const double da = m_margine + 8 + numero * (m_larga - 2 * m_margine - 16) / 3;
    const Zona zona{da, m_margine + 4, (m_larga - 2 * m_margine - 16) / 3 - Distacco, 20};
    Figure(zona);
    Riga(zona);
    CHIAMA(EndObject);
    m_oggetti.push_back(nome);
    m_attese.clear(); // not every object plays on some page
}

void Documentista::OggettoTardivo()
{
    CHIAMA(BeginObject, m_tardivo, m_caso.Una(2) ? 7 : 0);
    const Zona zona{m_margine + 8, m_alta - m_margine - Striscia, 60, 18};
    CHIAMA(SetColorFill, Tinta()); // no pattern: see BeginObject
    Figure(zona);
    CHIAMA(EndObject);
}

void Documentista::Pagina()
{
    static const std::vector<Arte> arti = {
        &Documentista::Riga,       &Documentista::Riga,      &Documentista::RigaObliqua,
        &Documentista::Simboli,    &Documentista::Paragrafo, &Documentista::StatoDelTesto,
        &Documentista::Tabella,    &Documentista::Codice13,  &Documentista::Codice39,
        &Documentista::Linea,      &Documentista::Spezzata,  &Documentista::Curve,
        &Documentista::Figure,     &Documentista::Immagine,  &Documentista::Spazio,
        &Documentista::Assi,       &Documentista::Gioca,     &Documentista::Sfuma,
        &Documentista::Segnalibro, &Documentista::Nota,      &Documentista::Riquadro,
        &Documentista::Timbro,     &Documentista::Misure,    &Documentista::Collegamento};
    const int etichetta = m_caso.Intero(0, 5);
    const std::string prefisso = m_caso.Una(2) ? "" : FuoriPagina("etichetta", 1);
    const int primo = m_caso.Una(2) ? -1 : m_caso.Intero(0, 65534);
    const int girata = m_caso.Una(4) ? 1 : 0;
    const int pagina = CHIAMA(BeginPage, girata, etichetta, prefisso, primo);
    if (pagina != ++m_pagine || CHIAMA(Pages) != m_pagine) {
        throw std::runtime_error("pagine contate male");
    }
    SceglieFont();
    for (const Zona& zona : Posti()) {
        if (m_caso.Una(3)) Colora();
        (this->*m_caso.Fra(arti))(zona);
    }
    CHIAMA(EndPage);
}

// Some of the fields of a grid over the page, in any order.
std::vector<Zona> Documentista::Posti()
{
    const double bordo = m_margine + 10;
    const double larga = m_larga - 2 * bordo;
    const double alta = m_alta - 2 * (bordo + Striscia);
    const int colonne = std::max(1, static_cast<int>(larga / 210));
    const int righe = std::max(1, static_cast<int>(alta / 60));
    std::vector<Zona> posti;
    for (int i = 0; i < colonne * righe; ++i) {
        const double x = bordo + i % colonne * larga / colonne;
        const double y = bordo + Striscia + i / colonne * alta / righe;
        posti.push_back({x, y, larga / colonne - Distacco, alta / righe - Distacco});
    }
    for (std::size_t i = posti.size(); i > 1; --i) {
        std::swap(posti[i - 1], posti[static_cast<std::size_t>(m_caso.Bit() % i)]);
    }
    const auto quanti = static_cast<std::size_t>(m_caso.Intero(1, 16));
    if (posti.size() > quanti) posti.resize(quanti);
    return posti;
}

void Documentista::Chiudi(const std::filesystem::path& percorso)
{
    if (m_caso.Una(4)) CHIAMA(FilterDecode, m_filtri); // what stands at the end counts
    CHIAMA(EndDoc);
    if (m_caso.Una(4)) ApriColProgramma();
    if (!m_altrove) throw std::runtime_error(percorso.string() + ": non si scrive");
    m_altrove.close();
    ScriviRighe(percorso.string() + ".attese", m_attese);
    ScriviRighe(percorso.string() + ".fuori", m_fuori);
}

} // namespace resistenza
