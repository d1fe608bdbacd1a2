// The ways of a report into its place: what stands there before, in between and in the end.

#include "Destinazione.h"

#include "AmbienteDiProva.h"
#include "ErroreRuntime.h"
#include "Scritture.h"
#include "Stampe.h"
#include "prova_Stampe_Guasti.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <vector>

using namespace Stampe;
using aiuti::AmbienteDiProva;
using aiuti::Byte;
using aiuti::ErroreDi;
using aiuti::ScrittureGuaste;

namespace {

using Nomi = std::vector<std::string>;

// Surroundings with an old text report.
class Posto : public AmbienteDiProva
{
public:
    explicit Posto(ViaReport via)
    {
        AmbienteInUso.Via = via;
        guasti::Scrivi(Cartella.File("taglie.txt"), "vecchio");
    }

    std::string Report() const { return Byte(Cartella.File("taglie.txt")); }
};

} // namespace

TEST(Destinazione, NelPostoIlVecchioVaSubito)
{
    const Posto posto(ViaReport::NelPosto);
    const auto file = ApriDestinazione(NomeTxt);
    file->Scrivi("nuovo");
    EXPECT_EQ(posto.Report(), "nuovo");
    file->Finisci();
    EXPECT_EQ(posto.Report(), "nuovo");
}

TEST(Destinazione, NelPostoSenzaFineNonRestaNulla)
{
    const Posto posto(ViaReport::NelPosto);
    ApriDestinazione(NomeTxt)->Scrivi("nuovo");
    EXPECT_EQ(posto.Cartella.Contenuto(), Nomi{});
}

TEST(Destinazione, InteroIlVecchioRestaFinoAllaFine)
{
    const Posto posto(ViaReport::Intero);
    {
        const auto file = ApriDestinazione(NomeTxt);
        file->Scrivi("nuovo");
        EXPECT_EQ(posto.Report(), "vecchio");
    }
    EXPECT_EQ(posto.Report(), "vecchio");
    const auto file = ApriDestinazione(NomeTxt);
    file->Scrivi("nuovo");
    file->Finisci();
    EXPECT_EQ(posto.Report(), "nuovo");
    EXPECT_EQ(posto.Cartella.Contenuto(), Nomi{"taglie.txt"});
}

TEST(Destinazione, CrescenteTieneIPezziInteri)
{
    for (const auto via : {ViaReport::NelPosto, ViaReport::Intero}) {
        const Posto posto(via);
        ScrittureGuaste scritture;
        scritture.Guasta(3, ENOSPC);
        const auto file = ApriCrescente(NomeTxt);
        file->Scrivi("uno ");
        file->Scrivi("due ");
        EXPECT_TRUE(ErroreDi([&] { file->Scrivi("tre "); }));
        EXPECT_EQ(posto.Report(), "uno due ");
    }
}

TEST(Destinazione, IlNomeDatoValePerOgniForma)
{
    AmbienteDiProva prova;
    AmbienteInUso.Report = prova.Cartella.File("mio").string();
    for (const auto via : {ViaReport::NelPosto, ViaReport::Intero}) {
        AmbienteInUso.Via = via;
        for (const auto nome : {NomeTxt, NomeHtml, NomePdf}) {
            const auto file = ApriDestinazione(nome);
            file->Scrivi(nome);
            file->Finisci();
            EXPECT_EQ(Byte(prova.Cartella.File("mio")), nome);
        }
    }
    EXPECT_EQ(prova.Cartella.Contenuto(), Nomi{"mio"});
}
