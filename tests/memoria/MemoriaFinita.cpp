// Every form of operator new, refusing the request that a test has chosen: prova_comando.cpp and
// prova_finestra.cpp choose each in turn.
#include "MemoriaFinita.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

constinit std::atomic<bool> attiva = false;
constinit std::atomic<std::uint64_t> richieste = 0;
constinit std::atomic<std::uint64_t> daRifiutare = 0;
constinit std::atomic<bool> ancheDopo = false;
constinit std::atomic<std::int64_t> presi = 0;

bool Rifiuta()
{
    if (!attiva) return false;
    const std::uint64_t questa = ++richieste;
    return daRifiutare != 0 && (questa == daRifiutare || (ancheDopo && questa > daRifiutare));
}

void* Contato(void* blocco)
{
    if (blocco != nullptr) ++presi;
    return blocco;
}

void* Prendi(std::size_t quanti)
{
    return Contato(Rifiuta() ? nullptr : std::malloc(quanti));
}

void* Prendi(std::size_t quanti, std::align_val_t passo)
{
    const auto allineamento = static_cast<std::size_t>(passo);
    const std::size_t arrotondati = (quanti + allineamento - 1) / allineamento * allineamento;
    return Contato(Rifiuta() ? nullptr : std::aligned_alloc(allineamento, arrotondati));
}

void* Preteso(void* blocco)
{
    if (blocco == nullptr) throw std::bad_alloc();
    return blocco;
}

void Rendi(void* blocco)
{
    if (blocco != nullptr) --presi;
    std::free(blocco);
}

} // namespace

namespace memoria {

void Guasta(std::uint64_t quale, Durata durata)
{
    richieste = 0;
    daRifiutare = quale;
    ancheDopo = durata == Durata::DaAllora;
    attiva = true;
}

std::uint64_t Ripara()
{
    attiva = false;
    return richieste;
}

std::int64_t Presi()
{
    return presi;
}

} // namespace memoria

// All forms: one that were left to the sanitizers would take from another heap than it gives to.
void* operator new(std::size_t quanti)
{
    return Preteso(Prendi(quanti));
}

void* operator new[](std::size_t quanti)
{
    return Preteso(Prendi(quanti));
}

void* operator new(std::size_t quanti, std::align_val_t passo)
{
    return Preteso(Prendi(quanti, passo));
}

void* operator new[](std::size_t quanti, std::align_val_t passo)
{
    return Preteso(Prendi(quanti, passo));
}

void* operator new(std::size_t quanti, const std::nothrow_t&) noexcept
{
    return Prendi(quanti);
}

void* operator new[](std::size_t quanti, const std::nothrow_t&) noexcept
{
    return Prendi(quanti);
}

void operator delete(void* blocco) noexcept
{
    Rendi(blocco);
}

void operator delete[](void* blocco) noexcept
{
    Rendi(blocco);
}

void operator delete(void* blocco, std::size_t) noexcept
{
    Rendi(blocco);
}

void operator delete[](void* blocco, std::size_t) noexcept
{
    Rendi(blocco);
}

void operator delete(void* blocco, std::align_val_t) noexcept
{
    Rendi(blocco);
}

void operator delete[](void* blocco, std::align_val_t) noexcept
{
    Rendi(blocco);
}

void operator delete(void* blocco, std::size_t, std::align_val_t) noexcept
{
    Rendi(blocco);
}

void operator delete[](void* blocco, std::size_t, std::align_val_t) noexcept
{
    Rendi(blocco);
}

void operator delete(void* blocco, const std::nothrow_t&) noexcept
{
    Rendi(blocco);
}

void operator delete[](void* blocco, const std::nothrow_t&) noexcept
{
    Rendi(blocco);
}
