// The files that a document takes in by name: which kind of picture, which font may be embedded.

#include "Aiuti.h"
#include "ErroreRuntime.h"
#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>

using aiuti::Byte;
using aiuti::CartellaDiProva;
using namespace std::string_literals;

namespace {

std::filesystem::path Seme(const char* nome)
{
    return std::filesystem::path(SCALVINO_SEMI) / nome;
}

// One name at a time, for systems to which names in capitals are the same.
void Copia(const char* seme, const std::filesystem::path& nome)
{
    std::filesystem::copy_file(Seme(seme), nome, std::filesystem::copy_options::overwrite_existing);
}

std::string PaginaConFigura(const std::string& file)
{
    return aiuti::ByteDocumento([](clsPDFCreator&) {},
                                [&file](clsPDFCreator& pdf) {
                                    pdf.BeginPage();
                                    pdf.DrawImage(file, 1, 2, 3, 4);
                                    pdf.EndPage();
                                });
}

// A font whose owner allows this much: fsType of the table OS/2 (OpenType 1.9, OS/2, fsType).
std::filesystem::path FontConLicenza(const CartellaDiProva& cartella, char fsType)
{
    std::string font = Byte(Seme("ttf/unicode.ttf"));
    const std::size_t voce = font.find("OS/2");
    std::size_t inizio = 0;
    for (std::size_t i = 8; i < 12; ++i) {
        inizio = inizio << 8 | static_cast<unsigned char>(font.at(voce + i));
    }
    font.replace(inizio + 8, 2, {'\0', fsType});
    std::ofstream(cartella.File("mio.ttf"), std::ios::binary) << font;
    return cartella.File("mio.ttf");
}

// Adds the font and writes with it; ErroreRuntime comes through after the page is whole.
std::string PaginaConFont(const std::filesystem::path& font, bool incorpora)
{
    return aiuti::ByteDocumento(
        [&](clsPDFCreator& pdf) { pdf.AddFont(font.string(), "Mio", incorpora); },
        [](clsPDFCreator& pdf) {
            pdf.BeginPage();
            pdf.SetFont("Mio", 10);
            pdf.DrawText(1, 2, "uno");
            pdf.EndPage();
        });
}

} // namespace

TEST(DrawImage, IlTipoVieneDallEstensioneComunqueScritta)
{
    const CartellaDiProva cartella;
    const auto copia = [&cartella](const char* seme, const char* nome) {
        Copia(seme, cartella.File(nome));
        return cartella.File(nome).string();
    };
    const std::string grigia = PaginaConFigura(copia("jpeg/grigia.jpg", "a.jpg"));
    EXPECT_THAT(grigia, testing::HasSubstr("/DCTDecode"));
    for (const char* nome : {"a.jpeg", "a.JPG", "a.JPEG", "b.c.JpEg"}) {
        EXPECT_TRUE(PaginaConFigura(copia("jpeg/grigia.jpg", nome)) == grigia) << nome;
    }
    const std::string punti = PaginaConFigura(copia("gif/1bit.gif", "a.gif"));
    EXPECT_THAT(punti, testing::HasSubstr("/Indexed"));
    EXPECT_TRUE(PaginaConFigura(copia("gif/1bit.gif", "a.GIF")) == punti);
}

TEST(DrawImage, UnNomeSenzaPuntoOConUnAltroTipoERifiutato)
{
    const CartellaDiProva cartella;
    for (const char* nome : {"gif", "a.gi", "a.gif ", "a.png", "a."}) {
        Copia("gif/1bit.gif", cartella.File(nome));
        try {
            PaginaConFigura(cartella.File(nome).string());
            ADD_FAILURE() << nome;
        } catch (const ErroreRuntime& errore) {
            EXPECT_EQ(errore.Numero(), NumeroErrore::ChiamataNonValida);
            EXPECT_EQ(errore.File(), cartella.File(nome).string());
        }
    }
}

TEST(AddFont, SenzaPermessoUnFontNonSiIncorpora)
{
    const CartellaDiProva cartella;
    const auto font = FontConLicenza(cartella, 2); // restricted licence
    try {
        PaginaConFont(font, true);
        ADD_FAILURE() << "incorporato";
    } catch (const ErroreRuntime& errore) {
        EXPECT_EQ(errore.Numero(), NumeroErrore::PermessoNegato);
        EXPECT_EQ(errore.Motivo(), "il carattere non permette di essere incorporato");
        EXPECT_EQ(errore.File(), font.string());
    }
    // Only naming it needs no permission.
    const std::string nominato = PaginaConFont(font, false);
    EXPECT_THAT(nominato, testing::HasSubstr("/Subtype /TrueType"));
    EXPECT_THAT(nominato, testing::Not(testing::HasSubstr("/FontFile2")));
}

TEST(AddFont, ColPermessoSiIncorpora)
{
    const CartellaDiProva cartella;
    EXPECT_THAT(PaginaConFont(FontConLicenza(cartella, 8), true), testing::HasSubstr("/FontFile2"));
}
