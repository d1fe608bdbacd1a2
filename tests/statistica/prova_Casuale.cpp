// The draw of a position, for every random number that can come.

#include "ErroreRuntime.h"
#include "Statistica.h"
#include "modCarte.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <tuple>
#include <vector>

using namespace modCarte;
using namespace statistica;

namespace {

constexpr std::int64_t NumeriR = 8'388'608; // 2^23

thread_local float erre = 0;    // what the source below returns
thread_local int erreBuoni = 0; // so many times something else before
constexpr float UnMezzo = 0.5F;

float SorgenteDiProva()
{
    return erreBuoni-- > 0 ? UnMezzo : erre;
}

// Puts the source of a test in the place of the module's own, for as long as it lives.
class SorgenteSostituita
{
public:
    explicit SorgenteSostituita(float r, int buoniPrima = 0)
    {
        erre = r;
        erreBuoni = buoniPrima;
        ImpostaSorgente(SorgenteDiProva);
    }
    ~SorgenteSostituita() { ImpostaSorgente(nullptr); }
    SorgenteSostituita(const SorgenteSostituita&) = delete;
    SorgenteSostituita& operator=(const SorgenteSostituita&) = delete;
    SorgenteSostituita(SorgenteSostituita&&) = delete;
    SorgenteSostituita& operator=(SorgenteSostituita&&) = delete;

    std::int16_t Posto(int n) const { return Casuale(0, static_cast<std::int16_t>(n + 1)); }

    // The same for random number k of the 2^23.
    std::int16_t Posto(int n, std::int64_t k) const
    {
        constexpr float passo = 1.0F / static_cast<float>(NumeriR);
        erre = (static_cast<float>(k) + UnMezzo) * passo;
        return Posto(n);
    }
};

// floor(n + 1 - n r) with r = (2k + 1) / 2^24, in whole numbers.
std::int64_t PostoEsatto(int n, std::int64_t k)
{
    constexpr std::int64_t denominatore = 2 * NumeriR;
    return (denominatore * (n + 1) - n * (2 * k + 1)) / denominatore;
}

void ControllaTuttiGliR(int n)
{
    const SorgenteSostituita sorgente(0);
    std::vector<std::int64_t> conti(static_cast<std::size_t>(n) + 1);
    for (std::int64_t k = 0; k < NumeriR; ++k) {
        const std::int16_t posto = sorgente.Posto(n, k);
        if (posto < 1 || posto > n || posto != PostoEsatto(n, k)) {
            FAIL() << "n " << n << ", k " << k << ": " << posto;
        }
        ++conti[static_cast<std::size_t>(posto)];
    }
    for (std::size_t posto = 1; posto < conti.size(); ++posto) {
        EXPECT_GE(conti[posto], NumeriR / n) << posto;
        EXPECT_LE(conti[posto], (NumeriR + n - 1) / n) << posto;
    }
    EXPECT_EQ(sorgente.Posto(n, 0), n);
    EXPECT_EQ(sorgente.Posto(n, NumeriR - 1), 1);
}

// Everything that a shuffle may change.
auto StatoDelModulo()
{
    return std::tuple(Mazzo, Posizione, NumeroColpo, FineTaglia, Colpi.Lista(), Statistiche);
}

} // namespace

TEST(Casuale, OgniNumeroCasualeDaIlSuoPostoEOgniPostoNeHaAltrettanti)
{
#ifdef SCALVINO_CONTEGGI_PIENI
    const std::vector<int> numeri = {1, 2, 3, 7, 52, 100, 256, 311, 312};
#else
    const std::vector<int> numeri = {3, 256, 312};
#endif
    for (const int n : numeri) {
        SCOPED_TRACE(n);
        ControllaTuttiGliR(n);
    }
}

TEST(Casuale, INumeriDelModuloRiempionoUgualmenteLIntervalloPiuGrande)
{
    constexpr std::int16_t massimo = 32766;
    constexpr std::size_t valori = 32767;
    constexpr std::size_t fasce = 16; // of 2048 values, the last one a value short
    std::vector<std::int64_t> conti(valori);
    std::vector<std::int64_t> terne(fasce * fasce * fasce);
    std::size_t terna = 0;
    const std::int64_t quanti = Quante(20'000'000);
    AvviaSeme(23, 0);
    for (std::int64_t i = 0; i < quanti; ++i) {
        const auto valore = static_cast<std::size_t>(Casuale(massimo, 0));
        ++conti.at(valore);
        terna = (terna * fasce + valore * fasce / valori) % terne.size();
        if (i % 3 == 2) ++terne[terna];
    }

    ControllaZ("Valori", ZDistribuzione(conti, std::vector(valori, 1.0 / valori)));
    double cella = 0;
    for (const std::int64_t conto : conti) {
        const double z = ZConteggio(conto, quanti, 1.0 / valori);
        if (std::abs(z) > std::abs(cella)) cella = z;
    }
    ControllaZ("CellaValori", cella);
    std::vector<double> attese(terne.size());
    const auto quota = [](std::size_t fascia) {
        return (fascia + 1 < fasce ? 2048 : 2047) / 32767.0;
    };
    for (std::size_t i = 0; i < terne.size(); ++i) {
        attese[i] = quota(i / fasce / fasce) * quota(i / fasce % fasce) * quota(i % fasce);
    }
    ControllaZ("Terne", ZDistribuzione(terne, attese));
}

TEST(Casuale, UnoZeroCadeUnPostoOltreLUltimo)
{
    const SorgenteSostituita sorgente(0);
    for (int n = 1; n <= CarteTaglia; ++n) EXPECT_EQ(sorgente.Posto(n), n + 1);
}

TEST(EstraiNumeri, UnoZeroAnchePerUltimoNonDaAlcunaLista)
{
    for (const int prima : {0, 1, 311}) {
        const SorgenteSostituita sorgente(0, prima);
        EXPECT_FALSE(EstraiNumeri(312, 1, 312, Vero).has_value()) << prima;
    }
    const SorgenteSostituita sorgente(0, 312);
    EXPECT_TRUE(EstraiNumeri(312, 1, 312, Vero).has_value());
}

TEST(MescolaMazzo, UnoZeroDaErrore13ELasciaTuttoComEra)
{
    AvviaSeme(13, 0);
    SimulaTaglia();
    const auto prima = StatoDelModulo();
    for (const int buoni : {0, 311}) {
        const SorgenteSostituita sorgente(0, buoni);
        try {
            MescolaMazzo();
            FAIL() << "mescolato con uno zero dopo " << buoni;
        } catch (const ErroreRuntime& errore) {
            EXPECT_EQ(errore.Numero(), NumeroErrore::TipoNonCorrispondente);
        }
        EXPECT_TRUE(StatoDelModulo() == prima) << buoni;
    }
}
