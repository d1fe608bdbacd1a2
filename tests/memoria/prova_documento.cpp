// A document when memory runs out at its k-th request, for every k: the operation fails with an
// error that says so, the writer can be destroyed or go on, and nothing of it is read that is not
// its own.

#include "Deflate.h"
#include "MemoriaFinita.h"
#include "clsPDFCreator.h"

#include <gtest/gtest.h>

#include <new>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

using memoria::Durata;

namespace {

struct Modo
{
    int Livello;
    bool Conforme;
};

std::ostream& operator<<(std::ostream& flusso, const Modo& modo)
{
    return flusso << (modo.Conforme ? "conforme, " : "") << "livello " << modo.Livello;
}

void Disegna(clsPDFCreator& pdf)
{
    pdf.BeginObject("Cornice", 7);
    pdf.DrawRect(10, 10, 500, 700, 1);
    pdf.EndObject();
    for (int pagina = 0; pagina < 3; ++pagina) {
        pdf.BeginPage();
        pdf.SetFont("Arial", 12);
        pdf.DrawTextBox(10, 10, 100, 100, "Un testo che va a capo più di una volta");
        pdf.AddNoteBox("Nota", 10, 10, 50, 50);
        pdf.AddBookmark("Segnalibro", 1);
        pdf.SetLinearFill({"Red", "Blue"}, 0, 0, 100, 100);
        pdf.DrawRect(100, 100, 100, 100, 4);
        pdf.EndPage();
    }
}

// What the document holds; nothing where memory ran out.
std::optional<std::string> Documento(const Modo& modo)
{
    std::string byte;
    bool finito = false;
    try {
        clsPDFCreator pdf;
        pdf.SetClock(
            {[] { return clsPDFCreator::DateTime{2026, 1, 2, 3, 4, 5}; }, [] { return 7; }});
        pdf.Compress(modo.Livello);
        pdf.Conforming(modo.Conforme);
        pdf.BeginDocTo([&byte](std::string_view pezzo) { byte.append(pezzo); });
        Disegna(pdf);
        pdf.EndDoc();
        finito = true;
    } catch (const std::bad_alloc&) {
        finito = false;
    } catch (const ErroreRuntime& errore) {
        EXPECT_EQ(errore.Numero(), NumeroErrore::MemoriaEsaurita) << errore.what();
    }
    if (!finito) return std::nullopt;
    return byte;
}

class DocumentoSenzaMemoria : public testing::TestWithParam<Modo>
{
};

} // namespace

TEST_P(DocumentoSenzaMemoria, OgniRichiestaRifiutataEUnErroreEBasta)
{
    if (GetParam().Livello > 0 && !pdf::prCanDeflate()) GTEST_SKIP() << "la libreria è senza zlib";
    memoria::Guasta(0);
    const auto atteso = Documento(GetParam());
    const std::uint64_t quante = memoria::Ripara();
    ASSERT_TRUE(atteso);
    for (const auto durata : {Durata::UnaVolta, Durata::DaAllora}) {
        for (std::uint64_t quale = 1; quale <= quante; ++quale) {
            memoria::Guasta(quale, durata);
            const auto avuto = Documento(GetParam());
            memoria::Ripara();
            // Whoever asks again may do without what was refused.
            if (avuto) {
                EXPECT_TRUE(*avuto == *atteso) << quale;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Modi, DocumentoSenzaMemoria,
                         testing::Values(Modo{0, false}, Modo{6, false}, Modo{0, true},
                                         Modo{6, true}));
