// Counting outcomes from records, each into its place.

#include "ErroreRuntime.h"
#include "modCarte.h"

#include <gtest/gtest.h>

using namespace modCarte;

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
