// Any bytes become Windows-1252: at most as many bytes as came in, and ASCII stays as it is.

#include "Windows1252.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti)
{
    const std::string_view testo(reinterpret_cast<const char*>(byte), quanti);
    const std::string uscita = InWindows1252(testo);
    if (uscita.size() > testo.size()) std::abort();
    const auto ascii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    if (std::all_of(testo.begin(), testo.end(), ascii) && uscita != testo) std::abort();
    if (EntraInWindows1252(testo) && uscita.empty() != testo.empty()) std::abort();
    return 0;
}
