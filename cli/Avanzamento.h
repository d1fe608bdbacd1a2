// The progress line on standard error. Who feeds it: Corsa.cpp, once a shoe.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace cli {

// "1 taglia", "2 taglie".
std::string QuanteTaglie(std::int64_t taglie);

// Text of the progress: shoes done, rate, time left. With colonne only as much of it as stays below
// that many characters.
std::string TestoAvanzamento(std::int64_t fatte, std::int64_t taglie, double secondi,
                             std::optional<std::size_t> colonne = {});

// Writes it now and then: on a terminal one line over and over, as wide as it has room for, ten
// times a second; elsewhere a line a second.
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
    std::optional<std::size_t> Colonne() const;

    std::int64_t m_taglie;
    bool m_terminale;
    double m_inizio;
    double m_prossima;
    bool m_scritto = false;
};

} // namespace cli
