// The simulation of a whole shoe and its statistics.

#include "Aiuti.h"
#include "ErroreRuntime.h"
#include "Firma.h"
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
        EXPECT_EQ(record.Compiuto(), !finale);
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

TEST(CalcolaStatistiche, ContaOgniEsitoAlSuoPosto)
{
    Colpi = {"0,6C,10Q,5C,9C,5F", "1,N,C,32,33,KP#9C#5F#8Q,10F#QC#7P#6Q",
             "2,N,I,33,34,,",     "3,N,I,33,34,,",
             "4,R,C,34,31,,",     "5,R,C,34,31,,",
             "6,R,C,34,31,,",     "7,R,I,35,31,,",
             "8,R,I,35,31,,",     "9,R,I,35,31,,",
             "10,R,I,35,31,,",    "11,E,E,31,31,,",
             "12,E,E,35,35,,",    "13,,,24,0,KP#9C#5F,"};
    CalcolaStatistiche(13);
    const StatisticheTaglia attese{.VinceNero = 3,
                                   .VinceRosso = 7,
                                   .Colore = 4,
                                   .Inverso = 6,
                                   .Pari = 2,
                                   .TrentunoApres = 1,
                                   .NeroColore = 1,
                                   .NeroInverso = 2,
                                   .RossoColore = 3,
                                   .RossoInverso = 4};
    EXPECT_EQ(Statistiche, attese);
}

TEST(CalcolaStatistiche, LeggeSoloDaUnoAN)
{
    Colpi = {"1,N,C,32,33,,", "1,R,I,33,32,,", "2,N,C,32,33,,"};
    CalcolaStatistiche(1);
    EXPECT_EQ(Statistiche.VinceRosso, 1);
    EXPECT_EQ(Statistiche.VinceNero, 0);
    CalcolaStatistiche(0);
    EXPECT_EQ(Statistiche, StatisticheTaglia{});
    CalcolaStatistiche(-1);
    EXPECT_EQ(Statistiche, StatisticheTaglia{});
    EXPECT_THROW(CalcolaStatistiche(3), ErroreRuntime);
}

TEST(CalcolaStatistiche, IlConfrontoDeiTestiEEsatto)
{
    Colpi = {"",   "1,n,c,32,33,,", "2,NN,CC,32,33,,", "3,E,E,31,310,,", "4,E,E,031,31,,", "5",
             "6,E"};
    CalcolaStatistiche(6);
    EXPECT_EQ(Statistiche.Pari, 3);
    EXPECT_EQ(Statistiche.TrentunoApres, 0);
    EXPECT_EQ(Statistiche.VinceNero + Statistiche.VinceRosso, 0);
    EXPECT_EQ(Statistiche.Colore + Statistiche.Inverso, 0);
}

TEST(CalcolaStatistiche, IlTrentunoNonEntraNelleCombinazioni)
{
    Colpi = {"", "1,E,E,31,31,,"};
    CalcolaStatistiche(1);
    const StatisticheTaglia attese{.Pari = 1, .TrentunoApres = 1};
    EXPECT_EQ(Statistiche, attese);
}

TEST(StatisticheTaglia, OgniConteggioLeDistingue)
{
    using Conti = StatisticheTaglia;
    for (double Conti::*conto :
         {&Conti::VinceNero, &Conti::VinceRosso, &Conti::Colore, &Conti::Inverso, &Conti::Pari,
          &Conti::TrentunoApres, &Conti::NeroColore, &Conti::NeroInverso, &Conti::RossoColore,
          &Conti::RossoInverso}) {
        Conti uno;
        Conti altro;
        EXPECT_EQ(uno, altro);
        altro.*conto = 1;
        EXPECT_NE(uno, altro);
        uno.*conto = 1;
        EXPECT_EQ(uno, altro);
    }
}

TEST(Firma, MilleTaglieDelSeme2026)
{
    EXPECT_EQ(aiuti::FirmaMotore(), aiuti::FirmaAttesa);
}
