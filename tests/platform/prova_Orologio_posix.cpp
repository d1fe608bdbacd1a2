// The time of day in the time zones that a variable of the environment can name.

#include "prova_Orologio.h"

#include "Utente.h"

#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

using aiuti::InUnFiglio;
using aiuti::Riuscito;
using namespace orologio;

namespace {

// A time zone in a child, on a thread that has not asked for the time yet.
int ConFuso(const std::string& fuso, const std::vector<long>& scarti)
{
    return InUnFiglio([&] {
        ::setenv("TZ", fuso.c_str(), 1);
        ::tzset();
        bool previsto = false;
        for (const long scarto : scarti) previsto = previsto || OraLocale().tm_gmtoff == scarto;
        ASSERT_TRUE(previsto) << fuso << " " << OraLocale().tm_gmtoff;
        std::thread(ConfrontaConLaLibreria).join();
    });
}

bool FusoPresente(const std::string& nome)
{
    return std::filesystem::exists("/usr/share/zoneinfo/" + nome);
}

constexpr long Quarto = 900;

} // namespace

TEST(SecondiDaMezzanotte, FusiConUnQuartoEConMezzOra)
{
    EXPECT_EQ(ConFuso("UTC0", {0}), Riuscito);
    EXPECT_EQ(ConFuso("<+0545>-5:45", {23 * Quarto}), Riuscito);
    EXPECT_EQ(ConFuso("<-0330>3:30", {-14 * Quarto}), Riuscito);
    EXPECT_EQ(ConFuso("<+14>-14", {56 * Quarto}), Riuscito);
    EXPECT_EQ(ConFuso("<-12>12", {-48 * Quarto}), Riuscito);
}

TEST(SecondiDaMezzanotte, Kathmandu)
{
    if (!FusoPresente("Asia/Kathmandu")) GTEST_SKIP() << "no time zone data";
    EXPECT_EQ(ConFuso("Asia/Kathmandu", {23 * Quarto}), Riuscito);
}

TEST(SecondiDaMezzanotte, Terranova)
{
    if (!FusoPresente("America/St_Johns")) GTEST_SKIP() << "no time zone data";
    EXPECT_EQ(ConFuso("America/St_Johns", {-14 * Quarto, -10 * Quarto}), Riuscito);
}
