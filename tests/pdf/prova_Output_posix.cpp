// Documents into the streams that a system can break: a full device, a pipe that nobody reads any
// more.

#include "Aiuti.h"
#include "PaginaDiProva.h"
#include "Scritture.h"
#include "Utente.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fstream>
#include <string>

#include <unistd.h>

using aiuti::ErroreDi;

namespace {

void Pagine(clsPDFCreator& pdf, int quante)
{
    for (int pagina = 0; pagina < quante; ++pagina) {
        pdf.BeginPage();
        for (int riga = 0; riga < 1000; ++riga) pdf.DrawLine(0, 0, 500, static_cast<float>(riga));
        pdf.EndPage();
    }
}

void ERotto(const std::optional<ErroreRuntime>& errore)
{
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Numero(), NumeroErrore::ErroreInputOutput);
    EXPECT_STREQ(errore->what(), "clsPDFCreator: il flusso non accetta altri dati");
}

} // namespace

TEST(BeginDocTo, UnDispositivoPienoEUnErrore)
{
    for (const int pagine : {1, 20}) {
        std::ofstream pieno("/dev/full", std::ios::binary);
        ASSERT_TRUE(pieno);
        clsPDFCreator pdf;
        pdf.BeginDocTo(pieno);
        ERotto(ErroreDi([&] {
            Pagine(pdf, pagine);
            pdf.EndDoc();
        }));
    }
}

TEST(BeginDocTo, UnTuboChiusoDaChiLeggeEUnErrore)
{
    for (const int prima : {0, 20}) { // pages that went through before
        EXPECT_EQ(aiuti::InUnFiglio([prima] {
                      std::signal(SIGPIPE, SIG_IGN);
                      std::array<int, 2> tubo = {};
                      ASSERT_EQ(::pipe(tubo.data()), 0);
                      std::ofstream flusso("/dev/fd/" + std::to_string(tubo[1]), std::ios::binary);
                      aiuti::Figlio lettore([&tubo] {
                          ::close(tubo[1]);
                          std::array<char, 5> inizio = {};
                          ASSERT_EQ(::read(tubo[0], inizio.data(), inizio.size()), 5);
                      });
                      if (prima == 0) flusso << "%PDF-" << std::flush;
                      ::close(tubo[0]);
                      clsPDFCreator pdf;
                      pdf.BeginDocTo(flusso);
                      const auto errore = ErroreDi([&] {
                          Pagine(pdf, prima);
                          EXPECT_EQ(lettore.Aspetta(), aiuti::Riuscito);
                          Pagine(pdf, 20);
                          pdf.EndDoc();
                      });
                      ERotto(errore);
                  }),
                  aiuti::Riuscito);
    }
}
