// A library to be loaded before a program: the memory of its C library runs out.
//
// MEMORIA: the request that fails, counted from the beginning of main (from 1; 0 none), and with
// MEMORIA_DOPO all later ones, too. MEMORIA_CONTO: a file that gets the number of requests.

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

extern "C" void* __libc_malloc(std::size_t);
extern "C" void* __libc_calloc(std::size_t, std::size_t);
extern "C" void* __libc_realloc(void*, std::size_t);

namespace {

using Principale = int (*)(int, char**, char**);

constinit Principale principale = nullptr;
constinit std::atomic<bool> attiva = false;
constinit std::atomic<std::uint64_t> richieste = 0;
constinit std::uint64_t quale = 0;
constinit bool ancheDopo = false;

// The C library ends the program itself when it cannot note down what is to be destroyed with a
// thread: nothing that the program could do about it.
bool PerUnFilo(const void* chiamante)
{
    Dl_info luogo = {};
    return ::dladdr(chiamante, &luogo) != 0 && luogo.dli_sname != nullptr &&
           std::strcmp(luogo.dli_sname, "__cxa_thread_atexit_impl") == 0;
}

bool Rifiuta(const void* chiamante)
{
    if (!attiva || PerUnFilo(chiamante)) return false;
    const std::uint64_t questa = ++richieste;
    const bool rifiutata = quale != 0 && (questa == quale || (ancheDopo && questa > quale));
    if (rifiutata) errno = ENOMEM;
    return rifiutata;
}

int ConMemoriaFinita(int quanti, char** argomenti, char** ambiente)
{
    if (const char* testo = std::getenv("MEMORIA")) quale = std::strtoull(testo, nullptr, 10);
    ancheDopo = std::getenv("MEMORIA_DOPO") != nullptr;
    attiva = true;
    const int codice = principale(quanti, argomenti, ambiente);
    attiva = false;
    if (const char* conto = std::getenv("MEMORIA_CONTO")) {
        char testo[32];
        const int lungo = std::snprintf(testo, sizeof testo, "%llu",
                                        static_cast<unsigned long long>(richieste.load()));
        const int file = ::open(conto, O_WRONLY | O_CREAT | O_TRUNC, 0666);
        if (file < 0 || ::write(file, testo, static_cast<std::size_t>(lungo)) != lungo) ::_exit(99);
        ::close(file);
    }
    return codice;
}

} // namespace

extern "C" void* malloc(std::size_t quanti)
{
    return Rifiuta(__builtin_return_address(0)) ? nullptr : __libc_malloc(quanti);
}

extern "C" void* calloc(std::size_t quanti, std::size_t lunghi)
{
    return Rifiuta(__builtin_return_address(0)) ? nullptr : __libc_calloc(quanti, lunghi);
}

extern "C" void* realloc(void* blocco, std::size_t quanti)
{
    return Rifiuta(__builtin_return_address(0)) ? nullptr : __libc_realloc(blocco, quanti);
}

// Only from main on: before it the libraries set themselves up, which no program can watch over.
extern "C" int __libc_start_main(Principale vera, int quanti, char** argomenti, void (*prima)(),
                                 void (*dopo)(), void (*ultimo)(), void* pila)
{
    using Avvio = int (*)(Principale, int, char**, void (*)(), void (*)(), void (*)(), void*);
    principale = vera;
    const auto avvio = reinterpret_cast<Avvio>(::dlsym(RTLD_NEXT, "__libc_start_main"));
    return avvio(ConMemoriaFinita, quanti, argomenti, prima, dopo, ultimo, pila);
}
