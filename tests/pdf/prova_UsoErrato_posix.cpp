// A finished document where no program opens it.

#include "Aiuti.h"
#include "Scritture.h"
#include "Utente.h"
#include "clsPDFCreator.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

using aiuti::CartellaDiProva;
using aiuti::ErroreDi;

TEST(OpenDoc, SenzaUnProgrammaCheApreEUnErrore)
{
    const CartellaDiProva cartella;
    const std::string nome = cartella.Nome() + "prova.pdf";
    EXPECT_EQ(aiuti::InUnFiglio([&] {
                  ::setenv("PATH", cartella.Nome().c_str(), 1);
                  clsPDFCreator pdf;
                  pdf.BeginDoc(nome);
                  pdf.EndDoc();
                  const auto errore = ErroreDi([&pdf] { pdf.OpenDoc(); });
                  ASSERT_TRUE(errore);
                  EXPECT_EQ(errore->Numero(), NumeroErrore::FileNonTrovato);
                  EXPECT_EQ(errore->Motivo(), "nessun programma può aprire il file");
                  EXPECT_EQ(errore->File(), nome);
              }),
              aiuti::Riuscito);
}
