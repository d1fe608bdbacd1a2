// The title screen, help and exit. What the title shows stands in Schermate.cpp, the way of the
// help page in Generale.cpp.

#include "Form1.h"

#include "ErroreRuntime.h"
#include "Generale.h"
#include "Schermate.h"

void Form1::MostraTitolo()
{
    m_tavolo->Pulisci();
    schermate::Titolo(*m_tavolo);
    m_tavolo->Aggiorna();
}

void Form1::cmdHelp_Click()
{
    try {
        Generale::TrovaCartella(); // it may have been missing at the start and be there by now
    } catch (const ErroreRuntime&) {
        return; // like a folder that cannot be written
    }
    Generale::ApriRisorsa(Generale::NomeGuida, Generale::PaginaGuida);
}

void Form1::cmdExit_Click()
{
    close();
}
