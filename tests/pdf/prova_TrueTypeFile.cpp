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
        prReadTrueType(byte, nomeFile);
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

// The font with the names of one kind on one platform numbered otherwise.
std::string ConNomi(int id, int piattaforma, char altro, std::string font = Seme("unicode.ttf"))
{
    const std::size_t nomi = Inizio(font, "name");
    const auto quanti = static_cast<std::size_t>(font[nomi + 3]);
    for (std::size_t voce = nomi + 6; voce < nomi + 6 + 12 * quanti; voce += 12) {
        if (font[voce + 1] == piattaforma && font[voce + 7] == id) font[voce + 7] = altro;
    }
    return font;
}

} // namespace

TEST(PrReadTrueType, AltriFileDiCaratteri)
{
    const std::string resto(20, '\0');
    EXPECT_EQ(Motivo(""), "il file finisce prima del previsto");
    EXPECT_EQ(Motivo("OTTO" + resto), "il font ha contorni PostScript invece che TrueType");
    EXPECT_EQ(Motivo("ttcf" + resto), "il file è una raccolta di font");
    EXPECT_EQ(Motivo("wOFF" + resto), "non è un font TrueType");
    EXPECT_EQ(Motivo("\0\1\0\0"s + resto), "al font manca la tabella \"head\"");
}

TEST(PrReadTrueType, OgniTabellaNecessariaSiNomina)
{
    const std::string font = Seme("unicode.ttf");
    EXPECT_EQ(Motivo(font), "letto");
    for (const std::string tabella : {"head", "hhea", "hmtx", "glyf", "loca", "cmap", "name"}) {
        std::string senza = font;
        senza.replace(Voce(font, tabella), 4, "????");
        EXPECT_EQ(Motivo(senza), "al font manca la tabella \"" + tabella + "\"");
    }
}

TEST(PrReadTrueType, UnaTabellaFuoriDalFile)
{
    for (const char* tabella : {"head", "OS/2", "post", "name"}) {
        std::string font = Seme("unicode.ttf");
        font[Voce(font, tabella) + 8] = '\x7F';
        EXPECT_EQ(Motivo(font), "il file finisce prima del previsto");
    }
}

TEST(PrReadTrueType, ValoriImpossibili)
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

TEST(PrReadTrueType, IlNomeSiCercaInOrdine)
{
    EXPECT_EQ(prReadTrueType(ConNomi(6, 3, 66), nomeFile).Name,
              "Prova-Semplice"); // the Macintosh's
    EXPECT_EQ(prReadTrueType(ConNomi(6, 1, 66), nomeFile).Name, "Prova-Semplice");
    std::string font = ConNomi(6, 3, 66);
    font = ConNomi(6, 1, 66, font);
    EXPECT_EQ(prReadTrueType(font, nomeFile).Name, "ProvaSemplice"); // the full name
}

TEST(PrReadTrueType, AltezzeMancantiOSenzaSegno)
{
    std::string font = Seme("unicode.ttf");
    const std::size_t hhea = Inizio(font, "hhea");
    font.replace(hhea + 6, 2, "\0\xDC"s); // 220 instead of -220
    EXPECT_EQ(prReadTrueType(font, nomeFile).Descent, -220);
    font.replace(hhea + 4, 4, "\0\0\0\0"s);
    font.replace(Inizio(font, "OS/2") + 68, 4, "\3\x20\xFF\x38"s); // 800, -200
    const TrueTypeFont letto = prReadTrueType(font, nomeFile);
    EXPECT_EQ(letto.Descent, -200);
    EXPECT_NE(letto.Descriptor.find("/Ascent 800 /Descent -200 "), std::string::npos);
}

TEST(PrReadTrueType, LeLicenzeDiOs2)
{
    const auto incorporabile = [](char alto, char basso) {
        std::string font = Seme("unicode.ttf");
        font.replace(Inizio(font, "OS/2") + 8, 2, {alto, basso});
        return prReadTrueType(font, nomeFile).MayEmbed;
    };
    EXPECT_TRUE(incorporabile(0, 0));
    EXPECT_FALSE(incorporabile(0, 2));
    EXPECT_TRUE(incorporabile(0, 4));
    EXPECT_TRUE(incorporabile(0, 2 | 8)); // the most generous holds
    EXPECT_FALSE(incorporabile(2, 0));    // bitmaps only
}

// ---- Both sides of what decides --------------------------------------------------------------

namespace {

// A font with some bytes of a table replaced.
std::string Con(const std::string& tabella, std::size_t posto, const std::string& byte,
                std::string font = Seme("unicode.ttf"))
{
    return font.replace(Inizio(font, tabella) + posto, byte.size(), byte);
}

std::string SenzaOs2()
{
    std::string font = Seme("unicode.ttf");
    return font.replace(Voce(font, "OS/2"), 4, "????");
}

// The value of one key of the descriptor.
std::string Valore(const std::string& font, const std::string& chiave)
{
    const std::string descrittore = prReadTrueType(font, nomeFile).Descriptor;
    const auto da = descrittore.find("/" + chiave + " ") + chiave.size() + 2;
    return descrittore.substr(da, descrittore.find(' ', da) - da);
}

} // namespace

TEST(PrReadTrueType, UnitaPerEmDaSediciASedicimila)
{
    EXPECT_EQ(Motivo(Con("head", 18, "\0\x0F"s)), "il font ha 15 unità per em");
    EXPECT_EQ(Motivo(Con("head", 18, "\0\x10"s)), "letto");
    EXPECT_EQ(Motivo(Con("head", 18, "\x40\0"s)), "letto");
    EXPECT_EQ(Motivo(Con("head", 18, "\x40\1"s)), "il font ha 16385 unità per em");
}

TEST(PrReadTrueType, IlPesoOltreCinquecentoEGrassetto)
{
    EXPECT_EQ(Valore(Con("OS/2", 4, "\1\xF4"s), "StemV"), "70"); // 500
    EXPECT_EQ(Valore(Con("OS/2", 4, "\1\xF5"s), "StemV"), "120");
}

TEST(PrReadTrueType, SenzaOs2IlPesoEQuelloDelloStile)
{
    EXPECT_EQ(Valore(Con("head", 44, "\0\0"s, SenzaOs2()), "StemV"), "70");
    EXPECT_EQ(Valore(Con("head", 44, "\0\1"s, SenzaOs2()), "StemV"), "120");
    EXPECT_EQ(Valore(Con("head", 44, "\0\2"s, SenzaOs2()), "StemV"), "70"); // italic
    EXPECT_EQ(Valore(Con("head", 44, "\0\3"s, SenzaOs2()), "StemV"), "120");
    EXPECT_EQ(Valore(Con("head", 44, "\0\1"s), "StemV"), "70"); // OS/2 knows better
}

TEST(PrReadTrueType, LeGrazieVengonoDallaClasse)
{
    const auto grazie = [](int classe) {
        return (std::stoi(Valore(Con("OS/2", 30, {static_cast<char>(classe), '\0'}), "Flags")) &
                2) != 0;
    };
    for (const int classe : {1, 2, 3, 4, 5, 7}) EXPECT_TRUE(grazie(classe)) << classe;
    for (const int classe : {0, 6, 8, 10}) EXPECT_FALSE(grazie(classe)) << classe;
}

TEST(PrReadTrueType, LeAltezzeStannoInOs2DallaSecondaVersione)
{
    const std::string font = Con("OS/2", 86, "\1\x23\2\x34"s); // 291 and 564
    EXPECT_EQ(Valore(Con("OS/2", 0, "\0\2"s, font), "XHeight"), "291");
    EXPECT_EQ(Valore(Con("OS/2", 0, "\0\2"s, font), "CapHeight"), "564");
    EXPECT_NE(Valore(Con("OS/2", 0, "\0\1"s, font), "XHeight"), "291");
    EXPECT_NE(Valore(Con("OS/2", 0, "\0\1"s, font), "CapHeight"), "564");
}

TEST(PrReadTrueType, OgniBitDellaLicenzaPerSe)
{
    const auto incorporabile = [](unsigned licenza) {
        return prReadTrueType(
                   Con("OS/2", 8, {static_cast<char>(licenza >> 8), static_cast<char>(licenza)}),
                   nomeFile)
            .MayEmbed;
    };
    for (const unsigned licenza : {2U, 3U, 0x200U, 0x202U, 0x204U, 0x102U}) {
        EXPECT_FALSE(incorporabile(licenza)) << licenza;
    }
    for (const unsigned licenza : {0U, 1U, 4U, 6U, 8U, 10U, 14U, 0x100U, 0x400U, 0x10U}) {
        EXPECT_TRUE(incorporabile(licenza)) << licenza;
    }
}

TEST(PrReadTrueType, IlNomeFinisceACentoventisetteSegni)
{
    // A table of one Macintosh name with number 6, as long as asked for.
    const auto nome = [](std::size_t lungo, const std::string& segni) {
        std::string font = Seme("unicode.ttf");
        std::string testo;
        while (testo.size() < lungo) testo += segni;
        testo.resize(lungo);
        const std::string tabella = "\0\0\0\1\0\x12\0\1\0\0\0\0\0\6"s +
                                    static_cast<char>(lungo >> 8) + static_cast<char>(lungo) +
                                    "\0\0"s + testo;
        const auto numero = [](std::size_t valore) {
            return std::string{static_cast<char>(valore >> 24), static_cast<char>(valore >> 16),
                               static_cast<char>(valore >> 8), static_cast<char>(valore)};
        };
        font.replace(Voce(font, "name") + 8, 8, numero(font.size()) + numero(tabella.size()));
        return prReadTrueType(font + tabella, nomeFile).Name;
    };
    EXPECT_EQ(nome(1, "N"), "N");
    EXPECT_EQ(nome(126, "N"), std::string(126, 'N'));
    EXPECT_EQ(nome(127, "N"), std::string(127, 'N'));
    EXPECT_EQ(nome(128, "N"), std::string(127, 'N'));
    EXPECT_EQ(nome(90, " !\"~\x7F#$%&'()*+,-./<=>?@[]^{}\x80\xFF"),
              "!\"~$&'*+,-.=?@^!\"~$&'*+,-.=?@^!\"~$&'*+,-.=?@^");
    EXPECT_EQ(nome(508, "   N"), std::string(127, 'N')); // four times as many are looked at
    EXPECT_EQ(nome(512, "   N"), std::string(127, 'N'));
    EXPECT_EQ(nome(600, "    N"), std::string(101, 'N'));
}

TEST(PrReadTrueType, IlNomeAmericanoPrimaDegliAltriDiWindows)
{
    // Two Windows names with number 6, "A" in another language before "B" in American English.
    const auto nome = [](const std::string& lingua) {
        std::string font = Seme("unicode.ttf");
        const std::string tabella = "\0\0\0\2\0\x1E"s + "\0\3\0\1"s + lingua + "\0\6\0\2\0\0"s +
                                    "\0\3\0\1\4\x09\0\6\0\2\0\2"s + "\0A\0B"s;
        const std::string posto = {
            static_cast<char>(font.size() >> 24), static_cast<char>(font.size() >> 16),
            static_cast<char>(font.size() >> 8), static_cast<char>(font.size())};
        font.replace(Voce(font, "name") + 8, 8, posto + "\0\0\0\x22"s);
        return prReadTrueType(font + tabella, nomeFile).Name;
    };
    EXPECT_EQ(nome("\4\x10"), "B"); // Italian
    EXPECT_EQ(nome("\4\x08"), "B");
    EXPECT_EQ(nome("\4\x0A"), "B");
    EXPECT_EQ(nome("\4\x09"), "A");
}

TEST(PrReadTrueType, DellaPassoFissoDecideUnNumeroIntero)
{
    const auto fisso = [](const std::string& byte) {
        return (std::stoi(Valore(Con("post", 12, byte), "Flags")) & 1) != 0;
    };
    EXPECT_FALSE(fisso("\0\0\0\0\1"s)); // what follows it counts for nothing
    EXPECT_TRUE(fisso("\0\0\0\1\0"s));
    EXPECT_TRUE(fisso("\1\0\0\0\0"s));
}

TEST(PrReadTrueType, OltreLIndiceNonSiCercanoTabelle)
{
    std::string font = Seme("unicode.ttf");
    const auto prime = static_cast<char>((Voce(font, "name") - 12) / 16); // those before it
    font[5] = prime;
    EXPECT_EQ(Motivo(font), "al font manca la tabella \"name\"");
    font[5] = static_cast<char>(prime + 1);
    EXPECT_EQ(Motivo(font), "letto");
}

TEST(PrReadTrueType, SenzaOs2LeAltezzeSonoQuelleDelleLettere)
{
    // The tops of the glyphs of "H" and "x"; OS/2 says 701 and 497.
    EXPECT_EQ(Valore(SenzaOs2(), "CapHeight"), "690");
    EXPECT_EQ(Valore(SenzaOs2(), "XHeight"), "480");
    EXPECT_EQ(Valore(Seme("unicode.ttf"), "CapHeight"), "701");
    EXPECT_EQ(Valore(Seme("unicode.ttf"), "XHeight"), "497");
}

TEST(PrReadTrueType, SenzaPostIlCarattereEDirittoEProporzionale)
{
    std::string font = Con("post", 12, "\0\0\0\1"s, Seme("corsivo.ttf"));
    EXPECT_EQ(Valore(font, "ItalicAngle"), "-9.4");
    EXPECT_EQ(std::stoi(Valore(font, "Flags")) & 65, 65);
    font.replace(Voce(font, "post"), 4, "????");
    EXPECT_EQ(Valore(font, "ItalicAngle"), "0");
    EXPECT_EQ(std::stoi(Valore(font, "Flags")) & 65, 0);
}
