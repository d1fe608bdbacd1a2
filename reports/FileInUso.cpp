// The game's names for what FileConteso.h and FileSulDisco.h of platform/ answer, and the warning.
#include "FileInUso.h"

#include "Ambiente.h"
#include "FileConteso.h"
#include "FileSulDisco.h"

namespace FileInUso {

Flag FileTrovato(const std::string& percorso)
{
    return ComeFlag(VoceTrovata(percorso));
}

std::int16_t FileAperto(const std::string& percorso)
{
    if (FileTrovato(percorso) == Falso) return FileAssente;
    return FileOccupato(percorso) ? FileTenuto : FileLibero;
}

Flag AvvisoFileInUso(const std::string& percorso)
{
    if (FileAperto(percorso) != FileTenuto) return Falso;
    // On purpose not the program's name, as all other boxes have it: this warning is known by its
    // title.
    Stampe::AmbienteInUso.Avvisa({"Ombrivento",
                                  "Il file è già aperto e in uso.\r"
                                  "Chiudere il file aperto e rilanciare la stampa.",
                                  Stampe::Icona::Informazione});
    return Vero;
}

} // namespace FileInUso
