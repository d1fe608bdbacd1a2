// The texts of the error numbers and the one line that an error is shown as. See ErroreRuntime.h.

#include "ErroreRuntime.h"

#include <utility>

std::string_view TestoErrore(NumeroErrore numero)
{
    switch (numero) {
    case NumeroErrore::ChiamataNonValida:
        return "Chiamata o valore non validi";
    case NumeroErrore::Overflow:
        return "Overflow";
    case NumeroErrore::MemoriaEsaurita:
        return "Memoria esaurita";
    case NumeroErrore::IndiceFuoriIntervallo:
        return "Indice fuori dall'intervallo";
    case NumeroErrore::DivisionePerZero:
        return "Divisione per zero";
    case NumeroErrore::TipoNonCorrispondente:
        return "Tipo non corrispondente";
    case NumeroErrore::FileNonTrovato:
        return "File non trovato";
    case NumeroErrore::ErroreInputOutput:
        return "Errore di lettura o scrittura";
    case NumeroErrore::DiscoPieno:
        return "Disco pieno";
    case NumeroErrore::PermessoNegato:
        return "Permesso negato";
    case NumeroErrore::AccessoAlFile:
        return "Impossibile accedere al file";
    case NumeroErrore::PercorsoNonTrovato:
        return "Cartella non trovata";
    }
    return "Errore sconosciuto";
}

ErroreRuntime::ErroreRuntime(NumeroErrore numero, std::string motivo, std::string file)
    : m_numero(numero)
    , m_motivo(std::move(motivo))
    , m_file(std::move(file))
{
    m_messaggio = m_file.empty() ? std::string(Testo()) : m_file;
    if (!m_motivo.empty()) m_messaggio.append(": ").append(m_motivo);
    else if (!m_file.empty()) m_messaggio.append(": ").append(Testo());
}
