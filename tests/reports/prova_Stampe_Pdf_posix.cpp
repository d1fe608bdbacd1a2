// The PDF report where somebody has put something else in its place.

#include "prova_Stampe_Pdf.h"

#include "ErroreRuntime.h"
#include "LettoreDiFile.h"
#include "Utente.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace Stampe;
using namespace stampepdf;
using aiuti::Byte;
using testing::IsEmpty;
using testing::StartsWith;

TEST(StampePdf, UnCollegamentoESostituitoOvunqueConduca)
{
    for (const char* bersaglio : {"altro", "nulla", "taglie.pdf", "/dev/null", "."}) {
        Prova prova("tre");
        std::ofstream(prova.Cartella.File("altro")) << "altrui";
        const aiuti::LettoreDiFile tenuto(prova.Cartella.Nome() + "altro");
        std::filesystem::create_symlink(bersaglio, prova.Cartella.File("taglie.pdf"));
        EXPECT_TRUE(StampaPdf(3)) << bersaglio;
        EXPECT_THAT(prova.Messaggi, IsEmpty()) << bersaglio;
        EXPECT_TRUE(std::filesystem::is_regular_file(
            std::filesystem::symlink_status(prova.Cartella.File("taglie.pdf"))));
        EXPECT_THAT(prova.Pdf(), StartsWith("%PDF-1.3"));
        EXPECT_EQ(Byte(prova.Cartella.File("altro")), "altrui");
    }
}

TEST(StampePdf, UnFileProprioIlleggibileESostituito)
{
    Prova prova("tre");
    const auto percorso = prova.Cartella.File("taglie.pdf");
    std::ofstream(percorso) << "vecchio";
    if (aiuti::SonoRadice()) {
        aiuti::Affida(prova.Cartella.Nome(), aiuti::Nessuno);
        aiuti::Affida(percorso, aiuti::Nessuno);
    }
    std::filesystem::permissions(percorso, std::filesystem::perms::none);
    EXPECT_EQ(aiuti::ComeNessuno([&] {
                  EXPECT_TRUE(StampaPdf(3));
                  EXPECT_THAT(prova.Messaggi, IsEmpty());
                  EXPECT_THAT(prova.Pdf(), StartsWith("%PDF-1.3"));
              }),
              aiuti::Riuscito);
}

TEST(StampePdf, UnFileMessoAlSuoPostoNonSiApreNeSiTocca)
{
    Prova prova("tre");
    const auto percorso = prova.Cartella.File("taglie.pdf");
    AmbienteInUso.TagliaFatta = [&](std::int64_t fatte) {
        if (fatte != 2) return;
        std::filesystem::remove(percorso);
        std::ofstream(percorso) << "altrui";
    };
    EXPECT_THROW(StampaPdf(3), ErroreRuntime);
    EXPECT_EQ(Byte(percorso), "altrui");
    EXPECT_THAT(prova.Aperti, IsEmpty());
}
