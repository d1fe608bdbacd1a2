// The one question of the game's module about the disk.

#include "modCarte.h"

#include "FileSulDisco.h"

namespace modCarte {

Flag FileEsiste(const std::string& percorso)
{
    return ComeFlag(FileOrdinario(percorso));
}

} // namespace modCarte
