// The raw data files: whole shoes, replaced safely.

#include "Aiuti.h"
#include "FileDati.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using aiuti::Byte;
using aiuti::CartellaDiProva;
using cli::FileDati;

TEST(FileDati, ScriveTuttoESostituisceIlVecchio)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("dati")) << "vecchio e più lungo";
    FileDati dati(cartella.File("dati").string());
    dati.Aggiungi("uno\n");
    dati.Aggiungi("due\n");
    dati.Chiudi();
    EXPECT_EQ(Byte(cartella.File("dati")), "uno\ndue\n");
}

TEST(FileDati, SenzaChiusuraRestanoLeTaglieIntere)
{
    const CartellaDiProva cartella;
    {
        FileDati dati(cartella.File("dati").string());
        dati.Aggiungi("uno\n");
    }
    EXPECT_EQ(Byte(cartella.File("dati")), "uno\n");
}

TEST(FileDati, MolteTaglieArrivanoSulDiscoPrimaDellaFine)
{
    const CartellaDiProva cartella;
    FileDati dati(cartella.File("dati").string());
    const std::string taglia(1000, 'x');
    for (int i = 0; i < 100; ++i) dati.Aggiungi(taglia);
    EXPECT_GE(std::filesystem::file_size(cartella.File("dati")), 64U * 1024);
    dati.Chiudi();
    EXPECT_EQ(std::filesystem::file_size(cartella.File("dati")), 100000U);
}
