// The state of the controls: which forms of report are offered, how wide the status line is. The
// lock of a run is tried in prova_Form1_Taglie.cpp.

#include "Finestra.h"

using namespace aiuti;

TEST_F(Finestra, LoStatoSiAllargaSulSuoTesto)
{
    auto* stato = Trova<QLabel>("lblStatus");
    Clicca("cmdMescola");
    EXPECT_EQ(stato->size(), stato->sizeHint());
    EXPECT_GT(stato->width(), 150);
    EXPECT_EQ(stato->pos(), QPoint(228, 421));
    // The longest progress text still ends before the exit button.
    const auto lungo = stato->fontMetrics().horizontalAdvance(QStringLiteral(
        "Elaborazione in corso. Attendere... Taglia 9007199254740992 di 9007199254740992"));
    EXPECT_LT(228 + lungo, Pulsante("cmdExit")->x());
    Clicca("cmdCancel");
    EXPECT_EQ(stato->text(), QString());
}

TEST_F(Finestra, LaCasellaGovernaIlReportAVideo)
{
    EXPECT_FALSE(Opzione(FormaVideo)->isEnabled());
    Scegli(FormaVideo, true);
    Clicca("chkStat");
    QTest::mouseClick(Statistiche(), Qt::LeftButton, {}, QPoint(8, 9));
    if (Statistiche()->isChecked()) QTest::mouseClick(Statistiche(), Qt::LeftButton, {}, {8, 9});
    EXPECT_FALSE(Statistiche()->isChecked());
    EXPECT_TRUE(Opzione(FormaHtml)->isChecked());
    EXPECT_FALSE(Opzione(FormaVideo)->isEnabled());
    // Checked again it is offered, not chosen.
    QTest::mouseClick(Statistiche(), Qt::LeftButton, {}, QPoint(8, 9));
    EXPECT_TRUE(Opzione(FormaVideo)->isEnabled());
    EXPECT_TRUE(Opzione(FormaHtml)->isChecked());
}

TEST_F(Finestra, TogliereLaSpuntaLasciaLeAltreFormeScelte)
{
    for (const std::size_t forma : {FormaPdf, FormaTxt}) {
        Scegli(forma, true);
        QTest::mouseClick(Statistiche(), Qt::LeftButton, {}, QPoint(8, 9));
        EXPECT_TRUE(Opzione(forma)->isChecked());
        EXPECT_FALSE(Opzione(FormaVideo)->isEnabled());
    }
}
