// Keys that are held down: the first press counts, what the keyboard adds presses nothing.

#include "Finestra.h"

#include <QApplication>
#include <QKeyEvent>

using namespace aiuti;

namespace {

constexpr bool Marcato = true;

QString Carattere(Qt::Key tasto)
{
    switch (tasto) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return QStringLiteral("\r");
    case Qt::Key_Space:
        return QStringLiteral(" ");
    default:
        return {};
    }
}

void Manda(QEvent::Type tipo, Qt::Key tasto, bool marcato, quint64 istante)
{
    // A button that was pressed may have given the focus away.
    QWidget* ricevente = QApplication::focusWidget();
    ASSERT_NE(ricevente, nullptr);
    QKeyEvent evento(tipo, tasto, Qt::NoModifier, Carattere(tasto), marcato);
    evento.setTimestamp(istante);
    QApplication::sendEvent(ricevente, &evento);
}

// A key held down as the window system tells it: pairs of a release and a press of one time, with
// the mark of a repetition or, when it saw the pair torn apart, without.
void TieniGiu(Qt::Key tasto, bool marcato)
{
    quint64 istante = 1000;
    Manda(QEvent::KeyPress, tasto, false, istante);
    for (int volta = 0; volta < 19; ++volta) {
        istante += 40;
        Manda(QEvent::KeyRelease, tasto, marcato, istante);
        Manda(QEvent::KeyPress, tasto, marcato, istante);
    }
    Manda(QEvent::KeyRelease, tasto, false, istante + 10);
}

} // namespace

TEST_F(Finestra, UnTastoTenutoGiuPremeIlPulsanteUnaVoltaSola)
{
    for (const bool marcato : {Marcato, !Marcato}) {
        for (const auto tasto : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            SCOPED_TRACE(tasto);
            Scegli(FormaTxt, false);
            ambiente.Aperti.clear();
            Pulsante("cmdTaglie")->setFocus();
            TieniGiu(tasto, marcato);
            EXPECT_EQ(ambiente.Aperti.size(), 1U) << marcato;
        }
    }
}

// The focus goes on to the next button while the key is still down.
TEST_F(Finestra, UnTastoTenutoGiuNonPassaAlPulsanteDopo)
{
    for (const bool marcato : {Marcato, !Marcato}) {
        for (const auto tasto : {Qt::Key_Return, Qt::Key_Space}) {
            SCOPED_TRACE(tasto);
            Pulsante("cmdMescola")->setFocus();
            TieniGiu(tasto, marcato);
            EXPECT_EQ(registro->Testi()[0], "Nuova taglia");
            EXPECT_EQ(finestra->focusWidget(), Pulsante("cmdColpo"));
            TieniGiu(tasto, marcato);
            EXPECT_EQ(registro->Testi()[2], "Colpo della taglia: 1");
            Clicca("cmdCancel");
        }
    }
}

// Enter in the field only moves on to the button.
TEST_F(Finestra, InvioTenutoGiuNelCampoNonAvviaLaCorsa)
{
    for (const bool marcato : {Marcato, !Marcato}) {
        Numero()->setFocus();
        TieniGiu(Qt::Key_Return, marcato);
        EXPECT_EQ(finestra->focusWidget(), Pulsante("cmdTaglie"));
        EXPECT_TRUE(ambiente.Aperti.empty());
    }
}

// It was pressed elsewhere; coming back to the field must not lead out of it again.
TEST_F(Finestra, UnTastoTenutoGiuNonPortaFuoriDalCampo)
{
    Numero()->setFocus();
    for (const auto tasto : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        Manda(QEvent::KeyPress, tasto, Marcato, 5000);
        EXPECT_EQ(finestra->focusWidget(), Numero());
    }
}

TEST_F(Finestra, UnTastoTenutoGiuNonRispondeAUnMessaggio)
{
    for (const auto tasto : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape, Qt::Key_S}) {
        SCOPED_TRACE(tasto);
        Risponditore mano(QMessageBox::No);
        mano.Guarda = [&](QMessageBox& riquadro) {
            for (int volta = 0; volta < 5; ++volta) {
                for (const auto tipo : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
                    Manda(tipo, tasto, Marcato, 6000);
                }
            }
            EXPECT_TRUE(riquadro.isVisible());
        };
        Scegli(FormaTxt, true);
        Scrivi("10001");
        Clicca("cmdTaglie");
        EXPECT_EQ(mano.Visti.size(), 1U);
        EXPECT_TRUE(ambiente.Aperti.empty());
    }
}

TEST_F(Finestra, UnTastoTenutoGiuNonGiraLaCasella)
{
    for (const bool marcato : {Marcato, !Marcato}) {
        const bool prima = Statistiche()->isChecked();
        Statistiche()->setFocus();
        TieniGiu(Qt::Key_Space, marcato);
        EXPECT_NE(Statistiche()->isChecked(), prima);
    }
}

// Held down, a digit goes on writing, the correction key goes on erasing, Tab goes round.
TEST_F(Finestra, NelCampoITastiSiRipetonoComeOvunque)
{
    Scrivi("7");
    for (int volta = 0; volta < 3; ++volta) {
        QKeyEvent cifra(QEvent::KeyPress, Qt::Key_1, {}, QStringLiteral("1"), Marcato);
        QApplication::sendEvent(Numero(), &cifra);
    }
    EXPECT_EQ(Numero()->text(), QStringLiteral("7111"));
    QKeyEvent correggi(QEvent::KeyPress, Qt::Key_Backspace, {}, QStringLiteral("\b"), Marcato);
    QApplication::sendEvent(Numero(), &correggi);
    EXPECT_EQ(Numero()->text(), QStringLiteral("711"));
    Manda(QEvent::KeyPress, Qt::Key_Tab, Marcato, 7000);
    Manda(QEvent::KeyPress, Qt::Key_Tab, Marcato, 7000);
    EXPECT_EQ(finestra->focusWidget(), Opzione(FormaHtml));
    Manda(QEvent::KeyPress, Qt::Key_Down, Marcato, 7000);
    EXPECT_TRUE(Opzione(FormaPdf)->isChecked());
}
