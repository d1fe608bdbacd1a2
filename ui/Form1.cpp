#include "Form1.h"

#include "Ambiente.h"
#include "Applicazione.h"
#include "ErroreRuntime.h"
#include "FileNuovo.h"
#include "Generale.h"
#include "LibreriaCarte.h"
#include "Messaggi.h"
#include "MisuraFissa.h"
#include "Misure.h"
#include "Percorsi.h"
#include "Segnali.h"
#include "Separatori.h"
#include "Stampe.h"
#include "Testi.h"
#include "modCarte.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include <exception>
#include <functional>
#include <string>

Form1::Form1()
{
    constexpr int larghezza = 11760; // twips
    constexpr int altezza = 6765;
    InizializzaControlliComuni();
    setObjectName(QStringLiteral("Form1"));
    setWindowTitle(InQt(NomeProgramma));
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint);
    setFixedSize(Pixel(larghezza), Pixel(altezza));
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
    ambiente.Cifre = SeparatoriUtente();
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
        TrovaCartella();
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

void Form1::TrovaCartella()
{
    std::string& cartella = Stampe::AmbienteInUso.Cartella;
    if (cartella.empty()) cartella = PercorsoTemp();
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

// On every click, and whatever else changes the box.
void Form1::chkStat_Click()
{
    if (ValoreStat() == 1) {
        optStampa[FormaVideo]->setEnabled(true);
        return;
    }
    if (optStampa[FormaVideo]->isChecked()) optStampa[FormaHtml]->setChecked(true);
    optStampa[FormaVideo]->setEnabled(false);
}

// ---- Closing ---------------------------------------------------------------------------------

// Closing is never refused, not even in a run: the window goes at once, the run ends at its next
// yield, and only then do the closing steps follow, since it may still hold a report open.
void Form1::closeEvent(QCloseEvent* evento)
{
    evento->accept();
    m_chiusa = true;
    if (!m_inCorso) Applicazione::Proteggi([this] { Chiudi(); });
}

namespace {

// What somebody else has put there in its place counts as absent.
bool NostroOAssente(const std::string& percorso)
{
    try {
        PretendiSostituibile(percorso);
        return true;
    } catch (const ErroreRuntime&) {
        return false;
    }
}

// Without a folder there was never a file of ours: a bare name would lead to somebody else's.
bool SenzaCartella()
{
    return Stampe::AmbienteInUso.Cartella.empty();
}

void EliminaGuida()
{
    if (SenzaCartella()) return;
    const std::string percorso = Stampe::PercorsoReport(Generale::NomeGuida);
    if (modCarte::FileEsiste(percorso) != Falso && NostroOAssente(percorso)) TogliFile(percorso);
}

void EliminaReport()
{
    if (!SenzaCartella()) Stampe::EliminaReport();
}

} // namespace

void Form1::Chiudi()
{
    if (m_chiusuraFatta) return;
    m_chiusuraFatta = true;
    std::exception_ptr primo;
    for (const auto& passo :
         std::initializer_list<std::function<void()>>{EliminaGuida, EliminaReport, cdtTerm}) {
        try {
            passo();
        } catch (...) {
            // One failing step must not keep the others from running.
            if (!primo) primo = std::current_exception();
        }
    }
    if (primo) std::rethrow_exception(primo);
}
