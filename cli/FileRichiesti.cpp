// Compares the files of a run with each other and with what lies on the disk. How they are written:
// FileDati.cpp, and the reports' own sources.
#include "FileRichiesti.h"

#include "Argomenti.h"
#include "ErroreComando.h"
#include "ErroreSistema.h"
#include "FileDati.h"
#include "FileSulDisco.h"
#include "FileVecchio.h"
#include "Percorsi.h"
#include "UscitaStandard.h"

#include <filesystem>
#include <system_error>

namespace cli {

namespace {

// True when the two names mean one file, whether it exists already or not.
bool StessoNome(const std::string& uno, const std::string& altro)
{
    if (StessoFile(uno, altro)) return true;
    std::error_code errore;
    const auto completo = [&errore](const std::string& nome) {
        // Absolute first: of a name that does not exist the rest is taken as it stands.
        return std::filesystem::weakly_canonical(
            std::filesystem::absolute(percorsi::Cammino(nome), errore), errore);
    };
    const bool uguali = completo(uno) == completo(altro);
    PretendiMemoria(errore); // without an answer a file could be lost
    return uguali && !errore;
}

} // namespace

void RifiutaFileDoppi(const Opzioni& opzioni, const std::string& percorsoReport)
{
    struct Ruolo
    {
        std::string nome;
        const std::string& file;
    };
    const Ruolo ruoli[] = {{opzione::SalvaMazzi, opzioni.SalvaMazzi},
                           {opzione::Colpi, opzioni.Colpi},
                           {opzione::Mazzi, opzioni.Mazzi == "-" ? std::string() : opzioni.Mazzi},
                           {"il report", percorsoReport}};
    for (const auto& uno : ruoli) {
        if (opzioni.SuUscita && !uno.file.empty() && UscitaNelFile(uno.file)) {
            RifiutaUso(uno.file, "è lo stesso file per lo standard output e per " + uno.nome);
        }
        for (const auto& altro : ruoli) {
            if (&uno >= &altro || uno.file.empty() || altro.file.empty()) continue;
            if (StessoNome(uno.file, altro.file)) {
                RifiutaUso(uno.file, "è lo stesso file per " + uno.nome + " e per " + altro.nome);
            }
        }
    }
}

void PretendiScrivibili(const Opzioni& opzioni, const std::string& percorsoReport)
{
    if (!percorsoReport.empty()) {
        // The form's own name was given by nobody: any link there is a stray one.
        if (opzioni.Report.empty()) PretendiCreabile(percorsoReport);
        else PretendiFileDati(percorsoReport);
    }
    if (opzioni.SuUscita) PreparaUscita();
    for (const auto* file : {&opzioni.SalvaMazzi, &opzioni.Colpi}) {
        if (!file->empty()) PretendiFileDati(*file);
    }
}

} // namespace cli
