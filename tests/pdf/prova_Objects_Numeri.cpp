// Numbers of objects: given out before the object is written, up to the limit, and found in the
// table again.

#include "Objects.h"
#include "Scritture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>

using aiuti::ErroreDi;
using testing::HasSubstr;

namespace {

constexpr pdf::Format Conforme = {true};

std::string Scritto(const pdf::Format& formato, const std::function<void(pdf::Objects&)>& lavoro)
{
    std::ostringstream flusso;
    pdf::Objects oggetti;
    oggetti.prOpen(pdf::prToStream(flusso), formato);
    oggetti.prWriteRaw("%PDF-1.7");
    lavoro(oggetti);
    oggetti.prClose();
    return flusso.str();
}

void Numero(pdf::Objects& oggetti, std::int32_t numero)
{
    oggetti.prInitObj(numero);
    oggetti.prWriteRaw("null");
    oggetti.prEndObj();
}

void ProvaLimite(const pdf::Format& formato, std::int32_t massimo)
{
    Scritto(formato, [massimo](pdf::Objects& oggetti) {
        const std::string motivo =
            "un documento può avere al massimo " + std::to_string(massimo) + " oggetti";
        oggetti.prSetCounter(massimo - 2);
        for (const auto& chiede :
             {std::function<void()>([&oggetti] { oggetti.prReserve(3); }),
              std::function<void()>([&oggetti] { oggetti.prInitObj(oggetti.prCounter() + 3); })}) {
            const auto errore = ErroreDi(chiede);
            ASSERT_TRUE(errore);
            EXPECT_EQ(errore->Numero(), NumeroErrore::Overflow);
            EXPECT_EQ(errore->Motivo(), motivo);
            EXPECT_EQ(oggetti.prCounter(), massimo - 2);
        }
        EXPECT_EQ(oggetti.prReserve(2), massimo - 1);
        EXPECT_EQ(oggetti.prCounter(), massimo);
    });
}

} // namespace

TEST(NumeriDiOggetti, UnoRiservatoSiScriveDopo)
{
    const std::string byte = Scritto(Conforme, [](pdf::Objects& oggetti) {
        EXPECT_EQ(oggetti.prReserve(), 1);
        EXPECT_EQ(oggetti.prReserve(2), 2);
        EXPECT_EQ(oggetti.prInitObj(0), 4);
        oggetti.prWriteRaw("[ 1 0 R 3 0 R ]");
        oggetti.prEndObj();
        Numero(oggetti, 3);
        Numero(oggetti, 1);
        oggetti.prWriteTrailer("/Root 4 0 R");
    });
    EXPECT_EQ(byte, "%PDF-1.7\r\n"
                    "4 0 obj\r\n[ 1 0 R 3 0 R ]\r\nendobj\r\n"
                    "3 0 obj\r\nnull\r\nendobj\r\n"
                    "1 0 obj\r\nnull\r\nendobj\r\n"
                    "xref\r\n0 5\r\n"
                    "0000000000 65535 f\r\n"
                    "0000000067 00000 n\r\n"
                    "0000000000 65535 f\r\n" // given out, never written
                    "0000000044 00000 n\r\n"
                    "0000000010 00000 n\r\n"
                    "trailer\r\n<< /Size 5 /Root 4 0 R >>\r\n"
                    "startxref\r\n90\r\n%%EOF\r\n");
}

TEST(NumeriDiOggetti, IlLimiteESecondoIlDocumento)
{
    ProvaLimite({}, 32767);
    ProvaLimite(Conforme, 8388607);
}

TEST(NumeriDiOggetti, UnNuovoDocumentoCominciaDaUno)
{
    pdf::Objects oggetti;
    std::ostringstream primo;
    oggetti.prOpen(pdf::prToStream(primo));
    Numero(oggetti, 9);
    std::ostringstream secondo;
    oggetti.prClose();
    oggetti.prOpen(pdf::prToStream(secondo));
    oggetti.prWriteRaw("%PDF-1.7");
    EXPECT_EQ(oggetti.prReserve(2), 1);
    oggetti.prWriteCrossReferences();
    oggetti.prClose();
    EXPECT_THAT(secondo.str(), HasSubstr("xref\r\n0 3\r\n0000000000 65535 f\r\n"
                                         "0000000000 65535 f\r\n0000000000 65535 f\r\n"));
}

TEST(NumeriDiOggetti, SenzaDocumentoNonSeNeDanno)
{
    pdf::Objects oggetti;
    const auto errore = ErroreDi([&oggetti] { oggetti.prReserve(); });
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Numero(), NumeroErrore::ChiamataNonValida);
}
