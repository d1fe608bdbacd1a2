// Runs that are killed in the middle.

#include "prova_Stampe_Guasti.h"

#include "Utente.h"

#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

using namespace guasti;
using aiuti::Byte;
using aiuti::Dorato;

namespace {

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

TEST(Arresto, UccisoDopoLaSecondaTagliaIlTestoNeHaDueIntere)
{
    Prova prova;
    UccidiDopoDueTaglie(Operazioni[0]);
    EXPECT_TRUE(Byte(prova.Cartella.File("taglie.txt")) == DueTaglie());
}

TEST(Arresto, DopoUnUccisioneLaCorsaSuccessivaSostituisceCioCheResta)
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
