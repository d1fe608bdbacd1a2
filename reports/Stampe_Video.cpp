// Layout of the statistics drawn on the card table or another Superficie.h.

#include "Ambiente.h"
#include "ErroreRuntime.h"
#include "FileVecchio.h"
#include "FormatiNumero.h"
#include "RigheGenerali.h"
#include "Scritte.h"
#include "Stampe_Comune.h"

#include <string>
#include <vector>

namespace Stampe {

namespace {

constexpr std::string_view Faccia = scritte::Verdana;
constexpr std::int32_t AltezzaTitoletto = 20; // pixels
constexpr std::int32_t AltezzaRiga = 16;

// Columns and rows, in twips.
constexpr float XNome = 1100;
constexpr float YNome = 160;
constexpr float XTitoletto = 2500;
constexpr float XEtichetta = 1000;
constexpr float XValore = 3500;
constexpr float XQuota = 4500;

constexpr float PrimaRiga = 1500;
constexpr float PassoRighe = 300;
constexpr float StaccoCombinate = 100; // above the first combined outcome

// A row of the table: what stands where. The share may be empty.
struct RigaVideo
{
    float Y;
    std::string_view Etichetta;
    std::string Valore;
    std::string Quota;
};

std::vector<RigaVideo> Tabella(const NumeroTaglie& chieste, const TotaliReport& totali)
{
    const Separatori& separatori = AmbienteInUso.SeparatoriNumeri;
    std::vector<RigaVideo> tabella;
    float y = PrimaRiga;
    tabella.push_back({y, "Taglie:", MigliaiaConZero(chieste.Mostrate(), separatori), {}});
    const auto righe = RigheGenerali(chieste, totali, separatori);
    for (std::size_t i = 0; i < righe.size(); ++i) {
        y += i == PrimaCombinata ? PassoRighe + StaccoCombinate : PassoRighe;
        const auto etichetta = i < PrimoEsito ? righe[i].Etichetta : EtichettaBreve(i - PrimoEsito);
        tabella.push_back(
            {y, etichetta, MigliaiaConZero(righe[i].Totale, separatori), righe[i].Quota});
    }
    return tabella;
}

// Column after column: all labels, all values, all shares.
void DisegnaTabella(Superficie& superficie, const std::vector<RigaVideo>& righe)
{
    PrintSemplice(superficie, TitoloSimulazione, XTitoletto, 750, Faccia, AltezzaTitoletto);
    PrintSemplice(superficie, TitoloStatistiche, XTitoletto, 1050, Faccia, AltezzaTitoletto);
    for (const auto& riga : righe) {
        PrintSemplice(superficie, riga.Etichetta, XEtichetta, riga.Y, Faccia, AltezzaRiga);
    }
    for (const auto& riga : righe) {
        PrintSemplice(superficie, riga.Valore, XValore, riga.Y, Faccia, AltezzaRiga);
    }
    for (const auto& riga : righe) {
        if (riga.Quota.empty()) continue;
        PrintSemplice(superficie, riga.Quota, XQuota, riga.Y, Faccia, AltezzaRiga);
    }
}

} // namespace

std::optional<TotaliReport> StatisticheVideo(double numeroTaglie, Superficie& superficie,
                                             const EtichettaStato& etichettaStato)
{
    const NumeroTaglie chieste(numeroTaglie); // refuses a bad number before the old report is gone
    if (!AmbienteInUso.Cartella.empty()) TogliFile(PercorsoReport(NomeTxt));
    const auto totali = EseguiConAvanzamento(chieste, etichettaStato);
    if (!totali) return std::nullopt;

    // All numbers before the first stroke: a percentage of nothing leaves the picture alone.
    const auto righe = Tabella(chieste, *totali);
    superficie.Pulisci();
    scritte::StampaNome(superficie, XNome, YNome);
    DisegnaTabella(superficie, righe);
    superficie.Aggiorna();
    return totali;
}

} // namespace Stampe
