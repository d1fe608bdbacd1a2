// The simulation of a whole shoe, and the signature of a thousand of them.

#include "Aiuti.h"
#include "ErroreRuntime.h"
#include "Firma.h"
#include "MazziDiProva.h"
#include "modCarte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using aiuti::PreparaMazzo;
using namespace modCarte;

TEST(SimulaTaglia, StatoAllaFine)
{
    AvviaSeme(1, 1);
    SimulaTaglia();
    EXPECT_EQ(Posizione, 313);
    EXPECT_EQ(FineTaglia, Vero);
    EXPECT_EQ(NumeroColpo, static_cast<double>(Colpi.size() - 1));
}

TEST(SimulaTaglia, RecordNumeratiEFinaleSenzaEsito)
{
    AvviaSeme(1, 2);
    SimulaTaglia();
    ASSERT_GT(Colpi.size(), 20U);
    EXPECT_EQ(std::count(Colpi[0].begin(), Colpi[0].end(), ','), 5);
    for (std::size_t i = 1; i < Colpi.size(); ++i) {
        const RecordColpo record(Colpi[i]);
        EXPECT_EQ(record.Numero(), std::to_string(i));
        EXPECT_EQ(std::count(Colpi[i].begin(), Colpi[i].end(), ','), 6);
        const bool finale = i + 1 == Colpi.size();
        EXPECT_EQ(record.Esito().empty(), finale);
        EXPECT_EQ(record.Colore().empty(), finale);
        EXPECT_EQ(record.Esito().empty(), finale);
    }
}

TEST(SimulaTaglia, OgniCartaDopoLeAnnullateUnaVoltaSola)
{
    AvviaSeme(1, 3);
    SimulaTaglia();
    std::string dalleMani;
    for (std::size_t i = 1; i < Colpi.size(); ++i) {
        const RecordColpo record(Colpi[i]);
        for (const auto& mano : {record.Nero(), record.Rosso()}) {
            for (const auto carta : mano) dalleMani.append(carta).append("#");
        }
    }
    std::string dalMazzo;
    for (std::size_t i = 5; i < Mazzo.size(); ++i)
        dalMazzo.append(TestoCarta(Mazzo[i])).append("#");
    EXPECT_EQ(dalleMani, dalMazzo);
}

TEST(SimulaTaglia, RigiocareLaStessaTagliaRidaGliStessiRecord)
{
    AvviaSeme(1, 4);
    SimulaTaglia();
    const auto colpi = Colpi.Lista();
    Posizione = 5;
    NumeroColpo = 1;
    FineTaglia = Falso;
    for (std::size_t i = 1; i < colpi.size(); ++i) EXPECT_EQ(GiocaColpo(), colpi[i]);
    EXPECT_EQ(FineTaglia, Vero);
}

TEST(SimulaTaglia, NonRestaNullaDellaTagliaPrima)
{
    // A long shoe, then a short one: no record of the first one may stay.
    std::size_t massimo = 0;
    std::size_t minimo = 1000;
    for (std::uint64_t i = 1; i <= 200; ++i) {
        AvviaSeme(9, i);
        SimulaTaglia();
        EXPECT_EQ(static_cast<double>(Colpi.size() - 1), NumeroColpo);
        massimo = std::max(massimo, Colpi.size());
        minimo = std::min(minimo, Colpi.size());
    }
    EXPECT_LT(minimo, massimo);
}

TEST(SimulaTaglia, FinaleVuotoQuandoLUltimoColpoFinisceIlMazzo)
{
    const auto mazzi = aiuti::MazziDorati("tre.mazzi");
    bool visto = false;
    for (const auto& mazzo : mazzi) {
        ImpostaMazzo(mazzo);
        GiocaTaglia();
        const std::string n = std::to_string(Colpi.size() - 1);
        visto = visto || Colpi.back() == n + ",,,0,0,,";
        EXPECT_EQ(Posizione, 313);
    }
    EXPECT_TRUE(visto);
}

TEST(SimulaTaglia, RecordUgualiAiRecordDorati)
{
    for (const auto* nome : {"uno_trentuno", "uno_liscio", "tre", "dodici", "otto"}) {
        std::string record;
        for (const auto& mazzo : aiuti::MazziDorati(std::string(nome) + ".mazzi")) {
            ImpostaMazzo(mazzo);
            GiocaTaglia();
            for (const auto& colpo : Colpi) record.append(colpo).append("\n");
        }
        EXPECT_EQ(record, aiuti::Dorato(std::string(nome) + ".colpi")) << nome;
    }
}

TEST(GiocaTaglia, LaPassataDiConteggioPartePosizioneMaIlRecordDaCinque)
{
    // The counting pass deals on from where the state stands; only the replay rewinds.
    PreparaMazzo({"KP", "9C", "5F", "8Q", "10F", "QC", "7P", "6Q"}, 5);
    Posizione = 312;
    GiocaTaglia();
    EXPECT_EQ(Colpi.size(), 2U);
    EXPECT_EQ(Colpi[1], "1,N,C,32,33,KP#9C#5F#8Q,10F#QC#7P#6Q");
}

TEST(GiocaTaglia, UnNumeroDiColpoOltreSediciBitEOverflow)
{
    AvviaSeme(1, 1);
    MescolaMazzo();
    NumeroColpo = 32760;
    try {
        GiocaTaglia();
        FAIL() << "no error";
    } catch (const ErroreRuntime& errore) {
        EXPECT_EQ(static_cast<int>(errore.Numero()), 6);
        EXPECT_EQ(errore.Testo(), "Overflow");
    }
}

TEST(CarteAnnullate, ZeroELePrimeCinque)
{
    PreparaMazzo({"6C", "10Q", "5C", "9C", "5F"}, 0);
    EXPECT_EQ(CarteAnnullate(), "0,6C,10Q,5C,9C,5F");
}

TEST(Firma, MilleTaglieDelSeme2026)
{
    EXPECT_EQ(aiuti::FirmaMotore(), aiuti::FirmaAttesa);
}
