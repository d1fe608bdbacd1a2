// The check for a report that another program still shows.

#include "FileInUso.h"

#include "Aiuti.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include <fcntl.h>
#include <unistd.h>

using namespace FileInUso;
using aiuti::AmbienteDiProva;

namespace {

// A report in the folder, and somebody who holds it while this lives.
class Tenuto
{
public:
    explicit Tenuto(const std::string& percorso)
        : m_descrittore(::open(percorso.c_str(), O_RDONLY | O_CLOEXEC))
    {
    }
    ~Tenuto() { ::close(m_descrittore); }
    Tenuto(const Tenuto&) = delete;
    Tenuto& operator=(const Tenuto&) = delete;

private:
    int m_descrittore;
};

std::string NuovoReport(const AmbienteDiProva& prova)
{
    std::ofstream(prova.Cartella.File("taglie.txt")) << "testo";
    return prova.Cartella.Nome() + "taglie.txt";
}

bool SiPuoSapere(const std::string& percorso)
{
    const int descrittore = ::open(percorso.c_str(), O_RDONLY | O_CLOEXEC);
    const bool preso = ::fcntl(descrittore, F_SETLEASE, F_WRLCK) == 0;
    ::close(descrittore);
    return preso;
}

} // namespace

TEST(FileTrovato, VeroPerQualunqueVoce)
{
    const AmbienteDiProva prova;
    EXPECT_EQ(FileTrovato(NuovoReport(prova)), -1);
    EXPECT_EQ(FileTrovato(prova.Cartella.Nome()), -1);
    std::filesystem::create_symlink("nulla", prova.Cartella.File("penzolante"));
    EXPECT_EQ(FileTrovato(prova.Cartella.Nome() + "penzolante"), -1);
    EXPECT_EQ(FileTrovato(prova.Cartella.Nome() + "taglie.htm"), 0);
    EXPECT_EQ(FileTrovato(""), 0);
}

TEST(FileAperto, TreRisposte)
{
    const AmbienteDiProva prova;
    EXPECT_EQ(FileAperto(prova.Cartella.Nome() + "taglie.htm"), -999);
    const std::string report = NuovoReport(prova);
    EXPECT_EQ(FileAperto(report), 0);
    if (!SiPuoSapere(report)) GTEST_SKIP() << "no leases on this file system";
    {
        const Tenuto tenuto(report);
        EXPECT_EQ(FileAperto(report), -1);
    }
    EXPECT_EQ(FileAperto(report), 0);
}

TEST(FileAperto, UnCollegamentoPenzolanteETenuto)
{
    const AmbienteDiProva prova;
    std::filesystem::create_symlink("nulla", prova.Cartella.File("taglie.txt"));
    EXPECT_EQ(FileAperto(prova.Cartella.Nome() + "taglie.txt"), -1); // there, but not to be had
}

TEST(AvvisoFileInUso, MostraUnAvvisoConIlSuoTitolo)
{
    AmbienteDiProva prova;
    const std::string report = NuovoReport(prova);
    if (!SiPuoSapere(report)) GTEST_SKIP() << "no leases on this file system";
    const Tenuto tenuto(report);
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
