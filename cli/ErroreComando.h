// The exception that ends the command; Comando.cpp shows it.
#pragma once

#include "Uscita.h"

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

} // namespace cli
