// The message boxes: what a failure's box says, and how its lines stand.

#include "Finestra.h"
#include "Messaggi.h"

#include <QLabel>

using namespace aiuti;

// A word alone on a line of its own would look like a mistake.
TEST_F(Finestra, LeRigheDeiMessaggiNonSiSpezzano)
{
    int visti = 0;
    Risponditore no(QMessageBox::No);
    no.Guarda = [&visti](QMessageBox& riquadro) {
        const auto* etichetta = riquadro.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        ASSERT_NE(etichetta, nullptr);
        const auto righe = riquadro.text().split(QLatin1Char('\n'));
        for (const auto& riga : righe) {
            EXPECT_LE(etichetta->fontMetrics().horizontalAdvance(riga), etichetta->width())
                << riga.toStdString();
        }
        EXPECT_LT(riquadro.width(), 784);
        ++visti;
    };
    for (const std::size_t forma : {FormaHtml, FormaPdf, FormaTxt}) {
        Scegli(forma, false);
        Scrivi("501");
        Clicca("cmdTaglie");
    }
    Scegli(FormaTxt, true);
    Scrivi("10001");
    Clicca("cmdTaglie");
    EXPECT_EQ(visti, 4);
}

// Some reasons are the error's own text in small letters.
TEST(Messaggi, IlMessaggioNonDiceNullaDueVolte)
{
    EXPECT_EQ(TestoMessaggio(ErroreRuntime(NumeroErrore::PermessoNegato, "permesso negato", "/x")),
              "Errore 70: Permesso negato.\r/x");
    EXPECT_EQ(TestoMessaggio(ErroreRuntime(NumeroErrore::MemoriaEsaurita, "memoria esaurita")),
              "Errore 7: Memoria esaurita.");
    EXPECT_EQ(TestoMessaggio(ErroreRuntime(NumeroErrore::PermessoNegato, "permesso", "/x")),
              "Errore 70: Permesso negato.\r/x\rpermesso");
}

TEST(Messaggi, IlMessaggioDiceNumeroTestoFileEMotivo)
{
    EXPECT_EQ(TestoMessaggio(ErroreRuntime(NumeroErrore::TipoNonCorrispondente)),
              "Errore 13: " + std::string(TestoErrore(NumeroErrore::TipoNonCorrispondente)) + ".");
    EXPECT_EQ(TestoMessaggio(ErroreRuntime(NumeroErrore::DiscoPieno, "non c'è posto", "/x/y")),
              "Errore 61: " + std::string(TestoErrore(NumeroErrore::DiscoPieno)) +
                  ".\r/x/y\rnon c'è posto");
}
