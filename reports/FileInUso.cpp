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
    // This one box has a title of its own on purpose.
    Stampe::AmbienteInUso.Avvisa({"Ombrivento",
                                  "Il file è già aperto e in uso.\r"
                                  "Chiudere il file aperto e rilanciare la stampa.",
                                  Stampe::Icona::Informazione});
    return Vero;
}

} // namespace FileInUso
