// The rules of a coup, each fact on the smallest shoe that shows it.

#include "ErroreRuntime.h"
#include "MazziDiProva.h"
#include "modCarte.h"

#include <gtest/gtest.h>

#include <limits>

using aiuti::PreparaMazzo;
using namespace modCarte;

TEST(GiocaColpo, PrimaCartaNeraVinceNeroEColore)
{
    PreparaMazzo({"KP", "9C", "5F", "8Q", "10F", "QC", "7P", "6Q"}, 5, 1);
    EXPECT_EQ(GiocaColpo(), "1,N,C,32,33,KP#9C#5F#8Q,10F#QC#7P#6Q");
    EXPECT_EQ(Posizione, 13);
    EXPECT_EQ(NumeroColpo, 2);
    EXPECT_EQ(FineTaglia, Falso);
}

TEST(GiocaColpo, PrimaCartaNeraVinceRossoEInverso)
{
    PreparaMazzo({"AF", "KQ", "JC", "9P", "5Q", "10C", "QP", "2F", "9Q"}, 5, 2);
    EXPECT_EQ(GiocaColpo(), "2,R,I,35,31,AF#KQ#JC#9P#5Q,10C#QP#2F#9Q");
    EXPECT_EQ(Posizione, 14);
}

TEST(GiocaColpo, TrentunoParimentiDannoPari)
{
    PreparaMazzo({"10Q", "KC", "AP", "QF", "JP", "10F", "10C", "AC"}, 5, 3);
    EXPECT_EQ(GiocaColpo(), "3,E,E,31,31,10Q#KC#AP#QF,JP#10F#10C#AC");
    EXPECT_EQ(Posizione, 13);
}

TEST(GiocaColpo, PrimaCartaRossaVinceRossoEColore)
{
    PreparaMazzo({"7Q", "9C", "8F", "6P", "4Q", "10P", "10C", "2F", "9P"}, 5, 4);
    EXPECT_EQ(GiocaColpo(), "4,R,C,34,31,7Q#9C#8F#6P#4Q,10P#10C#2F#9P");
    EXPECT_EQ(Posizione, 14);
}

TEST(GiocaColpo, PrimaCartaRossaVinceNeroEInverso)
{
    PreparaMazzo({"4C", "3Q", "9F", "JQ", "2P", "5C", "KF", "8P", "QQ", "6C"}, 5, 5);
    EXPECT_EQ(GiocaColpo(), "5,N,I,33,34,4C#3Q#9F#JQ#2P#5C,KF#8P#QQ#6C");
    EXPECT_EQ(Posizione, 15);
}

TEST(GiocaColpo, TotaliUgualiOltreTrentunoDannoPari)
{
    PreparaMazzo({"KC", "KQ", "KF", "5P", "QC", "QQ", "QF", "5C"});
    EXPECT_EQ(GiocaColpo(), "1,E,E,35,35,KC#KQ#KF#5P,QC#QQ#QF#5C");
}

TEST(GiocaColpo, LaManoSiFermaAllaPrimaCartaOltreTrenta)
{
    // 30 is not past 30: one more card; 30 and a ten make the highest total.
    PreparaMazzo({"KC", "KQ", "KF", "KP", "QC", "QQ", "9F", "AF", "AP"});
    EXPECT_EQ(GiocaColpo(), "1,R,C,40,31,KC#KQ#KF#KP,QC#QQ#9F#AF#AP");
}

TEST(GiocaColpo, IlColoreDipendeDallaPrimaCartaNeroNonDallaPrimaRosso)
{
    PreparaMazzo({"KC", "9C", "5F", "8Q", "10F", "QC", "7P", "6Q"});
    EXPECT_EQ(GiocaColpo(), "1,N,I,32,33,KC#9C#5F#8Q,10F#QC#7P#6Q");
    PreparaMazzo({"KF", "9C", "5F", "8Q", "10C", "QC", "7P", "6Q"});
    EXPECT_EQ(GiocaColpo(), "1,N,C,32,33,KF#9C#5F#8Q,10C#QC#7P#6Q");
}

TEST(GiocaColpo, PicchePerNeroEFioriPerNeroSonoNeri)
{
    PreparaMazzo({"KF", "KQ", "KC", "5P", "QC", "QQ", "QF", "2C"});
    EXPECT_EQ(GiocaColpo(), "1,R,I,35,32,KF#KQ#KC#5P,QC#QQ#QF#2C");
    PreparaMazzo({"KQ", "KP", "KC", "5P", "QC", "QQ", "QF", "2C"});
    EXPECT_EQ(GiocaColpo(), "1,R,C,35,32,KQ#KP#KC#5P,QC#QQ#QF#2C");
}

TEST(GiocaColpo, FinisconoLeCarteNellaManoNero)
{
    PreparaMazzo({"KP", "9C", "5F"}, 309, 70);
    EXPECT_EQ(GiocaColpo(), "70,,,24,0,KP#9C#5F,");
    EXPECT_EQ(FineTaglia, Vero);
    EXPECT_EQ(Posizione, 313);
    EXPECT_EQ(NumeroColpo, 70);
}

TEST(GiocaColpo, FinisconoLeCarteNellaManoRosso)
{
    PreparaMazzo({"KP", "9C", "5F", "8Q", "10F", "QC", "7P"}, 305, 70);
    EXPECT_EQ(GiocaColpo(), "70,,,32,27,KP#9C#5F#8Q,10F#QC#7P");
    EXPECT_EQ(FineTaglia, Vero);
    EXPECT_EQ(Posizione, 313);
}

TEST(GiocaColpo, FinisconoLeCarteDopoLaManoNero)
{
    PreparaMazzo({"KP", "9C", "5F", "8Q"}, 308, 70);
    EXPECT_EQ(GiocaColpo(), "70,,,32,0,KP#9C#5F#8Q,");
    EXPECT_EQ(Posizione, 313);
}

TEST(GiocaColpo, ColpoFinitoSullUltimaCartaPoiRecordVuoto)
{
    PreparaMazzo({"KP", "9C", "5F", "8Q", "10F", "QC", "7P", "6Q"}, 304, 69);
    EXPECT_EQ(GiocaColpo(), "69,N,C,32,33,KP#9C#5F#8Q,10F#QC#7P#6Q");
    EXPECT_EQ(FineTaglia, Falso);
    EXPECT_EQ(Posizione, 312);
    EXPECT_EQ(GiocaColpo(), "70,,,0,0,,");
    EXPECT_EQ(FineTaglia, Vero);
    EXPECT_EQ(Posizione, 313);
}

TEST(GiocaColpo, DopoLaFineRipeteIlRecordVuotoEAvanzaDiUno)
{
    PreparaMazzo({"KP", "9C", "5F"}, 309, 70);
    GiocaColpo();
    EXPECT_EQ(GiocaColpo(), "70,,,0,0,,");
    EXPECT_EQ(Posizione, 314);
    EXPECT_EQ(NumeroColpo, 70);
    EXPECT_EQ(GiocaColpo(), "70,,,0,0,,");
    EXPECT_EQ(Posizione, 315);
}

TEST(GiocaColpo, NumeroDiTreCifre)
{
    PreparaMazzo({"KP", "9C", "5F", "8Q", "10F", "QC", "7P", "6Q"}, 5, 100);
    EXPECT_EQ(GiocaColpo(), "100,N,C,32,33,KP#9C#5F#8Q,10F#QC#7P#6Q");
}

TEST(GiocaColpo, UnaManoPuoAvereVentottoCarte)
{
    // 24 aces and three twos are 30, one more two ends the row.
    std::vector<std::int16_t> mazzo(312);
    std::vector<std::int16_t> assi, due, altre;
    for (std::int16_t codice = 1; codice <= 312; ++codice) {
        (ValoreCarta(codice) == 1   ? assi
         : ValoreCarta(codice) == 2 ? due
                                    : altre)
            .push_back(codice);
    }
    auto posto = std::copy(altre.begin(), altre.begin() + 5, mazzo.begin());
    posto = std::copy(assi.begin(), assi.end(), posto);
    posto = std::copy(due.begin(), due.end(), posto);
    std::copy(altre.begin() + 5, altre.end(), posto);
    ImpostaMazzo(mazzo);
    const std::string record = GiocaColpo();
    EXPECT_EQ(RecordColpo(record).TotaleNero(), "32");
    EXPECT_EQ(RecordColpo(record).Nero().NumeroCarte(), 28);
}

TEST(GiocaColpo, SenzaMazzoENegativoNonLeggeFuori)
{
    Mazzo.fill(0);
    Posizione = 5;
    NumeroColpo = 1;
    EXPECT_EQ(GiocaColpo().substr(0, 9), "1,E,E,40,");
    Posizione = -1;
    EXPECT_THROW(GiocaColpo(), ErroreRuntime);
    Posizione = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THROW(GiocaColpo(), ErroreRuntime);
    Posizione = 5;
    Mazzo.fill(313);
    EXPECT_THROW(GiocaColpo(), ErroreRuntime);
    Mazzo.fill(-1);
    EXPECT_THROW(GiocaColpo(), ErroreRuntime);
}
