// The table of the outcomes: their order, and as which of them a record counts.

#include "Esiti.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using namespace modCarte;

namespace {

// Names of the outcomes that the record counts as, each followed by a blank.
std::string Contati(std::string_view record)
{
    std::string nomi;
    const EsitiColpo esiti = EsitiDelColpo(RecordColpo(record));
    for (std::size_t i = 0; i < NumeroEsiti; ++i) {
        if (esiti[i] == 1) nomi.append(Esiti<double>[i].Nome).append(" ");
    }
    return nomi;
}

} // namespace

TEST(Esiti, NeiReportStannoNelLoroOrdineConLeCombinazioniInFondo)
{
    std::vector<std::string_view> nomi;
    for (const std::size_t esito : OrdineReport) nomi.push_back(Esiti<double>[esito].Nome);
    EXPECT_EQ(nomi, (std::vector<std::string_view>{"VinceNero", "VinceRosso", "Pari", "Colore",
                                                   "Inverso", "TrentunoApres", "NeroColore",
                                                   "NeroInverso", "RossoColore", "RossoInverso"}));
    EXPECT_EQ(PrimoCombinato, 6U);
}

TEST(Esiti, UnRecordContaPerTuttiGliEsitiCheHa)
{
    EXPECT_EQ(Contati("1,N,C,32,33,,"), "VinceNero Colore NeroColore ");
    EXPECT_EQ(Contati("1,N,I,32,33,,"), "VinceNero Inverso NeroInverso ");
    EXPECT_EQ(Contati("1,R,C,33,32,,"), "VinceRosso Colore RossoColore ");
    EXPECT_EQ(Contati("1,R,I,33,32,,"), "VinceRosso Inverso RossoInverso ");
    EXPECT_EQ(Contati("1,E,E,35,35,,"), "Pari ");
    EXPECT_EQ(Contati("1,E,E,31,31,,"), "Pari TrentunoApres ");
}

TEST(Esiti, IlRecordFinaleELettereIgnoteNonContano)
{
    EXPECT_EQ(Contati("70,,,32,27,KP,10F"), "");
    EXPECT_EQ(Contati("1,n,c,32,33,,"), "");
    EXPECT_EQ(Contati("1,X,,32,33,,"), "");
    EXPECT_EQ(Contati("1,,C,32,33,,"), "Colore ");
}

TEST(Esiti, IContiSiSommanoEsitoPerEsito)
{
    ContiEsiti<std::int64_t> conti{.VinceNero = 1, .Pari = 5};
    AggiungiConti(conti, ContiEsiti<double>{.VinceNero = 2, .RossoInverso = 3});
    EXPECT_EQ(conti, (ContiEsiti<std::int64_t>{.VinceNero = 3, .Pari = 5, .RossoInverso = 3}));
    EXPECT_EQ(ColpiCompiuti(conti), 8);
}
