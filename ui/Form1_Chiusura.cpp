// Closing: when it happens, and which files of the program go with the window. What they are is
// told in Generale.h (help page) and Stampe.h (reports).

#include "Form1.h"

#include "Ambiente.h"
#include "Applicazione.h"
#include "ErroreRuntime.h"
#include "FileVecchio.h"
#include "Generale.h"
#include "LibreriaCarte.h"
#include "Stampe.h"
#include "modCarte.h"

#include <QCloseEvent>

#include <exception>
#include <functional>
#include <string>

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
