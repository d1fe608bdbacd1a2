// Windows-1252 as the converter of the C library has it.

#include "Windows1252.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <string>

#include <iconv.h>

namespace {

std::string Utf8(char32_t carattere)
{
    std::string testo;
    AggiungiUtf8(testo, carattere);
    return testo;
}

std::string UnByte(unsigned codice)
{
    return {static_cast<char>(static_cast<unsigned char>(codice))};
}

// The system's converter.
class Convertitore
{
public:
    Convertitore(const char* in, const char* da)
        : m_canale(::iconv_open(in, da))
    {
    }
    ~Convertitore()
    {
        if (Pronto()) ::iconv_close(m_canale);
    }
    Convertitore(const Convertitore&) = delete;
    Convertitore& operator=(const Convertitore&) = delete;

    // iconv_open returns the pointer form of -1 on failure.
    bool Pronto() const { return reinterpret_cast<std::intptr_t>(m_canale) != -1; }

    // Nothing when the text has no form on the other side.
    std::optional<std::string> Converti(std::string testo)
    {
        std::array<char, 16> uscita{};
        char* da = testo.data();
        char* a = uscita.data();
        std::size_t restano = testo.size();
        std::size_t posto = uscita.size();
        ::iconv(m_canale, nullptr, nullptr, nullptr, nullptr);
        if (::iconv(m_canale, &da, &restano, &a, &posto) != 0) return std::nullopt;
        return std::string(uscita.data(), uscita.size() - posto);
    }

private:
    iconv_t m_canale;
};

const std::set<unsigned> Indefiniti = {0x81, 0x8D, 0x8F, 0x90, 0x9D};

} // namespace

TEST(Windows1252, TuttiI256CodiciComePerUnAltroDecodificatore)
{
    Convertitore decodificatore("UTF-8", "CP1252");
    if (!decodificatore.Pronto()) GTEST_SKIP() << "no CP1252 among the system's converters";
    for (unsigned codice = 0; codice < 256; ++codice) {
        const auto utf8 = decodificatore.Converti(UnByte(codice));
        EXPECT_EQ(utf8.has_value(), Indefiniti.count(codice) == 0) << codice;
        const std::string testo = utf8.value_or(Utf8(codice));
        EXPECT_EQ(InWindows1252(testo), UnByte(codice)) << codice;
        EXPECT_TRUE(EntraInWindows1252(testo)) << codice;
    }
}

TEST(Windows1252, TuttiICaratteriComePerUnAltroCodificatore)
{
    Convertitore codificatore("CP1252", "UTF-8");
    if (!codificatore.Pronto()) GTEST_SKIP() << "no CP1252 among the system's converters";
    int diversi = 0;
    int dentro = 0;
    for (char32_t carattere = 0; carattere <= 0x10FFFF; ++carattere) {
        const bool surrogato = carattere >= 0xD800 && carattere <= 0xDFFF;
        const bool etichetta = carattere >= 0xE0000 && carattere <= 0xE007F; // that one drops them
        if (surrogato || etichetta || Indefiniti.count(carattere) != 0) continue;
        const std::string utf8 = Utf8(carattere);
        const auto atteso = codificatore.Converti(utf8);
        if (atteso) ++dentro;
        if (InWindows1252(utf8) != atteso.value_or("?")) ++diversi;
        if (EntraInWindows1252(utf8) != atteso.has_value()) ++diversi;
    }
    EXPECT_EQ(diversi, 0);
    EXPECT_EQ(dentro, 251);
}
