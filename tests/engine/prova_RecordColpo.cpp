// What is read out of a coup record.

#include "ErroreRuntime.h"
#include "RecordColpo.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using namespace modCarte;

namespace {

std::vector<std::string> CarteDi(std::string_view mano)
{
    std::vector<std::string> carte;
    for (const auto carta : Mano(mano)) carte.emplace_back(carta);
    return carte;
}

} // namespace

TEST(RecordColpo, SetteCampiAncheNelRecordFinale)
{
    const RecordColpo record("70,,,24,0,KP#9C#5F,");
    EXPECT_EQ(record.Numero(), "70");
    EXPECT_EQ(record.Esito(), "");
    EXPECT_EQ(record.Colore(), "");
    EXPECT_EQ(record.TotaleNero(), "24");
    EXPECT_EQ(record.TotaleRosso(), "0");
    EXPECT_EQ(record.Nero().Testo(), "KP#9C#5F");
    EXPECT_EQ(record.Rosso().Testo(), "");
    EXPECT_EQ(record.NumeroCarte(), 3);
    EXPECT_EQ(record.Esito(), "");
}

TEST(RecordColpo, CampiMancantiSonoVuotiEQuelliInPiuCadono)
{
    EXPECT_EQ(RecordColpo("1,N").Esito(), "N");
    EXPECT_EQ(RecordColpo("1,N").Rosso().Testo(), "");
    EXPECT_EQ(RecordColpo("1,2,3,4,5,6,7,8").Rosso().Testo(), "7");
    EXPECT_EQ(RecordColpo("").Numero(), "");
}

TEST(RecordColpo, EsitiEColoriSiConfrontanoEsattamente)
{
    const RecordColpo nero("1,N,C,32,33,,");
    EXPECT_TRUE(nero.VinceNero() && nero.VinceColore());
    EXPECT_FALSE(nero.VinceRosso() || nero.VinceInverso() || nero.Pari());
    const RecordColpo rosso("1,R,I,33,32,,");
    EXPECT_TRUE(rosso.VinceRosso() && rosso.VinceInverso());
    EXPECT_FALSE(rosso.VinceNero() || rosso.VinceColore());
    const RecordColpo altro("1,n,c,32,33,,");
    EXPECT_FALSE(altro.VinceNero() || altro.VinceColore());
}

TEST(RecordColpo, IlTrentunoEUnPariDiDueTrentuno)
{
    EXPECT_TRUE(RecordColpo("1,E,E,31,31,,").Trentuno());
    EXPECT_FALSE(RecordColpo("1,E,E,32,32,,").Trentuno());
    EXPECT_FALSE(RecordColpo("1,,,31,31,,").Trentuno());
    EXPECT_FALSE(RecordColpo("1,E,E,31,031,,").Trentuno());
}

TEST(RecordColpo, BreveASessantuno)
{
    EXPECT_TRUE(RecordColpo("30,,,34,27,,").Breve());
    EXPECT_TRUE(RecordColpo("30,,,34,27,,").BreveComeScritto());
    EXPECT_FALSE(RecordColpo("30,,,35,27,,").Breve());
    EXPECT_FALSE(RecordColpo("30,,,35,27,,").BreveComeScritto());
}

TEST(RecordColpo, ComeScrittiITotaliHannoDecimali)
{
    EXPECT_TRUE(RecordColpo("30,,,31.5,29.5,,").BreveComeScritto());
    EXPECT_FALSE(RecordColpo("30,,,31.5,30,,").BreveComeScritto());
    EXPECT_THROW(RecordColpo("30,,,31.5,30,,").Breve(), ErroreRuntime);
}

TEST(RecordColpo, TotaliCheNonSonoNumeriSonoUnErrore)
{
    EXPECT_THROW(RecordColpo("30,,,x,0,,").Breve(), ErroreRuntime);
    EXPECT_THROW(RecordColpo("30,,").Breve(), ErroreRuntime);
    EXPECT_THROW(RecordColpo("30,,,32768,0,,").Breve(), ErroreRuntime);
    EXPECT_TRUE(RecordColpo("30,,,x,0,,").BreveComeScritto());
}

TEST(Mano, LeCarteSonoSeparateDaCancelletto)
{
    EXPECT_EQ(CarteDi(""), std::vector<std::string>());
    EXPECT_EQ(CarteDi("KP"), std::vector<std::string>{"KP"});
    EXPECT_EQ(CarteDi("KP#10C#5F"), (std::vector<std::string>{"KP", "10C", "5F"}));
    EXPECT_EQ(Mano("").NumeroCarte(), 0);
    EXPECT_EQ(Mano("KP#9C#5F").NumeroCarte(), 3);
}
