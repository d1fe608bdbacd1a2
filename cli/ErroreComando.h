// The exception that ends the command; Comando.cpp shows it.
#pragma once

#include "Uscita.h"
#include "UscitaStandard.h"

#include <exception>
#include <string>

namespace cli {

// Ends the command with one line "taglie: what: why" and an exit code.
class ErroreComando : public std::exception
{
public:
    ErroreComando(Uscita uscita, const std::string& cosa, const std::string& perche)
        : m_uscita(uscita)
        , m_messaggio(cosa + ": " + perche)
    {
    }
    Uscita CodiceUscita() const noexcept { return m_uscita; }
    const char* what() const noexcept override { return m_messaggio.c_str(); }

private:
    Uscita m_uscita;
    std::string m_messaggio;
};

// Ends the command because nobody reads the report any more that it writes to standard output: no
// fault, and nothing to tell where the system has its own way of ending then.
class NessunoLegge : public ErroreComando
{
public:
    NessunoLegge()
        : ErroreComando(UscitaScrittura, NomeUscita, "chi leggeva ha chiuso")
    {
    }
};

// Ends the command because of what was typed.
[[noreturn]] inline void RifiutaUso(const std::string& cosa, const std::string& perche)
{
    throw ErroreComando(UscitaUso, cosa, perche);
}

// Ends the command as stopped by the user, with what was done until then.
[[noreturn]] inline void Interrompi(const std::string& fatto)
{
    throw ErroreComando(UscitaInterrotta, "interrotto", fatto);
}

// What funzione gives. Its ErroreRuntime becomes the refusal of what the user asked for, whatever
// the reason; only want of memory stays what it is, since that is no fault of the request.
template <typename Funzione>
auto OppureRifiuta(const Funzione& funzione)
{
    try {
        return funzione();
    } catch (const ErroreRuntime& errore) {
        if (errore.Numero() == NumeroErrore::MemoriaEsaurita) throw;
        throw ErroreComando(UscitaRifiuto, errore.File(), errore.Motivo());
    }
}

} // namespace cli
