// Layout of the HTML report: "taglie.htm". Its style sheets stand in Stampe_Stile.cpp.
//
// Unclosed elements, the link to a section that a single shoe does not have and the differing
// indents are kept on purpose: the page is promised byte for byte to programs that read it, and
// browsers show it all the same.

#include "Ambiente.h"
#include "Destinazione.h"
#include "FormatiNumero.h"
#include "Numeri.h"
#include "RigheGenerali.h"
#include "Scritte.h"
#include "Stampe_Comune.h"
#include "Stampe_Stile.h"
#include "Windows1252.h"

#include <span>

namespace Stampe {

std::string_view SemeHtml(std::string_view carta)
{
    switch (modCarte::SemeScritto(carta)) {
    case 'C':
        return "&hearts;";
    case 'Q':
        return "&diams;";
    case 'F':
        return "&clubs;";
    case 'P':
        return "&spades;";
    default:
        return "";
    }
}

std::string_view ClasseRossa(std::string_view carta)
{
    return modCarte::CartaRossa(carta) ? " red" : "";
}

namespace {

void Testa(std::string& testo, FoglioStile foglio)
{
    for (const auto riga : {"<html>", "<head>", "<title>Scalvino</title>", "<style>", "<!--"}) {
        Riga(testo, riga);
    }
    AggiungiStile(testo, foglio);
    for (const auto riga : {"-->", "</style>", "</head>", "<body>"}) Riga(testo, riga);
}

void Coda(std::string& testo)
{
    Riga(testo, "</body>");
    Riga(testo, "</html>");
}

void Scarica(Destinazione& file, std::string& testo)
{
    file.Scrivi(InWindows1252(testo));
    testo.clear();
}

// False when asked to stop: the links of very many shoes take a while.
bool CimaPagina(Destinazione& file, std::string& testo, const NumeroTaglie& chieste)
{
    constexpr std::size_t pieno = 64 * 1024; // any number of links takes no more memory than this
    Riga(testo,
         "<a name=\"top\"></a><div id=\"su\"><a href=\"#statistiche\">Statistiche</a></div>");
    Riga(testo, "<div align=\"center\">");
    Riga(testo, "<font face=\"Tahoma\" size=\"5\"><b>", scritte::Insegna, "</b></font><br><br>");
    if (chieste.PiuDiUna()) {
        Riga(testo, "Vai alla taglia: ");
        // The first shoe has no link on purpose: it follows at once, and its link would lead
        // nowhere that the reader is not already.
        for (std::int64_t i = 2; i <= chieste.DaFare(); ++i) {
            const std::string numero = TestoNumero(i);
            Riga(testo, "<a href=\"#", numero, "\">", numero, "</a>");
            if (testo.size() > pieno) {
                Scarica(file, testo);
                if (AmbienteInUso.Fermare()) return false;
            }
        }
    }
    Riga(testo, "</div>");
    Riga(testo, "<br>");
    return true;
}

// ---- A shoe ----------------------------------------------------------------------------------

// The two outcome cells of a pair: a bullet in the first, in the second, or a tie in both.
void CelleCoppia(std::string& testo, bool prima, bool seconda)
{
    constexpr std::string_view punto =
        "  <td width=\"5%\" align=\"center\"><font size= 5 >&bull;</font></td>";
    constexpr std::string_view vuota = "  <td width=\"5%\" align=\"center\">&nbsp;</td>";
    constexpr std::string_view pari = "  <td width=\"5%\" align=\"center\">---</td>";
    const bool nessuna = !prima && !seconda;
    Riga(testo, nessuna ? pari : prima ? punto : vuota);
    Riga(testo, nessuna ? pari : seconda ? punto : vuota);
}

void CellaCarta(std::string& testo, std::string_view carta)
{
    Riga(
        testo,
        "          <td align=\"left\"><div class=\"card\"><div class=\"front\"><div class=\"num\">",
        modCarte::ValoreScritto(carta), "</div><div class=\"spot", ClasseRossa(carta), "\">",
        SemeHtml(carta), "</div></div></div></td>");
}

void CellaMano(std::string& testo, std::string_view larghezza, std::string_view totale,
               const modCarte::Mano& mano)
{
    Riga(testo, "  <td width=\"", larghezza, "\" align=\"center\">");
    Riga(testo, "      <table align=\"left\" class=\"norm\" width=\"95%\">");
    Riga(testo, "        <tr>");
    Riga(testo, "          <td width=\"20px\" align=\"left\"><p align=\"left\">", totale, "</td>");
    Riga(testo, "          <td width=\"20px\" align=\"left\">&nbsp;</td>");
    for (const auto carta : mano) CellaCarta(testo, carta);
    Riga(testo, "         <td width=\"80%\" align=\"left\">&nbsp;</td>");
    Riga(testo, "        </tr>");
    Riga(testo, "      </table>");
    Riga(testo, "  </td>");
}

void RigaColpo(std::string& testo, std::string_view record)
{
    const modCarte::RecordColpo colpo(record);
    Riga(testo, "<tr>");
    Riga(testo, "  <td width=\"5%\" align=\"center\">", colpo.Numero(), "</td>");
    CelleCoppia(testo, colpo.VinceNero(), colpo.VinceRosso());
    CelleCoppia(testo, colpo.VinceColore(), colpo.VinceInverso());
    CellaMano(testo, "37%", colpo.TotaleNero(), colpo.Nero());
    CellaMano(testo, "38%", colpo.TotaleRosso(), colpo.Rosso());
    Riga(testo, "</tr>");
}

void IntestazioneTabella(std::string& testo)
{
    Riga(testo, "  <table class=sample width=\"60%\" >");
    Riga(testo, "    <tr>");
    Riga(testo, "      <td width=\"5%\" align=\"center\">Colpo</td>");
    Riga(testo, "      <td width=\"5%\" align=\"center\">Nero</td>");
    Riga(testo,
         "      <td width=\"5%\" align=\"center\"><font color=\"#FF0000\">Rosso</font></td>");
    Riga(testo, "      <td width=\"5%\" align=\"center\">Colore</td>");
    Riga(testo,
         "      <td width=\"5%\" align=\"center\"><font color=\"#FF0000\">Inverso</font></td>");
    Riga(testo, "      <td width=\"37%\" align=\"center\">Mano Nero</td>");
    Riga(testo, "      <td width=\"38%\" align=\"center\">Mano Rosso</td>");
    Riga(testo, "    </tr>");
}

std::string Sezione(std::int64_t taglia, const NumeroTaglie& chieste, const CifreTaglia& cifre,
                    const Separatori& separatori)
{
    const std::string numero = TestoNumero(taglia);
    std::string testo;
    Riga(testo, "<a name=\"", numero, "\"><div id=\"su\"><a href=\"#top\">Torna su</a></div>");
    Riga(testo, "<div align=\"center\">");
    Riga(testo, "<font face=\"arial\" size=\"4\"><b>Taglia", chieste.PiuDiUna() ? " " + numero : "",
         "</b></font><br><br>");
    const auto riassunto = RigheRiassunto(cifre, separatori);
    Riga(testo, riassunto[0], "<br>");
    Riga(testo, riassunto[1], "<br><br>");
    IntestazioneTabella(testo);
    const auto& colpi = modCarte::Colpi;
    for (std::int64_t j = 1; j <= cifre.ColpiPagina; ++j) {
        RigaColpo(testo, colpi[static_cast<std::size_t>(j)]);
    }
    Riga(testo, "</table>");
    Riga(testo, "</div>");
    Riga(testo, "<br>");
    return testo;
}

// ---- General statistics ----------------------------------------------------------------------

constexpr std::string_view PrimaLarga = "16%";
constexpr std::string_view PrimaStretta = "8%";

// Label, value and percentage; the first triple of a row is a little narrower. An empty quota
// leaves the third cell empty, without parentheses.
void Terna(std::string& testo, bool prima, std::string_view etichetta, std::string_view valore,
           const std::string& quota)
{
    Riga(testo, "      <td width=\"", prima ? PrimaLarga : "17%", "\">", etichetta, "</td>");
    Riga(testo, "      <td width=\"", prima ? PrimaStretta : "9%", "\">", valore, "</td>");
    if (quota.empty()) Riga(testo, "      <td width=\"8%\"></td>");
    else Riga(testo, "      <td width=\"8%\">(", quota, ")</td>");
}

// A row of three: the number of shoes, coups and cards.
void RigaTotali(std::string& testo, const NumeroTaglie& chieste,
                std::span<const RigaGenerale> righe, const Separatori& separatori)
{
    Riga(testo, "    <tr>");
    Terna(testo, true, EtichettaNumero, Migliaia(chieste.Mostrate(), separatori), "");
    for (const auto& riga : righe) {
        Terna(testo, false, riga.Etichetta, Migliaia(riga.Totale, separatori), riga.Quota);
    }
    Riga(testo, "    </tr>");
}

// A row of outcomes; two of them leave room for a third, which a filler takes.
void RigaEsiti(std::string& testo, std::span<const RigaGenerale> righe,
               const Separatori& separatori)
{
    constexpr std::size_t terne = 3;
    Riga(testo, "   <tr>");
    for (const auto& riga : righe) {
        Terna(testo, &riga == &righe.front(), riga.Etichetta, Migliaia(riga.Totale, separatori),
              riga.Quota);
    }
    if (righe.size() < terne) Riga(testo, "      <td width=\"34%\" colspan=\"3\"></td>");
    Riga(testo, "    </tr>");
}

void Generali(std::string& testo, const NumeroTaglie& chieste, const TotaliReport& totali,
              const Separatori& separatori)
{
    Riga(testo, "<div align=\"center\">");
    Riga(testo, "  <table class=sample width=\"80%\" >");
    Riga(testo, "    <tr>");
    Riga(testo, "      <td width=\"100%\" colspan=\"9\" align=\"center\"><b>", TitoloStatistiche,
         "</b></td>");
    Riga(testo, "    </tr>");
    static_assert(modCarte::PrimoCombinato == 6 && modCarte::NumeroMostrati == 10,
                  "two rows of three outcomes, then two of two combined ones");
    const auto righe = RigheGenerali(chieste, totali, separatori);
    const std::span<const RigaGenerale> tutte(righe);
    RigaTotali(testo, chieste, tutte.first(PrimoEsito), separatori);
    RigaEsiti(testo, tutte.subspan(PrimoEsito, 3), separatori);
    RigaEsiti(testo, tutte.subspan(PrimoEsito + 3, 3), separatori);
    Riga(testo, "    <tr>");
    Riga(testo, "      <td width=\"100%\" colspan=\"9\" align=\"left\">Combinazioni vincenti</td>");
    Riga(testo, "    </tr>");
    RigaEsiti(testo, tutte.subspan(PrimaCombinata, 2), separatori);
    RigaEsiti(testo, tutte.subspan(PrimaCombinata + 2, 2), separatori);
    Riga(testo, "  </table>");
    Riga(testo, "</div>");
    Riga(testo, "<br>");
}

void Finisci(Destinazione& file, std::string& testo)
{
    Scarica(file, testo);
    file.Finisci();
    AmbienteInUso.Apri(PercorsoForma(NomeHtml), StileFinestra::MassimizzataConFuoco);
}

} // namespace

std::optional<TotaliReport> StampaHtml(double numeroTaglie)
{
    const NumeroTaglie chieste(numeroTaglie);
    const Separatori separatori = SeparatoriPerFile(AmbienteInUso.SeparatoriNumeri);
    const auto file = ApriDestinazione(NomeHtml);
    std::string testo;
    Testa(testo, FoglioStile::Completo);
    if (!CimaPagina(*file, testo, chieste)) return std::nullopt;
    Scarica(*file, testo);

    const auto totali = EseguiPiene(chieste, [&](std::int64_t taglia, const CifreTaglia& cifre) {
        file->Scrivi(InWindows1252(Sezione(taglia, chieste, cifre, separatori)));
    });
    if (!totali) return std::nullopt;

    if (chieste.PiuDiUna()) {
        Riga(testo,
             "<a name=\"statistiche\"></a><div id=\"su\"><a href=\"#top\">Torna su</a></div>");
        Riga(testo, "<br>");
        Generali(testo, chieste, *totali, separatori);
    }
    Coda(testo);
    Finisci(*file, testo);
    return totali;
}

std::optional<TotaliReport> StatisticheHtml(double numeroTaglie,
                                            const EtichettaStato& etichettaStato)
{
    const NumeroTaglie chieste(numeroTaglie); // refuses a bad number before the old report is gone
    const Separatori separatori = SeparatoriPerFile(AmbienteInUso.SeparatoriNumeri);
    const auto file = ApriDestinazione(NomeHtml);
    std::string testo;
    Testa(testo, FoglioStile::Statistiche);
    Riga(testo, "<br>");
    Riga(testo, "<div align=\"center\">");
    Riga(testo, "<font face=\"Tahoma\" size=\"5\"><b>", scritte::Insegna, "</b><br><br>");
    Riga(testo, "<font face=\"arial\" size=\"4\"><b>", TitoloSimulazione, "</b></font><br><br>");
    Riga(testo, "</div>");
    Riga(testo, "<br>");
    Scarica(*file, testo);

    const auto totali = EseguiConAvanzamento(chieste, etichettaStato);
    if (!totali) return std::nullopt;

    Generali(testo, chieste, *totali, separatori);
    Coda(testo);
    Finisci(*file, testo);
    return totali;
}

} // namespace Stampe
