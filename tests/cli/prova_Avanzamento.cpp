// The progress line's text.

#include "Avanzamento.h"

#include "Orologio.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <thread>

using cli::TestoAvanzamento;

TEST(TestoAvanzamento, FatteRitmoETempo)
{
    EXPECT_EQ(TestoAvanzamento(50, 200, 10), "50 taglie su 200 (25%), 5 al secondo, mancano 0:30");
    EXPECT_EQ(TestoAvanzamento(200, 200, 10),
              "200 taglie su 200 (100%), 20 al secondo, mancano 0:00");
}

TEST(TestoAvanzamento, OreEMinuti)
{
    EXPECT_EQ(TestoAvanzamento(1, 3662, 1), "1 taglia su 3662 (0%), 1 al secondo, mancano 1:01:01");
    EXPECT_EQ(TestoAvanzamento(1, 601, 1), "1 taglia su 601 (0%), 1 al secondo, mancano 10:00");
}

TEST(TestoAvanzamento, SenzaTempoOSenzaFineNonLoDice)
{
    EXPECT_EQ(TestoAvanzamento(1, 2, 0), "1 taglia su 2 (50%)");
    EXPECT_EQ(TestoAvanzamento(1, std::int64_t{1} << 53, 1),
              "1 taglia su 9007199254740992 (0%), 1 al secondo");
}

TEST(TestoAvanzamento, OltreUnMiliardoDiSecondiNonDiceQuantiNeMancano)
{
    EXPECT_EQ(TestoAvanzamento(1, 1000000000, 1),
              "1 taglia su 1000000000 (0%), 1 al secondo, mancano 277777:46:39");
    EXPECT_EQ(TestoAvanzamento(1, 1000000001, 1), "1 taglia su 1000000001 (0%), 1 al secondo");
}

TEST(TestoAvanzamento, StaInMenoColonneDiQuanteCeNeSono)
{
    const auto in = [](std::size_t colonne) { return TestoAvanzamento(50, 200, 10, colonne); };
    const std::string tutto = "50 taglie su 200 (25%), 5 al secondo, mancano 0:30"; // 50 characters
    EXPECT_EQ(in(1000), tutto);
    EXPECT_EQ(in(51), tutto);
    EXPECT_EQ(in(50), "50 taglie su 200 (25%), mancano 0:30"); // the last column stays free
    EXPECT_EQ(in(37), "50 taglie su 200 (25%), mancano 0:30");
    EXPECT_EQ(in(36), "50 taglie su 200 (25%)");
    EXPECT_EQ(in(22), "25%");
    EXPECT_EQ(in(3), "");
    EXPECT_EQ(in(1), "");
    EXPECT_EQ(TestoAvanzamento(50, 200, 0, 30), "50 taglie su 200 (25%)");
}

namespace {

// What the call writes on standard error.
std::string Scritto(cli::Avanzamento& avanzamento)
{
    testing::internal::CaptureStderr();
    avanzamento.Mostra(1);
    return testing::internal::GetCapturedStderr();
}

// Shows the progress until it is written, twice: not before ogni seconds have passed, and not
// later than at the first call after them.
void ScriveOgni(double ogni, bool terminale)
{
    double prima = SecondiTrascorsi();
    cli::Avanzamento avanzamento(1000, terminale);
    double dopo = SecondiTrascorsi();
    for (int volta = 0; volta < 2; ++volta) {
        for (;;) {
            const double inizio = SecondiTrascorsi();
            const std::string scritto = Scritto(avanzamento);
            const double fine = SecondiTrascorsi();
            if (!scritto.empty()) {
                EXPECT_GE(fine - prima, ogni) << volta;
                prima = inizio;
                dopo = fine;
                break;
            }
            ASSERT_LT(inizio - dopo, ogni) << volta;
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    }
    testing::internal::CaptureStderr();
    avanzamento.Finisci();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), terminale ? "\r\x1b[K" : "");
}

} // namespace

TEST(Avanzamento, SulTerminaleOgniDecimoAltroveOgniSecondo)
{
    ScriveOgni(0.1, true);
    ScriveOgni(1, false);
}
