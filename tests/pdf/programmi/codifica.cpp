// Encodes buffers for readers outside: reads from standard input, for each buffer, its length as
// four bytes, lowest first, and the bytes; writes the encoded bytes in the same form.
//
//   codifica rl|lzw|a85|hex

#include "Encoders.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <map>
#include <string>

namespace {

using Codificatore = std::string (*)(std::string_view);

bool Leggi(std::string& byte)
{
    std::array<unsigned char, 4> testa{};
    if (std::fread(testa.data(), 1, testa.size(), stdin) != testa.size()) return false;
    std::uint32_t lunghezza = 0;
    for (std::size_t i = testa.size(); i-- > 0;) lunghezza = lunghezza << 8 | testa[i];
    byte.resize(lunghezza);
    return std::fread(byte.data(), 1, byte.size(), stdin) == byte.size();
}

void Scrivi(const std::string& byte)
{
    for (unsigned i = 0; i < 4; ++i) std::putchar(static_cast<int>(byte.size() >> (8 * i) & 255));
    std::fwrite(byte.data(), 1, byte.size(), stdout);
}

} // namespace

int main(int argc, char** argv)
{
    const std::map<std::string, Codificatore> nomi{{"rl", pdf::prRunLengthEncode},
                                                   {"lzw", pdf::prLZWEncode},
                                                   {"a85", pdf::prToASCII85},
                                                   {"hex", pdf::prToASCIIHex}};
    const auto scelto = nomi.find(argc == 2 ? argv[1] : "");
    if (scelto == nomi.end()) return 2;
    for (std::string byte; Leggi(byte);) Scrivi(scelto->second(byte));
    return std::fflush(stdout) == 0 ? 0 : 1;
}
