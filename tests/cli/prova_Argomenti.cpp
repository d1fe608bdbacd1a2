// What was typed, before anybody asks what it means.

#include "Argomenti.h"
#include "ErroreComando.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace cli;

namespace {

std::string Rifiuto(const std::vector<std::string>& argomenti)
{
    try {
        LeggiArgomenti(argomenti);
    } catch (const ErroreComando& errore) {
        EXPECT_EQ(errore.CodiceUscita(), UscitaUso);
        return errore.what();
    }
    return "accettato";
}

} // namespace

TEST(Argomenti, NienteEDiversoDaVuoto)
{
    EXPECT_EQ(LeggiArgomenti({}).Cartella, std::nullopt);
    EXPECT_EQ(LeggiArgomenti({"-c", ""}).Cartella, "");
}

TEST(Argomenti, DiUnOpzioneValeLUltimoValore)
{
    EXPECT_EQ(LeggiArgomenti({"-f", "txt", "--forma=boh"}).Forma, "boh");
    EXPECT_TRUE(LeggiArgomenti({"-s", "-s"}).Statistiche);
}

TEST(Argomenti, DueNumeriDiTaglieSonoTroppi)
{
    EXPECT_EQ(LeggiArgomenti({"x"}).Taglie, "x");
    EXPECT_EQ(Rifiuto({"1", "2"}), "2: argomento di troppo");
}

TEST(Argomenti, IRifiutiDiconoLOpzione)
{
    EXPECT_EQ(Rifiuto({"--boh"}), "--boh: opzione sconosciuta");
    EXPECT_EQ(Rifiuto({"--lavori"}), "--lavori: manca il valore");
    EXPECT_EQ(Rifiuto({"-s=1"}), "-s: non vuole un valore");
    EXPECT_EQ(Rifiuto({"--quieto=1"}), "--quieto: non vuole un valore");
}
