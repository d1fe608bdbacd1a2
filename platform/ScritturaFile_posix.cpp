// The system's own calls. ScritturaFile.cpp goes on where they stop early.
#include "ScritturaFile.h"

#include <unistd.h>

namespace {

std::ptrdiff_t ScriviVero(int descrittore, const void* byte, std::size_t quanti)
{
    return ::write(descrittore, byte, quanti);
}

int ChiudiVero(int descrittore)
{
    return ::close(descrittore);
}

} // namespace

constinit ChiamateFile ChiamateInUso = {ScriviVero, ChiudiVero};

ChiamateFile ChiamateDelSistema()
{
    return {ScriviVero, ChiudiVero};
}
