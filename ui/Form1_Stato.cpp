// The state of the controls: what is chosen, what is locked, what the status line says. Clicks that
// change it stand in the siblings, which all may call this file; it calls none of them.

#include "Form1.h"

#include "Testi.h"

#include <QGuiApplication>

#include <algorithm>

int Form1::ValoreStat() const
{
    if (chkStat->checkState() == Qt::Unchecked) return 0;
    return chkStat->checkState() == Qt::Checked ? 1 : 2;
}

Stampe::Forma Form1::FormaScelta() const
{
    const auto scelta = std::find_if(optStampa.begin(), optStampa.end(),
                                     [](const auto* opzione) { return opzione->isChecked(); });
    return static_cast<Stampe::Forma>(scelta - optStampa.begin());
}

void Form1::chkStat_Click()
{
    if (ValoreStat() == 1) {
        optStampa[FormaVideo]->setEnabled(true);
        return;
    }
    if (optStampa[FormaVideo]->isChecked()) optStampa[FormaHtml]->setChecked(true);
    optStampa[FormaVideo]->setEnabled(false);
}

void Form1::AbilitaComandi(const Flag& abilita)
{
    const bool si = abilita != Falso;
    for (QWidget* comando : std::initializer_list<QWidget*>{
             Label1, numTaglie, optStampa[FormaHtml], optStampa[FormaPdf], optStampa[FormaTxt],
             chkStat, cmdTaglie, cmdMescola}) {
        comando->setEnabled(si);
    }
    cmdColpo->setEnabled(false);
    cmdCancel->setEnabled(false);
    for (QWidget* comando :
         std::initializer_list<QWidget*>{cmdHelp, cmdExit, Frame1, Frame2, Frame3}) {
        comando->setEnabled(si);
    }
    optStampa[FormaVideo]->setEnabled(si && ValoreStat() == 1);
    repaint();               // what the user sees must not wait for the end of a report
    QGuiApplication::sync(); // pending events, and the drawing on its way to the display
}

void Form1::MostraStato(std::string_view testo)
{
    lblStatus->setText(InQt(testo));
    lblStatus->adjustSize();
}
