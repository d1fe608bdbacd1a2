// The files of a run: none for two purposes, none that cannot be replaced.

#include "Aiuti.h"
#include "ErroreComando.h"
#include "FileRichiesti.h"

#include <gtest/gtest.h>

#include <filesystem>

using aiuti::CartellaDiProva;
using namespace cli;

namespace {

std::string Rifiuto(const Opzioni& opzioni, const std::string& report)
{
    try {
        RifiutaFileDoppi(opzioni, report);
    } catch (const ErroreComando& errore) {
        EXPECT_EQ(errore.CodiceUscita(), UscitaUso);
        return errore.what();
    }
    return "";
}

} // namespace

TEST(RifiutaFileDoppi, DiceIDueRuoli)
{
    const CartellaDiProva cartella;
    const std::string nome = cartella.File("x").string();
    Opzioni opzioni;
    opzioni.SalvaMazzi = nome;
    opzioni.Colpi = (cartella.File(".") / "x").string();
    EXPECT_EQ(Rifiuto(opzioni, ""), nome + ": è lo stesso file per --salva-mazzi e per --colpi");
    opzioni.Colpi.clear();
    EXPECT_EQ(Rifiuto(opzioni, nome),
              nome + ": è lo stesso file per --salva-mazzi e per il report");
    EXPECT_EQ(Rifiuto(opzioni, cartella.File("y").string()), "");
}

TEST(RifiutaFileDoppi, LoStandardInputNonEUnFileDiQuestoNome)
{
    Opzioni opzioni;
    opzioni.Mazzi = "-";
    opzioni.Colpi = "-";
    EXPECT_EQ(Rifiuto(opzioni, ""), "");
    opzioni.Mazzi = "./-";
    EXPECT_EQ(Rifiuto(opzioni, ""), "-: è lo stesso file per --colpi e per --mazzi");
}

TEST(PretendiScrivibili, NonToccaNulla)
{
    const CartellaDiProva cartella;
    Opzioni opzioni;
    opzioni.Colpi = cartella.File("colpi").string();
    opzioni.SalvaMazzi = cartella.File("mazzi").string();
    EXPECT_NO_THROW(PretendiScrivibili(opzioni, cartella.File("taglie.txt").string()));
    EXPECT_TRUE(cartella.Contenuto().empty());
    std::filesystem::create_directory(opzioni.Colpi);
    EXPECT_THROW(PretendiScrivibili(opzioni, ""), ErroreRuntime);
}
