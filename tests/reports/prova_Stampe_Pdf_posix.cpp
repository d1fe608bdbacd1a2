// The PDF report where somebody has put something else in its place.

#include "prova_Stampe_Pdf.h"

#include "ErroreRuntime.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace Stampe;
using namespace stampepdf;
using aiuti::Byte;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(StampePdf, UnCollegamentoPenzolanteValeComeInUso)
{
    Prova prova("tre");
    std::filesystem::create_symlink("bersaglio", prova.Cartella.File("taglie.pdf"));
    EXPECT_EQ(StampaPdf(3), std::nullopt);
    EXPECT_EQ(prova.Messaggi.size(), 1U);
    EXPECT_THAT(prova.Cartella.Contenuto(), ElementsAre("taglie.pdf")); // the link
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
