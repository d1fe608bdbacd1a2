// A bitmap: whatever the bytes, something sound or one clear error.

#include "Lettori.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr std::uint64_t PixelPochi = 1 << 16;
constexpr std::uint64_t PixelTroppi = 1 << 22; // refused with so few bytes

std::uint64_t Numero(const std::uint8_t* byte)
{
    std::uint64_t numero = 0;
    for (int i = 3; i >= 0; --i) numero = numero << 8 | byte[i];
    return numero;
}

// Run-length data may leave millions of pixels out, which takes a thousand times as long and
// shows nothing new.
bool Lenta(const std::uint8_t* byte, std::size_t quanti)
{
    if (quanti < 26 || byte[14] == 12) return false;
    const std::uint64_t pixel = Numero(byte + 18) * Numero(byte + 22);
    return pixel > PixelPochi && pixel <= PixelTroppi;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti)
{
    if (Lenta(byte, quanti)) return 0;
    const std::string_view file(reinterpret_cast<const char*>(byte), quanti);
    bool accettato = false;
    if (!aiuti::DifettoDiLettura(file, "prova.bmp", accettato).empty()) std::abort();
    return 0;
}
