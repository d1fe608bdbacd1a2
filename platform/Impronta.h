// The mark of a file: which very file stands under a name. FileNuovo.h holds one of what it writes.
#pragma once

#include "ErroreRuntime.h"

#include <cstdint>
#include <string>

// Remembers which very file stands under a name, so that another one put there later is told from
// it. Not copyable.
class Impronta
{
public:
    // Of what stands there now.
    explicit Impronta(std::string percorso);

    // Of the file opened as descrittore, created under that name. Error when it tells no number.
    Impronta(std::string percorso, int descrittore);

    ~Impronta();
    Impronta(const Impronta&) = delete;
    Impronta& operator=(const Impronta&) = delete;
    Impronta(Impronta&&) = delete;
    Impronta& operator=(Impronta&&) = delete;

    // Whether that file, a regular one, still stands under the name.
    bool Vale() const noexcept;

    // An error when it does not.
    void Pretendi() const;

    // Whether the open descriptor is that file.
    bool Riconosce(int descrittore) const noexcept;

    // The error for a name under which another program has put another file.
    ErroreRuntime Sostituito() const;

    // Removes the file if it still stands there.
    void Togli() const noexcept;

private:
    void Ancora() noexcept;

    std::string m_percorso;
    // A descriptor or handle that keeps the number of the file from being given to another one.
    static constexpr std::intptr_t SenzaAncora = -1;
    std::intptr_t m_ancora = SenzaAncora;
    std::uint64_t m_dispositivo = 0;
    std::uint64_t m_indice = 0;
};
