// Layout of the text report: "taglie.txt". What all layouts share stands in Stampe_Comune.h.

#include "Ambiente.h"
#include "Destinazione.h"
#include "FileVecchio.h"
#include "FormatiNumero.h"
#include "Numeri.h"
#include "RigheGenerali.h"
#include "Scritte.h"
#include "Stampe_Comune.h"
#include "Windows1252.h"

#include <algorithm>
#include <cstddef>

namespace Stampe {

namespace {

std::string ConPunti(std::string_view carte)
{
    std::string testo(carte);
    std::replace(testo.begin(), testo.end(), '#', '.');
    return testo;
}

// A tie is "=" in both columns.
std::string_view SegnoEsito(std::string_view esito)
{
    return esito == "E" ? "=" : esito;
}

void RigaColpo(std::string& testo, std::string_view record)
{
    constexpr std::size_t larghezzaNero = 31;
    const modCarte::RecordColpo colpo(record);
    const std::string nero = ConPunti(colpo.Nero().Testo());
    // One shoe in some 200 has a longer hand: it is written without fill.
    const std::size_t vuoti = nero.size() < larghezzaNero ? larghezzaNero - nero.size() : 0;
    const auto numero = static_cast<std::int64_t>(NumeroIniziale(colpo.Numero()));

    Riga(testo, "  ", DueCifre(numero), "  |  ", SegnoEsito(colpo.Esito()), "   |  ",
         SegnoEsito(colpo.Colore()), "   |  ", colpo.TotaleNero(), " |  ", colpo.TotaleRosso(),
         " |", nero, std::string(vuoti, ' '), "|", ConPunti(colpo.Rosso().Testo()));
}

void TabellaColpi(std::string& testo, std::int64_t ultimo)
{
    Riga(testo, "   C  |  NR  |  CI  |  N  |  R  |         Mano Nero             |"
                "        Mano Rosso   ");
    Riga(testo, "      |      |      |     |     |                               |"
                "                     ");
    const auto& colpi = modCarte::Colpi;
    for (std::int64_t i = 1; i <= ultimo; ++i) {
        RigaColpo(testo, colpi[static_cast<std::size_t>(i)]);
    }
}

// A label and tabs up to a column where all values of a block begin; tabs stop at every eighth.
std::string FinoAColonna(std::string_view etichetta, std::ptrdiff_t colonna)
{
    constexpr std::ptrdiff_t passo = 8;
    const auto inizioCarattere = [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    };
    std::string testo = std::string(etichetta) + " ";
    const auto larga = std::count_if(testo.begin(), testo.end(), inizioCarattere);
    const auto manca = std::max<std::ptrdiff_t>(colonna - larga, 0);
    const std::ptrdiff_t tabulazioni = (manca + passo - 1) / passo;
    return testo.append(static_cast<std::size_t>(tabulazioni), '\t');
}

// A shoe's statistics begin their values a tab stop before the general ones.
constexpr std::ptrdiff_t ColonnaTaglia = 16;
constexpr std::ptrdiff_t ColonnaGenerale = 24;

// "Vincite Colore:" would reach to the column of the values: the word is cut there.
std::string EtichettaTaglia(std::size_t posto)
{
    constexpr std::string_view parola = "Vincite";
    std::string etichetta(EtichettaBreve(posto));
    const bool larga = etichetta.size() + 1 >= ColonnaTaglia;
    if (larga && etichetta.starts_with(parola)) etichetta.replace(0, parola.size(), "Vin.");
    return etichetta;
}

// The outcomes of the shoe from this place in the reports up to, not including, fine.
void RigheEsiti(std::string& testo, std::size_t posto, std::size_t fine, std::int64_t colpi,
                const Separatori& separatori)
{
    for (; posto < fine; ++posto) {
        const auto conto = static_cast<std::int64_t>(
            modCarte::Conto(modCarte::Statistiche, modCarte::OrdineReport[posto]));
        Riga(testo, FinoAColonna(EtichettaTaglia(posto), ColonnaTaglia), TestoNumero(conto), " (",
             Percento(Rapporto(conto, colpi), separatori), ")");
    }
}

std::string Sezione(std::int64_t taglia, const CifreTaglia& cifre, const Separatori& separatori)
{
    const std::int64_t m = cifre.ColpiTesto;
    std::string testo;
    Riga(testo);
    Riga(testo, "\t\t\tTaglia ", TestoNumero(taglia));
    Riga(testo);
    TabellaColpi(testo, m);
    Riga(testo);
    Riga(testo, FinoAColonna("Colpi:", ColonnaTaglia), TestoNumero(m));
    Riga(testo, FinoAColonna("Carte usate:", ColonnaTaglia), TestoNumero(cifre.CarteUsate), " (",
         Percento(Rapporto(cifre.CarteUsate, std::int64_t{modCarte::CarteTaglia}), separatori),
         ")");
    RigheEsiti(testo, 0, modCarte::PrimoCombinato, m, separatori);
    Riga(testo, "Altre combinazioni:");
    RigheEsiti(testo, modCarte::PrimoCombinato, EtichetteEsiti.size(), m, separatori);
    Riga(testo);
    return testo;
}

void Generali(std::string& testo, const NumeroTaglie& chieste, const TotaliReport& totali,
              const Separatori& separatori)
{
    Riga(testo, FinoAColonna("Taglie:", ColonnaGenerale), Migliaia(chieste.Mostrate(), separatori));
    const auto righe = RigheGenerali(chieste, totali, separatori);
    for (std::size_t i = 0; i < righe.size(); ++i) {
        if (i == PrimaCombinata) Riga(testo);
        Riga(testo, FinoAColonna(righe[i].Etichetta, ColonnaGenerale),
             Migliaia(righe[i].Totale, separatori), " (", righe[i].Quota, ")");
    }
}

// What the place of the report is asked before the shoes are played. The old one goes already,
// where the surroundings do not want it kept.
void PreparaPosto()
{
    const std::string percorso = PercorsoForma(NomeTxt);
    if (AmbienteInUso.Via == ViaReport::NelPosto) TogliFile(percorso);
    if (AmbienteInUso.Via == ViaReport::Intero) PretendiSostituibile(percorso);
}

void Finisci(Destinazione& file)
{
    file.Finisci();
    AmbienteInUso.Apri(PercorsoForma(NomeTxt), StileFinestra::NormaleConFuoco);
}

} // namespace

std::optional<TotaliReport> StampaTxt(double numeroTaglie)
{
    const NumeroTaglie chieste(numeroTaglie);
    const Separatori separatori = SeparatoriPerFile(AmbienteInUso.SeparatoriNumeri);
    const auto file = ApriCrescente(NomeTxt);
    std::string testo;
    Riga(testo, "\t\t\t", scritte::Insegna);
    Riga(testo);
    file->Scrivi(InWindows1252(testo));

    const auto totali = EseguiPiene(chieste, [&](std::int64_t taglia, const CifreTaglia& cifre) {
        file->Scrivi(InWindows1252(Sezione(taglia, cifre, separatori)));
    });
    if (!totali) return std::nullopt;

    testo.clear();
    Riga(testo);
    Riga(testo);
    Riga(testo, "\t\t", TitoloStatistiche);
    Riga(testo);
    Generali(testo, chieste, *totali, separatori);
    file->Scrivi(InWindows1252(testo));
    Finisci(*file);
    return totali;
}

std::optional<TotaliReport> StatisticheTxt(double numeroTaglie,
                                           const EtichettaStato& etichettaStato)
{
    const NumeroTaglie chieste(numeroTaglie); // refuses a bad number before the old report is gone
    const Separatori separatori = SeparatoriPerFile(AmbienteInUso.SeparatoriNumeri);
    PreparaPosto();
    const auto totali = EseguiConAvanzamento(chieste, etichettaStato);
    if (!totali) return std::nullopt;

    std::string testo;
    Riga(testo, "\t\t\t", scritte::Insegna);
    Riga(testo);
    Riga(testo, "\t\t", TitoloSimulazione);
    Riga(testo);
    Riga(testo, "\t\t", TitoloStatistiche);
    Riga(testo);
    Generali(testo, chieste, *totali, separatori);

    const auto file = ApriDestinazione(NomeTxt);
    file->Scrivi(InWindows1252(testo));
    Finisci(*file);
    return totali;
}

} // namespace Stampe
