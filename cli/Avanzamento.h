// The progress line on standard error.
#pragma once

#include <cstdint>
#include <string>

namespace cli {

// Text of the progress: shoes done, rate, time left.
std::string TestoAvanzamento(std::int64_t fatte, std::int64_t taglie, double secondi);

// Writes it now and then: on a terminal one line over and over, ten times a second; elsewhere a
// line a second.
class Avanzamento
{
public:
    Avanzamento(std::int64_t taglie, bool terminale);
    ~Avanzamento() { Finisci(); }
    Avanzamento(const Avanzamento&) = delete;
    Avanzamento& operator=(const Avanzamento&) = delete;
    Avanzamento(Avanzamento&&) = delete;
    Avanzamento& operator=(Avanzamento&&) = delete;

    // Called after every shoe.
    void Mostra(std::int64_t fatte);

    // Clears the terminal's line.
    void Finisci();

private:
    std::int64_t m_taglie;
    bool m_terminale;
    double m_inizio;
    double m_prossima;
    bool m_scritto = false;
};

} // namespace cli
