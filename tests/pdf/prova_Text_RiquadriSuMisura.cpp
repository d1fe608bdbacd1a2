// Boxes as wide as their own text, over all units, families, styles, sizes and spacings: 48,000 in
// all. Each has one line, and one the least bit narrower has more.

#include "Aiuti.h"
#include "clsPDFCreator.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <string>

using aiuti::CartellaDiProva;

namespace {

struct Unita
{
    std::int32_t Modo;
    float Punti;
};

struct Spazi
{
    float Caratteri, Parole, Scala;
};

constexpr std::array<Unita, 6> LeUnita = {
    {{0, 1}, {1, 1}, {2, 1}, {3, 1}, {255, 0.37F}, {255, 1e3F}}};
constexpr std::array LeFamiglie = {"Arial", "Times New Roman", "Courier New", "Symbol",
                                   "ZapfDingbats"};
constexpr std::array GliStili = {0, 1, 2, 3};
constexpr std::array ICorpi = {0.1F, 5.F, 7.3F, 8.5F, 9.F, 10.F, 12.F, 36.7F, 100.F, 1e3F};
constexpr std::array<Spazi, 10> GliSpazi = {{{0, 0, 100},
                                             {0.1F, 0, 100},
                                             {0, 0.7F, 100},
                                             {0, 0, 87.5F},
                                             {1.7F, 2.3F, 100},
                                             {-0.3F, 2.5F, 133.3F},
                                             {0.9F, -1.1F, 61},
                                             {0, -30, 100},
                                             {-0.1F, -0.1F, 99.9F},
                                             {12.3F, 45.6F, 7.89F}}};
constexpr int Testi = 4;

// Two to seven words of one to nine letters.
std::string Parole(std::mt19937& caso)
{
    constexpr std::array lettere = {"a", "e", "i", "l", "m", "t", "W", "R", "3", ".", "è", "€"};
    std::string testo;
    for (auto parole = 2 + caso() % 6; parole > 0; --parole) {
        if (!testo.empty()) testo += ' ';
        for (auto quante = 1 + caso() % 9; quante > 0; --quante) {
            testo += lettere[caso() % lettere.size()];
        }
    }
    return testo;
}

class RiquadriSuMisura
{
public:
    explicit RiquadriSuMisura(const Unita& unita)
    {
        m_pdf.SetScale(unita.Modo, unita.Punti);
        m_pdf.ShareFonts(true);
        m_pdf.BeginDoc(m_cartella.Nome() + "prova.pdf");
        m_pdf.BeginPage();
    }

    // With the present font: as many boxes as there are spacings and texts.
    void Prova(std::mt19937& caso)
    {
        for (const auto& [caratteri, parole, scala] : GliSpazi) {
            m_pdf.SetCharSpacing(caratteri);
            m_pdf.SetWordSpacing(parole);
            m_pdf.SetTextHorizontalScaling(scala);
            for (int i = 0; i < Testi; ++i) Prova(Parole(caso));
        }
    }

    clsPDFCreator& Pdf() { return m_pdf; }
    int Provati() const { return m_provati; }
    int Spezzati() const { return m_spezzati; }
    int TroppoStretti() const { return m_troppoStretti; }

private:
    void Prova(const std::string& testo)
    {
        const float larga = m_pdf.TextLength(testo);
        const float stretta = std::nextafterf(larga, -std::numeric_limits<float>::max());
        const float rientro = larga / 7;
        ++m_provati;
        m_spezzati += Righe(larga, testo) != 1 || Righe(larga + rientro, testo, rientro) != 1;
        m_troppoStretti += Righe(stretta, testo) == 1;
    }

    int Righe(float larga, const std::string& testo, float rientro = 0)
    {
        return m_pdf.DrawTextBox(0, 0, larga, 50, testo, 1, rientro);
    }

    CartellaDiProva m_cartella;
    clsPDFCreator m_pdf;
    int m_provati = 0;
    int m_spezzati = 0;
    int m_troppoStretti = 0;
};

} // namespace

TEST(DrawTextBox, OgniTestoStaNelRiquadroDellaSuaLunghezza)
{
    std::mt19937 caso(20261121);
    int provati = 0;
    for (const auto& unita : LeUnita) {
        RiquadriSuMisura riquadri(unita);
        for (const char* famiglia : LeFamiglie) {
            for (const int stile : GliStili) {
                for (const float corpo : ICorpi) {
                    riquadri.Pdf().SetFont(famiglia, corpo, stile);
                    riquadri.Prova(caso);
                }
            }
        }
        EXPECT_EQ(riquadri.Spezzati(), 0) << unita.Modo;
        EXPECT_EQ(riquadri.TroppoStretti(), 0) << unita.Modo;
        provati += riquadri.Provati();
    }
    EXPECT_EQ(provati, 48000);
}
