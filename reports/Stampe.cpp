// What is no layout: the table of forms, the run without a report and the end of all reports.
// Layouts start from Stampe_Comune.h.
#include "Stampe.h"

#include "Ambiente.h"
#include "ErroreRuntime.h"
#include "FileVecchio.h"
#include "Stampe_Comune.h"
#include "modCarte.h"

namespace Stampe {

namespace {

using Statistiche = std::optional<TotaliReport>(double, const EtichettaStato&);

// An operation that draws nothing, called as one that does.
template <Statistiche* Operazione>
std::optional<TotaliReport> SenzaDisegno(double numeroTaglie, Superficie& /*superficie*/,
                                         const EtichettaStato& etichettaStato)
{
    return Operazione(numeroTaglie, etichettaStato);
}

} // namespace

constinit const std::array<DatiForma, 5> Forme = {{
    {NomeHtml, StampaHtml, SenzaDisegno<StatisticheHtml>},
    {NomePdf, StampaPdf, SenzaDisegno<StatistichePdf>},
    {NomeTxt, StampaTxt, SenzaDisegno<StatisticheTxt>},
    {"", nullptr, StatisticheVideo},
    {"", nullptr, SenzaDisegno<SoloTotali>},
}};

std::optional<TotaliReport> SoloTotali(double numeroTaglie, const EtichettaStato& etichettaStato)
{
    return EseguiConAvanzamento(NumeroTaglie(numeroTaglie), etichettaStato);
}

void EliminaReport()
{
    for (const auto& forma : Forme) {
        if (forma.File.empty()) continue;
        const std::string percorso = PercorsoReport(forma.File);
        try {
            if (modCarte::FileEsiste(percorso) != Falso) TogliFile(percorso);
        } catch (const ErroreRuntime&) {
            // Clearing up at the end must not stop at a report that is still open in a viewer.
        }
    }
}

} // namespace Stampe
