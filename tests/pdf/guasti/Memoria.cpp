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

// Each form of new is replaced: the sanitizers' own would not go with the delete below.
void* operator new(std::size_t quanti, const std::nothrow_t&) noexcept
{
    void* blocco = std::malloc(quanti);
    if (blocco == nullptr) return nullptr;
    presa += malloc_usable_size(blocco);
    if (presa > alPiu) alPiu = presa;
    return blocco;
}

void* operator new(std::size_t quanti)
{
    void* blocco = operator new(quanti, std::nothrow);
    if (blocco == nullptr) throw std::bad_alloc();
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
