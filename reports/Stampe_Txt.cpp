// Layout of the text report: "taglie.txt".

#include "Ambiente.h"
#include "FileNuovo.h"
#include "FormatiNumero.h"
#include "Numeri.h"
#include "Stampe.h"
#include "Windows1252.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Stampe {

namespace {

// One line of a shoe's own statistics. Labels and tabs differ from the general ones on purpose.
struct RigaTaglia
{
    std::string_view Etichetta;
    double modCarte::StatisticheTaglia::*Conto;
};

using modCarte::StatisticheTaglia;

constexpr std::array<RigaTaglia, 6> RigheEsiti = {{
    {"Vincite Nero: \t", &StatisticheTaglia::VinceNero},
    {"Vincite Rosso: \t", &StatisticheTaglia::VinceRosso},
    {"Colpi pari: \t", &StatisticheTaglia::Pari},
    {"Vin. Colore: \t", &StatisticheTaglia::Colore},
    {"Vin. Inverso: \t", &StatisticheTaglia::Inverso},
    {"31 après: \t", &StatisticheTaglia::TrentunoApres},
}};

constexpr std::array<RigaTaglia, 4> RigheCombinazioni = {{
    {"Nero-Colore: \t", &StatisticheTaglia::NeroColore},
    {"Nero-Inverso: \t", &StatisticheTaglia::NeroInverso},
    {"Rosso-Colore: \t", &StatisticheTaglia::RossoColore},
    {"Rosso-Inverso: \t", &StatisticheTaglia::RossoInverso},
}};

constexpr std::string_view Titolo = "\t\t\tSCALVINO";
constexpr std::string_view TitoloGenerali = "\t\tStatistiche generali";

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
    const auto campi = modCarte::DividiColpo(record);
    const std::string nero = ConPunti(campi[modCarte::CampoCarteNero]);
    // One shoe in some 200 has a longer hand: it is written without fill.
    const std::size_t vuoti = nero.size() < larghezzaNero ? larghezzaNero - nero.size() : 0;
    const auto numero = static_cast<std::int64_t>(NumeroIniziale(campi[modCarte::CampoNumero]));

    Riga(testo, "  ", DueCifre(numero), "  |  ", SegnoEsito(campi[modCarte::CampoEsito]), "   |  ",
         SegnoEsito(campi[modCarte::CampoColore]), "   |  ", campi[modCarte::CampoTotaleNero],
         " |  ", campi[modCarte::CampoTotaleRosso], " |", nero, std::string(vuoti, ' '), "|",
         ConPunti(campi[modCarte::CampoCarteRosso]));
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

template <std::size_t Quante>
void RigheConti(std::string& testo, const std::array<RigaTaglia, Quante>& righe, std::int64_t colpi,
                const Separatori& separatori)
{
    for (const auto& riga : righe) {
        const auto conto = static_cast<std::int64_t>(modCarte::Statistiche.*riga.Conto);
        Riga(testo, riga.Etichetta, TestoNumero(conto), " (",
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
    Riga(testo, "Colpi: \t\t", TestoNumero(m));
    Riga(testo, "Carte usate: \t", TestoNumero(cifre.CarteUsate), " (",
         Percento(Rapporto(cifre.CarteUsate, std::int64_t{modCarte::CarteTaglia}), separatori),
         ")");
    RigheConti(testo, RigheEsiti, m, separatori);
    Riga(testo, "Altre combinazioni:");
    RigheConti(testo, RigheCombinazioni, m, separatori);
    Riga(testo);
    return testo;
}

void Generali(std::string& testo, double numeroTaglie, const TotaliReport& totali,
              const Separatori& separatori)
{
    constexpr std::size_t primaCombinazione = 6;
    Riga(testo, "Taglie: \t\t", Migliaia(std::llround(numeroTaglie), separatori));
    Riga(testo, "Colpi totali: \t\t", Migliaia(totali.Colpi, separatori), " (",
         DueDecimali(Rapporto(totali.Colpi, numeroTaglie), separatori), ")");
    Riga(testo, "Carte utilizzate: \t", Migliaia(totali.CarteUsate, separatori), " (",
         Percento(Rapporto(totali.CarteUsate, numeroTaglie, modCarte::CarteTaglia), separatori),
         ")");
    for (std::size_t i = 0; i < RigheGenerali.size(); ++i) {
        if (i == primaCombinazione) Riga(testo);
        const auto& riga = RigheGenerali[i];
        const std::int64_t totale = totali.*riga.Totale;
        Riga(testo, riga.Etichetta, " ", riga.Tabulazioni, Migliaia(totale, separatori), " (",
             Percento(Rapporto(totale, totali.Colpi), separatori), ")");
    }
}

// The file is closed between two shoes, so that what stands in it is whole whenever a run ends.
void Accoda(FileNuovo& file, const std::string& testo)
{
    file.Riapri();
    file.Scrivi(InWindows1252(testo));
    file.Chiudi();
}

} // namespace

std::optional<TotaliReport> StampaTxt(double numeroTaglie)
{
    const std::int64_t taglie = TaglieDaFare(numeroTaglie);
    const Separatori separatori = SeparatoriPerFile(AmbienteInUso.Cifre);
    FileNuovo file(PercorsoReport(NomeTxt));
    std::string testo;
    Riga(testo, Titolo);
    Riga(testo);
    file.Scrivi(InWindows1252(testo));
    file.Chiudi();
    file.Conserva();

    const auto totali = EseguiPiene(taglie, [&](std::int64_t taglia, const CifreTaglia& cifre) {
        Accoda(file, Sezione(taglia, cifre, separatori));
    });
    if (!totali) return std::nullopt;

    testo.clear();
    Riga(testo);
    Riga(testo);
    Riga(testo, TitoloGenerali);
    Riga(testo);
    Generali(testo, numeroTaglie, *totali, separatori);
    Accoda(file, testo);
    file.PretendiNostro(); // nobody else's file is opened as the report
    AmbienteInUso.Apri(file.Percorso(), StileFinestra::NormaleConFuoco);
    return totali;
}

std::optional<TotaliReport> StatisticheTxt(double numeroTaglie,
                                           const EtichettaStato& etichettaStato)
{
    TaglieDaFare(numeroTaglie); // refuses a bad number before the old report is gone
    const Separatori separatori = SeparatoriPerFile(AmbienteInUso.Cifre);
    TogliFile(PercorsoReport(NomeTxt));
    const auto totali = EseguiConAvanzamento(numeroTaglie, etichettaStato);
    if (!totali) return std::nullopt;

    std::string testo;
    Riga(testo, Titolo);
    Riga(testo);
    Riga(testo, "\t\tSimulazione taglie");
    Riga(testo);
    Riga(testo, TitoloGenerali);
    Riga(testo);
    Generali(testo, numeroTaglie, *totali, separatori);

    FileNuovo file(PercorsoReport(NomeTxt));
    file.Scrivi(InWindows1252(testo));
    file.Chiudi();
    file.PretendiNostro();
    file.Conserva();
    AmbienteInUso.Apri(file.Percorso(), StileFinestra::NormaleConFuoco);
    return totali;
}

} // namespace Stampe
