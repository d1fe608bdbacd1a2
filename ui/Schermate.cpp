#include "Schermate.h"

#include "LibreriaCarte.h"
#include "Numeri.h"

namespace schermate {

namespace {

constexpr Colore Angoli{127, 127, 127};

// Pixels.
constexpr std::int32_t InizioRiga = 60;
constexpr std::int32_t YNero = 70;
constexpr std::int32_t YRosso = 210;
constexpr int CarteComode = 7;
constexpr std::int32_t PassoComodo = 60;

// Above this sum of its totals the final record passes for a coup.
constexpr int MassimoBreve = 61;

void Titoletto(Superficie& tavolo, std::string_view testo, float x, float y)
{
    constexpr std::int32_t altezza = 22;
    PrintSemplice(tavolo, testo, x, y, "Arial", altezza);
}

void Nota(Superficie& tavolo, std::string_view testo, float x, float y)
{
    constexpr std::int32_t altezza = 14;
    PrintSemplice(tavolo, testo, x, y, "Arial", altezza);
}

void Nomi(Superficie& tavolo)
{
    constexpr std::int32_t altezza = 32;
    PrintSemplice(tavolo, "NERO", 150, 2450, "Arial Black", altezza, VersoLAlto);
    PrintSemplice(tavolo, "ROSSO", 150, 4550, "Arial Black", altezza, VersoLAlto);
}

void Totali(Superficie& tavolo, const Campi& campi)
{
    constexpr std::int32_t altezza = 28;
    PrintSemplice(tavolo, campi[modCarte::CampoTotaleNero], 7600, 1650, "Arial", altezza);
    PrintSemplice(tavolo, campi[modCarte::CampoTotaleRosso], 7600, 3700, "Arial", altezza);
}

void Riga(Superficie& tavolo, std::string_view carte, std::int32_t y, std::int32_t passo)
{
    std::int32_t x = InizioRiga;
    for (bool ancora = true; ancora; x += passo) {
        const auto fine = carte.find('#');
        const auto carta = carte.substr(0, fine);
        const auto numero =
            modCarte::IndiceCarta(modCarte::ValoreDaTesto(carta), modCarte::SemeDaTesto(carta));
        tavolo.cdtDraw(x, y, numero, ModoFaccia, Angoli);
        ancora = fine != std::string_view::npos;
        if (ancora) carte.remove_prefix(fine + 1);
    }
}

void RigaColpo(Superficie& tavolo, std::string_view carte, std::int32_t y)
{
    Riga(tavolo, carte, y, PassoColpo(modCarte::ContaCarte(carte)));
}

// An empty field is a row that was never begun. Returns its number of cards.
int RigaFinale(Superficie& tavolo, std::string_view carte, std::int32_t y)
{
    if (carte.empty()) return 0;
    const int quante = modCarte::ContaCarte(carte);
    Riga(tavolo, carte, y, PassoFinale(quante));
    return quante;
}

std::string Numero(double valore)
{
    return TestoNumero(valore);
}

// The unused cards of the shoe without its five cancelled ones.
std::string Riassunto(std::int16_t numero, int rimaste, const modCarte::StatisticheTaglia& s)
{
    constexpr int carteInGioco = modCarte::CarteTaglia - modCarte::NumeroCarteAnnullate;
    std::string testo = "Carte utilizzate: " + Numero(carteInGioco - rimaste);
    testo.append(" - Colpi: ").append(Numero(numero - 1));
    testo.append(" - Nero-Rosso: ").append(Numero(s.VinceNero)).append("-");
    testo.append(Numero(s.VinceRosso));
    testo.append(" - Colore-Inverso: ").append(Numero(s.Colore)).append("-");
    testo.append(Numero(s.Inverso));
    testo.append(" - Pari: ").append(Numero(s.Pari)).append(" (");
    testo.append(Numero(s.TrentunoApres)).append(" 31après)");
    return testo;
}

std::int16_t Intero(std::string_view totale)
{
    return Intero16(NumeroIniziale(totale));
}

} // namespace

std::int32_t PassoColpo(int carte)
{
    constexpr std::int32_t stretto = 45;
    return carte <= CarteComode ? PassoComodo : stretto;
}

// Not the step of the coup screen, on purpose.
std::int32_t PassoFinale(int carte)
{
    constexpr std::int32_t stretto = 50;
    return carte <= CarteComode ? PassoComodo : stretto;
}

std::string DidascaliaEsito(const Campi& campi, bool ultimo)
{
    const std::string_view esito = campi[modCarte::CampoEsito];
    if (esito == "E") {
        const bool trentuno =
            campi[modCarte::CampoTotaleNero] == "31" && campi[modCarte::CampoTotaleRosso] == "31";
        return trentuno ? "31 APRES" : "Colpo PARI";
    }
    if (esito != "N" && esito != "R") return {};
    std::string testo = ultimo ? "Vince " : "Vincono ";
    testo.append(esito == "N" ? "NERO" : "ROSSO");
    // Whatever is not Colore reads as Inverso.
    return testo.append(campi[modCarte::CampoColore] == "C" ? " e COLORE" : " e INVERSO");
}

void NuovaTaglia(Superficie& tavolo)
{
    constexpr std::int32_t inizio = 50;
    constexpr std::int32_t passoX = 50;
    constexpr std::int32_t passoY = 30;
    for (std::int32_t i = 0; i < modCarte::NumeroCarteAnnullate; ++i) {
        tavolo.cdtDraw(inizio + passoX * i, inizio + passoY * i, DorsoCarta, ModoDorso, Angoli);
    }
    Titoletto(tavolo, "Nuova taglia", 2600, 200);
    Titoletto(tavolo, "5 carte annullate", 2400, 4900);
    Nota(tavolo, "Premi 'Colpo successivo --->' per iniziare la partita", 1500, 5400);
}

void Colpo(Superficie& tavolo, std::int16_t numero, const Campi& campi)
{
    Nomi(tavolo);
    Titoletto(tavolo, "Colpo della taglia: " + Numero(numero), 2000, 200);
    RigaColpo(tavolo, campi[modCarte::CampoCarteNero], YNero);
    RigaColpo(tavolo, campi[modCarte::CampoCarteRosso], YRosso);
    Totali(tavolo, campi);

    const std::string esito = DidascaliaEsito(campi, false);
    const bool pari = campi[modCarte::CampoEsito] == "E";
    const float x = !pari ? 2200.0F : esito == "31 APRES" ? 3000.0F : 2700.0F;
    if (!esito.empty()) Titoletto(tavolo, esito, x, 4900);
    Nota(tavolo, "Premi 'Colpo successivo --->' per proseguire nella partita", 2000, 5400);
}

void FineTaglia(Superficie& tavolo, std::int16_t numero, const Campi& campi,
                const modCarte::StatisticheTaglia& statistiche)
{
    const std::string_view totaleNero = campi[modCarte::CampoTotaleNero];
    const std::string_view totaleRosso = campi[modCarte::CampoTotaleRosso];
    Nomi(tavolo);
    const bool lungo = Intero(totaleNero) + Intero(totaleRosso) > MassimoBreve;
    if (lungo) Titoletto(tavolo, "Colpo della taglia: " + Numero(numero) + " (ultimo)", 2000, 200);
    else Titoletto(tavolo, "Fine taglia", 2600, 200);

    int rimaste = RigaFinale(tavolo, campi[modCarte::CampoCarteNero], YNero);
    rimaste += RigaFinale(tavolo, campi[modCarte::CampoCarteRosso], YRosso);
    Totali(tavolo, campi);

    // The test above was made on whole numbers, this one is on the numbers as they are written;
    // they agree on every record that the game makes.
    if (NumeroIniziale(totaleRosso) + NumeroIniziale(totaleNero) > MassimoBreve) {
        const std::string esito = DidascaliaEsito(campi, true);
        if (!esito.empty()) Titoletto(tavolo, esito, 2400, 4900);
    } else {
        Titoletto(tavolo, "Restano " + Numero(rimaste) + " carte", 2400, 4800);
        Nota(tavolo, Riassunto(numero, rimaste, statistiche), 400, 5160);
    }
    Nota(tavolo, "Premi 'Annulla taglia' per iniziare una nuova partita", 1500, 5410);
}

} // namespace schermate
