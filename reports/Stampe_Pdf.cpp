// Layout of the PDF report: "taglie.pdf". Lengths in centimetres on an A4 page. How many shoes one
// document holds is counted in SpazioPdf.cpp.
//
// A shoe's table always starts at 3.5 cm of the shoe's own page and is never continued on another:
// rows below the 42nd would lie below its edge, and no shoe has more than 32 coups (SpazioPdf.cpp).

#include "Ambiente.h"
#include "Calendario.h"
#include "Destinazione.h"
#include "FileInUso.h"
#include "FileVecchio.h"
#include "FormatiNumero.h"
#include "Impronta.h"
#include "Numeri.h"
#include "RigheGenerali.h"
#include "Scritte.h"
#include "SpazioPdf.h"
#include "Stampe_Comune.h"
#include "clsPDFCreator.h"

#include <chrono>
#include <memory>
#include <optional>
#include <utility>

namespace Stampe {

namespace {

// Alignment of texts, as the writer knows it: left 1, right 2 or centre 4, plus 32 for the middle
// of the height; without that a text stands at the top. CentroAlto is centre plus 8, a value that
// the writer has no use for and passes over.
enum : std::int32_t
{
    Sinistra = 1,
    Destra = 2,
    Centro = 4,
    CentroAlto = 12,
    SinistraMezzo = 33,
    DestraMezzo = 34,
    CentroMezzo = 36,
};

constexpr std::int32_t Normale = 0;
constexpr std::int32_t Grassetto = 1;
constexpr float Mezzeria = 10.5F;

// The present year.
std::int64_t Anno()
{
    using namespace std::chrono;
    const auto giorno = floor<days>(CalendarioInUso.Adesso());
    return static_cast<int>(year_month_day(giorno).year());
}

// The file of a document that is removed again unless it was finished.
class FileProvvisorio
{
public:
    FileProvvisorio() = default;
    ~FileProvvisorio()
    {
        if (m_impronta && !m_finito) m_impronta->Togli();
    }
    FileProvvisorio(const FileProvvisorio&) = delete;
    FileProvvisorio& operator=(const FileProvvisorio&) = delete;
    FileProvvisorio(FileProvvisorio&&) = delete;
    FileProvvisorio& operator=(FileProvvisorio&&) = delete;

    void Segna(std::string percorso) { m_impronta.emplace(std::move(percorso)); }

    void Tieni()
    {
        m_impronta->Pretendi(); // nobody else's file is opened as the report
        m_finito = true;
    }

private:
    std::optional<Impronta> m_impronta;
    bool m_finito = false;
};

// Small, and such that readers remark on nothing.
void Compatta(clsPDFCreator& pdf)
{
    pdf.Conforming();
    pdf.Compress(AmbienteInUso.LivelloCompatto);
    pdf.SetLanguage("it");
}

bool InUso()
{
    if (AmbienteInUso.Via == ViaReport::UscitaStandard) return false;
    return FileInUso::AvvisoFileInUso(PercorsoForma(NomePdf)) != Falso;
}

// A document that leaves nothing unless it was finished.
class Documento
{
    // Before the writer, so that they go after it: not every system removes a file that is open.
    FileProvvisorio m_file;
    std::unique_ptr<Destinazione> m_destinazione; // none: the writer makes its file itself

public:
    Documento()
        : m_percorso(PercorsoForma(NomePdf))
    {
        constexpr std::int32_t centimetri = 3;
        Pdf.ShareFonts(AmbienteInUso.CaratteriUnici);
        if (AmbienteInUso.Compatto) Compatta(Pdf);
        Pdf.SetDocProperty("Scalvino", "Scalvino", "Vellarmo", "Scalvino 1.0", "Vellarmo", "");
        Pdf.SetScale(centimetri, 1);
        Pdf.SetPaperSize(0, 0, 0);
        Pdf.Margin(0);
        Pdf.Orientation(0);
        Pdf.PDFReader(0);
        if (AmbienteInUso.Via == ViaReport::NelPosto) IniziaNelPosto();
        else IniziaAltrove();
    }

    ~Documento() = default;
    Documento(const Documento&) = delete;
    Documento& operator=(const Documento&) = delete;
    Documento(Documento&&) = delete;
    Documento& operator=(Documento&&) = delete;

    // Writes the footer that the pages already play, closes and opens the document. False, and the
    // old report left, when another program holds that one by now.
    bool Finisci()
    {
        PiePagina();
        Pdf.EndDoc();
        if (!m_destinazione) {
            m_file.Tieni();
        } else {
            if (InUso()) return false;
            m_destinazione->Finisci();
        }
        AmbienteInUso.Apri(m_percorso, StileFinestra::MassimizzataConFuoco);
        return true;
    }

    clsPDFCreator Pdf;

private:
    void IniziaNelPosto()
    {
        std::string nome = m_percorso; // all memory is taken before there is a file
        // The writer refuses a link to a device as one that its caller means. Nobody chose the name
        // of a report: any link there is a stray one.
        TogliCollegamento(m_percorso);
        Pdf.BeginDoc(m_percorso);
        m_file.Segna(std::move(nome));
    }

    void IniziaAltrove()
    {
        m_destinazione = ApriDestinazione(NomePdf);
        Pdf.BeginDocTo([this](std::string_view byte) { m_destinazione->Scrivi(byte); });
    }

    // The number of pages is known only now.
    void PiePagina()
    {
        constexpr std::int32_t ogniPagina = 7;
        constexpr float altezza = 29;
        Pdf.BeginObject("Footers", ogniPagina);
        Pdf.SetFont("Times New Roman", 6, Normale);
        Pdf.DrawText(2, altezza, "Scalvino © " + TestoNumero(Anno()), Sinistra, 0);
        const auto pagine = static_cast<std::int64_t>(Pdf.Pages());
        Pdf.DrawText(19, altezza, "di " + TestoNumero(pagine), Destra, 0);
        Pdf.EndObject();
    }

    std::string m_percorso;
};

void TestaPagina(clsPDFCreator& pdf, float altezzaTitolo)
{
    constexpr float altezzaPiede = 29;
    pdf.BeginPage();
    pdf.SetFont("Times New Roman", 6, Normale);
    const auto pagina = static_cast<std::int64_t>(pdf.Pages());
    pdf.DrawText(18.5F, altezzaPiede, "pag. " + TestoNumero(pagina), Destra, 0);
    pdf.PlayObject("Footers"); // made after the last page
    pdf.SetFont("Verdana", 14, Grassetto);
    pdf.DrawText(Mezzeria, altezzaTitolo, scritte::Insegna, Centro, 0);
}

void Cella(clsPDFCreator& pdf, float larghezza, float altezza, std::string_view testo,
           std::int32_t opzioni)
{
    pdf.BeginColumn(larghezza, "", -1, "");
    pdf.DrawTextBox(0, 0, larghezza, altezza, testo, 1, 0, opzioni, 0);
    pdf.EndColumn();
}

// ---- A shoe ----------------------------------------------------------------------------------

constexpr float AltezzaRiga = 0.6F;

void Intestazione(clsPDFCreator& pdf)
{
    struct Colonna
    {
        std::string_view Testo;
        float Larghezza;
    };
    constexpr Colonna colonne[] = {{"Colpo", 1},     {"Nero", 1},    {"Rosso", 1},
                                   {"Colore", 1},    {"Inverso", 1}, {"Mano Nero", 6},
                                   {"Mano Rosso", 6}};
    pdf.BeginRow(AltezzaRiga, "", -1, "");
    for (const auto& [testo, larghezza] : colonne) {
        Cella(pdf, larghezza, AltezzaRiga, testo, CentroMezzo);
    }
    pdf.EndRow();
}

void CellaNumero(clsPDFCreator& pdf, std::string_view numero)
{
    pdf.SetFont("Verdana", 8, Normale);
    Cella(pdf, 1, AltezzaRiga, numero, CentroMezzo);
}

// A bullet of the Symbol font for what won, a dash for a tie.
void CellaEsito(clsPDFCreator& pdf, bool vince, bool pari)
{
    constexpr std::string_view punto = "·"; // code 183, which Symbol draws as a bullet
    pdf.SetFont("Symbol", 10, Normale);
    Cella(pdf, 1, AltezzaRiga, vince ? punto : pari ? "-" : "", CentroAlto);
}

void Carta(clsPDFCreator& pdf, int posto, std::string_view carta)
{
    constexpr double passo = 0.5;
    constexpr double inizioValore = 0.2;
    constexpr double inizioSeme = 0.4; // where the value ends
    constexpr float altezzaSeme = 0.4F;
    const double sinistra = passo * posto;
    pdf.SetFont("Verdana", 8, Normale);
    pdf.DrawTextBox(static_cast<float>(sinistra + inizioValore), 0, 0.2F, AltezzaRiga,
                    modCarte::ValoreScritto(carta), 1, 0, DestraMezzo, 0);
    if (modCarte::CartaRossa(carta)) pdf.SetColorFill("#FF0000", "");
    pdf.SetFont("Symbol", 10, Normale);
    pdf.DrawTextBox(static_cast<float>(sinistra + inizioSeme), 0, 5, altezzaSeme, SemeSymbol(carta),
                    1, 0, SinistraMezzo, 0);
    pdf.SetColorFill("#000000", ""); // the next value is black again
}

void CellaMano(clsPDFCreator& pdf, const modCarte::Mano& mano)
{
    constexpr float larghezza = 5;
    pdf.BeginColumn(larghezza, "", -1, "");
    int posto = 0;
    for (const auto carta : mano) Carta(pdf, posto++, carta);
    pdf.EndColumn();
}

void RigaColpo(clsPDFCreator& pdf, std::int64_t numero, std::string_view record)
{
    const modCarte::RecordColpo colpo(record);
    pdf.BeginRow(AltezzaRiga, "", -1, "");
    CellaNumero(pdf, TestoNumero(numero));
    CellaEsito(pdf, colpo.VinceNero(), colpo.Pari());
    CellaEsito(pdf, colpo.VinceRosso(), colpo.Pari());
    CellaEsito(pdf, colpo.VinceColore(), colpo.Pari());
    CellaEsito(pdf, colpo.VinceInverso(), colpo.Pari());
    CellaNumero(pdf, colpo.TotaleNero());
    CellaMano(pdf, colpo.Nero());
    CellaNumero(pdf, colpo.TotaleRosso());
    CellaMano(pdf, colpo.Rosso());
    pdf.EndRow();
}

void CorpoTaglia(clsPDFCreator& pdf, std::int64_t taglia, const NumeroTaglie& chieste,
                 const CifreTaglia& cifre, const Separatori& separatori)
{
    const std::string titolo = chieste.PiuDiUna() ? "Taglia " + TestoNumero(taglia) : "Taglia";
    const auto riassunto = RigheRiassunto(cifre, separatori);
    pdf.SetFontSize(12);
    pdf.DrawText(Mezzeria, 2, titolo, Centro, 0);
    pdf.SetFont("Verdana", 8, Normale);
    pdf.DrawText(Mezzeria, 2.5F, riassunto[0], Centro, 0);
    pdf.DrawText(Mezzeria, 2.9F, riassunto[1], Centro, 0);

    pdf.SetFontSize(8);
    pdf.BeginTable(2, 3.5F, "White", 0.01F, "Gray");
    Intestazione(pdf);
    const auto& colpi = modCarte::Colpi;
    for (std::int64_t j = 1; j <= cifre.ColpiPagina; ++j) {
        RigaColpo(pdf, j, colpi[static_cast<std::size_t>(j)]);
    }
    pdf.EndTable();
    pdf.EndPage();
}

// ---- General statistics ----------------------------------------------------------------------

constexpr float AltezzaRigaGenerale = 0.5F;
constexpr float RientroEtichetta = 0.2F;
constexpr float LarghezzaEtichetta = 5;

void Etichetta(clsPDFCreator& pdf, float larghezza, std::string_view testo)
{
    pdf.BeginColumn(larghezza, "", -1, "");
    pdf.DrawTextBox(RientroEtichetta, 0, LarghezzaEtichetta, AltezzaRigaGenerale, testo, 1, 0,
                    SinistraMezzo, 0);
    pdf.EndColumn();
}

void RigaGenerali(clsPDFCreator& pdf, std::string_view etichetta, std::string_view valore,
                  std::string_view quota)
{
    pdf.BeginRow(AltezzaRigaGenerale, "", -1, "");
    Etichetta(pdf, LarghezzaEtichetta, etichetta);
    Cella(pdf, 2, AltezzaRigaGenerale, valore, CentroMezzo);
    Cella(pdf, 5, AltezzaRigaGenerale, quota, CentroMezzo);
    pdf.EndRow();
}

void RigaTitolo(clsPDFCreator& pdf, std::string_view titolo)
{
    constexpr float tuttaLarga = 12;
    pdf.BeginRow(AltezzaRigaGenerale, "", -1, "");
    Etichetta(pdf, tuttaLarga, titolo);
    pdf.EndRow();
}

void Generali(clsPDFCreator& pdf, const NumeroTaglie& chieste, const TotaliReport& totali,
              const Separatori& separatori)
{
    pdf.SetFont("Verdana", 8, Normale);
    pdf.BeginTable(4.5F, 4, "White", 0.01F, "Gray");
    RigaGenerali(pdf, EtichettaNumero, Migliaia(chieste.Mostrate(), separatori), "");
    const auto righe = RigheGenerali(chieste, totali, separatori);
    for (std::size_t i = 0; i < righe.size(); ++i) {
        if (i == PrimaCombinata) RigaTitolo(pdf, "Altre combinazioni vincenti");
        RigaGenerali(pdf, righe[i].Etichetta, Migliaia(righe[i].Totale, separatori),
                     righe[i].Quota);
    }
    pdf.EndTable();
    pdf.EndPage();
}

// A date that no document can hold is an error before anything is asked, touched or played.
void PretendiData()
{
    CalendarioInUso.Adesso();
}

void PretendiPosto()
{
    if (AmbienteInUso.Via != ViaReport::UscitaStandard)
        PretendiSostituibile(PercorsoForma(NomePdf));
}

} // namespace

void PretendiCompatto()
{
    clsPDFCreator().Compress(AmbienteInUso.LivelloCompatto);
}

std::string_view SemeSymbol(std::string_view carta)
{
    switch (modCarte::SemeScritto(carta)) {
    case 'C':
        return "©"; // codes 169, 168, 167 and 170, which Symbol draws as the suits
    case 'Q':
        return "¨";
    case 'F':
        return "§";
    case 'P':
        return "ª";
    default:
        return "";
    }
}

namespace {

std::optional<TotaliReport> ScriviPieno(const NumeroTaglie& chieste)
{
    constexpr float titoloTaglia = 1.3F;
    constexpr float titoloGenerali = 2;
    const Separatori separatori = SeparatoriPerFile(AmbienteInUso.SeparatoriNumeri);
    Documento documento;
    auto& pdf = documento.Pdf;

    const auto totali = EseguiPiene(
        chieste,
        [&](std::int64_t taglia, const CifreTaglia& cifre) {
            CorpoTaglia(pdf, taglia, chieste, cifre, separatori);
        },
        [&](std::int64_t) { TestaPagina(pdf, titoloTaglia); });
    if (!totali) return std::nullopt;

    if (chieste.PiuDiUna()) {
        TestaPagina(pdf, titoloGenerali);
        pdf.SetFontSize(12);
        pdf.DrawText(Mezzeria, 3, TitoloStatistiche, Centro, 0);
        Generali(pdf, chieste, *totali, separatori);
    }
    if (!documento.Finisci()) return std::nullopt;
    return totali;
}

} // namespace

std::optional<TotaliReport> StampaPdf(double numeroTaglie)
{
    const NumeroTaglie chieste(numeroTaglie);
    PretendiPdfPossibile(chieste);
    PretendiData();
    if (InUso()) return std::nullopt;
    try {
        return ScriviPieno(chieste);
    } catch (const ErroreRuntime& errore) {
        // The writer tells which of its own limits was met; the user counts shoes.
        const bool limite = errore.Numero() == NumeroErrore::Overflow;
        if (limite && errore.File() == clsPDFCreator::ErrorSource) TroppePerUnPdf();
        throw;
    }
}

std::optional<TotaliReport> StatistichePdf(double numeroTaglie,
                                           const EtichettaStato& etichettaStato)
{
    constexpr float titolo = 1.3F;
    const NumeroTaglie chieste(numeroTaglie); // a bad number is refused before anything is asked
    PretendiData();
    if (InUso()) return std::nullopt;
    PretendiPosto(); // not only when all the shoes are played
    const auto totali = EseguiConAvanzamento(chieste, etichettaStato);
    if (!totali) return std::nullopt;

    Documento documento;
    auto& pdf = documento.Pdf;
    TestaPagina(pdf, titolo);
    pdf.SetFontSize(12);
    pdf.DrawText(Mezzeria, 3, TitoloSimulazione, Centro, 0);
    pdf.SetFontSize(10);
    pdf.DrawText(Mezzeria, 3.5F, TitoloStatistiche, Centro, 0);
    Generali(pdf, chieste, *totali, SeparatoriPerFile(AmbienteInUso.SeparatoriNumeri));
    if (!documento.Finisci()) return std::nullopt;
    return totali;
}

} // namespace Stampe
