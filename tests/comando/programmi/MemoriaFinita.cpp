// A library to be loaded before a program: the memory of its C library runs out.
//
// MEMORIA: the request that fails, counted from the very first of the program, before main (from 1;
// 0 none), and with MEMORIA_DOPO all later ones, too. MEMORIA_CONTO: a file that gets the number of
// requests when the program ends in the usual way.

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

extern "C" void* __libc_malloc(std::size_t);
extern "C" void* __libc_calloc(std::size_t, std::size_t);
extern "C" void* __libc_realloc(void*, std::size_t);
extern "C" void* __libc_memalign(std::size_t, std::size_t);

namespace {

constinit std::atomic<bool> finita = false; // the program, not its memory
constinit std::atomic<std::uint64_t> richieste = 0;

struct Scelte
{
    std::uint64_t quale = 0;
    bool ancheDopo = false;
};

Scelte Leggi()
{
    const char* testo = std::getenv("MEMORIA");
    return {testo == nullptr ? 0 : std::strtoull(testo, nullptr, 10),
            std::getenv("MEMORIA_DOPO") != nullptr};
}

bool Rifiuta()
{
    // Before the C library itself is ready nothing is asked for but by the loader.
    if (environ == nullptr || finita) return false;
    static const Scelte scelte = Leggi();
    const std::uint64_t questa = ++richieste;
    const bool rifiutata =
        questa == scelte.quale || (scelte.quale != 0 && scelte.ancheDopo && questa > scelte.quale);
    if (rifiutata) errno = ENOMEM;
    return rifiutata;
}

[[gnu::destructor]] void ScriviConto()
{
    finita = true;
    const char* conto = std::getenv("MEMORIA_CONTO");
    if (conto == nullptr) return;
    char testo[32];
    const int lungo = std::snprintf(testo, sizeof testo, "%llu",
                                    static_cast<unsigned long long>(richieste.load()));
    const int file = ::open(conto, O_WRONLY | O_CREAT | O_TRUNC, 0666);
    if (file < 0 || ::write(file, testo, static_cast<std::size_t>(lungo)) != lungo) ::_exit(99);
    ::close(file);
}

} // namespace

extern "C" void* malloc(std::size_t quanti)
{
    return Rifiuta() ? nullptr : __libc_malloc(quanti);
}

extern "C" void* calloc(std::size_t quanti, std::size_t lunghi)
{
    return Rifiuta() ? nullptr : __libc_calloc(quanti, lunghi);
}

extern "C" void* realloc(void* blocco, std::size_t quanti)
{
    return Rifiuta() ? nullptr : __libc_realloc(blocco, quanti);
}

extern "C" void* aligned_alloc(std::size_t passo, std::size_t quanti)
{
    return Rifiuta() ? nullptr : __libc_memalign(passo, quanti);
}

extern "C" int posix_memalign(void** blocco, std::size_t passo, std::size_t quanti)
{
    void* const nuovo = Rifiuta() ? nullptr : __libc_memalign(passo, quanti);
    if (nuovo == nullptr) return ENOMEM;
    *blocco = nuovo;
    return 0;
}
