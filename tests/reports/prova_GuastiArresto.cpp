// Runs that end early: asked to stop, or killed in the middle.

#include "prova_Guasti.h"

#include "Utente.h"

#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

using namespace guasti;
using aiuti::Byte;
using aiuti::Dorato;

namespace {

// Title and two whole shoes.
std::string DueTaglie()
{
    return StatiInteri(Dorato(Operazioni[0].Dorato), 3)[2];
}

// Runs the operation in another process, which is killed after its second shoe is written.
void UccidiDopoDueTaglie(const Operazione& operazione)
{
    std::array<int, 2> tubo{};
    ASSERT_EQ(::pipe2(tubo.data(), O_CLOEXEC), 0);
    aiuti::Figlio vittima([&] {
        Stampe::AmbienteInUso.TagliaFatta = [&tubo](std::int64_t fatte) {
            if (fatte != 2) return;
            EXPECT_EQ(::write(tubo[1], "2", 1), 1);
            for (;;) ::pause();
        };
        operazione.Esegui(Taglie);
    });
    ::close(tubo[1]);
    char pronto = 0;
    EXPECT_EQ(::read(tubo[0], &pronto, 1), 1) << operazione.Nome;
    EXPECT_EQ(::kill(vittima.Numero(), SIGKILL), 0);
    EXPECT_EQ(vittima.Aspetta(), aiuti::DaSegnale + SIGKILL);
    ::close(tubo[0]);
}

} // namespace

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

TEST(Arresto, UccisoDopoLaSecondaTagliaIlTestoNeHaDueIntere)
{
    Prova prova;
    UccidiDopoDueTaglie(Operazioni[0]);
    EXPECT_TRUE(Byte(prova.Cartella.File("taglie.txt")) == DueTaglie());
}

TEST(Arresto, DopoUnUccisioneIlGiroSuccessivoSostituisceCioCheResta)
{
    for (const auto& operazione : Operazioni) {
        Prova prova;
        UccidiDopoDueTaglie(operazione);
        EXPECT_TRUE(operazione.Esegui(Taglie));
        EXPECT_TRUE(Byte(prova.Report(operazione)) == Dorato(operazione.Dorato)) << operazione.Nome;
        EXPECT_EQ(prova.Cartella.Contenuto(), (std::vector<std::string>{operazione.File}));
    }
}

TEST(Arresto, UnReportRestatoAMetaSiPuoEliminare)
{
    for (const auto& operazione : Operazioni) {
        Prova prova;
        UccidiDopoDueTaglie(operazione);
        Stampe::EliminaReport();
        EXPECT_TRUE(prova.Cartella.Contenuto().empty()) << operazione.Nome;
    }
}
