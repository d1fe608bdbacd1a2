// Standard output as the place of a report: closed, full, without a reader.

#include "UscitaStandard.h"

#include "Aiuti.h"
#include "ErroreSistema.h"
#include "Scritture.h"
#include "Utente.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <functional>
#include <string>

#include <fcntl.h>
#include <unistd.h>

using aiuti::CartellaDiProva;
using aiuti::ErroreDi;

namespace {

// Runs lavoro with this file as standard output.
int Con(const std::string& file, int modo, const std::function<void()>& lavoro)
{
    return aiuti::InUnFiglio([&] {
        const int nuovo = ::open(file.c_str(), modo | O_CREAT, 0600);
        ASSERT_GE(nuovo, 0) << file;
        ASSERT_EQ(::dup2(nuovo, STDOUT_FILENO), STDOUT_FILENO);
        ::close(nuovo);
        lavoro();
    });
}

void Rifiuta(const std::function<void()>& lavoro, NumeroErrore numero, const std::string& motivo)
{
    const auto errore = ErroreDi(lavoro);
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Numero(), numero);
    EXPECT_EQ(errore->Motivo(), motivo);
    EXPECT_EQ(errore->File(), "uscita standard");
}

} // namespace

TEST(UscitaStandard, PrendeOgniByteComeE)
{
    const CartellaDiProva cartella;
    const std::string byte("a\r\n\0\xFF\n", 6);
    const auto esito = Con(cartella.File("f").string(), O_WRONLY, [&] {
        PreparaUscita();
        ScriviInUscita(byte);
        ScriviInUscita("fine");
        PretendiUscitaArrivata();
        ScriviInUscita("."); // open still
    });
    EXPECT_EQ(esito, aiuti::Riuscito);
    EXPECT_EQ(aiuti::Byte(cartella.File("f")), byte + "fine.");
}

TEST(UscitaStandard, SaInQualeFileVa)
{
    const CartellaDiProva cartella;
    const std::string file = cartella.File("f").string();
    EXPECT_EQ(Con(file, O_WRONLY,
                  [&] {
                      std::filesystem::create_symlink("f", cartella.File("g"));
                      EXPECT_TRUE(UscitaNelFile(file));
                      EXPECT_TRUE(UscitaNelFile(cartella.File("g").string()));
                      EXPECT_FALSE(UscitaNelFile(cartella.File("h").string()));
                      EXPECT_FALSE(UscitaNelFile(cartella.Nome()));
                  }),
              aiuti::Riuscito);
    EXPECT_EQ(Con("/dev/null", O_WRONLY, [] { EXPECT_FALSE(UscitaNelFile("/dev/null")); }),
              aiuti::Riuscito);
}

TEST(UscitaStandard, ChiusaOSoloDaLeggereSiDiceSubito)
{
    EXPECT_EQ(Con("/dev/null", O_RDONLY,
                  [] {
                      Rifiuta(PreparaUscita, NumeroErrore::AccessoAlFile, "il file non è aperto");
                      ::close(STDOUT_FILENO);
                      Rifiuta(PreparaUscita, NumeroErrore::AccessoAlFile, "il file non è aperto");
                  }),
              aiuti::Riuscito);
}

TEST(UscitaStandard, IlDiscoPienoEIlLettoreAndatoSonoErrori)
{
    EXPECT_EQ(Con("/dev/full", O_WRONLY,
                  [] {
                      Rifiuta([] { ScriviInUscita("x"); }, NumeroErrore::DiscoPieno,
                              "spazio esaurito sul disco");
                      aiuti::ScrittureGuaste scritture;
                      scritture.GuastaChiusura(1, EIO);
                      Rifiuta(PretendiUscitaArrivata, NumeroErrore::ErroreInputOutput,
                              "errore del dispositivo");
                  }),
              aiuti::Riuscito);
    EXPECT_EQ(Con("/dev/null", O_WRONLY,
                  [] {
                      std::signal(SIGPIPE, SIG_IGN);
                      std::array<int, 2> tubo{};
                      ASSERT_EQ(::pipe(tubo.data()), 0);
                      ::dup2(tubo[1], STDOUT_FILENO);
                      ::close(tubo[0]);
                      const auto errore = ErroreDi([] { ScriviInUscita("x"); });
                      ASSERT_TRUE(errore);
                      EXPECT_TRUE(DiChiNonLegge(*errore));
                      EXPECT_FALSE(DiChiNonLegge(ErroreSistema(EIO, "x")));
                  }),
              aiuti::Riuscito);
}
