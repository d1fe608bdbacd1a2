// Puts the surroundings of a report in place and back: what AmbienteDiProva.h promises.
#include "AmbienteDiProva.h"

#include "modCarte.h"

namespace aiuti {

AmbienteDiProva::AmbienteDiProva()
    : m_prima(Stampe::AmbienteInUso)
{
    Stampe::Ambiente ambiente = Stampe::AmbienteNeutro();
    ambiente.Cartella = Cartella.Nome();
    ambiente.SeparatoriNumeri = {",", "."};
    ambiente.Apri = [this](const std::string& percorso, StileFinestra stile) {
        Aperti.push_back(percorso);
        Stili.push_back(stile);
    };
    ambiente.Avvisa = [this](const Stampe::Messaggio& messaggio) { Messaggi.push_back(messaggio); };
    Stampe::AmbienteInUso = ambiente;
}

AmbienteDiProva::~AmbienteDiProva()
{
    Stampe::AmbienteInUso = m_prima;
}

void AmbienteDiProva::Distribuisci(const std::vector<std::vector<std::int16_t>>& mazzi)
{
    Stampe::AmbienteInUso.PreparaTaglia = [mazzi](std::int64_t taglia) {
        modCarte::ImpostaMazzo(mazzi.at(static_cast<std::size_t>(taglia) - 1));
    };
}

} // namespace aiuti
