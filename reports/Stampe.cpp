#include "Stampe.h"

#include "Ambiente.h"
#include "ErroreRuntime.h"
#include "FileNuovo.h"
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
