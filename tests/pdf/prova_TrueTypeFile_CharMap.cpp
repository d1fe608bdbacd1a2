// Character maps written by hand, each made so that one step of the search left out, or one place
// beyond its end, gives another glyph.

#include "ByteReader.h"
#include "ErroreRuntime.h"
#include "TrueTypeFile_CharMap.h"

#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <string>
#include <vector>

namespace {

std::string Grandi16(std::initializer_list<unsigned> numeri)
{
    std::string byte;
    for (const unsigned numero : numeri) {
        byte += {static_cast<char>(numero >> 8), static_cast<char>(numero)};
    }
    return byte;
}

std::string Grandi32(std::initializer_list<unsigned> numeri)
{
    std::string byte;
    for (const unsigned numero : numeri) byte += Grandi16({numero >> 16, numero & 0xFFFF});
    return byte;
}

// One of the maps of a table: for which platform and encoding, and its bytes.
struct Mappa
{
    unsigned Piattaforma, Codifica;
    std::string Byte;
};

pdf::CharMap Letta(const std::vector<Mappa>& mappe)
{
    std::string tabella = Grandi16({0, static_cast<unsigned>(mappe.size())});
    auto posto = static_cast<unsigned>(4 + 8 * mappe.size());
    std::string corpi;
    for (const auto& [piattaforma, codifica, byte] : mappe) {
        tabella += Grandi16({piattaforma, codifica}) + Grandi32({posto});
        posto += static_cast<unsigned>(byte.size());
        corpi += byte;
    }
    const std::string nome = "prova.ttf";
    const std::string intera = tabella + corpi;
    return pdf::prReadCharMap(pdf::ByteReader(intera, nome));
}

// One map for Windows.
pdf::CharMap LettaUna(const std::string& byte)
{
    return Letta({{3, 1, byte}});
}

// A format 4 of three segments, the last one the end mark: "A" to "D" by the distance given, "a" to
// "d" by a list of four glyphs with the other distance.
std::string Segmenti(unsigned distanza, unsigned distanzaElenco,
                     std::initializer_list<unsigned> elenco)
{
    return Grandi16({4,   0,      0, 6,   0,   0,      0,        'D',
                     'd', 0xFFFF, 0, 'A', 'a', 0xFFFF, distanza, distanzaElenco,
                     1,   0,      4, 0}) +
           Grandi16(elenco);
}

std::string Gruppi(const std::vector<std::array<unsigned, 3>>& gruppi)
{
    std::string byte = Grandi16({12, 0}) + Grandi32({0, 0, static_cast<unsigned>(gruppi.size())});
    for (const auto& [primo, ultimo, glifo] : gruppi) byte += Grandi32({primo, ultimo, glifo});
    return byte;
}

std::string Corsa(unsigned primo, std::initializer_list<unsigned> glifi)
{
    return Grandi16({6, 0, 0, primo, static_cast<unsigned>(glifi.size())}) + Grandi16(glifi);
}

} // namespace

TEST(CharMap, SegmentoConLaDistanza)
{
    const auto mappa = LettaUna(Segmenti(1000, 0, {7, 7, 7, 7}));
    EXPECT_EQ(mappa.Glyphs['A'], 1065U);
    EXPECT_EQ(mappa.Glyphs['D'], 1068U);
    EXPECT_EQ(mappa.Glyphs['@'], 0U);
    EXPECT_EQ(mappa.Glyphs['E'], 0U);
    EXPECT_FALSE(mappa.Symbolic);
}

TEST(CharMap, LaDistanzaGiraOltreSedicibit)
{
    const auto mappa = LettaUna(Segmenti(0x10000 - 60, 0x10000 - 30, {51, 52, 53, 54}));
    EXPECT_EQ(mappa.Glyphs['A'], 5U);
    EXPECT_EQ(mappa.Glyphs['a'], 21U);
}

TEST(CharMap, SegmentoConElencoEDistanza)
{
    const auto mappa = LettaUna(Segmenti(0, 100, {40, 30, 0, 10}));
    EXPECT_EQ(mappa.Glyphs['a'], 140U);
    EXPECT_EQ(mappa.Glyphs['b'], 130U);
    EXPECT_EQ(mappa.Glyphs['c'], 0U); // what the list leaves out stays out
    EXPECT_EQ(mappa.Glyphs['d'], 110U);
    EXPECT_EQ(mappa.Glyphs['`'], 0U);
    EXPECT_EQ(mappa.Glyphs['e'], 0U);
}

TEST(CharMap, SegmentoSenzaSegnoDiFine)
{
    const auto mappa = LettaUna(Grandi16({4, 0, 0, 2, 0, 0, 0, 'B', 0, 'A', 5, 0}));
    EXPECT_EQ(mappa.Glyphs['B'], 71U);
    EXPECT_EQ(mappa.Glyphs['C'], 0U); // behind the last one
    EXPECT_EQ(LettaUna(Grandi16({4, 0, 0, 3, 0, 0, 0, 'B', 0, 'A', 5, 0})).Glyphs['B'], 71U);
}

TEST(CharMap, GruppiCoiLoroConfini)
{
    const auto mappa = LettaUna(Gruppi({{'A', 'C', 10}, {'E', 'E', 70000}, {'a', 'b', 90}}));
    EXPECT_EQ(mappa.Glyphs['@'], 0U);
    EXPECT_EQ(mappa.Glyphs['A'], 10U);
    EXPECT_EQ(mappa.Glyphs['C'], 12U);
    EXPECT_EQ(mappa.Glyphs['D'], 0U);
    EXPECT_EQ(mappa.Glyphs['E'], 70000U);
    EXPECT_EQ(mappa.Glyphs['b'], 91U);
    EXPECT_EQ(mappa.Glyphs['c'], 0U);
    EXPECT_EQ(LettaUna(Gruppi({})).Glyphs['A'], 0U);
}

TEST(CharMap, UnaCorsaSola)
{
    const auto mappa = LettaUna(Corsa('A', {5, 0, 9}));
    EXPECT_EQ(mappa.Glyphs['@'], 0U);
    EXPECT_EQ(mappa.Glyphs['A'], 5U);
    EXPECT_EQ(mappa.Glyphs['B'], 0U);
    EXPECT_EQ(mappa.Glyphs['C'], 9U);
    EXPECT_EQ(mappa.Glyphs['D'], 0U);
}

TEST(CharMap, UnByteOgniCodice)
{
    std::string byte = Grandi16({0, 262, 0});
    for (int codice = 0; codice < 256; ++codice) byte.push_back(static_cast<char>(255 - codice));
    const auto mappa = LettaUna(byte);
    EXPECT_EQ(mappa.Glyphs[0x1F], 0U); // no character
    EXPECT_EQ(mappa.Glyphs[0x20], 255U - 0x20);
    EXPECT_EQ(mappa.Glyphs[0x41], 255U - 0x41);
    EXPECT_EQ(mappa.Glyphs[0xFE], 1U);
    EXPECT_EQ(mappa.Glyphs[0x80], 0U); // the euro lies beyond 255
}

TEST(CharMap, ICodiciDiWindowsHannoIlLoroCarattere)
{
    const auto mappa =
        LettaUna(Gruppi({{0x7E, 0x9F, 500}, {0x2018, 0x2022, 100}, {0x20AC, 0x20AC, 7}}));
    EXPECT_EQ(mappa.Glyphs[0x7E], 500U);
    EXPECT_EQ(mappa.Glyphs[0x7F], 110U); // a bullet, as for 81, 8D, 8F, 90 and 9D
    EXPECT_EQ(mappa.Glyphs[0x80], 7U);
    EXPECT_EQ(mappa.Glyphs[0x81], 110U);
    EXPECT_EQ(mappa.Glyphs[0x91], 100U);
    EXPECT_EQ(mappa.Glyphs[0x9D], 110U);
    EXPECT_EQ(mappa.Glyphs[0x9F], 0U);
    EXPECT_EQ(LettaUna(Gruppi({{0xA0, 0xFF, 9}})).Glyphs[0xA0], 9U);
    EXPECT_EQ(LettaUna(Gruppi({{0x178, 0x178, 4}})).Glyphs[0x9F], 4U);
}

TEST(CharMap, BiancoFissoETrattinoMorbidoNeHannoUnAltro)
{
    auto mappa = LettaUna(Gruppi({{' ', '-', 20}}));
    EXPECT_EQ(mappa.Glyphs[0xA0], 20U);
    EXPECT_EQ(mappa.Glyphs[0xAD], 33U);
    EXPECT_EQ(mappa.Glyphs[0xA1], 0U);
    mappa = LettaUna(Gruppi({{' ', '-', 20}, {0xA0, 0xAD, 100}}));
    EXPECT_EQ(mappa.Glyphs[0xA0], 100U);
    EXPECT_EQ(mappa.Glyphs[0xAD], 113U);
}

TEST(CharMap, IlMacintoshHaCodiciSuoi)
{
    const auto mappa = Letta({{1, 0, Corsa(0x20, {3})}, {1, 1, Corsa('A', {9})}});
    EXPECT_EQ(mappa.Glyphs[' '], 3U);
    EXPECT_EQ(mappa.Glyphs['A'], 0U); // another script of the Macintosh is none
    const auto alta = Letta({{1, 0, Corsa(0x7F, {1, 2, 3})}});
    EXPECT_EQ(alta.Glyphs[0xC4], 2U); // A with two dots is 80 there
    EXPECT_EQ(alta.Glyphs[0xC5], 3U);
    EXPECT_EQ(alta.Glyphs[0x80], 0U); // the euro is DB there
    EXPECT_EQ(Letta({{1, 0, Corsa(0xFF, {8})}}).Glyphs[0xA1], 0U);
    EXPECT_EQ(Letta({{1, 0, Corsa(0, {8, 8, 8})}}).Glyphs[0xD7], 0U); // it has no "x" of products
}

TEST(CharMap, ISimboliStannoInUnaPaginaLoro)
{
    const auto simboli = [](unsigned pagina) {
        return Letta({{3, 0, Corsa(pagina + 0x1F, {5, 6, 7})}});
    };
    for (const unsigned pagina : {0xF000U, 0xF100U, 0xF200U, 0U}) {
        const auto mappa = simboli(pagina);
        EXPECT_TRUE(mappa.Symbolic);
        EXPECT_EQ(mappa.Glyphs[0x1F], 5U); // every code may be a sign
        EXPECT_EQ(mappa.Glyphs[0x21], 7U);
        EXPECT_EQ(mappa.Glyphs[0x22], 0U);
    }
    EXPECT_EQ(simboli(0xF300).Glyphs[0x20], 0U);
    const auto due =
        Letta({{3, 0, Gruppi({{0x20, 0x20, 1}, {0xF020, 0xF020, 2}, {0xF120, 0xF121, 3}})}});
    EXPECT_EQ(due.Glyphs[0x20], 2U); // the first page that has it
    EXPECT_EQ(due.Glyphs[0x21], 4U);
}

TEST(CharMap, LaMiglioreValeDovunqueStia)
{
    const Mappa windows = {3, 1, Corsa('A', {1})};
    const Mappa estesa = {3, 10, Corsa('A', {2})};
    const Mappa unicode = {0, 3, Corsa('A', {2})};
    const Mappa simboli = {3, 0, Corsa('A', {3})};
    const Mappa macintosh = {1, 0, Corsa('A', {4})};
    const auto glifo = [](const std::vector<Mappa>& mappe) { return Letta(mappe).Glyphs['A']; };
    EXPECT_EQ(glifo({windows, estesa, unicode, simboli, macintosh}), 1U);
    EXPECT_EQ(glifo({macintosh, simboli, unicode, windows}), 1U);
    EXPECT_EQ(glifo({macintosh, simboli, estesa}), 2U);
    EXPECT_EQ(glifo({macintosh, simboli, unicode}), 2U);
    EXPECT_EQ(glifo({macintosh, simboli}), 3U);
    EXPECT_EQ(glifo({simboli, macintosh}), 3U);
    EXPECT_EQ(glifo({macintosh}), 4U);
    EXPECT_EQ(glifo({windows, {3, 1, Corsa('A', {9})}}), 1U); // of two alike the first
}

TEST(CharMap, AncheLUltimaDiMolteSiGuarda)
{
    std::vector<Mappa> mappe(20, Mappa{2, 1, Corsa('A', {9})});
    mappe.push_back({3, 1, Corsa('A', {1})});
    EXPECT_EQ(Letta(mappe).Glyphs['A'], 1U);
}

TEST(CharMap, FormatiSconosciutiSiSaltano)
{
    const Mappa ignota = {3, 1, Grandi16({2, 0, 0, 0, 0, 0, 0, 0, 0, 0})};
    EXPECT_EQ(Letta({ignota, {1, 0, Corsa('A', {4})}}).Glyphs['A'], 4U);
    EXPECT_THROW(Letta({ignota}), ErroreRuntime);
    EXPECT_THROW(Letta({{3, 4, Corsa('A', {4})}}), ErroreRuntime);
    EXPECT_THROW(Letta({{2, 1, Corsa('A', {4})}}), ErroreRuntime);
    EXPECT_THROW(Letta({{2, 0, Corsa('A', {4})}}), ErroreRuntime);
    EXPECT_THROW(Letta({}), ErroreRuntime);
}
