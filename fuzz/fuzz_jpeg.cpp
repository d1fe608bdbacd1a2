// The headers of a JPEG file: whatever the bytes, something sound or one clear error.

#include "Lettori.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti)
{
    const std::string_view file(reinterpret_cast<const char*>(byte), quanti);
    bool accettato = false;
    if (!aiuti::DifettoDiLettura(file, "prova.jpg", accettato).empty()) std::abort();
    return 0;
}
