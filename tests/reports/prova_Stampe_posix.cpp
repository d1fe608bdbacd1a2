// Pages that somebody replaces while they are being written.

#include "AmbienteDiProva.h"
#include "ErroreRuntime.h"
#include "MazziDiProva.h"
#include "Stampe.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace Stampe;
using aiuti::AmbienteDiProva;
using aiuti::Byte;

TEST(StampaHtml, UnFileMessoAlSuoPostoNonSiApreNeSiTocca)
{
    for (const bool statistiche : {false, true}) {
        AmbienteDiProva prova;
        prova.Distribuisci(aiuti::MazziDorati("tre.mazzi"));
        const auto percorso = prova.Cartella.File("taglie.htm");
        AmbienteInUso.TagliaFatta = [&](std::int64_t fatte) {
            if (fatte != 2) return;
            std::filesystem::remove(percorso);
            std::ofstream(percorso) << "altrui";
        };
        EXPECT_THROW(statistiche ? StatisticheHtml(3, {}) : StampaHtml(3), ErroreRuntime);
        EXPECT_EQ(Byte(percorso), "altrui");
        EXPECT_TRUE(prova.Aperti.empty());
    }
}
