// The table of error codes: which run-time error each becomes and what the user reads.
// base/ErroreRuntime.h is the error.
#include "ErroreSistema.h"

#include <array>
#include <cerrno>
#include <new>
#include <system_error>

namespace {

struct Voce
{
    int codice;
    NumeroErrore numero;
    const char* motivo;
};

constexpr std::array Voci = {
    Voce{ENOSPC, NumeroErrore::DiscoPieno, "spazio esaurito sul disco"},
    Voce{EFBIG, NumeroErrore::DiscoPieno, "superata la dimensione massima di un file"},
#ifdef EDQUOT
    Voce{EDQUOT, NumeroErrore::DiscoPieno, "superata la quota di disco dell'utente"},
#endif
    Voce{EACCES, NumeroErrore::PermessoNegato, "permesso negato"},
    Voce{EPERM, NumeroErrore::PermessoNegato, "operazione non permessa"},
    Voce{EROFS, NumeroErrore::PermessoNegato, "il disco è di sola lettura"},
    Voce{EIO, NumeroErrore::ErroreInputOutput, "errore del dispositivo"},
    Voce{EPIPE, NumeroErrore::ErroreInputOutput, "chi leggeva ha chiuso"},
    Voce{ENOENT, NumeroErrore::PercorsoNonTrovato, "file o cartella inesistente"},
    Voce{ENOTDIR, NumeroErrore::PercorsoNonTrovato, "una parte del percorso non è una cartella"},
    Voce{EEXIST, NumeroErrore::AccessoAlFile, "nel frattempo lo ha creato un altro programma"},
    Voce{EISDIR, NumeroErrore::AccessoAlFile, "è una cartella"},
    Voce{ELOOP, NumeroErrore::AccessoAlFile, "è un collegamento"},
    Voce{ENXIO, NumeroErrore::AccessoAlFile, "non è un file ordinario"},
    Voce{ENAMETOOLONG, NumeroErrore::AccessoAlFile, "il nome è troppo lungo"},
    Voce{EMFILE, NumeroErrore::AccessoAlFile, "troppi file aperti"},
    Voce{ENFILE, NumeroErrore::AccessoAlFile, "troppi file aperti nel sistema"},
    Voce{ENOMEM, NumeroErrore::MemoriaEsaurita, "memoria esaurita"},
    Voce{EBADF, NumeroErrore::AccessoAlFile, "il file non è aperto"},
};

const Voce* Cerca(int codice)
{
    for (const auto& voce : Voci) {
        if (voce.codice == codice) return &voce;
    }
    return nullptr;
}

} // namespace

std::string MotivoSistema(int codice)
{
    const Voce* voce = Cerca(codice);
    return voce != nullptr ? voce->motivo : std::generic_category().message(codice);
}

ErroreRuntime ErroreSistema(int codice, const std::string& file)
{
    const Voce* voce = Cerca(codice);
    const auto numero = voce != nullptr ? voce->numero : NumeroErrore::AccessoAlFile;
    return ErroreRuntime(numero, MotivoSistema(codice), file);
}

bool DiChiNonLegge(const ErroreRuntime& errore)
{
    const Voce* voce = Cerca(EPIPE);
    return voce != nullptr && errore.Numero() == voce->numero && errore.Motivo() == voce->motivo;
}

void PretendiMemoria(const std::error_code& errore)
{
    if (errore == std::errc::not_enough_memory) throw std::bad_alloc();
}
