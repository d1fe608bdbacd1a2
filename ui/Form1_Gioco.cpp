// One shoe played coup by coup. What each screen shows stands in Schermate.cpp.

#include "Form1.h"

#include "ErroreRuntime.h"
#include "Schermate.h"
#include "Testi.h"
#include "modCarte.h"

#include <string>

namespace {

// The record at this index of the shoe; error 9 outside it.
modCarte::RecordColpo Record(std::int16_t indice)
{
    const auto& colpi = modCarte::Colpi;
    const auto posto = static_cast<std::size_t>(indice);
    if (indice < 0 || posto >= colpi.size()) {
        throw ErroreRuntime(NumeroErrore::IndiceFuoriIntervallo);
    }
    return modCarte::RecordColpo(colpi[posto]);
}

bool EUltimo(std::int16_t indice)
{
    return static_cast<std::size_t>(indice) + 1 == modCarte::Colpi.size();
}

} // namespace

void Form1::cmdMescola_Click()
{
    MostraStato(std::string(NomeProgramma) + " - Programma freeware - " + TestoVersione());
    cmdColpo->setEnabled(true);
    cmdCancel->setEnabled(true);
    // Before the button is locked: the focus must not wander off to the next one.
    cmdColpo->setFocus();
    cmdMescola->setEnabled(false);
    m_tavolo->Pulisci();
    modCarte::SimulaTaglia();
    schermate::NuovaTaglia(*m_tavolo);
    m_tavolo->Aggiorna();
    colpoCorrente = 1;
}

void Form1::cmdColpo_Click()
{
    if (EUltimo(colpoCorrente)) {
        UltimoColpo();
        return;
    }
    m_tavolo->Pulisci();
    schermate::Colpo(*m_tavolo, colpoCorrente, Record(colpoCorrente));
    m_tavolo->Aggiorna();
    ++colpoCorrente;
}

void Form1::UltimoColpo()
{
    m_tavolo->Pulisci();
    cmdCancel->setFocus();
    cmdColpo->setEnabled(false);
    schermate::FineTaglia(*m_tavolo, colpoCorrente, Record(colpoCorrente), modCarte::Statistiche);
    m_tavolo->Aggiorna();
    ++colpoCorrente;
}

void Form1::cmdCancel_Click()
{
    MostraStato("");
    cmdMescola->setEnabled(true);
    cmdMescola->setFocus();
    cmdColpo->setEnabled(false);
    cmdCancel->setEnabled(false);
    MostraTitolo();
}
