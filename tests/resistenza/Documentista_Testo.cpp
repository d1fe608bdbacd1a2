// Texts, boxes, tables and barcodes at random.

#include "Documentista.h"

#include "Parole.h"

#include <algorithm>
#include <stdexcept>

namespace resistenza {

namespace {

constexpr int MaiuscoloMinimo = 32; // the first ASCII character that shows
constexpr int AsciiMassimo = 126;

std::string Cifre(Caso& caso, int quante)
{
    std::string cifre;
    for (int i = 0; i < quante; ++i) cifre.push_back(static_cast<char>(caso.Intero('0', '9')));
    return cifre;
}

} // namespace

// Fonts of files, some put into the document.
void Documentista::FontPropri(const std::filesystem::path& font)
{
    static const std::vector<std::string> file = {"liberation2/LiberationSerif-Italic.ttf",
                                                  "liberation2/LiberationSans-Bold.ttf",
                                                  "liberation2/LiberationMono-Regular.ttf",
                                                  "dejavu/DejaVuSansMono.ttf",
                                                  "dejavu/DejaVuSans.ttf",
                                                  "dejavu/DejaVuSerif.ttf"};
    const int quanti = m_caso.Intero(1, 2);
    for (int i = 0; i < quanti; ++i) {
        const std::string nome = "Proprio " + std::to_string(i);
        const bool incorpora = m_caso.Una(2);
        AggiungiFont((font / m_caso.Fra(file)).string(), nome, incorpora);
        m_fontPropri.push_back(nome);
    }
}

void Documentista::AggiungiFont(const std::string& file, const std::string& nome, bool incorpora)
{
    if (Nuova(2)) CHIAMA(AddFontData, ByteDi(file), nome, incorpora);
    else CHIAMA(AddFont, file, nome, incorpora);
}

void Documentista::SceglieFont()
{
    static const std::vector<std::string> famiglie = {"Times New Roman", "times",     "Courier New",
                                                      "Arial",           "Helvetica", "arial",
                                                      "Carattere ignoto"};
    const bool proprio = !m_fontPropri.empty() && m_caso.Una(3);
    constexpr int stili = 31;
    const int stile = m_caso.Una(2) ? 0 : m_caso.Intero(0, stili);
    CHIAMA(SetFont, proprio ? m_caso.Fra(m_fontPropri) : m_caso.Fra(famiglie), F(7, 13), stile);
    if (m_caso.Una(4)) CHIAMA(SetFontSize, F(6, 14));
}

// As many of the text's words as fit.
std::string Documentista::Adatta(std::string testo, double punti)
{
    while (CHIAMA(TextLength, testo) > U(punti) && testo.find(' ') != std::string::npos) {
        testo.resize(testo.rfind(' '));
    }
    return testo;
}

// Only for what is drawn upright, at once and with its natural spaces.
void Documentista::Attendi(std::string_view testo)
{
    const std::string visto = ComeSiVede(testo);
    if (visto.find_first_not_of(' ') != std::string::npos) m_attese.push_back(visto);
}

void Documentista::Riga(const Zona& zona)
{
    if (m_caso.Una(2)) SceglieFont();
    const std::string testo = Adatta(Frase(m_caso, 5), zona.Larga);
    // A word that is wider may leave the page, where not all readers find its last letters.
    const bool troppo = CHIAMA(TextLength, testo) > U(zona.Larga);
    if (troppo && m_maniera != Maniera::Usuale) return;
    const int lato = m_caso.Fra(std::vector<int>{1, 2, 4});
    double x = zona.X;
    if (lato == 2) x += zona.Larga;
    if (lato == 4) x += zona.Larga / 2;
    CHIAMA(DrawText, U(x), U(zona.Y + zona.Alta / 2), testo, lato);
    if (!troppo) Attendi(testo);
}

void Documentista::RigaObliqua(const Zona& zona)
{
    const std::string parola = ParolaSemplice(m_caso);
    const std::vector<float> angoli = {0, 90, 180, 270, F(-90, 360)};
    // From the middle of the field, so that no direction leads off the page.
    CHIAMA(DrawText, U(zona.X + zona.Larga / 2), U(zona.Y + zona.Alta / 2), parola, 1,
           m_caso.Fra(angoli));
}

// In a space of its own: a clipping path of letters ends only there.
void Documentista::StatoDelTesto(const Zona& zona)
{
    CHIAMA(BeginGraphicSpace, U(zona.X), U(zona.Y));
    CHIAMA(SetCharSpacing, F(-0.3, 2));
    CHIAMA(SetWordSpacing, F(-0.5, 6));
    CHIAMA(SetTextHorizontalScaling, F(60, 130));
    CHIAMA(SetTextRenderingMode, m_caso.Intero(0, 7));
    const auto attese = m_attese.size();
    Riga({0, 0, zona.Larga, zona.Alta});
    m_attese.resize(attese);
    CHIAMA(SetTextRenderingMode, 0);
    CHIAMA(SetCharSpacing, 0);
    CHIAMA(SetWordSpacing, 0);
    CHIAMA(SetTextHorizontalScaling, 100);
    CHIAMA(EndGraphicSpace);
}

// Of ZapfDingbats one reader extracts codes: of these nothing else has the same.
void Documentista::Simboli(const Zona& zona)
{
    if (m_caso.Una(2)) {
        CHIAMA(SetFont, "Symbol", F(8, 14));
        CHIAMA(DrawText, U(zona.X), U(zona.Y + zona.Alta / 2), "©¨§ª abg XYZ ³±£ 31");
    } else {
        CHIAMA(SetFont, "ZapfDingbats", F(8, 14));
        CHIAMA(DrawText, U(zona.X), U(zona.Y + zona.Alta / 2), "ÀÁÂ");
    }
    SceglieFont();
}

void Documentista::Paragrafo(const Zona& zona)
{
    std::string testo = Frase(m_caso, 12);
    if (m_caso.Una(2)) testo.append("\r\n").append(Frase(m_caso, 6));
    const int lato = m_caso.Fra(std::vector<int>{0, 1, 2, 4, 64, 6});
    const int altezza = m_caso.Fra(std::vector<int>{0, 16, 32});
    const float righe = F(0.9, 1.6);
    const float rientro = U(m_caso.Reale(0, 20));
    const float angolo = m_caso.Una(3) ? F(-15, 15) : 0;
    const int fatte = m_caso.Una(2)
                          ? CHIAMA(DrawTextBox, U(zona.X), U(zona.Y), U(zona.Larga), U(zona.Alta),
                                   testo, righe, rientro, lato + altezza, angolo)
                          : CHIAMA(DrawParagraph, U(zona.X), U(zona.Y), U(zona.Larga), U(zona.Alta),
                                   testo, righe, rientro, lato + altezza, angolo);
    if (fatte < 1) throw std::runtime_error("un riquadro senza righe");
}

// ---- Tables ------------------------------------------------------------------------------------

void Documentista::Tabella(const Zona& zona)
{
    const auto larga = [this] { return m_caso.Una(2) ? -1.F : U(m_caso.Reale(0, 2)); };
    const auto tinta = [this] { return m_caso.Una(2) ? std::string() : Colore(); };
    const int righe = m_caso.Intero(1, 3);
    const int colonne = m_caso.Intero(1, 4);
    const std::string fondo = tinta();
    CHIAMA(BeginTable, U(zona.X), U(zona.Y), fondo, larga(), tinta());
    for (int r = 0; r < righe; ++r) {
        const std::string fondoRiga = tinta();
        CHIAMA(BeginRow, U(zona.Alta / righe), fondoRiga, larga(), tinta());
        for (int c = 0; c < colonne; ++c) {
            const std::string fondoCella = tinta();
            CHIAMA(BeginColumn, U(zona.Larga / colonne), fondoCella, larga(), tinta());
            Cella(zona.Larga / colonne);
            CHIAMA(EndColumn);
        }
        CHIAMA(EndRow);
    }
    CHIAMA(EndTable);
}

// A word, if it fits with some room to the next cell's.
void Documentista::Cella(double larga)
{
    const std::string parola = ParolaSemplice(m_caso);
    if (CHIAMA(TextLength, parola) > U(larga - 8)) return;
    CHIAMA(DrawText, U(larga / 2), U(10), parola, 4);
    Attendi(parola);
}

// ---- Barcodes ----------------------------------------------------------------------------------

void Documentista::Codice13(const Zona& zona)
{
    const std::string codice = Cifre(m_caso, m_caso.Intero(12, 13));
    const bool testo = !m_caso.Una(4);
    constexpr double moduli = 80; // down to the text of usual bars, which must stay on the page
    const bool usuali = m_caso.Una(4);
    const float alta = usuali ? 0 : U(zona.Alta / 2);
    const double modulo = usuali ? std::min(1.5, zona.Alta / moduli) : 1.5;
    CHIAMA(DrawEAN13, codice, U(zona.X + 15), U(zona.Y), testo, alta, F(0, modulo));
}

// Control characters have bars, but no sign that readers could agree on.
void Documentista::Codice39(const Zona& zona)
{
    const bool testo = m_caso.Una(2);
    std::string codice;
    const int lettere = m_caso.Intero(1, 5);
    for (int i = 0; i < lettere; ++i) {
        codice.push_back(
            static_cast<char>(m_caso.Intero(testo ? MaiuscoloMinimo : 0, AsciiMassimo)));
    }
    const float alta = U(zona.Alta / 2);
    CHIAMA(DrawCODE39, codice, U(zona.X), U(zona.Y), alta, testo, F(0, 1.2), F(0, 3));
}

} // namespace resistenza
