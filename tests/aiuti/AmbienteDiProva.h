// What a report needs around it, for one test; the folder is one of Aiuti.h.
#pragma once

#include "Aiuti.h"
#include "Ambiente.h"

#include <cstdint>
#include <string>
#include <vector>

namespace aiuti {

// Report surroundings for one test: a folder of its own, marks "," and ".", every report opened
// noted down. Puts everything back at its end.
class AmbienteDiProva
{
public:
    AmbienteDiProva();
    ~AmbienteDiProva();
    AmbienteDiProva(const AmbienteDiProva&) = delete;
    AmbienteDiProva& operator=(const AmbienteDiProva&) = delete;

    // Deals these shoes in turn instead of shuffling.
    void Distribuisci(const std::vector<std::vector<std::int16_t>>& mazzi);

    CartellaDiProva Cartella;
    std::vector<std::string> Aperti;
    std::vector<StileFinestra> Stili;
    std::vector<Stampe::Messaggio> Messaggi;

private:
    Stampe::Ambiente m_prima;
};

} // namespace aiuti
