// System calls of file writing that fail when a test wants them to.
#pragma once

#include "ErroreRuntime.h"
#include "ScritturaFile.h"

#include <cstddef>
#include <functional>
#include <optional>

namespace aiuti {

enum class Durata
{
    UnaVolta,
    DaAllora,
};

// From now on the writes and closes of platform/ScritturaFile.h are counted and fail as asked; the
// system's own come back at the end. One at a time.
class ScrittureGuaste
{
public:
    ScrittureGuaste();
    ~ScrittureGuaste();
    ScrittureGuaste(const ScrittureGuaste&) = delete;
    ScrittureGuaste& operator=(const ScrittureGuaste&) = delete;

    // Write number quale (from 1) fails with this errno before it writes a byte; 0 makes it
    // return 0.
    void Guasta(int quale, int codice, Durata durata = Durata::UnaVolta);

    // Close number quale fails with this errno; the descriptor is closed all the same.
    void GuastaChiusura(int quale, int codice, Durata durata = Durata::UnaVolta);

    // No write takes more than so many bytes.
    void Spezza(std::size_t massimo);

    // The first of every two writes and every close is interrupted: EINTR.
    void Interrompi();

    int Scritture() const;
    int Chiusure() const;
    std::size_t Byte() const; // bytes written in all
};

// The run-time error that lavoro ends with; nothing when it ends well.
std::optional<ErroreRuntime> ErroreDi(const std::function<void()>& lavoro);

} // namespace aiuti
