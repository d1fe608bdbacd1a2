// The raw data files of --salva-mazzi and --colpi; which are wanted: Corsa.cpp.
#pragma once

#include "FileNuovo.h"

#include <string>

namespace cli {

// The error that creating a data file of this name would raise about what stands there already,
// without touching anything.
void PretendiFileDati(const std::string& percorso);

// A text file that grows by whole shoes. A failed or stopped run leaves the whole shoes written so
// far. It is created as safely as a report: an old one of this user is replaced, but a link is an
// error.
class FileDati
{
public:
    explicit FileDati(const std::string& percorso);
    ~FileDati();
    FileDati(const FileDati&) = delete;
    FileDati& operator=(const FileDati&) = delete;
    FileDati(FileDati&&) = delete;
    FileDati& operator=(FileDati&&) = delete;

    // Adds the lines of one shoe; they reach the disk some shoes later.
    void Aggiungi(const std::string& righe);

    // Writes what is left and closes; failures surface here.
    void Chiudi();

private:
    void Scarica();

    FileNuovo m_file;
    std::string m_attesa;
};

} // namespace cli
