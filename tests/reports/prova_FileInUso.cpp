// The check for a report that another program still shows.

#include "AmbienteDiProva.h"
#include "FileInUso.h"

#include "LettoreDiFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

using namespace FileInUso;
using aiuti::AmbienteDiProva;
using aiuti::LettoreDiFile;
using aiuti::SiSaChiTiene;

namespace {

std::string NuovoReport(const AmbienteDiProva& prova)
{
    std::ofstream(prova.Cartella.File("taglie.txt")) << "testo";
    return prova.Cartella.Nome() + "taglie.txt";
}

} // namespace

TEST(FileTrovato, VeroPerQualunqueVoce)
{
    const AmbienteDiProva prova;
    EXPECT_EQ(FileTrovato(NuovoReport(prova)), -1);
    std::filesystem::create_directory(prova.Cartella.File("cartella"));
    EXPECT_EQ(FileTrovato(prova.Cartella.Nome() + "cartella"), -1);
    EXPECT_EQ(FileTrovato(prova.Cartella.Nome() + "taglie.htm"), 0);
    EXPECT_EQ(FileTrovato(""), 0);
}

TEST(FileAperto, TreRisposte)
{
    const AmbienteDiProva prova;
    EXPECT_EQ(FileAperto(prova.Cartella.Nome() + "taglie.htm"), -999);
    const std::string report = NuovoReport(prova);
    EXPECT_EQ(FileAperto(report), 0);
    if (!SiSaChiTiene(report)) GTEST_SKIP() << "no leases on this file system";
    {
        const LettoreDiFile tenuto(report);
        EXPECT_EQ(FileAperto(report), -1);
    }
    EXPECT_EQ(FileAperto(report), 0);
}

TEST(AvvisoFileInUso, MostraUnAvvisoConIlSuoTitolo)
{
    AmbienteDiProva prova;
    const std::string report = NuovoReport(prova);
    if (!SiSaChiTiene(report)) GTEST_SKIP() << "no leases on this file system";
    const LettoreDiFile tenuto(report);
    EXPECT_EQ(AvvisoFileInUso(report), Vero);
    ASSERT_EQ(prova.Messaggi.size(), 1U);
    EXPECT_EQ(prova.Messaggi[0].Titolo, "Ombrivento");
    // One carriage return between the lines, no line feed.
    EXPECT_EQ(prova.Messaggi[0].Testo, "Il file è già aperto e in uso."
                                       "\r"
                                       "Chiudere il file aperto e rilanciare la stampa.");
    EXPECT_EQ(prova.Messaggi[0].Figura, Stampe::Icona::Informazione);
    EXPECT_EQ(aiuti::Byte(report), "testo");
}

TEST(AvvisoFileInUso, NessunMessaggioSeLiberoOAssente)
{
    const AmbienteDiProva prova;
    EXPECT_EQ(AvvisoFileInUso(NuovoReport(prova)), Falso);
    EXPECT_EQ(AvvisoFileInUso(prova.Cartella.Nome() + "taglie.htm"), Falso);
    EXPECT_TRUE(prova.Messaggi.empty());
}
