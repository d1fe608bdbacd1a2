// The shuffle, and the shoe that is given instead.

#include "prova_Mazzo.h"
#include "ErroreRuntime.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <numeric>
#include <optional>
#include <string>
#include <vector>

using namespace modCarte;

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
