// Report folders in which somebody has put something else; the removal of reports; and numbers of
// shoes that are refused before any file is touched.

#include "prova_Stampe_Cartella.h"

#include <cmath>
#include <limits>

using namespace guasti;
using aiuti::Byte;
using aiuti::Dorato;

namespace fs = std::filesystem;

// ---- Planted entries -------------------------------------------------------------------------

TEST(CartellaGuasta, UnNomeDuroPerdeSoloIlNome)
{
    for (const auto& operazione : Operazioni) {
        Prova prova;
        Scrivi(prova.Cartella.File("bersaglio"), "prezioso");
        fs::create_hard_link(prova.Cartella.File("bersaglio"), prova.Report(operazione));
        Riesce(prova, operazione);
        EXPECT_EQ(Byte(prova.Cartella.File("bersaglio")), "prezioso");
    }
}

TEST(CartellaGuasta, SostituitoFraDueTaglieIlTestoSiFerma)
{
    SiFermaSeSostituito([](const fs::path& report) { Scrivi(report, "altrui"); });
    SiFermaSeSostituito([](const fs::path& report) { fs::create_directory(report); });
}

// ---- No folder -------------------------------------------------------------------------------

TEST(CartellaGuasta, SenzaCartellaUnErroreConIlNomeDelFile)
{
    for (const auto& operazione : Operazioni) {
        Prova prova;
        Stampe::AmbienteInUso.Cartella = prova.Cartella.Nome() + "assente/";
        const auto errore = prova.Fallisce(operazione);
        EXPECT_EQ(errore.Numero(), NumeroErrore::PercorsoNonTrovato) << operazione.Nome;
        EXPECT_EQ(errore.File(), prova.Cartella.Nome() + "assente/" + operazione.File);
        EXPECT_TRUE(prova.Cartella.Contenuto().empty());
    }
}

// ---- Numbers of shoes ------------------------------------------------------------------------

TEST(NumeroTaglie, QuelloSbagliatoERifiutatoPrimaDiToccareIlFile)
{
    struct Caso
    {
        double taglie;
        NumeroErrore numero;
        const char* messaggio;
    };
    const auto piccolo = "numero di taglie: deve essere almeno 1";
    const auto grande = "numero di taglie: può essere al massimo 9007199254740992";
    const auto infinito = std::numeric_limits<double>::infinity();
    const std::vector<Caso> casi = {
        {0, NumeroErrore::ChiamataNonValida, piccolo},
        {0.9999, NumeroErrore::ChiamataNonValida, piccolo},
        {-1, NumeroErrore::ChiamataNonValida, piccolo},
        {-infinito, NumeroErrore::ChiamataNonValida, piccolo},
        {std::nan(""), NumeroErrore::ChiamataNonValida, piccolo},
        {9007199254740994.0, NumeroErrore::Overflow, grande},
        {infinito, NumeroErrore::Overflow, grande},
    };
    for (const auto& operazione : Operazioni) {
        for (const auto& caso : casi) {
            Prova prova;
            Scrivi(prova.Report(operazione), "il vecchio report\r\n");
            const auto errore = prova.Fallisce(operazione, caso.taglie);
            EXPECT_EQ(errore.Numero(), caso.numero) << caso.taglie;
            EXPECT_STREQ(errore.what(), caso.messaggio) << caso.taglie;
            EXPECT_EQ(Byte(prova.Report(operazione)), "il vecchio report\r\n");
            EXPECT_EQ(prova.Cartella.Contenuto().size(), 1U);
        }
    }
}

// ---- Removal ---------------------------------------------------------------------------------

TEST(EliminaReport, ITreReportENientAltro)
{
    const Prova prova;
    FaiReport(prova);
    Stampe::EliminaReport();
    EXPECT_EQ(prova.Cartella.Contenuto(), (Nomi{"taglie.csv"}));
    Stampe::EliminaReport(); // nothing to remove is no error
    EXPECT_TRUE(prova.Aperti.empty());
    EXPECT_TRUE(prova.Messaggi.empty());
}

TEST(EliminaReport, SenzaCartellaNonEUnErrore)
{
    const Prova prova;
    Stampe::AmbienteInUso.Cartella = prova.Cartella.Nome() + "assente/";
    EXPECT_NO_THROW(Stampe::EliminaReport());
}

TEST(EliminaReport, UnaCartellaConQuelNomeRestaEGliAltriNo)
{
    for (const auto& nome : Report) {
        const Prova prova;
        FaiReport(prova);
        fs::remove(prova.Cartella.File(nome));
        fs::create_directory(prova.Cartella.File(nome));
        Stampe::EliminaReport();
        EXPECT_EQ(prova.Cartella.Contenuto(), (Nomi{"taglie.csv", nome}));
    }
}
