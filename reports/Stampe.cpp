#include "Stampe.h"

#include "Ambiente.h"
#include "ErroreRuntime.h"
#include "FileVecchio.h"
#include "FormatiNumero.h"
#include "Numeri.h"
#include "modCarte.h"

namespace Stampe {

std::string PercorsoReport(std::string_view nome)
{
    return std::string(AmbienteInUso.Cartella).append(nome);
}

std::optional<TotaliReport> EseguiConAvanzamento(double numeroTaglie,
                                                 const EtichettaStato& etichettaStato)
{
    const std::string diTutte = " di " + TestoNumero(numeroTaglie);
    std::string didascalia;
    return EseguiStatistiche(TaglieDaFare(numeroTaglie), [&](std::int64_t taglia) {
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

std::optional<TotaliReport> SoloTotali(double numeroTaglie, const EtichettaStato& etichettaStato)
{
    return EseguiConAvanzamento(numeroTaglie, etichettaStato);
}

void EliminaReport()
{
    for (const auto nome : {NomeHtml, NomePdf, NomeTxt}) {
        const std::string percorso = PercorsoReport(nome);
        try {
            if (modCarte::FileEsiste(percorso) != Falso) TogliFile(percorso);
        } catch (const ErroreRuntime&) {
            // Clearing up at the end must not stop at a report that is still open in a viewer.
        }
    }
}

} // namespace Stampe
