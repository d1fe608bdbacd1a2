// Numbers as the user writes them, with the marks of two countries, and what is none.

#include "ErroreRuntime.h"
#include "NumeroUtente.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string>

namespace {

// The error number of a text that is no number here; nothing when it is one.
std::optional<int> Rifiuto(const std::string& testo, const Separatori& separatori = {",", "."})
{
    try {
        NumeroUtente(testo, separatori);
        return std::nullopt;
    } catch (const ErroreRuntime& errore) {
        return static_cast<int>(errore.Numero());
    }
}

} // namespace

TEST(NumeroUtente, LeggeTuttoIlTestoConISegniDellUtente)
{
    const Separatori italiani{",", "."};
    const Separatori inglesi{".", ","};
    EXPECT_EQ(NumeroUtente("1", italiani), 1);
    EXPECT_EQ(NumeroUtente("  007 ", italiani), 7);
    EXPECT_EQ(NumeroUtente("1.000", italiani), 1000);
    EXPECT_EQ(NumeroUtente("1,000", inglesi), 1000);
    EXPECT_EQ(NumeroUtente("2,5", italiani), 2.5);
    EXPECT_EQ(NumeroUtente(",5", italiani), 0.5);
    EXPECT_EQ(NumeroUtente("2.5", inglesi), 2.5);
    EXPECT_EQ(NumeroUtente("2.5", italiani), 25);
    EXPECT_EQ(NumeroUtente("-3", italiani), -3);
    EXPECT_EQ(NumeroUtente("+3", italiani), 3);
    EXPECT_EQ(NumeroUtente("1e3", italiani), 1000);
    EXPECT_EQ(NumeroUtente("12E-1", italiani), 1.2);
    EXPECT_EQ(NumeroUtente("1\u202f000", {",", "\u202f"}), 1000);
    EXPECT_EQ(NumeroUtente("1000", {".", ""}), 1000);
}

TEST(NumeroUtente, UnNumeroTroppoGrandeEInfinito)
{
    constexpr double infinito = std::numeric_limits<double>::infinity();
    EXPECT_EQ(NumeroUtente("1e999", {",", "."}), infinito);
    EXPECT_EQ(NumeroUtente("-1e999", {",", "."}), -infinito);
    EXPECT_EQ(NumeroUtente(std::string(400, '9'), {",", "."}), infinito);
}

TEST(NumeroUtente, RifiutaCioCheNonEUnNumero)
{
    for (const char* testo :
         {"",   " ",  "abc",  "1a", "a1", "1 2",  "--1",        "1,2,3", ".",   ",",
          "1e", "e3", "0x10", "1.", ".5", "1..0", "1\u202f000", "inf",   "nan", "١"}) {
        EXPECT_EQ(Rifiuto(testo), 13) << testo;
    }
    EXPECT_EQ(Rifiuto("1,000", {".", ""}), 13);
}
