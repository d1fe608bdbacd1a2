// A file that this program creates and writes, safe in a folder that others can write to. What
// stands in its place goes by FileVecchio.h, its bytes by ScritturaFile.h.
#pragma once

#include "Impronta.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// A file that this program has just created and is writing. Every failure is an ErroreRuntime
// with the file's name and the reason. Not copyable; used by one thread.
class FileNuovo
{
public:
    // Replaces what stands under percorso: TogliFile, then an exclusive creation that follows no
    // link and opens nothing that somebody else put there in between.
    explicit FileNuovo(std::string percorso);

    // Closes; removes the file, if it is still ours, unless Conserva() was called.
    ~FileNuovo();

    FileNuovo(const FileNuovo&) = delete;
    FileNuovo& operator=(const FileNuovo&) = delete;
    FileNuovo(FileNuovo&&) = delete;
    FileNuovo& operator=(FileNuovo&&) = delete;

    const std::string& Percorso() const noexcept { return m_percorso; }

    // Appends all the bytes. On failure the file is cut back to its length before the call, so
    // that it holds whole blocks only.
    void Scrivi(std::string_view byte);

    // Closes and checks the result; the object can be reopened. Closed already: no effect.
    void Chiudi();

    // Opens the closed file again for appending. An error when the entry is no longer the very
    // file that this object created.
    void Riapri();

    // An error when the entry is no longer the very file that this object created.
    void PretendiNostro() const { m_impronta->Pretendi(); }

    // From now on the file stays when this object is destroyed.
    void Conserva() noexcept { m_conserva = true; }

private:
    void ScriviTutto(std::string_view byte);
    void Accorcia(std::uint64_t lunghezza) noexcept;

    std::string m_percorso;
    int m_descrittore = -1;
    std::uint64_t m_lunghezza = 0; // bytes that are in the file for certain
    std::optional<Impronta> m_impronta;
    bool m_conserva = false;
};
