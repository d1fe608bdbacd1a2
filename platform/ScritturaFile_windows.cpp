// The system's own calls. ScritturaFile.cpp goes on where they stop early.
#include "ScritturaFile.h"

#include <io.h>

namespace {

std::ptrdiff_t ScriviVero(int descrittore, const void* byte, std::size_t quanti)
{
    constexpr std::size_t massimo = 1u << 30;
    return ::_write(descrittore, byte, static_cast<unsigned>(quanti < massimo ? quanti : massimo));
}

int ChiudiVero(int descrittore)
{
    return ::_close(descrittore);
}

} // namespace

constinit ChiamateFile ChiamateInUso = {ScriviVero, ChiudiVero};

ChiamateFile ChiamateDelSistema()
{
    return {ScriviVero, ChiudiVero};
}
