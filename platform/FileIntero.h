// A file that stands under its name only when it is whole; until then the old one does. A file that
// is read while it grows is FileNuovo.h.
#pragma once

#include "ErroreRuntime.h"

#include <memory>
#include <string>
#include <string_view>

// A file that is written out of sight and put in place at its end. Every failure is an
// ErroreRuntime with the file's name and the reason, and leaves what stood there. Not copyable;
// used by one thread.
class FileIntero
{
public:
    // Opens a file that has no name yet in the folder of percorso, or a hidden one where the system
    // or the disk knows no such files: NomeIncompiuto. Its permissions and owner are those of any
    // new file. Refuses what FileNuovo refuses to replace, without touching it. Begins with
    // TogliIncompiuti.
    explicit FileIntero(std::string percorso);

    // Leaves no trace unless the file was put in place.
    ~FileIntero();

    FileIntero(const FileIntero&) = delete;
    FileIntero& operator=(const FileIntero&) = delete;
    FileIntero(FileIntero&&) = delete;
    FileIntero& operator=(FileIntero&&) = delete;

    const std::string& Percorso() const noexcept { return m_percorso; }

    // Appends all the bytes.
    void Scrivi(std::string_view byte);

    // Puts the file in place of what stands under its name, in one step, once all bytes have
    // arrived; to be called once, as the last operation. An error for what may not be replaced by
    // now, and when it is not this file that stands there in the end. A program that is killed
    // within this call may leave the hidden name.
    void MettiAPosto();

private:
    struct Stato;

    std::string m_percorso;
    std::unique_ptr<Stato> m;
};

// How many hidden names there are in a folder: so many files at most are unfinished there at once.
inline constexpr int MassimoIncompiuti = 100;

// ".taglie.07.incompiuto". numero: 0 to MassimoIncompiuti - 1.
std::string NomeIncompiuto(int numero);

// Whether a file of that name, in whatever folder, would be taken for one of these.
bool NomeRiservato(const std::string& percorso);

// The error about percorso where all of these names are taken.
ErroreRuntime NomiFiniti(const std::string& percorso);

// Removes from the folder of percorso the hidden files of this user that killed programs have left.
// Those of a program that still lives, of other users or with a second name stay, as does whatever
// is no regular file. What cannot be looked at or removed is passed over.
void TogliIncompiuti(const std::string& percorso);

// From now on as if the system knew no files without a name (or as it is): for tests.
void FingiSenzaAnonimi(bool adesso) noexcept;
