// Replaces operator new to count the bytes held at once: a small file must not take much.
#include "Memoria.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

// One thread only.
std::size_t presa = 0;
std::size_t alPiu = 0;
std::size_t inizio = 0;

} // namespace

namespace memoria {

void Azzera()
{
    inizio = presa;
    alPiu = presa;
}

std::size_t Massimo()
{
    return alPiu - inizio;
}

} // namespace memoria

void* operator new(std::size_t quanti)
{
    void* blocco = std::malloc(quanti);
    if (blocco == nullptr) throw std::bad_alloc();
    presa += malloc_usable_size(blocco);
    if (presa > alPiu) alPiu = presa;
    return blocco;
}

void operator delete(void* blocco) noexcept
{
    presa -= malloc_usable_size(blocco);
    std::free(blocco);
}

void operator delete(void* blocco, std::size_t) noexcept
{
    operator delete(blocco);
}
