// The test whether a last record is short; all else of RecordColpo.h is short enough to stand
// there.
#include "RecordColpo.h"

#include "ErroreRuntime.h"
#include "Numeri.h"

namespace modCarte {

namespace {

constexpr int MassimoBreve = 61;

std::int16_t Intero(std::string_view totale)
{
    std::uint64_t valore = 0;
    if (!LeggiInteroSenzaSegno(totale, valore)) {
        throw ErroreRuntime(NumeroErrore::TipoNonCorrispondente);
    }
    return Intero16(static_cast<double>(valore));
}

} // namespace

bool RecordColpo::Breve() const
{
    return Intero(TotaleNero()) + Intero(TotaleRosso()) <= MassimoBreve;
}

bool RecordColpo::BreveComeScritto() const
{
    return NumeroIniziale(TotaleRosso()) + NumeroIniziale(TotaleNero()) <= MassimoBreve;
}

} // namespace modCarte
