// What the font reader refuses and with which words. Measures are compared in prova_font.py.

#include "Aiuti.h"
#include "ErroreRuntime.h"
#include "TrueTypeFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

using namespace pdf;
using namespace std::string_literals;

namespace {

const std::string nomeFile = "prova.ttf";

std::string Seme(const std::string& nome)
{
    return aiuti::Byte(std::filesystem::path(SCALVINO_SEMI) / "ttf" / nome);
}

std::string Motivo(const std::string& byte)
{
    try {
        ReadTrueType(byte, nomeFile);
    } catch (const ErroreRuntime& errore) {
        EXPECT_EQ(errore.Numero(), NumeroErrore::ErroreInputOutput);
        EXPECT_EQ(errore.File(), nomeFile);
        return errore.Motivo();
    }
    return "letto";
}

std::size_t Voce(const std::string& font, const std::string& tabella)
{
    return font.find(tabella);
}

// Where a table begins in the file.
std::size_t Inizio(const std::string& font, const std::string& tabella)
{
    std::size_t inizio = 0;
    for (std::size_t i = 8; i < 12; ++i) {
        inizio = inizio << 8 | static_cast<unsigned char>(font[Voce(font, tabella) + i]);
    }
    return inizio;
}

} // namespace

TEST(ReadTrueType, AltriFileDiCaratteri)
{
    const std::string resto(20, '\0');
    EXPECT_EQ(Motivo(""), "il file finisce prima del previsto");
    EXPECT_EQ(Motivo("OTTO" + resto), "il font ha contorni PostScript invece che TrueType");
    EXPECT_EQ(Motivo("ttcf" + resto), "il file è una raccolta di font");
    EXPECT_EQ(Motivo("wOFF" + resto), "non è un font TrueType");
    EXPECT_EQ(Motivo("\0\1\0\0"s + resto), "al font manca la tabella \"head\"");
}

TEST(ReadTrueType, OgniTabellaNecessariaSiNomina)
{
    const std::string font = Seme("unicode.ttf");
    EXPECT_EQ(Motivo(font), "letto");
    for (const std::string tabella : {"head", "hhea", "hmtx", "glyf", "loca", "cmap", "name"}) {
        std::string senza = font;
        senza.replace(Voce(font, tabella), 4, "????");
        EXPECT_EQ(Motivo(senza), "al font manca la tabella \"" + tabella + "\"");
    }
}

TEST(ReadTrueType, UnaTabellaFuoriDalFile)
{
    for (const char* tabella : {"head", "OS/2", "post", "name"}) {
        std::string font = Seme("unicode.ttf");
        font[Voce(font, tabella) + 8] = '\x7F';
        EXPECT_EQ(Motivo(font), "il file finisce prima del previsto");
    }
}

TEST(ReadTrueType, ValoriImpossibili)
{
    std::string font = Seme("unicode.ttf");
    font.replace(Inizio(font, "head") + 18, 2, "\0\0"s);
    EXPECT_EQ(Motivo(font), "il font ha 0 unità per em");
    font = Seme("unicode.ttf");
    font.replace(Inizio(font, "hhea") + 34, 2, "\0\0"s);
    EXPECT_EQ(Motivo(font), "il font non ha larghezze");
    font = Seme("unicode.ttf");
    font.replace(Inizio(font, "cmap") + 2, 2, "\0\0"s);
    EXPECT_EQ(Motivo(font), "il font non ha una mappa di caratteri che si legga");
    font = Seme("unicode.ttf");
    font.replace(Inizio(font, "name") + 2, 2, "\0\0"s);
    EXPECT_EQ(Motivo(font), "il font non dice il suo nome");
}

TEST(ReadTrueType, SenzaNomePostScriptValeQuelloIntero)
{
    std::string font = Seme("unicode.ttf");
    const std::size_t nomi = Inizio(font, "name");
    const auto quanti = static_cast<std::size_t>(font[nomi + 3]);
    for (std::size_t i = 0; i < quanti; ++i) {
        char& id = font[nomi + 6 + 12 * i + 7];
        if (id == 6) id = 66;
    }
    EXPECT_EQ(ReadTrueType(font, nomeFile).Name, "ProvaSemplice");
}
