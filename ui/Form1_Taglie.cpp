// The batch run: limits, the report, the commands before and after. The reports stand in Stampe.h.

#include "Form1.h"

#include "Ambiente.h"
#include "Applicazione.h"
#include "ErroreRuntime.h"
#include "FormatiNumero.h"
#include "Generale.h"
#include "Messaggi.h"
#include "Numeri.h"
#include "Orologio.h"
#include "Stampe.h"
#include "Testi.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPointer>

#include <string>

namespace {

// What a full report may hold at most.
struct Limite
{
    const char* Nome;
    int Massimo;
};

// By report form; the one on screen is never full.
constexpr std::array<Limite, 3> Limiti = {{{"HTML", 50}, {"PDF", 20}, {"TXT", 500}}};

// Statistics of more are worth a question.
constexpr int TaglieSenzaDomanda = 10000;

// "Oltre le 10.000 taglie ...", with the Italian mark whatever the user's is, like all of the text.
std::string DomandaPerTante()
{
    return "Oltre le " + Stampe::MigliaiaConZero(TaglieSenzaDomanda, {",", "."}) +
           " taglie si rischiano lunghi tempi di attesa e si stressa la memoria.\r"
           "Vuoi comunque continuare?";
}

// The pointer of the whole screen, for as long as this lives.
class Clessidra
{
public:
    Clessidra() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Clessidra() { QGuiApplication::restoreOverrideCursor(); }
    Clessidra(const Clessidra&) = delete;
    Clessidra& operator=(const Clessidra&) = delete;
    Clessidra(Clessidra&&) = delete;
    Clessidra& operator=(Clessidra&&) = delete;
};

// These say that the request made no sense; the program is as sound as before.
bool SoloDaDire(NumeroErrore numero)
{
    return numero == NumeroErrore::ChiamataNonValida || numero == NumeroErrore::DivisionePerZero ||
           numero == NumeroErrore::Overflow;
}

} // namespace

Flag Form1::ControllaLimiti()
{
    const double numero = NumeroIniziale(numTaglie->text().toStdString());
    if (ValoreStat() == 0) {
        const std::size_t forma = FormaScelta();
        if (forma >= Limiti.size() || !(numero > Limiti[forma].Massimo)) return Falso;
        const std::string massimo = TestoNumero(std::int64_t{Limiti[forma].Massimo});
        MsgBox(this,
               "Il numero massimo di taglie visualizzabili in " + std::string(Limiti[forma].Nome) +
                   " è " + massimo,
               QMessageBox::Warning);
        numTaglie->setText(InQt(massimo));
        return Vero;
    }
    if (ValoreStat() == 1 && numero > TaglieSenzaDomanda) {
        const auto risposta = MsgBox(this, DomandaPerTante(), QMessageBox::Question,
                                     QMessageBox::Yes | QMessageBox::No);
        return ComeFlag(risposta != QMessageBox::Yes);
    }
    return Falso;
}

void Form1::cmdTaglie_Click()
{
    if (ControllaLimiti() != Falso || m_chiusa) return;
    const QPointer<QWidget> fuoco = focusWidget();
    MostraTitolo();
    MostraStato("Elaborazione taglie in corso. Attendere...");
    m_inCorso = true;
    m_fermata = false;
    m_ultimoRitocco = 0;
    m_nonRitoccate = 0;
    std::string rifiuto;
    setFocus(); // locked controls keep none, and the window must hear Escape
    try {
        AbilitaComandi(Falso);
        rifiuto = EseguiReport();
    } catch (...) {
        Restituisci(fuoco);
        throw;
    }
    Restituisci(fuoco);
    // Only now: behind the message nothing must say that the run goes on.
    if (!rifiuto.empty() && !m_chiusa) MsgBox(this, rifiuto, QMessageBox::Warning);
}

// Runs the report behind the hourglass. Returns what the user is to be told and does not end the
// program; empty when all went well.
std::string Form1::EseguiReport()
{
    try {
        const Clessidra clessidra;
        if (!m_chiusa) ChiamaReport();
        return {};
    } catch (const ErroreRuntime& errore) {
        if (!SoloDaDire(errore.Numero())) throw;
        return TestoMessaggio(errore);
    }
}

void Form1::ChiamaReport()
{
    const auto& forma = Stampe::Forme.at(FormaScelta());
    if (!forma.File.empty()) Generale::TrovaCartella(); // what is drawn needs none
    const double taglie = NumeroTaglie();
    const Stampe::EtichettaStato etichetta = [this](std::string_view testo) {
        MostraAvanzamento(testo);
    };
    if (ValoreStat() != 0) forma.Statistiche(taglie, *m_tavolo, etichetta);
    else if (forma.Stampa != nullptr) forma.Stampa(taglie);
}

// Gives the commands back after a run, however it ended, or finishes a closing that came in it.
void Form1::Restituisci(QWidget* fuoco)
{
    // Clicks that came while the commands were locked find them locked.
    QCoreApplication::processEvents();
    m_inCorso = false;
    lblStatus->setUpdatesEnabled(true);
    if (m_chiusa) {
        Chiudi();
        return;
    }
    AbilitaComandi(Vero);
    MostraStato("");
    if (fuoco != nullptr && fuoco->isEnabled()) fuoco->setFocus();
    else cmdMescola->setFocus();
}

// Where the clock of durations stands or goes back (some virtual machines), captions are counted
// instead: the label must not look as if the run stood still.
bool Form1::OrologioFermo(double adesso)
{
    constexpr int tante = 500;
    return adesso <= m_ultimoRitocco && ++m_nonRitoccate >= tante;
}

// Painting costs more than playing a shoe: the caption is always the latest, its picture is at
// most so old.
void Form1::MostraAvanzamento(std::string_view testo)
{
    // Seconds. Wayland has room for five pictures on their way; where they run out Qt hears the
    // desktop in the middle of a drawing, and MisuraFissa.h comes too late.
    const double ritocco = Applicazione::SuWayland() ? 0.06 : 0.015;
    lblStatus->setUpdatesEnabled(false);
    lblStatus->setText(InQt(testo));
    const double adesso = SecondiTrascorsi();
    if (adesso - m_ultimoRitocco < ritocco && !OrologioFermo(adesso)) return;
    m_ultimoRitocco = adesso;
    m_nonRitoccate = 0;
    m_ritoccato = true;
    // Sized and painted in one go: the window paints what a new size uncovers, and would leave out
    // a label whose updates are off.
    lblStatus->setUpdatesEnabled(true);
    lblStatus->adjustSize();
    lblStatus->repaint();
}

// Lets pending events run once. A loop that never waits for events leaves drawings in the program's
// own buffer, so that now and then they must be sent to the display.
void Form1::Cedi()
{
    if (m_ritoccato) QGuiApplication::sync();
    else QCoreApplication::processEvents();
    m_ritoccato = false;
}
