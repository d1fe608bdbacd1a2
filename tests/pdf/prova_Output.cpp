// Documents that go to a function or into a stream: the same bytes in the same order as in a file,
// and whatever the receiver does wrong is one error.

#include "Aiuti.h"
#include "Deflate.h"
#include "PaginaDiProva.h"
#include "Scritture.h"
#include "prova_UsoErrato.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <new>
#include <ostream>
#include <random>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

using aiuti::Byte;
using aiuti::CartellaDiProva;
using aiuti::Disegno;
using aiuti::ErroreDi;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

using Pezzi = std::vector<std::string>;
using Ricevente = std::function<void(std::string_view)>;

constexpr std::size_t PezzoMassimo = 64 * 1024;

// Pages of some 20 kB each.
void Pagine(clsPDFCreator& pdf, int quante)
{
    pdf.SetFont("Arial", 10);
    for (int pagina = 0; pagina < quante; ++pagina) {
        pdf.BeginPage();
        for (int riga = 0; riga < 1000; ++riga) pdf.DrawLine(0, 0, 500, static_cast<float>(riga));
        pdf.EndPage();
    }
}

void Intero(clsPDFCreator& pdf)
{
    Pagine(pdf, 12);
    pdf.EndDoc();
}

// Pages that do not become small.
void Rumore(clsPDFCreator& pdf)
{
    std::minstd_rand caso(7);
    const auto numero = [&caso] { return static_cast<float>(caso() % 500000) / 1000; };
    for (int pagina = 0; pagina < 8; ++pagina) {
        pdf.BeginPage();
        for (int riga = 0; riga < 1500; ++riga) {
            pdf.DrawLine(numero(), numero(), numero(), numero());
        }
        pdf.EndPage();
    }
}

const std::string& Atteso()
{
    static const std::string byte = aiuti::ByteDocumento({}, [](auto& pdf) { Pagine(pdf, 12); });
    return byte;
}

clsPDFCreator Scrittore()
{
    clsPDFCreator pdf;
    pdf.SetClock(aiuti::OrologioFermo());
    return pdf;
}

Ricevente Raccoglie(Pezzi& pezzi)
{
    return [&pezzi](std::string_view pezzo) { pezzi.emplace_back(pezzo); };
}

std::string Uniti(const Pezzi& pezzi)
{
    std::string tutto;
    for (const auto& pezzo : pezzi) tutto += pezzo;
    return tutto;
}

Pezzi InPezzi(const Disegno& lavoro)
{
    Pezzi pezzi;
    clsPDFCreator pdf = Scrittore();
    pdf.BeginDocTo(Raccoglie(pezzi));
    lavoro(pdf);
    return pezzi;
}

// What must be told of a document that failed.
struct Ragione
{
    NumeroErrore Numero;
    std::string Motivo;
    std::string File = "clsPDFCreator";
};

void Confronta(const std::optional<ErroreRuntime>& errore, const Ragione& ragione)
{
    ASSERT_TRUE(errore) << ragione.Motivo;
    EXPECT_EQ(errore->Numero(), ragione.Numero);
    EXPECT_EQ(errore->Motivo(), ragione.Motivo);
    EXPECT_EQ(errore->File(), ragione.File);
}

// Every operation that needs a document ends in this error.
void FallisceTutto(clsPDFCreator& pdf, const Ragione& ragione)
{
    for (const auto* operazioni : {&errato::Disegni, &errato::Aggiunte, &errato::Strutture}) {
        for (const auto& operazione : *operazioni) {
            SCOPED_TRACE(operazione.Nome);
            Confronta(ErroreDi([&] { operazione.Chiama(pdf, operazione.Argomenti); }), ragione);
        }
    }
}

// After a failure another document is whole again.
void UnAltroRiesce(clsPDFCreator& pdf)
{
    Pezzi pezzi;
    pdf.BeginDocTo(Raccoglie(pezzi));
    Pagine(pdf, 1);
    pdf.EndDoc();
    EXPECT_THAT(Uniti(pezzi), StartsWith("%PDF-1.3\r\n"));
    EXPECT_THAT(Uniti(pezzi), EndsWith("%%EOF\r\r\n"));
}

struct DiSuo : ErroreRuntime
{
    using ErroreRuntime::ErroreRuntime;
};

// What a receiver may throw, and what is told of it.
struct Lancio
{
    std::function<void()> Lancia;
    Ragione Detta;
};

const std::vector<Lancio>& Lanci()
{
    constexpr auto ingresso = NumeroErrore::ErroreInputOutput;
    static const std::vector<Lancio> lanci = {
        {[] { throw std::runtime_error("il cliente è andato via"); },
         {ingresso, "il cliente è andato via"}},
        {[] { throw 7; }, {ingresso, "chi riceve il documento lo ha rifiutato"}},
        {[] { throw DiSuo(NumeroErrore::DiscoPieno, "è piena", "nuvola"); },
         {NumeroErrore::DiscoPieno, "è piena", "nuvola"}},
        {[] { throw std::bad_alloc(); }, {NumeroErrore::MemoriaEsaurita, "", ""}},
        {[] { throw std::ios_base::failure("rotto"); },
         {ingresso, std::ios_base::failure("rotto").what()}},
    };
    return lanci;
}

// ---- Streams -----------------------------------------------------------------------------------

// Takes so many bytes, then no more; seeking and reading fail the test.
class Imbuto : public std::streambuf
{
public:
    explicit Imbuto(std::size_t posto = std::string::npos)
        : m_posto(posto)
    {
    }

    const std::string& Preso() const { return m_preso; }
    int Svuotato() const { return m_svuotato; }
    void GuastaLoSvuotare() { m_guasto = true; }
    void LanciaAllaFine() { m_lancia = true; }

protected:
    std::streamsize xsputn(const char* byte, std::streamsize quanti) override
    {
        const auto presi = std::min(static_cast<std::size_t>(quanti), m_posto - m_preso.size());
        m_preso.append(byte, presi);
        if (m_lancia && m_preso.size() == m_posto) throw std::runtime_error("il filo è caduto");
        return static_cast<std::streamsize>(presi);
    }
    int_type overflow(int_type carattere) override
    {
        const char c = traits_type::to_char_type(carattere);
        return xsputn(&c, 1) == 1 ? carattere : traits_type::eof();
    }
    int sync() override
    {
        ++m_svuotato;
        return m_guasto ? -1 : 0;
    }
    pos_type seekoff(off_type, std::ios_base::seekdir, std::ios_base::openmode) override
    {
        ADD_FAILURE() << "sought";
        return pos_type(off_type(-1));
    }
    pos_type seekpos(pos_type, std::ios_base::openmode) override
    {
        ADD_FAILURE() << "sought";
        return pos_type(off_type(-1));
    }

private:
    std::size_t m_posto;
    std::string m_preso;
    int m_svuotato = 0;
    bool m_guasto = false;
    bool m_lancia = false;
};

const Ragione FlussoRotto = {NumeroErrore::ErroreInputOutput, "il flusso non accetta altri dati"};

} // namespace

// ---- To a function -----------------------------------------------------------------------------

TEST(BeginDocTo, LaFunzioneRiceveIlFileInOrdineEAPezzi)
{
    const Pezzi pezzi = InPezzi(Intero);
    EXPECT_GT(pezzi.size(), 3U);
    for (const auto& pezzo : pezzi) {
        EXPECT_GT(pezzo.size(), 0U);
        EXPECT_LE(pezzo.size(), PezzoMassimo);
    }
    EXPECT_TRUE(Uniti(pezzi) == Atteso());
}

TEST(BeginDocTo, UnaFiguraGrandeEscePezzoPerPezzo)
{
    // Uncompressed, 500 by 200 pixels of 24 bits.
    std::string figura("BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\xF4\1\0\0\xC8\0\0\0\1\0\x18\0", 30);
    figura.resize(54 + 1500 * 200);
    for (const std::int32_t filtri : {0, 8}) {
        const auto disegno = [&](clsPDFCreator& pdf) {
            pdf.FilterDecode(filtri);
            pdf.BeginPage();
            pdf.DrawImageData(figura, 0, 0, 100, 100);
            pdf.EndPage();
        };
        const Pezzi pezzi = InPezzi([&](clsPDFCreator& pdf) {
            disegno(pdf);
            pdf.EndDoc();
        });
        EXPECT_GT(pezzi.size(), 4U);
        for (const auto& pezzo : pezzi) EXPECT_LE(pezzo.size(), PezzoMassimo);
        EXPECT_TRUE(Uniti(pezzi) == aiuti::ByteDocumento({}, disegno));
    }
}

TEST(BeginDocTo, UnDocumentoPiccoloEsceConEndDoc)
{
    Pezzi pezzi;
    clsPDFCreator pdf = Scrittore();
    pdf.BeginDocTo(Raccoglie(pezzi));
    pdf.BeginPage();
    pdf.EndPage();
    EXPECT_TRUE(pezzi.empty());
    pdf.EndDoc();
    EXPECT_EQ(pezzi.size(), 1U);
    aiuti::Esamina(Uniti(pezzi));
}

TEST(BeginDocTo, QualunqueCosaLanciLaFunzioneEUnErroreSolo)
{
    const Pezzi interi = InPezzi(Intero);
    for (std::size_t quale = 0; quale < interi.size(); ++quale) {
        for (const auto& lancio : Lanci()) {
            SCOPED_TRACE(std::to_string(quale) + " " + lancio.Detta.Motivo);
            Pezzi pezzi;
            std::size_t chiamate = 0;
            clsPDFCreator pdf = Scrittore();
            pdf.BeginDocTo([&](std::string_view pezzo) {
                if (chiamate++ == quale) lancio.Lancia();
                pezzi.emplace_back(pezzo);
            });
            Confronta(ErroreDi([&pdf] { Intero(pdf); }), lancio.Detta);
            FallisceTutto(pdf, lancio.Detta);
            EXPECT_EQ(chiamate, quale + 1); // what failed is not tried again
            EXPECT_EQ(pezzi, Pezzi(interi.begin(), interi.begin() + static_cast<long>(quale)));
            UnAltroRiesce(pdf);
        }
    }
}

TEST(BeginDocTo, OgniPezzoRifiutatoEUnErroreSoloInOgniModo)
{
    const Ragione via = {NumeroErrore::ErroreInputOutput, "via"};
    for (const int modo : {0, 1, 2, 3}) {
        const auto scrivi = [modo](clsPDFCreator& pdf, const Ricevente& ricevente) {
            if ((modo & 1) != 0 && pdf::prCanDeflate()) pdf.Compress(1);
            pdf.Conforming((modo & 2) != 0);
            pdf.BeginDocTo(ricevente);
            Rumore(pdf);
            pdf.EndDoc();
        };
        Pezzi interi;
        clsPDFCreator buono = Scrittore();
        scrivi(buono, Raccoglie(interi));
        EXPECT_GT(interi.size(), 2U) << modo;
        for (std::size_t quale = 0; quale < interi.size(); ++quale) {
            SCOPED_TRACE(std::to_string(modo) + " " + std::to_string(quale));
            Pezzi pezzi;
            clsPDFCreator pdf = Scrittore();
            const auto riceve = [&](std::string_view pezzo) {
                if (pezzi.size() == quale) throw std::runtime_error("via");
                pezzi.emplace_back(pezzo);
            };
            Confronta(ErroreDi([&] { scrivi(pdf, riceve); }), via);
            FallisceTutto(pdf, via);
            EXPECT_EQ(pezzi, Pezzi(interi.begin(), interi.begin() + static_cast<long>(quale)));
        }
    }
}

TEST(BeginDocTo, LErroreELaCosaStessaCheLaFunzioneHaLanciato)
{
    clsPDFCreator pdf = Scrittore();
    pdf.BeginDocTo([](std::string_view) { throw DiSuo(NumeroErrore::DiscoPieno); });
    for (int volta = 0; volta < 2; ++volta) EXPECT_THROW(Intero(pdf), DiSuo);
}

TEST(BeginDocTo, UnaFunzioneVuotaERifiutataEIlDocumentoApertoContinua)
{
    const Ragione manca = {NumeroErrore::ChiamataNonValida,
                           "manca la funzione che riceve il documento"};
    Pezzi pezzi;
    clsPDFCreator pdf = Scrittore();
    Confronta(ErroreDi([&pdf] { pdf.BeginDocTo(Ricevente()); }), manca);
    Confronta(ErroreDi([&pdf] { pdf.BeginDocTo(nullptr); }), manca);
    pdf.BeginDocTo(Raccoglie(pezzi));
    Confronta(ErroreDi([&pdf] { pdf.BeginDocTo(Ricevente()); }), manca);
    Intero(pdf);
    EXPECT_TRUE(Uniti(pezzi) == Atteso());
}

TEST(BeginDocTo, ChiudeComeStaIlDocumentoAncoraAperto)
{
    const CartellaDiProva cartella;
    Pezzi primo;
    Pezzi secondo;
    clsPDFCreator pdf = Scrittore();
    pdf.BeginDocTo(Raccoglie(primo));
    pdf.BeginDocTo([&](std::string_view pezzo) {
        EXPECT_EQ(primo.size(), 1U); // before the other one begins
        secondo.emplace_back(pezzo);
    });
    EXPECT_THAT(Uniti(primo), StartsWith("%PDF-1.3\r\n"));
    EXPECT_THAT(Uniti(primo), EndsWith(">>\r\nendobj\r\n"));
    pdf.BeginDoc(cartella.Nome() + "terzo.pdf");
    EXPECT_EQ(Uniti(secondo), Uniti(primo));
    Pagine(pdf, 12);
    pdf.EndDoc();
    EXPECT_TRUE(Byte(cartella.File("terzo.pdf")) == Atteso());
}

TEST(BeginDocTo, UnaProprietaRifiutataNonChiamaNessuno)
{
    Pezzi pezzi;
    clsPDFCreator pdf;
    pdf.SetDocProperty("voce n#i");
    const auto errore = ErroreDi([&] { pdf.BeginDocTo(Raccoglie(pezzi)); });
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Numero(), NumeroErrore::TipoNonCorrispondente);
    EXPECT_TRUE(pezzi.empty());
}

TEST(BeginDocTo, UnInizioCheNonRiesceNonLasciaUnDocumento)
{
    clsPDFCreator pdf = Scrittore();
    pdf.SetDocProperty(std::string(100000, 'x')); // longer than what is kept back
    const auto inizia = [&pdf] {
        pdf.BeginDocTo([](std::string_view) { throw std::runtime_error("no"); });
    };
    Confronta(ErroreDi(inizia), {NumeroErrore::ErroreInputOutput, "no"});
    FallisceTutto(pdf,
                  {NumeroErrore::ChiamataNonValida, "nessun documento è aperto: manca BeginDoc"});
}

TEST(BeginDocTo, UnDocumentoSpostatoContinuaNelNuovoOggetto)
{
    Pezzi pezzi;
    clsPDFCreator primo = Scrittore();
    primo.BeginDocTo(Raccoglie(pezzi));
    Pagine(primo, 6);
    clsPDFCreator secondo = std::move(primo);
    Pagine(secondo, 6);
    secondo.EndDoc();
    EXPECT_TRUE(Uniti(pezzi) == Atteso());
}

TEST(BeginDocTo, ChiAbbandonaIlDocumentoNonConsegnaPiuNiente)
{
    std::size_t chiamate = 0;
    std::size_t prima = 0;
    {
        clsPDFCreator pdf;
        pdf.BeginDocTo([&chiamate](std::string_view) { ++chiamate; });
        Pagine(pdf, 12);
        prima = chiamate;
    }
    EXPECT_GT(prima, 1U);
    EXPECT_EQ(chiamate, prima);
    clsPDFCreator pdf;
    pdf.BeginDocTo([&chiamate](std::string_view) { ++chiamate; });
    pdf = clsPDFCreator();
    EXPECT_EQ(chiamate, prima);
}

TEST(BeginDocTo, LaFunzioneEDistruttaAllaFineDelDocumento)
{
    const auto vivo = std::make_shared<int>(0);
    clsPDFCreator pdf;
    pdf.BeginDocTo([vivo](std::string_view) {});
    EXPECT_EQ(vivo.use_count(), 2);
    Intero(pdf);
    EXPECT_EQ(vivo.use_count(), 1);
}

TEST(OpenDoc, DopoBeginDocToNonCeNienteDaAprire)
{
    const CartellaDiProva cartella;
    Pezzi pezzi;
    clsPDFCreator pdf;
    pdf.BeginDoc(cartella.Nome() + "prova.pdf");
    pdf.EndDoc();
    pdf.BeginDocTo(Raccoglie(pezzi));
    const Ragione niente = {NumeroErrore::ChiamataNonValida, "nessun documento da aprire"};
    Confronta(ErroreDi([&pdf] { pdf.OpenDoc(); }), niente);
    pdf.EndDoc();
    Confronta(ErroreDi([&pdf] { pdf.OpenDoc(); }), niente);
}

// ---- A function that calls the writer ----------------------------------------------------------

namespace {

const Ragione Occupato = {NumeroErrore::ChiamataNonValida,
                          "chi riceve il documento non può usare chi lo scrive"};

// All operations that change something.
std::vector<errato::Operazione> Tutte()
{
    std::vector<errato::Operazione> tutte = {
        {"BeginDoc", {}, [](auto& pdf, auto&) { pdf.BeginDoc("mai.pdf"); }},
        {"BeginDocTo", {}, [](auto& pdf, auto&) { pdf.BeginDocTo([](std::string_view) {}); }},
        {"BeginDocTo, flusso",
         {},
         [](auto& pdf, auto&) {
             std::ostringstream flusso;
             pdf.BeginDocTo(flusso);
         }},
    };
    for (const auto* operazioni :
         {&errato::Disegni, &errato::Aggiunte, &errato::Strutture, &errato::Impostazioni,
          &errato::Segnalibri, &errato::SenzaNumeri}) {
        tutte.insert(tutte.end(), operazioni->begin(), operazioni->end());
    }
    return tutte;
}

} // namespace

TEST(BeginDocTo, LaFunzioneCheUsaLoScrittoreTrovaUnErroreENonGuastaNiente)
{
    Pezzi pezzi;
    clsPDFCreator pdf = Scrittore();
    pdf.BeginDocTo([&](std::string_view pezzo) {
        for (const auto& operazione : Tutte()) {
            SCOPED_TRACE(operazione.Nome);
            Confronta(ErroreDi([&] { operazione.Chiama(pdf, operazione.Argomenti); }), Occupato);
        }
        EXPECT_GE(pdf.Pages() + pdf.GetX() + pdf.GetY() + pdf.TextLength("a"), 0);
        pezzi.emplace_back(pezzo);
    });
    Intero(pdf);
    EXPECT_TRUE(Uniti(pezzi) == Atteso());
}

TEST(BeginDocTo, LErroreDiUnaFunzioneCheUsaLoScrittoreEQuelloDelDocumento)
{
    clsPDFCreator pdf = Scrittore();
    pdf.BeginDocTo([&pdf](std::string_view) { pdf.DrawText(1, 2, "dentro"); });
    Confronta(ErroreDi([&pdf] { Intero(pdf); }), Occupato);
    FallisceTutto(pdf, Occupato);
    UnAltroRiesce(pdf);
}

// ---- Into a stream -----------------------------------------------------------------------------

TEST(BeginDocTo, IlFlussoRiceveIlFileENonSiTornaIndietro)
{
    Imbuto imbuto;
    std::ostream flusso(&imbuto);
    clsPDFCreator pdf = Scrittore();
    pdf.BeginDocTo(flusso);
    Pagine(pdf, 12);
    EXPECT_EQ(imbuto.Svuotato(), 0);
    pdf.EndDoc();
    EXPECT_EQ(imbuto.Svuotato(), 1);
    EXPECT_TRUE(flusso.good());
    EXPECT_TRUE(imbuto.Preso() == Atteso());
}

TEST(BeginDocTo, IlFlussoTieneCioCheHaGiaEIlDocumentoSegue)
{
    std::ostringstream flusso;
    flusso << "prima";
    flusso.width(20); // of formatted output only
    clsPDFCreator pdf = Scrittore();
    pdf.BeginDocTo(flusso);
    Intero(pdf);
    flusso << "dopo";
    EXPECT_TRUE(flusso.str().starts_with("prima" + Atteso())); // positions count from the document
}

TEST(BeginDocTo, UnFlussoGiaRottoERifiutatoSubito)
{
    for (const auto stato : {std::ios::failbit, std::ios::badbit, std::ios::eofbit}) {
        std::stringstream flusso;
        flusso.setstate(stato);
        clsPDFCreator pdf;
        Confronta(ErroreDi([&] { pdf.BeginDocTo(flusso); }), FlussoRotto);
        FallisceTutto(
            pdf, {NumeroErrore::ChiamataNonValida, "nessun documento è aperto: manca BeginDoc"});
    }
}

TEST(BeginDocTo, UnFlussoSenzaMemoriaDietroERifiutatoSubito)
{
    std::ostream flusso(nullptr);
    clsPDFCreator pdf;
    Confronta(ErroreDi([&] { pdf.BeginDocTo(flusso); }), FlussoRotto);
}

TEST(BeginDocTo, UnFlussoCheSiRompeEUnErroreComunqueLoDica)
{
    for (const auto eccezioni : {std::ios::goodbit, std::ios::badbit, std::ios::failbit}) {
        for (const std::size_t posto :
             {std::size_t{0}, std::size_t{1}, std::size_t{100000}, Atteso().size() - 1}) {
            SCOPED_TRACE(posto);
            Imbuto imbuto(posto);
            std::ostream flusso(&imbuto);
            flusso.exceptions(eccezioni);
            clsPDFCreator pdf = Scrittore();
            pdf.BeginDocTo(flusso);
            Confronta(ErroreDi([&pdf] { Intero(pdf); }), FlussoRotto);
            FallisceTutto(pdf, FlussoRotto);
            EXPECT_TRUE(imbuto.Preso() == Atteso().substr(0, posto));
            UnAltroRiesce(pdf);
        }
    }
}

TEST(BeginDocTo, IlMotivoDiChiStaDietroAlFlussoPassa)
{
    Imbuto imbuto(100000);
    imbuto.LanciaAllaFine();
    std::ostream flusso(&imbuto);
    flusso.exceptions(std::ios::badbit);
    clsPDFCreator pdf = Scrittore();
    pdf.BeginDocTo(flusso);
    const Ragione caduto = {NumeroErrore::ErroreInputOutput, "il filo è caduto"};
    Confronta(ErroreDi([&pdf] { Intero(pdf); }), caduto);
    FallisceTutto(pdf, caduto);
}

TEST(BeginDocTo, UnFlussoCheNonSiSvuotaFallisceConEndDoc)
{
    for (const auto eccezioni : {std::ios::goodbit, std::ios::badbit}) {
        Imbuto imbuto;
        imbuto.GuastaLoSvuotare();
        std::ostream flusso(&imbuto);
        flusso.exceptions(eccezioni);
        clsPDFCreator pdf = Scrittore();
        pdf.BeginDocTo(flusso);
        Pagine(pdf, 1);
        Confronta(ErroreDi([&pdf] { pdf.EndDoc(); }), FlussoRotto);
        FallisceTutto(pdf, {NumeroErrore::ChiamataNonValida,
                            "nessun documento è aperto: manca BeginDoc"}); // it is closed
        UnAltroRiesce(pdf);
    }
}
