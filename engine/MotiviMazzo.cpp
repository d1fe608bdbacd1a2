// The wording of the promises in MotiviMazzo.h.
#include "MotiviMazzo.h"

#include "Numeri.h"
#include "modCarte.h"

namespace modCarte {

std::string MotivoNumeroCarte(std::size_t quante)
{
    return (quante == 1 ? "la carta è " : "le carte sono ") +
           TestoNumero(static_cast<std::int64_t>(quante)) + " invece di " +
           TestoNumero(std::int64_t{CarteTaglia});
}

std::string MotivoCartaRipetuta(std::string_view carta)
{
    return "la carta " + std::string(carta) + " si ripete";
}

} // namespace modCarte
