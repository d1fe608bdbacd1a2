// The shoes of a run: those of a file, repeatable ones of a seed, or freshly shuffled ones. How a
// shoe file is read: FileMazzi.h.
#pragma once

#include "FileMazzi.h"
#include "Opzioni.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace cli {

class SorgenteTaglie
{
public:
    // Reads and checks the shoe file, if one is given. ErroreComando with UscitaRifiuto when it
    // cannot be read, holds no shoe or fewer than asked for; with UscitaInterrotta when the user
    // stops the reading.
    explicit SorgenteTaglie(const Opzioni& opzioni);

    // How many shoes the run is to play, at least 1.
    std::int64_t Quante() const { return m_quante; }

    // What puts shoe number taglia, from 1 on, into the calling thread's modCarte::Mazzo; refers to
    // this object. ErroreComando with UscitaRifiuto when the file has changed there by now.
    std::function<void(std::int64_t taglia)> Preparazione() const;

    // Tells the user, in one line on standard error each, of equal shoes in the file, or that it
    // was written to during the run. The run goes on.
    void AvvisaRipetizioni();
    void AvvisaCambiamento() const;

private:
    std::optional<std::uint64_t> m_seme;
    std::unique_ptr<FileMazzi> m_file; // none: shuffled shoes
    std::int64_t m_quante;
};

} // namespace cli
