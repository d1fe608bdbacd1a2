// How much memory compressing takes beyond what a document takes anyway, and that it does not grow
// with the document.

#include "Deflate.h"
#include "Memoria.h"
#include "clsPDFCreator.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace {

constexpr std::size_t InPiu = std::size_t{512} * 1024;

struct Modo
{
    int Livello;
    bool Conforme;
};

void Disegna(clsPDFCreator& pdf, int pagine)
{
    for (int pagina = 0; pagina < pagine; ++pagina) {
        pdf.BeginPage();
        for (int riga = 0; riga < 60; ++riga) {
            pdf.SetFont("Times New Roman", 9, riga % 2);
            pdf.DrawText(50, 50.0F + 12 * static_cast<float>(riga),
                         "Pagina " + std::to_string(pagina) + ", riga " + std::to_string(riga));
        }
        pdf.EndPage();
    }
}

// The most memory at one time while so many pages are written.
std::size_t Presa(const Modo& modo, int pagine)
{
    memoria::Azzera();
    {
        clsPDFCreator pdf;
        pdf.ShareFonts(true);
        pdf.Compress(modo.Livello);
        pdf.Conforming(modo.Conforme);
        pdf.BeginDocTo([](std::string_view) {});
        Disegna(pdf, pagine);
        pdf.EndDoc();
    }
    return memoria::Massimo();
}

} // namespace

TEST(MemoriaDiUnDocumento, ComprimereNePrendeMezzoMegabyteAlPiu)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << "la libreria è senza zlib";
    for (const int pagine : {1, 100, 2000}) {
        for (const bool conforme : {false, true}) {
            const std::size_t senza = Presa({0, conforme}, pagine);
            for (const int livello : {1, 6, 9}) {
                const std::size_t con = Presa({livello, conforme}, pagine);
                RecordProperty("pagine_" + std::to_string(pagine) + "_" + std::to_string(livello) +
                                   (conforme ? "_conforme" : ""),
                               std::to_string(con - senza));
                EXPECT_GT(con, senza + 256 * 1024) << "zlib is counted, too";
                EXPECT_LT(con, senza + InPiu) << pagine << " " << livello << " " << conforme;
            }
        }
    }
}
