// How large the window is drawn, and what is answered before there is a display.

#include "Avvio.h"

#include <QtGlobal>

#include <gtest/gtest.h>

#include <string>

namespace {

// A variable of the environment with this value while it lives.
class Variabile
{
public:
    Variabile(const char* nome, const QByteArray& valore)
        : m_nome(nome)
        , m_cera(qEnvironmentVariableIsSet(nome))
        , m_prima(qgetenv(nome))
    {
        qputenv(nome, valore);
    }
    ~Variabile()
    {
        if (m_cera) qputenv(m_nome, m_prima);
        else qunsetenv(m_nome);
    }
    Variabile(const Variabile&) = delete;
    Variabile& operator=(const Variabile&) = delete;

private:
    const char* m_nome;
    bool m_cera;
    QByteArray m_prima;
};

bool Resta(const char* nome, const char* valore)
{
    const Variabile variabile(nome, valore);
    avvio::TogliScaleNonValide();
    return qEnvironmentVariableIsSet(nome);
}

} // namespace

TEST(Scala, SoloFattoriPossibiliRestano)
{
    for (const char* valore :
         {"0", "-1", "abc", "", "inf", "-inf", "nan", "1e9", "1e-9", "0.09", "20.1", "1,5", "2x"}) {
        EXPECT_FALSE(Resta("QT_SCALE_FACTOR", valore)) << valore;
    }
    for (const char* valore : {"0.1", "1", "1.5", "2", "20"}) {
        EXPECT_TRUE(Resta("QT_SCALE_FACTOR", valore)) << valore;
    }
}

TEST(Scala, FattoriDegliSchermiComeQtLiScrive)
{
    for (const char* valore : {"inf", "1;inf", "DP-1=1.5;HDMI-1=0", "DP-1=", "x", "1e9"}) {
        EXPECT_FALSE(Resta("QT_SCREEN_SCALE_FACTORS", valore)) << valore;
    }
    for (const char* valore : {"1.5", "1;2", "DP-1=1.5;HDMI-1=2", "1;;2"}) {
        EXPECT_TRUE(Resta("QT_SCREEN_SCALE_FACTORS", valore)) << valore;
    }
    for (const char* valore : {"0", "9", "2001", "999999", "nan", "dpi"}) {
        EXPECT_FALSE(Resta("QT_FONT_DPI", valore)) << valore;
    }
    for (const char* valore : {"10", "96", "192", "2000"}) {
        EXPECT_TRUE(Resta("QT_FONT_DPI", valore)) << valore;
    }
}

// 1280 / 790 = 1.62, in sixty-fourths 103; 1024 / 487 would be more.
TEST(Scala, LaFinestraEntraNelloSchermo)
{
    EXPECT_EQ(avvio::Scala(2, QSizeF(1280, 1024)), 103.0 / 64);
    EXPECT_EQ(avvio::Scala(1.5, QSizeF(1280, 1024)), 1.5);
    EXPECT_EQ(avvio::Scala(2, QSizeF(1580, 974)), 2);
    EXPECT_LT(avvio::Scala(2, QSizeF(1579, 974)), 2);
    EXPECT_LT(avvio::Scala(2, QSizeF(1580, 973)), 2);
}

TEST(Scala, SottoUnoQtNonDisegna)
{
    EXPECT_EQ(avvio::Scala(0.75, QSizeF(1280, 1024)), 1);
    EXPECT_EQ(avvio::Scala(1, QSizeF(640, 480)), 1);
    EXPECT_EQ(avvio::Scala(2, QSizeF(1, 1)), 1);
}

TEST(Risposta, AiutoEVersioneFraGliArgomenti)
{
    const char* const nessuno[] = {"scalvino", "-style", "fusion"};
    EXPECT_EQ(avvio::Risposta(3, nessuno), std::nullopt);
    const char* const versione[] = {"scalvino", "-style", "fusion", "--version"};
    EXPECT_EQ(avvio::Risposta(4, versione), "scalvino " SCALVINO_VERSIONE "\n");
    const char* const aiuto[] = {"scalvino", "--help"};
    EXPECT_NE(avvio::Risposta(2, aiuto).value_or("").find("--version"), std::string::npos);
}
