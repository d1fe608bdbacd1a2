// The surroundings in use, and those that everybody starts from. What each field means is told in
// Ambiente.h.
#include "Ambiente.h"

#include "modCarte.h"

namespace Stampe {

Ambiente AmbienteInUso = AmbienteNeutro();

Ambiente AmbienteNeutro()
{
    Ambiente ambiente;
    ambiente.PreparaTaglia = [](std::int64_t) { modCarte::MescolaMazzo(); };
    ambiente.Fermare = [] { return false; };
    ambiente.Avvisa = [](const Messaggio&) {};
    ambiente.Apri = [](const std::string&, StileFinestra) {};
    return ambiente;
}

std::string PercorsoReport(std::string_view nome)
{
    return std::string(AmbienteInUso.Cartella).append(nome);
}

std::string PercorsoForma(std::string_view nome)
{
    return AmbienteInUso.Report.empty() ? PercorsoReport(nome) : AmbienteInUso.Report;
}

} // namespace Stampe
