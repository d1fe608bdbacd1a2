// Numbers of 128 bits, in both of their ways wherever the compiler has the one of its own.

#include "Intero128.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <vector>

using namespace Stampe;

namespace {

constexpr std::uint64_t Tutti = ~std::uint64_t{0};

template <typename Intero>
Intero DueAlla(int posti)
{
    return Intero(1) << posti;
}

// 2^128 - 1 = (2^64 - 1)^2 + 2 (2^64 - 1)
template <typename Intero>
Intero Massimo()
{
    return Intero(Tutti) * Tutti + Intero(Tutti) + Intero(Tutti);
}

// Whether the work leaves 128 bits.
template <typename Intero>
bool Esce(const std::function<Intero()>& conto)
{
    try {
        conto();
    } catch (const ErroreRuntime& errore) {
        return errore.Numero() == NumeroErrore::Overflow;
    }
    return false;
}

template <typename Intero>
class Interi128 : public testing::Test
{
};

#ifdef __SIZEOF_INT128__
using Modi = testing::Types<Intero128DiParti, Intero128DelCompilatore>;
#else
using Modi = testing::Types<Intero128DiParti>;
#endif
TYPED_TEST_SUITE(Interi128, Modi);

} // namespace

TYPED_TEST(Interi128, SommeProdottiESpostamentiPassanoDaUnaParteAllAltra)
{
    using Intero = TypeParam;
    EXPECT_EQ(Intero(), Intero(0));
    EXPECT_EQ(Intero(Tutti) + Intero(1), DueAlla<Intero>(64));
    EXPECT_EQ(Intero(0xFFFFFFFF) + Intero(1), DueAlla<Intero>(32));
    EXPECT_EQ(Intero(0xFFFFFFFF) * 0xFFFFFFFF, Intero(0xFFFFFFFE00000001));
    // (2^64 - 1) 2^63 = 2^127 - 2^63
    EXPECT_EQ(Intero(Tutti) * (std::uint64_t{1} << 63) + DueAlla<Intero>(63), DueAlla<Intero>(127));
    EXPECT_EQ(Intero(5) << 0, Intero(5));
    EXPECT_EQ(Intero(3) << 64, DueAlla<Intero>(65) + DueAlla<Intero>(64));
    EXPECT_EQ((DueAlla<Intero>(100) + Intero(7)).Basso(), 7U);
    EXPECT_EQ(Intero(Tutti).Basso(), Tutti);
}

TYPED_TEST(Interi128, OltreIlMassimoOverflow)
{
    using Intero = TypeParam;
    const Intero massimo = Massimo<Intero>();
    EXPECT_EQ(massimo + Intero(0), massimo);
    EXPECT_EQ(massimo * 1, massimo);
    EXPECT_EQ(DueAlla<Intero>(64) * (std::uint64_t{1} << 63), DueAlla<Intero>(127));
    EXPECT_TRUE(Esce<Intero>([&] { return massimo + Intero(1); }));
    EXPECT_TRUE(Esce<Intero>([&] { return DueAlla<Intero>(127) + DueAlla<Intero>(127); }));
    EXPECT_TRUE(Esce<Intero>([&] { return massimo * 2; }));
    EXPECT_TRUE(Esce<Intero>([&] { return DueAlla<Intero>(65) * (std::uint64_t{1} << 63); }));
    EXPECT_TRUE(Esce<Intero>([&] { return DueAlla<Intero>(96) * (std::uint64_t{1} << 32); }));
    EXPECT_TRUE(Esce<Intero>([&] { return Intero(3) << 127; }));
    EXPECT_TRUE(Esce<Intero>([&] { return massimo << 1; }));
}

TYPED_TEST(Interi128, QuozientiInteri)
{
    using Intero = TypeParam;
    const Intero massimo = Massimo<Intero>();
    const Intero mezzo = DueAlla<Intero>(127);
    EXPECT_EQ(massimo / Intero(1), massimo);
    EXPECT_EQ(massimo / massimo, Intero(1));
    EXPECT_EQ(massimo / mezzo, Intero(1));
    EXPECT_EQ(massimo / (mezzo + Intero(1)), Intero(1));
    EXPECT_EQ(mezzo / massimo, Intero(0));
    EXPECT_EQ(massimo / Intero(2) + Intero(1), mezzo);
    EXPECT_EQ(mezzo / DueAlla<Intero>(64), DueAlla<Intero>(63));
    EXPECT_EQ(Intero(7) / Intero(2), Intero(3));
    EXPECT_EQ(Intero(0) / massimo, Intero(0));
    std::mt19937_64 caso(7);
    for (int giro = 0; giro < 1000; ++giro) {
        const std::uint64_t divisore = (caso() >> (giro % 64)) | 1;
        const std::uint64_t intero = caso();
        const std::uint64_t resto = caso() % divisore;
        EXPECT_EQ((Intero(divisore) * intero + Intero(resto)) / Intero(divisore), Intero(intero));
    }
}

TYPED_TEST(Interi128, LOrdineGuardaPrimaLePartiAlte)
{
    using Intero = TypeParam;
    const std::vector<Intero> crescenti = {Intero(0),
                                           Intero(1),
                                           Intero(0xFFFFFFFF),
                                           DueAlla<Intero>(32),
                                           Intero(Tutti),
                                           DueAlla<Intero>(64),
                                           DueAlla<Intero>(64) + Intero(1),
                                           DueAlla<Intero>(96),
                                           DueAlla<Intero>(127),
                                           Massimo<Intero>()};
    for (std::size_t i = 0; i < crescenti.size(); ++i) {
        for (std::size_t j = 0; j < crescenti.size(); ++j) {
            EXPECT_EQ(crescenti[i] < crescenti[j], i < j) << i << " " << j;
            EXPECT_EQ(crescenti[i] > crescenti[j], i > j) << i << " " << j;
            EXPECT_EQ(crescenti[i] == crescenti[j], i == j) << i << " " << j;
        }
    }
}
