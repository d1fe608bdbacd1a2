// Start of the window: what it is joined to before it shows. Its controls are made in
// Form1_Controlli.cpp.

#include "Form1.h"

#include "Ambiente.h"
#include "Applicazione.h"
#include "ErroreRuntime.h"
#include "Generale.h"
#include "LibreriaCarte.h"
#include "Messaggi.h"
#include "MisuraFissa.h"
#include "Misure.h"
#include "Segnali.h"
#include "Separatori.h"
#include "Testi.h"

#include <QKeyEvent>

#include <exception>
#include <string>

Form1::Form1()
{
    InizializzaControlliComuni();
    setObjectName(QStringLiteral("Form1"));
    setWindowTitle(InQt(NomeProgramma));
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint);
    setFixedSize(Pixel(LarghezzaFinestra), Pixel(AltezzaFinestra));
    TieniMisuraFissa(*this);
    CreaControlli();
    OrdinaFuoco();
    CollegaComandi();
    m_tavolo = picCard;
    numTaglie->setFocus();
}

void Form1::CollegaComandi()
{
    const auto collega = [this](auto* controllo, auto segnale, void (Form1::*gestore)()) {
        connect(controllo, segnale, this, [this, gestore] {
            Applicazione::Proteggi([this, gestore] { (this->*gestore)(); });
        });
    };
    collega(cmdMescola, &QPushButton::clicked, &Form1::cmdMescola_Click);
    collega(cmdColpo, &QPushButton::clicked, &Form1::cmdColpo_Click);
    collega(cmdCancel, &QPushButton::clicked, &Form1::cmdCancel_Click);
    collega(cmdTaglie, &QPushButton::clicked, &Form1::cmdTaglie_Click);
    collega(cmdHelp, &QPushButton::clicked, &Form1::cmdHelp_Click);
    collega(cmdExit, &QPushButton::clicked, &Form1::cmdExit_Click);
    collega(chkStat, &QCheckBox::stateChanged, &Form1::chkStat_Click);
    collega(numTaglie, &QLineEdit::textChanged, &Form1::numTaglie_Change);
    numTaglie->installEventFilter(this);
}

bool Form1::Carica()
{
    SistemaMenu = MenuDiSistema(winId());
    TogliComando(SistemaMenu, ComandoDimensiona, PerComando);
    try {
        cdtInit(LarghezzaCarta, AltezzaCarta);
        MostraTitolo();
    } catch (const ErroreRuntime& errore) {
        if (errore.Numero() != NumeroErrore::FileNonTrovato) return true;
        ScriviErrore(errore.what()); // the message names a library, not the file that is missing
        MsgBox(nullptr, "La libreria CARDS.DLL non è presente nel sistema.", QMessageBox::Warning);
        return false;
    } catch (const std::exception&) {
        // Whatever else goes wrong here, the window opens and can be used.
    }
    return true;
}

void Form1::ImpostaAmbiente()
{
    Stampe::Ambiente ambiente = Stampe::AmbienteNeutro();
    ambiente.SeparatoriNumeri = SeparatoriUtente();
    // A full report, a matter of moments, is not left half done.
    ambiente.Fermare = [this] {
        return ValoreStat() != 0 && (m_fermata || m_chiusa || InterruzioneChiesta());
    };
    ambiente.Cedi = [this] { Cedi(); };
    ambiente.Avvisa = [this](const Stampe::Messaggio& messaggio) {
        const bool esclama = messaggio.Figura == Stampe::Icona::Esclamazione;
        MsgBox(this, messaggio.Testo, esclama ? QMessageBox::Warning : QMessageBox::Information,
               QMessageBox::Ok, messaggio.Titolo);
    };
    ambiente.Apri = [this](const std::string& percorso, StileFinestra stile) {
        ApriReport(percorso, stile);
    };
    Stampe::AmbienteInUso = std::move(ambiente);
    try {
        Generale::TrovaCartella();
    } catch (const ErroreRuntime&) {
        // Whoever only plays needs no folder; the first report tells.
    }
}

// Only a run tells: the help page, which nobody opens in one, stays silent.
void Form1::ApriReport(const std::string& percorso, StileFinestra stile)
{
    if (ApriConShell(percorso, stile) || !m_inCorso || m_chiusa) return;
    MsgBox(this,
           "Nessun programma ha potuto aprire il report:\r" + percorso +
               "\rScalvino lo elimina quando si chiude.",
           QMessageBox::Warning);
}

// Escape reaches the window only while all controls are locked, that is in a run.
void Form1::keyPressEvent(QKeyEvent* evento)
{
    if (m_inCorso && evento->key() == Qt::Key_Escape) m_fermata = true;
    else QWidget::keyPressEvent(evento);
}

bool Form1::eventFilter(QObject* oggetto, QEvent* evento)
{
    if (oggetto == numTaglie && FiltraNumero(evento)) return true;
    return QWidget::eventFilter(oggetto, evento);
}
