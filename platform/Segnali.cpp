// The request to stop itself; who sets it is in Segnali_posix.cpp and Segnali_windows.cpp.
#include "Segnali.h"

#include <atomic>

namespace {

constinit std::atomic<bool> chiesta = false;
static_assert(std::atomic<bool>::is_always_lock_free); // a signal handler sets it

} // namespace

bool InterruzioneChiesta() noexcept
{
    return chiesta.load(std::memory_order_relaxed);
}

void ImpostaInterruzione(bool adesso) noexcept
{
    chiesta.store(adesso, std::memory_order_relaxed);
}
