// Fonts from bytes: the same document as from their files.

#include "Aiuti.h"
#include "PaginaDiProva.h"
#include "Scritture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

using aiuti::Byte;
using aiuti::Disegno;
using aiuti::ErroreDi;

namespace {

const std::filesystem::path Semi = std::filesystem::path(SCALVINO_SEMI) / "ttf";

std::string Pagina(const Disegno& aggiungi)
{
    return aiuti::ByteDocumento(aggiungi, [](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.SetFont("il mio FONT", 10);
        pdf.DrawText(1, 2, "uno");
        pdf.EndPage();
    });
}

void Confronta(std::string_view byte, NumeroErrore numero, const std::string& motivo,
               bool incorpora = true)
{
    const auto aperto = [](clsPDFCreator&) {};
    const std::string avuto = Pagina([&](clsPDFCreator& pdf) {
        const auto errore = ErroreDi([&] { pdf.AddFontData(byte, "Mio \"è\"", incorpora); });
        ASSERT_TRUE(errore);
        EXPECT_EQ(errore->Numero(), numero);
        EXPECT_EQ(errore->Motivo(), motivo);
        EXPECT_EQ(errore->File(), "font \"Mio \"è\"\"");
    });
    EXPECT_TRUE(avuto == Pagina(aperto));
}

constexpr auto Ingresso = NumeroErrore::ErroreInputOutput;

} // namespace

TEST(AddFontData, DaGliStessiByteDelFile)
{
    int quanti = 0;
    for (const auto& voce : std::filesystem::directory_iterator(Semi)) {
        for (const bool incorpora : {true, false}) {
            if (incorpora && voce.path().stem() == "vietato") continue;
            const std::string daFile = Pagina([&](clsPDFCreator& pdf) {
                pdf.AddFont(voce.path().string(), "Il Mio Font", incorpora);
            });
            const std::string daByte = Pagina([&](clsPDFCreator& pdf) {
                std::string byte = Byte(voce.path());
                pdf.AddFontData(byte, "Il Mio Font", incorpora);
                std::fill(byte.begin(), byte.end(), '?'); // they served for the call only
            });
            EXPECT_TRUE(daFile == daByte) << voce.path();
            ++quanti;
        }
    }
    EXPECT_GT(quanti, 20);
}

TEST(AddFontData, CioCheNonEUnFontEUnErroreCheNonAggiungeNiente)
{
    Confronta("", Ingresso, "il file finisce prima del previsto");
    Confronta("OTTO", Ingresso, "il font ha contorni PostScript invece che TrueType");
    Confronta("wOF2", Ingresso, "non è un font TrueType");
    Confronta(Byte(Semi / "unicode.ttf").substr(0, 300), Ingresso,
              "il file finisce prima del previsto", false);
    const char uno = 't';
    Confronta({&uno, (std::size_t{1} << 30) + 1}, NumeroErrore::Overflow, "è troppo grande");
}

TEST(AddFontData, SenzaPermessoNonSiIncorpora)
{
    Confronta(Byte(Semi / "vietato.ttf"), NumeroErrore::PermessoNegato,
              "il carattere non permette di essere incorporato");
}
