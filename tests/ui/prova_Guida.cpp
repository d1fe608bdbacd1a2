// The help page: the program's own bytes, written anew at every request, never over what is not
// ours.

#include "Finestra.h"
#include "Generale.h"

#include <fstream>

using namespace aiuti;
namespace fs = std::filesystem;

TEST_F(Finestra, LaGuidaSiScriveESiApre)
{
    const auto percorso = ambiente.Cartella.Nome() + "scalvino.htm";
    Clicca("cmdHelp");
    EXPECT_EQ(ambiente.Aperti, std::vector<std::string>{percorso});
    EXPECT_EQ(ambiente.Stili, std::vector{StileFinestra::MassimizzataConFuoco});
    const std::string pagina = Byte(percorso);
    EXPECT_EQ(pagina.size(), 12936U);
    EXPECT_EQ(pagina, Byte(SCALVINO_RISORSE "/scalvino.htm"));
}

TEST_F(Finestra, DueRichiesteScrivonoDueVolte)
{
    const auto percorso = ambiente.Cartella.Nome() + "scalvino.htm";
    Clicca("cmdHelp");
    std::ofstream(percorso, std::ios::app) << "aggiunta";
    Clicca("cmdHelp");
    EXPECT_EQ(ambiente.Aperti, (std::vector<std::string>{percorso, percorso}));
    EXPECT_EQ(Byte(percorso), Byte(SCALVINO_RISORSE "/scalvino.htm"));
    EXPECT_EQ(ambiente.Cartella.Contenuto(), std::vector<std::string>{"scalvino.htm"});
}

TEST_F(Finestra, SeLaGuidaNonSiPuoScrivereNonSuccedeNulla)
{
    Risponditore mano;
    fs::create_directory(ambiente.Cartella.File("scalvino.htm"));
    Clicca("cmdHelp");
    Stampe::AmbienteInUso.Cartella = "/cartella/che/non/esiste/";
    Clicca("cmdHelp");
    EXPECT_TRUE(ambiente.Aperti.empty());
    EXPECT_TRUE(mano.Visti.empty());
    EXPECT_TRUE(finestra->isVisible());
    EXPECT_EQ(Gioco(), "100");
}

TEST_F(Finestra, UnaRisorsaCheNonCESiIgnora)
{
    Generale::ApriRisorsa("scalvino.htm", 102);
    EXPECT_TRUE(ambiente.Aperti.empty());
    EXPECT_TRUE(ambiente.Cartella.Contenuto().empty());
}

TEST_F(Finestra, LaGuidaNonDisturbaLaPartita)
{
    Clicca("cmdMescola");
    const auto passi = registro->Passi;
    Clicca("cmdHelp");
    EXPECT_EQ(registro->Passi, passi);
    EXPECT_EQ(Gioco(), "011");
}
