// The progress of a statistics-only run and the lines above a shoe's table. The run itself is in
// CorsaTaglie.cpp.
#include "Stampe_Comune.h"

#include "Ambiente.h"
#include "FormatiNumero.h"
#include "Numeri.h"
#include "modCarte.h"

namespace Stampe {

std::optional<TotaliReport> EseguiConAvanzamento(const NumeroTaglie& chieste,
                                                 const EtichettaStato& etichettaStato)
{
    const std::string diTutte = " di " + TestoNumero(chieste.Chieste());
    std::string didascalia;
    return EseguiStatistiche(chieste, [&](std::int64_t taglia) {
        if (etichettaStato) {
            didascalia = "Elaborazione in corso. Attendere... Taglia ";
            didascalia.append(TestoNumero(taglia)).append(diTutte);
            etichettaStato(didascalia);
        }
        if (AmbienteInUso.Cedi) AmbienteInUso.Cedi();
    });
}

std::array<std::string, 2> RigheRiassunto(const CifreTaglia& cifre, const Separatori& separatori)
{
    const auto& conti = modCarte::Statistiche;
    const std::int64_t s = cifre.ColpiPagina;
    const auto conQuota = [&](double conto) {
        const auto intero = static_cast<std::int64_t>(conto);
        return TestoNumero(intero) + " (" + Percento(Rapporto(intero, s), separatori) + ")";
    };
    return {"Colpi taglia: " + TestoNumero(s) + " - Nero: " + conQuota(conti.VinceNero) +
                " - Rosso: " + conQuota(conti.VinceRosso) + " - Egalitè: " + conQuota(conti.Pari) +
                " - Carte utilizzate: " + TestoNumero(cifre.CarteUsate),
            "Colore: " + conQuota(conti.Colore) + " - Inverso: " + conQuota(conti.Inverso) +
                " - 31 Après: " + conQuota(conti.TrentunoApres)};
}

} // namespace Stampe
