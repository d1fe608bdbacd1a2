// The shuffle and its random numbers.

#include "Aiuti.h"
#include "ErroreRuntime.h"
#include "modCarte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <thread>

using namespace modCarte;

namespace {

// Gives the r's of a list in turn, then the last one for ever; takes itself out at its end.
class SorgenteFissa
{
public:
    explicit SorgenteFissa(std::vector<float> numeri)
    {
        s_numeri = std::move(numeri);
        s_letti = 0;
        ImpostaSorgente([] {
            const std::size_t posto = std::min(s_letti++, s_numeri.size() - 1);
            return s_numeri[posto];
        });
    }
    ~SorgenteFissa() { ImpostaSorgente(nullptr); }
    SorgenteFissa(const SorgenteFissa&) = delete;
    SorgenteFissa& operator=(const SorgenteFissa&) = delete;
    static std::size_t Letti() { return s_letti; }

private:
    static inline std::vector<float> s_numeri;
    static inline std::size_t s_letti = 0;
};

constexpr float Minimo = 0.5F / 8388608.0F;
constexpr float Massimo = 8388607.5F / 8388608.0F;

bool OgniCartaUnaVolta()
{
    auto ordinate = Mazzo;
    std::sort(ordinate.begin(), ordinate.end());
    for (std::size_t i = 0; i < ordinate.size(); ++i) {
        if (ordinate[i] != static_cast<std::int16_t>(i + 1)) return false;
    }
    return true;
}

} // namespace

TEST(MescolaMazzo, OgniCodiceUnaVoltaEStatoIniziale)
{
    AvviaEntropia();
    Posizione = 99;
    NumeroColpo = 99;
    FineTaglia = Vero;
    MescolaMazzo();
    EXPECT_TRUE(OgniCartaUnaVolta());
    EXPECT_EQ(Posizione, 5);
    EXPECT_EQ(NumeroColpo, 1);
    EXPECT_EQ(FineTaglia, Falso);
}

TEST(MescolaMazzo, DueMescolateSonoDiverse)
{
    AvviaEntropia();
    MescolaMazzo();
    const auto prima = Mazzo;
    MescolaMazzo();
    EXPECT_NE(Mazzo, prima);
}

TEST(MescolaMazzo, RPiccoloPrendeDalFondo)
{
    const SorgenteFissa sorgente({Minimo});
    MescolaMazzo();
    EXPECT_EQ(Mazzo.front(), 312);
    EXPECT_EQ(Mazzo.back(), 1);
    EXPECT_TRUE(std::is_sorted(Mazzo.rbegin(), Mazzo.rend()));
}

TEST(MescolaMazzo, RGrandePrendeDallInizio)
{
    const SorgenteFissa sorgente({Massimo});
    MescolaMazzo();
    EXPECT_TRUE(std::is_sorted(Mazzo.begin(), Mazzo.end()));
    EXPECT_EQ(Mazzo.front(), 1);
}

TEST(MescolaMazzo, RNulloEUnErroreRuntimeENonCambiaNulla)
{
    AvviaSeme(1, 1);
    MescolaMazzo();
    Posizione = 77;
    const auto prima = Mazzo;
    const SorgenteFissa sorgente({0.5F, 0.25F, 0.0F});
    try {
        MescolaMazzo();
        FAIL() << "no error";
    } catch (const ErroreRuntime& errore) {
        EXPECT_EQ(errore.Numero(), NumeroErrore::TipoNonCorrispondente);
        EXPECT_EQ(static_cast<int>(errore.Numero()), 13);
    }
    EXPECT_EQ(Mazzo, prima);
    EXPECT_EQ(Posizione, 77);
}

TEST(SimulaTaglia, UnaMescolataFallitaNonGiocaNessunColpo)
{
    AvviaSeme(1, 1);
    SimulaTaglia();
    const auto colpi = Colpi.Lista();
    const auto statistiche = Statistiche;
    const SorgenteFissa sorgente({0.0F});
    EXPECT_THROW(SimulaTaglia(), ErroreRuntime);
    EXPECT_EQ(Colpi.Lista(), colpi);
    EXPECT_EQ(Statistiche, statistiche);
}

TEST(EstraiNumeri, ListaConBuchiRichiusi)
{
    // r = 1/2 of 4, 3, 2, 1 elements: positions 3, 2, 2, 1 of 10 20 30 40 (here 1 to 4).
    const SorgenteFissa sorgente({0.5F});
    EXPECT_EQ(EstraiNumeri(4, 1, 4, Vero), (std::vector<std::int16_t>{3, 2, 4, 1}));
}

TEST(EstraiNumeri, RispettaIlMinimo)
{
    const SorgenteFissa sorgente({0.5F});
    EXPECT_EQ(EstraiNumeri(-7, -10, 4, Vero), (std::vector<std::int16_t>{-8, -9, -7, -10}));
}

TEST(EstraiNumeri, MenoNumeriDiQuantiCeNeSono)
{
    const SorgenteFissa sorgente({Minimo});
    EXPECT_EQ(EstraiNumeri(312, 1, 3, Vero), (std::vector<std::int16_t>{312, 311, 310}));
}

TEST(EstraiNumeri, NonUniciPossonoTornare)
{
    const SorgenteFissa sorgente({Minimo});
    EXPECT_EQ(EstraiNumeri(3, 1, 3, Falso), (std::vector<std::int16_t>{3, 3, 3}));
}

TEST(EstraiNumeri, QualunqueFlagDiversoDaFalsoVuoleNumeriUnici)
{
    const SorgenteFissa sorgente({Minimo});
    EXPECT_EQ(EstraiNumeri(3, 1, 3, 1), (std::vector<std::int16_t>{3, 2, 1}));
}

TEST(EstraiNumeri, UnoDiTroppoFallisceAllUltimaEstrazione)
{
    const SorgenteFissa sorgente({0.5F});
    EXPECT_EQ(EstraiNumeri(10, 1, 11, Vero), std::nullopt);
    EXPECT_EQ(SorgenteFissa::Letti(), 11U); // not refused: all eleven were drawn
}

TEST(EstraiNumeri, DueDiTroppoSonoRifiutatiSubito)
{
    const SorgenteFissa sorgente({0.5F});
    EXPECT_EQ(EstraiNumeri(10, 1, 12, Vero), std::nullopt);
    EXPECT_EQ(EstraiNumeri(10, 1, 12, Falso), std::nullopt);
    EXPECT_EQ(SorgenteFissa::Letti(), 0U);
}

TEST(EstraiNumeri, UnoDiTroppoSenzaUniciRiesce)
{
    const SorgenteFissa sorgente({0.5F});
    EXPECT_EQ(EstraiNumeri(2, 1, 3, Falso), (std::vector<std::int16_t>{2, 2, 2}));
}

TEST(EstraiNumeri, NessunoOMenoDaUnaListaVuota)
{
    EXPECT_EQ(EstraiNumeri(10, 1, 0, Vero), std::vector<std::int16_t>{});
    EXPECT_EQ(EstraiNumeri(10, 1, -3, Vero), std::vector<std::int16_t>{});
}

TEST(EstraiNumeri, IntervalloRovesciatoEVuoto)
{
    EXPECT_EQ(EstraiNumeri(0, 1, 1, Vero), std::nullopt);
    EXPECT_EQ(EstraiNumeri(0, 1, 0, Vero), std::vector<std::int16_t>{});
    EXPECT_EQ(EstraiNumeri(-5, 5, 1, Vero), std::nullopt);
}

TEST(EstraiNumeri, CioCheNonEntraIn16BitNonDaLista)
{
    EXPECT_EQ(EstraiNumeri(32767, 1, 1, Vero), std::nullopt); // position 32768 has no 16 bits
    const SorgenteFissa sorgente({0.5F});
    EXPECT_EQ(EstraiNumeri(32767, 32767, 1, Vero), std::vector<std::int16_t>{32767});
    EXPECT_EQ(EstraiNumeri(-32768, -32768, 1, Vero), std::vector<std::int16_t>{-32768});
}

TEST(EstraiNumeri, FuoriDaZeroUnoNonDaLista)
{
    for (const float r : {0.0F, 1.5F, -0.5F, std::numeric_limits<float>::infinity(),
                          std::numeric_limits<float>::quiet_NaN()}) {
        const SorgenteFissa sorgente({r});
        EXPECT_EQ(EstraiNumeri(312, 1, 1, Vero), std::nullopt) << r;
    }
}

TEST(Casuale, ArgomentiNellOrdineNaturale)
{
    const SorgenteFissa sorgente({0.0F, 0.25F, Massimo});
    EXPECT_EQ(Casuale(6, 1), 1);
    EXPECT_EQ(Casuale(6, 1), 2); // floor(6 * 0.25 + 1) = floor(2.5)
    EXPECT_EQ(Casuale(6, 1), 6);
}

TEST(Casuale, ArgomentiScambiatiRovescianoLOrdine)
{
    // d = 0 - 313 + 1 = -312, so floor(313 - 312 r).
    const SorgenteFissa sorgente({0.0F, Minimo, 0.5F, Massimo});
    EXPECT_EQ(Casuale(0, 313), 313);
    EXPECT_EQ(Casuale(0, 313), 312);
    EXPECT_EQ(Casuale(0, 313), 157);
    EXPECT_EQ(Casuale(0, 313), 1);
}

TEST(Casuale, ArrotondaVersoIlBassoAncheSottoZero)
{
    const SorgenteFissa sorgente({0.25F});
    EXPECT_EQ(Casuale(0, -9), -7); // floor(10 * 0.25 - 9) = floor(-6.5)
}

TEST(Casuale, OltreSediciBitEOverflow)
{
    const auto overflow = [](std::int16_t massimo, std::int16_t minimo) {
        try {
            Casuale(massimo, minimo);
        } catch (const ErroreRuntime& errore) {
            return errore.Numero() == NumeroErrore::Overflow && errore.Testo() == "Overflow";
        }
        return false;
    };
    EXPECT_TRUE(overflow(32767, 0)); // 32768 numbers
    EXPECT_TRUE(overflow(32767, -32768));
    const SorgenteFissa sorgente({0.0F, 1.0F, std::numeric_limits<float>::infinity()});
    EXPECT_EQ(Casuale(32767, 1), 1);
    EXPECT_TRUE(overflow(32767, 1)); // floor(32767 + 1): one more than fits
    EXPECT_TRUE(overflow(32767, 1));
}

TEST(Casuale, GliEstremiDeiSediciBitEntrano)
{
    const SorgenteFissa sorgente({0.0F});
    EXPECT_EQ(Casuale(0, 32767), 32767);
    EXPECT_EQ(Casuale(-32768, -32768), -32768);
}

TEST(Generatore, RSempreDentroLIntervalloAperto)
{
    // With the bounds 0 and n + 1 an r of 0 would give n + 1 and an r of 1 would give 0... both
    // never happen, over many draws of the module's own generator.
    AvviaSeme(7, 7);
    for (int i = 0; i < 100000; ++i) {
        const auto posto = Casuale(0, 2);
        ASSERT_EQ(posto, 1);
    }
}

TEST(AvviaSeme, StessoSemeETagliaStessoMazzo)
{
    AvviaSeme(2026, 3);
    MescolaMazzo();
    const auto prima = Mazzo;
    AvviaEntropia();
    MescolaMazzo();
    EXPECT_NE(Mazzo, prima);
    AvviaSeme(2026, 3);
    MescolaMazzo();
    EXPECT_EQ(Mazzo, prima);
}

TEST(AvviaSeme, AltroSemeOAltraTagliaAltroMazzo)
{
    const auto mescolato = [](std::uint64_t seme, std::uint64_t taglia) {
        AvviaSeme(seme, taglia);
        MescolaMazzo();
        return Mazzo;
    };
    EXPECT_NE(mescolato(1, 1), mescolato(1, 2));
    EXPECT_NE(mescolato(1, 1), mescolato(2, 1));
    EXPECT_NE(mescolato(1, 2), mescolato(2, 1));
    EXPECT_NE(mescolato(0, 0), mescolato(0, 1));
    EXPECT_NE(mescolato(0, 0), mescolato(std::uint64_t{1} << 63, 0));
}

TEST(AvviaSeme, NonGuardaLOrologio)
{
    AvviaSeme(5, 5);
    MescolaMazzo();
    const auto prima = Mazzo;
    static int letture = 0;
    ImpostaOrologio([] { return static_cast<double>(++letture); });
    AvviaSeme(5, 5);
    MescolaMazzo();
    ImpostaOrologio(nullptr);
    EXPECT_EQ(Mazzo, prima);
    EXPECT_EQ(letture, 0);
}

TEST(AvviaSeme, UnAltroFiloHaUnMazzoSuo)
{
    AvviaSeme(5, 5);
    MescolaMazzo();
    const auto mio = Mazzo;
    std::array<std::int16_t, CarteTaglia> suo{};
    std::array<std::int16_t, CarteTaglia> suoPrima{};
    std::thread([&] {
        suoPrima = Mazzo;
        AvviaSeme(5, 6);
        MescolaMazzo();
        suo = Mazzo;
    }).join();
    EXPECT_EQ(Mazzo, mio);
    EXPECT_NE(suo, mio);
    EXPECT_EQ(suoPrima, (std::array<std::int16_t, CarteTaglia>{}));
}

TEST(Orologio, SiLeggePrimaDiOgniEstrazione)
{
    static int letture = 0;
    letture = 0;
    ImpostaOrologio([] {
        ++letture;
        return 43200.5;
    });
    AvviaEntropia();
    MescolaMazzo();
    const int dopoLaPrima = letture;
    const auto prima = Mazzo;
    MescolaMazzo();
    ImpostaOrologio(nullptr);
    EXPECT_EQ(dopoLaPrima, 312);
    EXPECT_EQ(letture, 624);
    EXPECT_NE(Mazzo, prima); // the same tick goes on in the stream
    EXPECT_TRUE(OgniCartaUnaVolta());
}

TEST(Orologio, QualunqueOraDaMescolateValide)
{
    static double ora = 0;
    ImpostaOrologio([] { return ora; });
    AvviaEntropia();
    for (const double adesso : {0.0, 86399.999, -5.0, 1e300, std::nan("")}) {
        ora = adesso;
        MescolaMazzo();
        EXPECT_TRUE(OgniCartaUnaVolta()) << adesso;
    }
    ImpostaOrologio(nullptr);
}

TEST(ImpostaMazzo, AccettaUnaPermutazione)
{
    std::vector<std::int16_t> codici(312);
    std::iota(codici.rbegin(), codici.rend(), std::int16_t{1});
    Posizione = 99;
    NumeroColpo = 99;
    FineTaglia = Vero;
    ImpostaMazzo(codici);
    EXPECT_TRUE(std::equal(codici.begin(), codici.end(), Mazzo.begin()));
    EXPECT_EQ(Posizione, 5);
    EXPECT_EQ(NumeroColpo, 1);
    EXPECT_EQ(FineTaglia, Falso);
}

TEST(ImpostaMazzo, RifiutaTuttoIlRestoENonCambiaNulla)
{
    std::vector<std::int16_t> buoni(312);
    std::iota(buoni.begin(), buoni.end(), std::int16_t{1});
    ImpostaMazzo(buoni);
    Posizione = 8;
    const auto motivo = [](const std::vector<std::int16_t>& codici) -> std::string {
        try {
            ImpostaMazzo(codici);
        } catch (const ErroreRuntime& errore) {
            return errore.Motivo();
        }
        return "accettato";
    };
    auto codici = buoni;
    codici.pop_back();
    EXPECT_EQ(motivo(codici), "le carte sono 311 invece di 312");
    EXPECT_EQ(motivo({}), "le carte sono 0 invece di 312");
    codici = buoni;
    codici.push_back(1);
    EXPECT_EQ(motivo(codici), "le carte sono 313 invece di 312");
    codici = buoni;
    codici[10] = 10;
    EXPECT_EQ(motivo(codici), "la carta 10 si ripete");
    for (const int fuori : {0, 313, -1, 32767, -32768}) {
        codici = buoni;
        codici[311] = static_cast<std::int16_t>(fuori);
        EXPECT_EQ(motivo(codici), "il codice " + std::to_string(fuori) + " non esiste");
    }
    EXPECT_EQ(Posizione, 8);
    EXPECT_TRUE(std::equal(buoni.begin(), buoni.end(), Mazzo.begin()));
}
