// The field with the number of shoes: which keys reach it, what it makes of its text.

#include "Finestra.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>

using namespace aiuti;

TEST_F(Finestra, AllInizioIlNumeroHaIlFuocoEdEScelto)
{
    EXPECT_EQ(finestra->focusWidget(), Numero());
    EXPECT_EQ(Numero()->selectedText(), QStringLiteral("1"));
    QTest::keyClicks(Numero(), QStringLiteral("5"));
    EXPECT_EQ(Numero()->text(), QStringLiteral("5"));
}

TEST_F(Finestra, SoloLeCifreArrivanoAlNumero)
{
    Scrivi("7");
    for (char16_t c = 1; c < 0x180; ++c) {
        const bool cifra = c >= u'0' && c <= u'9';
        const bool tasto = c == 8 || c == 9 || c == 10 || c == 13 || c == 27 || c == 0x7F;
        if (cifra || tasto) continue;
        QKeyEvent evento(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(QChar(c)));
        QApplication::sendEvent(Numero(), &evento);
        EXPECT_EQ(Numero()->text(), QStringLiteral("7")) << int(c);
        EXPECT_EQ(finestra->focusWidget(), Numero()) << int(c);
    }
    QTest::keyClicks(Numero(), QStringLiteral("a0-1.2,3e4 5+6789"));
    EXPECT_EQ(Numero()->text(), QStringLiteral("70123456789"));
    // Arabic and full-width digits are none.
    for (const char* altra : {"٣", "３", "²"}) {
        QKeyEvent evento(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier,
                         QString::fromUtf8(altra));
        QApplication::sendEvent(Numero(), &evento);
    }
    EXPECT_EQ(Numero()->text(), QStringLiteral("70123456789"));
}

TEST_F(Finestra, ITastiDiCorrezioneLavorano)
{
    Scrivi("123");
    QTest::keyClick(Numero(), Qt::Key_Backspace);
    EXPECT_EQ(Numero()->text(), QStringLiteral("12"));
    QTest::keyClick(Numero(), Qt::Key_Home);
    QKeyEvent cancella(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, QString(QChar(0x7F)));
    QApplication::sendEvent(Numero(), &cancella);
    EXPECT_EQ(Numero()->text(), QStringLiteral("2"));
    QTest::keyClick(Numero(), Qt::Key_End);
    QTest::keyClicks(Numero(), QStringLiteral("5"));
    EXPECT_EQ(Numero()->text(), QStringLiteral("25"));
}

TEST_F(Finestra, InvioAvanzaEdEscTornaIndietro)
{
    QTest::keyClick(Numero(), Qt::Key_Return);
    EXPECT_EQ(finestra->focusWidget(), Pulsante("cmdTaglie"));
    Numero()->setFocus();
    QKeyEvent tastierino(QEvent::KeyPress, Qt::Key_Enter, Qt::KeypadModifier, QStringLiteral("\r"));
    QApplication::sendEvent(Numero(), &tastierino);
    EXPECT_EQ(finestra->focusWidget(), Pulsante("cmdTaglie"));
    Numero()->setFocus();
    QTest::keyClick(Numero(), Qt::Key_Escape);
    EXPECT_EQ(finestra->focusWidget(), Pulsante("cmdExit"));
    Numero()->setFocus();
    QTest::keyClick(Numero(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(finestra->focusWidget(), Pulsante("cmdExit"));
    EXPECT_TRUE(ambiente.Aperti.empty());
    EXPECT_TRUE(finestra->isVisible());
}

TEST_F(Finestra, AltELasciatoAlDesktop)
{
    Scrivi("3");
    QKeyEvent evento(QEvent::KeyPress, Qt::Key_X, Qt::AltModifier, QStringLiteral("x"));
    QApplication::sendEvent(Numero(), &evento);
    EXPECT_EQ(Numero()->text(), QStringLiteral("3"));
    EXPECT_FALSE(evento.isAccepted());
}

TEST_F(Finestra, IMetodiDiScritturaNonPortanoLettere)
{
    Scrivi("3");
    const auto scrivi = [this](const char* fatto, const char* inCorso) {
        QInputMethodEvent evento(QString::fromUtf8(inCorso), {});
        evento.setCommitString(QString::fromUtf8(fatto));
        QApplication::sendEvent(Numero(), &evento);
    };
    scrivi("è", "");
    scrivi("", "´");
    EXPECT_EQ(Numero()->text(), QStringLiteral("3"));
    EXPECT_EQ(Numero()->displayText(), QStringLiteral("3"));
    scrivi("4", "");
    EXPECT_EQ(Numero()->text(), QStringLiteral("34"));
}

TEST_F(Finestra, IlPulsanteSiAdeguaAlNumero)
{
    const auto testo = [this] { return Pulsante("cmdTaglie")->text().toStdString(); };
    EXPECT_EQ(testo(), "Simula taglia");
    Scrivi("2");
    EXPECT_EQ(testo(), "Simula taglie");
    Scrivi("12");
    EXPECT_EQ(testo(), "Simula taglie");
    QTest::keyClick(Numero(), Qt::Key_Backspace);
    EXPECT_EQ(testo(), "Simula taglia");
    QTest::keyClick(Numero(), Qt::Key_Backspace);
    EXPECT_EQ(Numero()->text(), QStringLiteral("1"));
    EXPECT_EQ(Numero()->selectedText(), QStringLiteral("1"));
    EXPECT_EQ(testo(), "Simula taglia");
}

TEST_F(Finestra, SoloZeroEVuotoDiventanoUno)
{
    Scrivi("0");
    EXPECT_EQ(Numero()->text(), QStringLiteral("1"));
    EXPECT_EQ(Numero()->selectedText(), QStringLiteral("1"));
    // The one is chosen, so that what is typed next replaces it.
    QTest::keyClicks(Numero(), QStringLiteral("9"));
    EXPECT_EQ(Numero()->text(), QStringLiteral("9"));
    Numero()->setText(QStringLiteral("00"));
    EXPECT_EQ(Numero()->text(), QStringLiteral("00"));
    EXPECT_EQ(Pulsante("cmdTaglie")->text(), QStringLiteral("Simula taglia"));
    Pulsante("cmdTaglie")->setFocus();
    EXPECT_EQ(Numero()->text(), QStringLiteral("00"));
}

TEST_F(Finestra, DueZeriTastoPerTastoRestano)
{
    Scrivi("100");
    QTest::keyClick(Numero(), Qt::Key_Home);
    QTest::keyClick(Numero(), Qt::Key_Delete);
    EXPECT_EQ(Numero()->text(), QStringLiteral("00"));
    EXPECT_EQ(Pulsante("cmdTaglie")->text(), QStringLiteral("Simula taglia"));
    QTest::keyClick(Numero(), Qt::Key_Delete); // one zero alone does not
    EXPECT_EQ(Numero()->text(), QStringLiteral("1"));
}

TEST_F(Finestra, LUscitaDalCampoNonLasciaZeroNeVuoto)
{
    for (const char* testo : {"", "0"}) {
        Numero()->setFocus();
        {
            // Even where the change went unnoticed.
            const QSignalBlocker muto(Numero());
            Numero()->setText(QString::fromLatin1(testo));
        }
        Pulsante("cmdTaglie")->setFocus();
        EXPECT_EQ(Numero()->text(), QStringLiteral("1"));
    }
}

TEST_F(Finestra, IlFuocoSceglieTutto)
{
    Scrivi("123");
    Numero()->deselect();
    Pulsante("cmdTaglie")->setFocus();
    Numero()->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(Numero()->selectedText(), QStringLiteral("123"));
    Pulsante("cmdTaglie")->setFocus();
    Numero()->deselect();
    Clicca("numTaglie");
    EXPECT_EQ(Numero()->selectedText(), QStringLiteral("123"));
    // A second click puts the caret, as everywhere.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    Clicca("numTaglie");
    EXPECT_EQ(Numero()->selectedText(), QString());
}

TEST_F(Finestra, TornareDaUnAltraFinestraNonToccaLaScelta)
{
    Scrivi("123");
    Numero()->setSelection(1, 1);
    for (const auto motivo : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
        QFocusEvent via(QEvent::FocusOut, motivo);
        QApplication::sendEvent(Numero(), &via);
        QFocusEvent torna(QEvent::FocusIn, motivo);
        QApplication::sendEvent(Numero(), &torna);
        EXPECT_EQ(Numero()->selectedText(), QStringLiteral("2"));
    }
}

TEST_F(Finestra, IncollareUnNumeroVale)
{
    QApplication::clipboard()->setText(QStringLiteral("1.234"));
    Numero()->selectAll();
    QTest::keyClick(Numero(), Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(Numero()->text(), QStringLiteral("1.234"));
    EXPECT_EQ(Pulsante("cmdTaglie")->text(), QStringLiteral("Simula taglie"));
}

TEST_F(Finestra, CtrlVNonPassaIlFiltro)
{
    QApplication::clipboard()->setText(QStringLiteral("44"));
    Numero()->selectAll();
    QKeyEvent incolla(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier, QString(QChar(0x16)));
    QApplication::sendEvent(Numero(), &incolla);
    EXPECT_EQ(Numero()->text(), QStringLiteral("1"));
}

TEST_F(Finestra, IlMenuDelCampoEItaliano)
{
    const std::unique_ptr<QMenu> menu(Numero()->createStandardContextMenu());
    std::string voci;
    for (const auto* voce : menu->actions()) voci += voce->text().toStdString() + "\n";
    for (const char* voce : {"Annulla", "Taglia", "Copia", "ncolla", "Elimina", "eleziona tutto"}) {
        QString senzaTasto = QString::fromStdString(voci).remove(QLatin1Char('&'));
        EXPECT_TRUE(senzaTasto.contains(QString::fromUtf8(voce))) << voce << " in " << voci;
    }
}

// The field takes no such keys, so the menu must not offer them.
TEST_F(Finestra, IlMenuDelCampoNonPrometteTasti)
{
    const std::unique_ptr<QMenu> menu(Numero()->createStandardContextMenu());
    int voci = 0;
    for (const auto* voce : menu->actions()) {
        if (voce->isSeparator()) continue;
        EXPECT_FALSE(voce->text().contains(QLatin1Char('\t'))) << voce->text().toStdString();
        EXPECT_TRUE(voce->shortcut().isEmpty() || !voce->isShortcutVisibleInContextMenu());
        ++voci;
    }
    EXPECT_EQ(voci, 7);
}

TEST_F(Finestra, TrascinareTestoNelCampoNonSiPuo)
{
    EXPECT_FALSE(Numero()->acceptDrops());
}

// Dropping's siblings on X11: what is selected anywhere, by the middle button or by keys. Whether
// it really comes in is tried with a display of that kind.
TEST_F(Finestra, IlPulsanteCentraleNonToccaIlCampo)
{
    Scrivi("123");
    Numero()->setSelection(1, 1);
    QTest::mouseClick(Numero(), Qt::MiddleButton);
    EXPECT_EQ(Numero()->selectedText(), QStringLiteral("2"));
    QTest::mouseDClick(Numero(), Qt::MiddleButton);
    EXPECT_EQ(Numero()->selectedText(), QStringLiteral("2"));
    EXPECT_EQ(Numero()->text(), QStringLiteral("123"));
    // It brings the focus like every click, and then all is chosen.
    Pulsante("cmdTaglie")->setFocus();
    QTest::mouseClick(Numero(), Qt::MiddleButton);
    EXPECT_EQ(finestra->focusWidget(), Numero());
    EXPECT_EQ(Numero()->selectedText(), QStringLiteral("123"));
    // The next click puts the caret, as the second one always does.
    QTest::mouseClick(Numero(), Qt::LeftButton);
    EXPECT_EQ(Numero()->selectedText(), QString());
}
