// The time of day.

#include "Orologio.h"

#include "Utente.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

using aiuti::InUnFiglio;
using aiuti::Riuscito;

namespace {

constexpr double Giorno = 86400;

std::tm OraLocale()
{
    const std::time_t adesso = std::time(nullptr);
    std::tm locale = {};
    ::localtime_r(&adesso, &locale);
    return locale;
}

// The C library's answer and ours agree, also when midnight passes in between.
void ConfrontaConLaLibreria()
{
    const std::tm locale = OraLocale();
    const double secondi = SecondiDaMezzanotte();
    EXPECT_GE(secondi, 0);
    EXPECT_LT(secondi, Giorno);
    const double attesi = locale.tm_hour * 3600 + locale.tm_min * 60 + locale.tm_sec;
    const double scarto = std::remainder(secondi - attesi, Giorno);
    EXPECT_LT(std::abs(scarto), 2) << secondi << " " << attesi;
}

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

TEST(SecondiDaMezzanotte, FraZeroEUnGiornoEComeLaLibreria)
{
    for (int i = 0; i < 1000; ++i) ConfrontaConLaLibreria();
}

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

TEST(SecondiDaMezzanotte, HaAncheLeFrazioni)
{
    // The clock moves on in steps of some milliseconds: one of them falls between two seconds.
    bool frazione = false;
    const double inizio = SecondiTrascorsi();
    while (!frazione && SecondiTrascorsi() - inizio < 60) {
        const double secondi = SecondiDaMezzanotte();
        frazione = secondi != std::floor(secondi);
    }
    EXPECT_TRUE(frazione);
}

TEST(SecondiTrascorsi, NonTornanoIndietro)
{
    double prima = SecondiTrascorsi();
    for (int i = 0; i < 10000; ++i) {
        const double adesso = SecondiTrascorsi();
        ASSERT_GE(adesso, prima);
        prima = adesso;
    }
}
