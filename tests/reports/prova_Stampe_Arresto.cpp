// Runs that are asked to stop.

#include "prova_Stampe_Guasti.h"

using namespace guasti;
using aiuti::Byte;
using aiuti::Dorato;

TEST(Arresto, DopoLaSecondaTagliaIlTestoPienoNeHaDue)
{
    Prova prova;
    int domande = 0;
    Stampe::AmbienteInUso.Fermare = [&] { return ++domande == 2; };
    EXPECT_EQ(Stampe::StampaTxt(Taglie), std::nullopt);
    const std::string testo = Byte(prova.Cartella.File("taglie.txt"));
    EXPECT_TRUE(testo == DueTaglie());
    EXPECT_EQ(testo.find("Statistiche generali"), std::string::npos);
    EXPECT_TRUE(prova.Aperti.empty());
}

TEST(Arresto, LeAltreFormeNonLascianoNulla)
{
    for (const auto& operazione : Operazioni) {
        if (operazione.TieneLeTaglie) continue;
        Prova prova;
        Scrivi(prova.Report(operazione), "vecchio");
        int domande = 0;
        Stampe::AmbienteInUso.Fermare = [&] { return ++domande == 2; };
        EXPECT_EQ(operazione.Esegui(Taglie), std::nullopt) << operazione.Nome;
        EXPECT_EQ(domande, 2);
        // The statistics document is begun only when all the shoes are played.
        const bool tocca = std::string(operazione.Nome) != "StatistichePdf";
        const auto resto = tocca ? std::nullopt : std::optional<std::string>("vecchio");
        EXPECT_TRUE(Contenuto(prova.Report(operazione)) == resto) << operazione.Nome;
        EXPECT_EQ(prova.Cartella.Contenuto().size(), tocca ? 0U : 1U);
        EXPECT_TRUE(prova.Aperti.empty());
    }
}

TEST(Arresto, AncheDopoLUltimaTagliaNienteStatistiche)
{
    // The question comes after every shoe, the last one included.
    Prova prova;
    int domande = 0;
    Stampe::AmbienteInUso.Fermare = [&] { return ++domande == 3; };
    EXPECT_EQ(Stampe::StampaTxt(Taglie), std::nullopt);
    EXPECT_TRUE(Byte(prova.Cartella.File("taglie.txt")) ==
                StatiInteri(Dorato(Operazioni[0].Dorato), 3)[3]);
    EXPECT_TRUE(prova.Aperti.empty());
}
