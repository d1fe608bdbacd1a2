// What stat(2) tells of names. The promises are in FileSulDisco.h.
#include "FileSulDisco.h"

#include "ErroreSistema.h"

#include <filesystem>
#include <system_error>

#include <sys/stat.h>
#if __has_include(<linux/magic.h>)
#include <linux/magic.h>
#include <sys/vfs.h>
#endif

bool VoceTrovata(const std::string& percorso)
{
    struct stat voce = {};
    return ::lstat(percorso.c_str(), &voce) == 0;
}

bool FileOrdinario(const std::string& percorso)
{
    const auto nome = std::filesystem::path(percorso).filename().string();
    if (nome.empty() || nome.front() == '.') return false;
    struct stat voce = {};
    return ::stat(percorso.c_str(), &voce) == 0 && S_ISREG(voce.st_mode);
}

bool StessoFile(const std::string& percorso, const std::string& altro)
{
    struct stat a = {};
    struct stat b = {};
    return ::stat(percorso.c_str(), &a) == 0 && ::stat(altro.c_str(), &b) == 0 &&
           a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

namespace {

// What stat(2) finds behind the name: also the nameless things of the kernel that have no kind.
bool ConduceAUnoSpeciale(const std::string& percorso)
{
    struct stat voce = {};
    return ::stat(percorso.c_str(), &voce) == 0 && !S_ISREG(voce.st_mode) && !S_ISDIR(voce.st_mode);
}

// Whether the name, or one it leads to, is the kernel's name of something open: what is behind
// /dev/stdout may be a plain file, and the link is the whole system's all the same.
bool ConduceAUnoAperto([[maybe_unused]] std::filesystem::path nome)
{
#ifdef PROC_SUPER_MAGIC
    constexpr int massimo = 40; // links that the kernel itself follows in a row
    for (int passo = 0; passo < massimo; ++passo) {
        const auto cartella = nome.parent_path();
        struct statfs disco = {};
        if (::statfs(cartella.empty() ? "." : cartella.c_str(), &disco) != 0) return false;
        if (disco.f_type == PROC_SUPER_MAGIC) return true;
        std::error_code errore;
        const auto bersaglio = std::filesystem::read_symlink(nome, errore);
        PretendiMemoria(errore);
        if (errore) return false;
        nome = cartella / bersaglio;
    }
#endif
    return false;
}

} // namespace

void PretendiNonSpeciale(const std::string& percorso)
{
    struct stat voce = {};
    if (::lstat(percorso.c_str(), &voce) != 0 || !S_ISLNK(voce.st_mode)) return;
    if (!ConduceAUnoSpeciale(percorso) && !ConduceAUnoAperto(percorso)) return;
    throw ErroreRuntime(NumeroErrore::AccessoAlFile,
                        "è un collegamento a qualcosa che non è un file ordinario", percorso);
}
