// The table of forms: which file and which operations stand behind a form's number.

#include "AmbienteDiProva.h"
#include "Registratore.h"
#include "Stampe.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace Stampe;
using aiuti::AmbienteDiProva;
using aiuti::Registratore;

namespace {

std::vector<std::string> SoloUno(std::string_view nome)
{
    return nome.empty() ? std::vector<std::string>{} : std::vector<std::string>{std::string(nome)};
}

} // namespace

TEST(Forme, ComeLeOffreLaFinestra)
{
    EXPECT_EQ(Forme.at(0).File, "taglie.htm");
    EXPECT_EQ(Forme.at(1).File, "taglie.pdf");
    EXPECT_EQ(Forme.at(2).File, "taglie.txt");
    EXPECT_EQ(Forme.at(FormaVideo).File, "");
    EXPECT_EQ(Forme.at(FormaNessuna).File, "");
}

TEST(Forme, LeOperazioniScrivonoIlFileDellaForma)
{
    for (const auto& forma : Forme) {
        AmbienteDiProva prova;
        Registratore registro;
        if (forma.Stampa != nullptr) {
            EXPECT_TRUE(forma.Stampa(1));
            EXPECT_EQ(prova.Cartella.Contenuto(), SoloUno(forma.File));
            EliminaReport();
            EXPECT_TRUE(prova.Cartella.Contenuto().empty());
        }
        EXPECT_TRUE(forma.Statistiche(2, registro, {}));
        EXPECT_EQ(prova.Cartella.Contenuto(), SoloUno(forma.File));
    }
}

TEST(Forme, SoloQuelleInUnFileElencanoIColpi)
{
    for (const auto& forma : Forme) EXPECT_EQ(forma.Stampa != nullptr, !forma.File.empty());
}
