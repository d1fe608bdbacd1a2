// The shoes of a run: how many, and which.

#include "Aiuti.h"
#include "ErroreComando.h"
#include "SorgenteTaglie.h"
#include "modCarte.h"

#include <gtest/gtest.h>

#include <fstream>

using aiuti::CartellaDiProva;
using namespace cli;

namespace {

Taglia InOrdine(int spostata)
{
    Taglia taglia{};
    for (std::size_t i = 0; i < taglia.size(); ++i) {
        const std::size_t posto = (i + static_cast<std::size_t>(spostata)) % taglia.size();
        taglia[posto] = static_cast<std::int16_t>(i + 1);
    }
    return taglia;
}

Opzioni ConFile(const std::string& nome)
{
    std::ofstream(nome) << RigaTaglia(InOrdine(0)) << RigaTaglia(InOrdine(7));
    Opzioni opzioni;
    opzioni.Mazzi = nome;
    return opzioni;
}

} // namespace

TEST(SorgenteTaglie, UnaSeNonSiDiceQuante)
{
    Opzioni opzioni;
    EXPECT_EQ(SorgenteTaglie(opzioni).Quante(), 1);
    opzioni.Taglie = 7;
    EXPECT_EQ(SorgenteTaglie(opzioni).Quante(), 7);
}

TEST(SorgenteTaglie, UnSemeRipeteOgniTagliaDaSola)
{
    Opzioni opzioni;
    opzioni.Seme = 5;
    const auto prepara = SorgenteTaglie(opzioni).Preparazione();
    prepara(2);
    const Taglia seconda = modCarte::Mazzo;
    prepara(1);
    EXPECT_NE(modCarte::Mazzo, seconda);
    prepara(2);
    EXPECT_EQ(modCarte::Mazzo, seconda);
}

TEST(SorgenteTaglie, DaUnFileTutteOLePrime)
{
    const CartellaDiProva cartella;
    Opzioni opzioni = ConFile(cartella.File("mazzi").string());
    const SorgenteTaglie tutte(opzioni);
    EXPECT_EQ(tutte.Quante(), 2);
    tutte.Preparazione()(2);
    EXPECT_EQ(modCarte::Mazzo, InOrdine(7));
    opzioni.Taglie = 1;
    EXPECT_EQ(SorgenteTaglie(opzioni).Quante(), 1);
}

TEST(SorgenteTaglie, TroppoPocheSonoUnRifiuto)
{
    const CartellaDiProva cartella;
    Opzioni opzioni = ConFile(cartella.File("mazzi").string());
    opzioni.Taglie = 3;
    try {
        const SorgenteTaglie sorgente(opzioni);
        FAIL() << "accepted";
    } catch (const ErroreComando& errore) {
        EXPECT_EQ(errore.CodiceUscita(), UscitaRifiuto);
        EXPECT_EQ(errore.what(), opzioni.Mazzi + ": contiene 2 taglie, ne servono 3");
    }
}
