// Files of unknown origin, line by line.

#include "LetturaFile.h"

#include "Aiuti.h"
#include "ErroreRuntime.h"
#include "Scritture.h"
#include "Segnali.h"
#include "Utente.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

using aiuti::CartellaDiProva;
using aiuti::ErroreDi;
using aiuti::Riuscito;

namespace {

using Testi = std::vector<std::string>;

bool Mai()
{
    return false;
}

// The lines of a file; fails the test when their numbers are not 1, 2, 3 and so on.
Testi Righe(const std::string& percorso, std::size_t massimo = 1000)
{
    Testi righe;
    const bool finito = LeggiRighe(
        percorso, massimo,
        [&righe](std::size_t numero, std::string_view riga) {
            righe.emplace_back(riga);
            EXPECT_EQ(numero, righe.size());
        },
        Mai);
    EXPECT_TRUE(finito);
    return righe;
}

// The lines of a file that holds exactly these bytes.
Testi RigheDi(const std::string& byte, std::size_t massimo = 1000)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("f"), std::ios::binary) << byte;
    return Righe(cartella.Nome() + "f", massimo);
}

std::optional<ErroreRuntime> ErroreLeggendo(const std::string& percorso)
{
    return ErroreDi([&] {
        LeggiRighe(
            percorso, 1000, [](std::size_t, std::string_view) {}, Mai);
    });
}

void NonFareNulla(int /*segnale*/) {}

} // namespace

TEST(LeggiRighe, FineRigaDiDueForme)
{
    EXPECT_EQ(RigheDi("uno\ndue\n"), (Testi{"uno", "due"}));
    EXPECT_EQ(RigheDi("uno\r\ndue\r\n"), (Testi{"uno", "due"}));
    EXPECT_EQ(RigheDi("uno\r\ndue\ntre\r\n"), (Testi{"uno", "due", "tre"}));
}

TEST(LeggiRighe, LUltimaSenzaFineRigaConta)
{
    EXPECT_EQ(RigheDi("uno\ndue"), (Testi{"uno", "due"}));
    EXPECT_EQ(RigheDi("uno\r\ndue\r"), (Testi{"uno", "due"}));
    EXPECT_EQ(RigheDi("uno"), (Testi{"uno"}));
}

TEST(LeggiRighe, UnFileVuotoNonHaRighe)
{
    EXPECT_EQ(RigheDi(""), Testi{});
}

TEST(LeggiRighe, LeRigheVuoteContano)
{
    EXPECT_EQ(RigheDi("\n\r\n\nx\n"), (Testi{"", "", "", "x"}));
}

TEST(LeggiRighe, UnRitornoCheNonEInFondoResta)
{
    EXPECT_EQ(RigheDi("a\rb\n\rc\r\r\n"), (Testi{"a\rb", "\rc\r"}));
}

TEST(LeggiRighe, QualunqueByteEPermesso)
{
    const std::string strana("a\0\xFF\xC3\x1A", 5);
    EXPECT_EQ(RigheDi(strana + "\n" + strana), (Testi{strana, strana}));
    EXPECT_EQ(RigheDi("\xEF\xBB\xBFx"), (Testi{"\xEF\xBB\xBFx"}));
}

TEST(LeggiRighe, UnFilePiuGrandeDellaMemoriaDiLettura)
{
    // Lines of 9 bytes with their ends fall across every boundary of the blocks read.
    std::string byte;
    Testi attese;
    for (int i = 0; i < 40000; ++i) {
        attese.push_back(std::to_string(10000000 + i));
        byte += attese.back() + "\n";
    }
    EXPECT_TRUE(RigheDi(byte) == attese);
    std::string lunga(200000, 'x');
    EXPECT_TRUE(RigheDi("a\n" + lunga + "\nb", 200000) == (Testi{"a", lunga, "b"}));
}

TEST(LeggiRighe, UnaRigaTroppoLungaERifiutataConIlSuoNumero)
{
    EXPECT_EQ(RigheDi("12345\n12345", 5), (Testi{"12345", "12345"}));
    EXPECT_EQ(RigheDi("12345\r\n12345\r\n", 5), (Testi{"12345", "12345"})); // the end is no text
    for (const char* byte : {"1\n12\n123456\n1", "1\n12\n123456", "1\r\n12\r\n123456789\r\n"}) {
        const CartellaDiProva cartella;
        std::ofstream(cartella.File("f"), std::ios::binary) << byte;
        Testi righe;
        const auto errore = ErroreDi([&] {
            LeggiRighe(
                cartella.Nome() + "f", 5,
                [&](std::size_t, std::string_view riga) { righe.emplace_back(riga); }, Mai);
        });
        ASSERT_TRUE(errore) << byte;
        EXPECT_EQ(errore->Numero(), NumeroErrore::ChiamataNonValida);
        EXPECT_EQ(errore->Motivo(), "riga 3: troppo lunga");
        EXPECT_EQ(errore->File(), cartella.Nome() + "f");
        EXPECT_EQ(righe, (Testi{"1", "12"}));
    }
}

TEST(LeggiRighe, UnFlussoSenzaFineRigaNonRiempieLaMemoria)
{
    const auto errore = ErroreLeggendo("/dev/zero");
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Motivo(), "riga 1: troppo lunga");
    EXPECT_EQ(errore->File(), "/dev/zero");
}

TEST(LeggiRighe, UnFileCheMancaEUnaCartellaSonoErrori)
{
    const CartellaDiProva cartella;
    const auto manca = ErroreLeggendo(cartella.Nome() + "assente");
    ASSERT_TRUE(manca);
    EXPECT_EQ(manca->File(), cartella.Nome() + "assente");
    EXPECT_EQ(manca->Motivo(), "file o cartella inesistente");
    const auto folder = ErroreLeggendo(cartella.Nome());
    ASSERT_TRUE(folder);
    EXPECT_EQ(folder->File(), cartella.Nome());
    EXPECT_EQ(folder->Motivo(), "è una cartella");
}

TEST(LeggiRighe, UnFileCheNonSiPuoLeggereEUnErrore)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("f")) << "x\n";
    if (aiuti::SonoRadice()) aiuti::Affida(cartella.File("f"), aiuti::Nessuno);
    std::filesystem::permissions(cartella.File("f"), std::filesystem::perms::none);
    EXPECT_EQ(aiuti::ComeNessuno([&] {
                  const auto errore = ErroreLeggendo(cartella.Nome() + "f");
                  ASSERT_TRUE(errore);
                  EXPECT_EQ(errore->Numero(), NumeroErrore::PermessoNegato);
                  EXPECT_EQ(errore->Motivo(), "permesso negato");
              }),
              Riuscito);
}

TEST(LeggiRighe, UnTrattinoELIngressoStandard)
{
    EXPECT_EQ(aiuti::InUnFiglio([] {
                  std::array<int, 2> tubo{};
                  ASSERT_EQ(::pipe(tubo.data()), 0);
                  ASSERT_EQ(::write(tubo[1], "uno\ndue", 7), 7);
                  ::close(tubo[1]);
                  ASSERT_EQ(::dup2(tubo[0], STDIN_FILENO), STDIN_FILENO);
                  EXPECT_EQ(Righe("-"), (Testi{"uno", "due"}));
                  EXPECT_NE(::fcntl(STDIN_FILENO, F_GETFD), -1); // it is not ours to close
                  ::close(STDIN_FILENO);
                  const auto errore = ErroreLeggendo("-");
                  ASSERT_TRUE(errore);
                  EXPECT_EQ(errore->File(), "-");
              }),
              Riuscito);
}

TEST(LeggiRighe, UnaFifoSiLeggeFinoAllaFine)
{
    const CartellaDiProva cartella;
    const std::string fifo = cartella.Nome() + "fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    aiuti::Figlio scrittore([&] { std::ofstream(fifo) << "uno\n" << std::flush << "due\n"; });
    EXPECT_EQ(Righe(fifo), (Testi{"uno", "due"}));
    EXPECT_EQ(scrittore.Aspetta(), Riuscito);
}

TEST(LeggiRighe, FermarePrimaDiOgniRiga)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("f")) << "uno\ndue\ntre\nquattro";
    for (const int dopo : {0, 1, 2, 3, 4}) {
        Testi righe;
        const bool finito = LeggiRighe(
            cartella.Nome() + "f", 1000,
            [&](std::size_t, std::string_view riga) { righe.emplace_back(riga); },
            [&] { return righe.size() == static_cast<std::size_t>(dopo); });
        EXPECT_EQ(righe.size(), static_cast<std::size_t>(dopo));
        EXPECT_EQ(finito, dopo == 4);
    }
}

TEST(LeggiRighe, UnErroreDellaRigaArrivaAChiChiama)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("f")) << "uno\ndue\n";
    const auto errore = ErroreDi([&] {
        LeggiRighe(
            cartella.Nome() + "f", 1000,
            [](std::size_t, std::string_view) {
                throw ErroreRuntime(NumeroErrore::ChiamataNonValida, "mio");
            },
            Mai);
    });
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Motivo(), "mio");
}

namespace {

// Reads a FIFO that nobody writes to, with signals arriving until the reading has ended.
int LeggiSottoSegnali(const std::string& fifo, const std::function<bool()>& fermare)
{
    aiuti::Figlio lettore([&] {
        EXPECT_FALSE(LeggiRighe(
            fifo, 1000, [](std::size_t, std::string_view) {}, fermare));
    });
    // One signal could come before the wait begins, so that there are many.
    int esito = aiuti::DaSegnale + SIGUSR1;
    while (!lettore.Finito(esito)) {
        ::kill(lettore.Numero(), SIGUSR1);
        ::poll(nullptr, 0, 1);
    }
    return esito;
}

// True from the question number volte on.
std::function<bool()> AllaDomanda(int volte)
{
    return [volte, domande = 0]() mutable { return ++domande >= volte; };
}

} // namespace

TEST(LeggiRighe, UnSegnaleFermaLAttesaDiChiApreUnaFifo)
{
    const CartellaDiProva cartella;
    const std::string fifo = cartella.Nome() + "fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    // Set here, for the child to start with: a signal that came too early would end it.
    struct sigaction prima = {};
    struct sigaction azione = {};
    azione.sa_handler = NonFareNulla;
    ASSERT_EQ(::sigaction(SIGUSR1, &azione, &prima), 0);
    EXPECT_EQ(LeggiSottoSegnali(fifo, AllaDomanda(1)), Riuscito);
    EXPECT_EQ(LeggiSottoSegnali(fifo, AllaDomanda(3)), Riuscito); // "no" goes on waiting
    // Open, but without a byte: now it is the reading that waits.
    const int scrittore = ::open(fifo.c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_GE(scrittore, 0);
    EXPECT_EQ(LeggiSottoSegnali(fifo, AllaDomanda(2)), Riuscito);
    ::close(scrittore);
    ASSERT_EQ(::sigaction(SIGUSR1, &prima, nullptr), 0);
}

TEST(LeggiRighe, UnaRichiestaFraLaDomandaELAttesaNonSiPerde)
{
    const CartellaDiProva cartella;
    const std::string fifo = cartella.Nome() + "fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    for (const int segnale : {SIGINT, SIGTERM}) {
        EXPECT_EQ(aiuti::InUnFiglio([&] {
                      constexpr unsigned troppo = 60; // seconds, after which the child is killed
                      ::alarm(troppo);
                      AscoltaInterruzioni();
                      bool arrivata = false;
                      const auto fermare = [&] {
                          const bool chiesta = InterruzioneChiesta();
                          if (!std::exchange(arrivata, true)) std::raise(segnale);
                          return chiesta;
                      };
                      EXPECT_FALSE(LeggiRighe(
                          fifo, 1000, [](std::size_t, std::string_view) {}, fermare));
                  }),
                  Riuscito);
    }
}

TEST(LeggiFile, DaTuttiIByte)
{
    const aiuti::CartellaDiProva cartella;
    const std::string byte = std::string("a\0\r\n\xE8", 5) + std::string(200000, 'z');
    std::ofstream(cartella.File("f"), std::ios::binary) << byte;
    EXPECT_TRUE(LeggiFile(cartella.Nome() + "f", byte.size()) == byte);
    std::ofstream(cartella.File("vuoto"));
    EXPECT_EQ(LeggiFile(cartella.Nome() + "vuoto", 0), "");
}

TEST(LeggiFile, RifiutaChiNonEUnFileEChiETroppoGrande)
{
    const aiuti::CartellaDiProva cartella;
    std::ofstream(cartella.File("f")) << "abc";
    ASSERT_EQ(::mkfifo(cartella.File("fifo").c_str(), 0600), 0);
    const auto numero = [&](const char* nome, std::size_t massimo) {
        const auto errore = aiuti::ErroreDi([&] { LeggiFile(cartella.Nome() + nome, massimo); });
        return errore ? static_cast<int>(errore->Numero()) : 0;
    };
    EXPECT_EQ(numero("f", 3), 0);
    EXPECT_EQ(numero("f", 2), static_cast<int>(NumeroErrore::Overflow));
    EXPECT_EQ(numero("manca", 3), static_cast<int>(NumeroErrore::PercorsoNonTrovato));
    EXPECT_EQ(numero("fifo", 3), static_cast<int>(NumeroErrore::AccessoAlFile));
    EXPECT_EQ(numero(".", 3), static_cast<int>(NumeroErrore::AccessoAlFile));
}
