#include "Stampe.h"

#include "Ambiente.h"
#include "ErroreRuntime.h"
#include "FileVecchio.h"
#include "FormatiNumero.h"
#include "Numeri.h"
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

std::string PercorsoReport(std::string_view nome)
{
    return std::string(AmbienteInUso.Cartella).append(nome);
}

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
