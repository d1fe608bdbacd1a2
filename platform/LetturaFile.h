// Reading files of unknown origin, line by line or whole; ScritturaFile.h writes.
#pragma once

#include "LetturaSistema.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

// The reason of the error for a file with more bytes than the caller wants.
inline constexpr std::string_view TroppoGrande = "è troppo grande";

// A file that is read line by line; "-" is standard input.
//
// Lines are told without their line end (LF or CR LF); a last one without a line end counts, too.
// Failures to open or read are ErroreRuntime with file and reason.
class FileRighe
{
public:
    // Opens it; massimo is the length in bytes of the longest line allowed, so that a hostile file
    // cannot fill the memory.
    FileRighe(std::string percorso, std::size_t massimo);
    ~FileRighe();
    FileRighe(const FileRighe&) = delete;
    FileRighe& operator=(const FileRighe&) = delete;
    FileRighe(FileRighe&&) = delete;
    FileRighe& operator=(FileRighe&&) = delete;

    const std::string& Percorso() const { return m_percorso; }

    // Gets the number of a line (from 1), the place where it begins, and its text.
    using PerRiga =
        std::function<void(std::size_t numero, std::uint64_t inizio, std::string_view testo)>;

    // Calls riga for all lines from where the file stands; to be called once. A line that is too
    // long is an error naming its number. Whenever a read is interrupted and before every line,
    // fermare is asked; true ends the reading and returns false.
    bool Leggi(const PerRiga& riga, const std::function<bool()>& fermare);

    // Whether lines can be read again: that of a regular file can.
    bool Rileggibile() const { return m_regolare; }

    // The line that begins at a place told by Leggi, as the file holds it now; of a line that has
    // become too long only some bytes more than allowed. Any thread may ask.
    std::string RigaA(std::uint64_t inizio) const;

    // Whether a regular file has another size or time of writing than when it was opened.
    bool Cambiato() const;

private:
    std::string m_percorso;
    std::size_t m_massimo;
    int m_descrittore;
    bool m_regolare;
    lettura::StatoFile m_stato;
};

// The bytes of a whole regular file of at most massimo bytes. Anything else under that name, a
// larger file and failures to open or read are ErroreRuntime with file and reason; opening never
// waits.
std::string LeggiFile(const std::string& percorso, std::size_t massimo);
