// The command when memory runs out at its k-th request, for every k: it says so in one line, ends
// with exit code 5, and leaves whole reports or none. Each run is a process of its own, so that it
// begins with nothing taken yet and the leak checker sees its end.

#include "Aiuti.h"
#include "Comando.h"
#include "FileIntero.h"
#include "MemoriaFinita.h"
#include "SpazioPdf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <functional>
#include <map>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

using memoria::Durata;

namespace {

// How many requests are tried, spread evenly over all of them beyond the first ones. Where the
// sanitizers look for leaks at the end of each process, that takes most of the time.
#ifdef __SANITIZE_ADDRESS__
constexpr std::uint64_t Prime = 12;
constexpr std::uint64_t UnaAllaVolta = 24;
constexpr std::uint64_t Definitive = 12;
#else
constexpr std::uint64_t Prime = 100;
constexpr std::uint64_t UnaAllaVolta = 1000; // that is all of them
constexpr std::uint64_t Definitive = 150;
#endif

constexpr const char* Vecchio = "il report di prima\n";

struct Esito
{
    int Codice = -1; // -1: ended by a signal
    std::uint64_t Richieste = 0;
    std::string Uscita;
    std::string Errori;
};

// Sends a channel of this process into a new file.
void Devia(int canale, const std::filesystem::path& file)
{
    const int nuovo = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    if (nuovo < 0 || ::dup2(nuovo, canale) < 0) ::_exit(99);
    ::close(nuovo);
}

// Data without the seconds that the run took.
std::string SenzaDurata(std::string uscita)
{
    constexpr const char* cifre = "0123456789";
    const auto inizio = uscita.find_first_of(cifre, uscita.find("secondi"));
    if (inizio == std::string::npos) return uscita;
    const auto fine = uscita.find_first_not_of(std::string(cifre) + ".e-", inizio);
    return uscita.erase(inizio, fine - inizio);
}

class Comando : public testing::Test
{
protected:
    Comando() { ::setenv("SOURCE_DATE_EPOCH", "1767323045", 1); }
    ~Comando() override { ::unsetenv("SOURCE_DATE_EPOCH"); }

    // Runs the command in the folder, in a process that ends as the command's own does.
    Esito Esegui(const std::vector<std::string>& argomenti, std::uint64_t quale, Durata durata)
    {
        std::fflush(nullptr);
        const pid_t figlio = ::fork();
        if (figlio == 0) Figlio(argomenti, quale, durata);
        int stato = 0;
        EXPECT_EQ(::waitpid(figlio, &stato, 0), figlio);
        Esito esito;
        if (WIFEXITED(stato)) esito.Codice = WEXITSTATUS(stato);
        esito.Uscita = SenzaDurata(aiuti::Byte(m_canali.File("uscita")));
        esito.Errori = aiuti::Byte(m_canali.File("errori"));
        std::ifstream(m_canali.File("richieste")) >> esito.Richieste;
        return esito;
    }

    // What the folder holds: names and bytes.
    std::map<std::string, std::string> Contenuto() const
    {
        std::map<std::string, std::string> file;
        for (const auto& nome : m_cartella.Contenuto()) {
            file[nome] = aiuti::Byte(m_cartella.File(nome));
        }
        return file;
    }

    void Svuota()
    {
        for (const auto& nome : m_cartella.Contenuto()) {
            std::filesystem::remove(m_cartella.File(nome));
        }
    }

    void Prepara(const std::string& report)
    {
        Svuota();
        std::ofstream(m_cartella.File(report)) << Vecchio;
    }

    // Every state that the report may be in after a failure.
    using Ammessi = std::function<bool(const std::string& nome, const std::string& byte)>;

    // All requests, one after the other, in both ways.
    void EsaurisciOvunque(const std::vector<std::string>& argomenti, const std::string& report,
                          const Ammessi& ammessi)
    {
        Prepara(report);
        const Esito bene = Esegui(argomenti, 0, Durata::UnaVolta);
        ASSERT_EQ(bene.Codice, 0) << bene.Errori;
        ASSERT_GT(bene.Richieste, 20U);
        const auto intero = Contenuto();
        int falliti = 0;
        for (const auto durata : {Durata::UnaVolta, Durata::DaAllora}) {
            const auto quante = durata == Durata::UnaVolta ? UnaAllaVolta : Definitive;
            const std::uint64_t passo = std::max<std::uint64_t>(1, bene.Richieste / quante);
            for (std::uint64_t k = 1; k <= bene.Richieste; k += k < Prime ? 1 : passo) {
                SCOPED_TRACE("request " + std::to_string(k) + " of " +
                             std::to_string(bene.Richieste) +
                             (durata == Durata::DaAllora ? " and all later ones" : ""));
                Prepara(report);
                const Esito esito = Esegui(argomenti, k, durata);
                if (esito.Codice != 0) ++falliti;
                Controlla(esito, bene, intero, ammessi);
                if (HasFatalFailure()) return;
            }
        }
        EXPECT_GT(falliti, 20);
    }

    std::string Cartella() const { return m_cartella.Nome(); }

    // Not even the old report goes for nothing, but for files that grow in its place.
    bool VecchioResta = true;

private:
    [[noreturn]] void Figlio(const std::vector<std::string>& argomenti, std::uint64_t quale,
                             Durata durata)
    {
        Devia(STDOUT_FILENO, m_canali.File("uscita"));
        Devia(STDERR_FILENO, m_canali.File("errori"));
        if (::chdir(m_cartella.Nome().c_str()) != 0) ::_exit(98);
        std::vector<const char*> puntatori;
        for (const auto& argomento : argomenti) puntatori.push_back(argomento.c_str());
        memoria::Guasta(quale, durata);
        const int codice = cli::EseguiComando(puntatori);
        const std::uint64_t richieste = memoria::Ripara();
        std::ofstream(m_canali.File("richieste")) << richieste;
        std::exit(codice);
    }

    void Controlla(const Esito& esito, const Esito& bene,
                   const std::map<std::string, std::string>& intero, const Ammessi& ammessi)
    {
        if (esito.Codice == 0) { // done without that memory
            EXPECT_EQ(esito.Errori, bene.Errori);
            EXPECT_EQ(esito.Uscita, bene.Uscita);
            EXPECT_EQ(Contenuto(), intero);
            return;
        }
        ASSERT_EQ(esito.Codice, 5) << esito.Errori;
        ASSERT_EQ(esito.Errori, "taglie: memoria: esaurita\n");
        ASSERT_EQ(esito.Uscita, "");
        const auto rimasto = Contenuto();
        ASSERT_TRUE(!VecchioResta || !rimasto.empty());
        for (const auto& [nome, byte] : rimasto) {
            const auto trovato = intero.find(nome);
            ASSERT_NE(trovato, intero.end()) << nome;
            ASSERT_TRUE(byte == Vecchio || byte == trovato->second || ammessi(nome, byte))
                << nome << ", " << byte.size() << " bytes";
        }
    }

    aiuti::CartellaDiProva m_cartella;
    aiuti::CartellaDiProva m_canali;
};

bool Nulla(const std::string& /*nome*/, const std::string& /*byte*/)
{
    return false;
}

// Whole lines, as the files of shoes and coups may be cut off.
bool RigheIntere(const std::string& nome, const std::string& byte)
{
    return (nome == "c" || nome == "m") && (byte.empty() || byte.back() == '\n');
}

} // namespace

TEST_F(Comando, LeStatisticheInTesto)
{
    EsaurisciOvunque({"--seme", "7", "-s", "5"}, "taglie.txt", Nulla);
}

TEST_F(Comando, LeStatisticheInHtml)
{
    EsaurisciOvunque({"--seme", "7", "-s", "5", "-f", "html"}, "taglie.htm", Nulla);
}

TEST_F(Comando, LeStatisticheInDueFili)
{
    EsaurisciOvunque({"--seme", "7", "-s", "70", "-j", "2"}, "taglie.txt", Nulla);
}

TEST_F(Comando, IlTestoTieneLeTaglieIntere)
{
    const std::vector<std::string> argomenti = {"--seme", "7", "3"};
    Prepara("taglie.txt");
    ASSERT_EQ(Esegui(argomenti, 0, Durata::UnaVolta).Codice, 0);
    const std::string tutto = Contenuto().at("taglie.txt");
    std::vector<std::string> stati = {""}; // just created
    for (const char* inizio : {"\r\n\t\t\tTaglia 1\r\n", "\r\n\t\t\tTaglia 2\r\n",
                               "\r\n\t\t\tTaglia 3\r\n", "\r\n\r\n\t\tStatistiche generali\r\n"}) {
        ASSERT_NE(tutto.find(inizio), std::string::npos);
        stati.push_back(tutto.substr(0, tutto.find(inizio)));
    }
    VecchioResta = false;
    EsaurisciOvunque(argomenti, "taglie.txt", [&](const std::string&, const std::string& byte) {
        return std::find(stati.begin() + 1, stati.end(), byte) != stati.end();
    });
}

TEST_F(Comando, LaPaginaIntera)
{
    EsaurisciOvunque({"--seme", "7", "2", "-f", "html"}, "taglie.htm", Nulla);
}

TEST_F(Comando, LaPaginaSottoUnNomeNascosto)
{
    FingiSenzaAnonimi(true);
    EsaurisciOvunque({"--seme", "7", "2", "-f", "html", "-o", "x"}, "x", Nulla);
    FingiSenzaAnonimi(false);
}

TEST_F(Comando, IlDocumentoCompatto)
{
    try {
        Stampe::PretendiCompatto();
    } catch (const ErroreRuntime&) {
        GTEST_SKIP() << "built without zlib";
    }
    EsaurisciOvunque({"--seme", "7", "2", "-o", "x.pdf", "--compatto"}, "x.pdf", Nulla);
}

TEST_F(Comando, IlDocumentoIntero)
{
    EsaurisciOvunque({"--seme", "7", "2", "-f", "pdf"}, "taglie.pdf", Nulla);
}

TEST_F(Comando, LeStatisticheInUnDocumento)
{
    EsaurisciOvunque({"--seme", "7", "-s", "2", "-f", "pdf"}, "taglie.pdf", Nulla);
}

TEST_F(Comando, LeStatisticheSulTerminale)
{
    EsaurisciOvunque({"--seme", "7", "3", "-f", "video"}, "altro", Nulla);
}

TEST_F(Comando, TaglieEColpiSuFile)
{
    VecchioResta = false;
    EsaurisciOvunque({"--seme", "7", "3", "-f", "nessuna", "--colpi", "c", "--salva-mazzi", "m"},
                     "c", RigheIntere);
}

TEST_F(Comando, ITotaliInJson)
{
    EsaurisciOvunque({"--seme", "7", "3", "--dati", "json"}, "altro", Nulla);
}

TEST_F(Comando, ITotaliInCsvDiDueFili)
{
    EsaurisciOvunque({"--seme", "7", "70", "--dati", "csv", "-j", "2"}, "altro", Nulla);
}
