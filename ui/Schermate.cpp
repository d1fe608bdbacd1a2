// What stands where on each screen. When one is shown: Form1_Gioco.cpp and Form1_Titolo.cpp.

#include "Schermate.h"

#include "LibreriaCarte.h"
#include "Numeri.h"
#include "Scritte.h"
#include "Testi.h"

#include <array>

namespace schermate {

namespace {

constexpr Colore Sfondo{105, 230, 0}; // a bright green
constexpr Colore Angoli = scritte::Grigio;

// Names of the rows, which are those of the winners.
constexpr std::string_view Nero = "NERO";
constexpr std::string_view Rosso = "ROSSO";

// Twips.
constexpr float XColpo = 2000;
constexpr float XTaglia = 2600;
constexpr float XNomi = 150;
constexpr float XTotali = 7600;
constexpr float YTitoletto = 200;
constexpr float YEsito = 4900;

// Pixels.
constexpr std::int32_t InizioRiga = 60;
constexpr std::int32_t YNero = 70;
constexpr std::int32_t YRosso = 210;
constexpr int CarteComode = 7;
constexpr std::int32_t PassoComodo = 60;

struct CartaDelTitolo
{
    std::int32_t X;
    std::int32_t Y;
    std::int32_t Carta;
};

// Two fans of four, each with two red cards and two black ones, as the game has two colours. The
// numbers are the card library's, four to a value: 36 is the ten of clubs, 44 the queen.
constexpr std::array<CartaDelTitolo, 8> Ventagli = {{
    {90, 80, 1},
    {110, 100, 51},
    {130, 120, 42},
    {150, 140, 36},
    {300, 80, 44},
    {320, 100, 51},
    {340, 120, 45},
    {360, 140, 2},
}};

void Titoletto(Superficie& tavolo, std::string_view testo, float x, float y)
{
    constexpr std::int32_t altezza = 22;
    PrintSemplice(tavolo, testo, x, y, scritte::Arial, altezza);
}

void Nota(Superficie& tavolo, std::string_view testo, float x, float y)
{
    constexpr std::int32_t altezza = 14;
    PrintSemplice(tavolo, testo, x, y, scritte::Arial, altezza);
}

// "Premi 'Annulla taglia' per ...": what the user may do next.
std::string Premi(std::string_view pulsante, std::string_view perche)
{
    return "Premi '" + std::string(pulsante) + "' per " + std::string(perche);
}

std::string NomeColpo(std::int16_t numero)
{
    return "Colpo della taglia: " + TestoNumero(std::int64_t{numero});
}

void Nomi(Superficie& tavolo)
{
    constexpr std::int32_t altezza = 32;
    PrintSemplice(tavolo, Nero, XNomi, 2450, scritte::ArialBlack, altezza, VersoLAlto);
    PrintSemplice(tavolo, Rosso, XNomi, 4550, scritte::ArialBlack, altezza, VersoLAlto);
}

void Totali(Superficie& tavolo, const modCarte::RecordColpo& record)
{
    constexpr std::int32_t altezza = 28;
    PrintSemplice(tavolo, record.TotaleNero(), XTotali, 1650, scritte::Arial, altezza);
    PrintSemplice(tavolo, record.TotaleRosso(), XTotali, 3700, scritte::Arial, altezza);
}

void Riga(Superficie& tavolo, const modCarte::Mano& mano, std::int32_t y, std::int32_t passo)
{
    std::int32_t x = InizioRiga;
    for (const auto carta : mano) {
        const auto numero =
            modCarte::IndiceCarta(modCarte::ValoreDaTesto(carta), modCarte::SemeDaTesto(carta));
        tavolo.cdtDraw(x, y, numero, ModoFaccia, Angoli);
        x += passo;
    }
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

} // namespace

std::int32_t PassoColpo(int carte)
{
    constexpr std::int32_t stretto = 45;
    return carte <= CarteComode ? PassoComodo : stretto;
}

// On purpose wider than on the coup screen: more is seen of each card that was left, although from
// the ninth on the row runs on under its total.
std::int32_t PassoFinale(int carte)
{
    constexpr std::int32_t stretto = 50;
    return carte <= CarteComode ? PassoComodo : stretto;
}

std::string DidascaliaEsito(const modCarte::RecordColpo& record, bool ultimo)
{
    if (record.Pari()) return record.Trentuno() ? "31 APRES" : "Colpo PARI";
    if (!record.VinceNero() && !record.VinceRosso()) return {};
    std::string testo = ultimo ? "Vince " : "Vincono ";
    testo.append(record.VinceNero() ? Nero : Rosso);
    // Whatever is not Colore reads as Inverso.
    return testo.append(record.VinceColore() ? " e COLORE" : " e INVERSO");
}

void Titolo(Superficie& tavolo)
{
    tavolo.ImpostaSfondo(Sfondo);
    scritte::StampaNome(tavolo, 1200, 250);
    for (const auto& carta : Ventagli) {
        tavolo.cdtDraw(carta.X, carta.Y, carta.Carta, ModoFaccia, Angoli);
    }
    Titoletto(tavolo, "Simulazione gioco e statistiche del Scalvino", 700, 4000);
    Nota(tavolo, TestoVersione(), 3500, 5000);
    Nota(tavolo, "Realizzato da Vellarmo", 2700, 5300);
}

void NuovaTaglia(Superficie& tavolo)
{
    constexpr std::int32_t inizio = 50;
    constexpr std::int32_t passoX = 50;
    constexpr std::int32_t passoY = 30;
    for (std::int32_t i = 0; i < modCarte::NumeroCarteAnnullate; ++i) {
        tavolo.cdtDraw(inizio + passoX * i, inizio + passoY * i, DorsoCarta, ModoDorso, Angoli);
    }
    Titoletto(tavolo, "Nuova taglia", XTaglia, YTitoletto);
    Titoletto(tavolo, "5 carte annullate", 2400, YEsito);
    Nota(tavolo, Premi(ColpoSuccessivo, "iniziare la partita"), 1500, 5400);
}

void Colpo(Superficie& tavolo, std::int16_t numero, const modCarte::RecordColpo& record)
{
    Nomi(tavolo);
    Titoletto(tavolo, NomeColpo(numero), XColpo, YTitoletto);
    Riga(tavolo, record.Nero(), YNero, PassoColpo(record.Nero().NumeroCarte()));
    Riga(tavolo, record.Rosso(), YRosso, PassoColpo(record.Rosso().NumeroCarte()));
    Totali(tavolo, record);

    const std::string esito = DidascaliaEsito(record, false);
    const float x = record.Trentuno() ? 3000.0F : record.Pari() ? 2700.0F : 2200.0F;
    if (!esito.empty()) Titoletto(tavolo, esito, x, YEsito);
    Nota(tavolo, Premi(ColpoSuccessivo, "proseguire nella partita"), 2000, 5400);
}

void FineTaglia(Superficie& tavolo, std::int16_t numero, const modCarte::RecordColpo& record,
                const modCarte::StatisticheTaglia& statistiche)
{
    Nomi(tavolo);
    if (record.Breve()) Titoletto(tavolo, "Fine taglia", XTaglia, YTitoletto);
    else Titoletto(tavolo, NomeColpo(numero) + " (ultimo)", XColpo, YTitoletto);

    Riga(tavolo, record.Nero(), YNero, PassoFinale(record.Nero().NumeroCarte()));
    Riga(tavolo, record.Rosso(), YRosso, PassoFinale(record.Rosso().NumeroCarte()));
    Totali(tavolo, record);

    // The caption above was chosen by whole numbers, what follows by the numbers as written.
    if (record.BreveComeScritto()) {
        const int rimaste = record.NumeroCarte();
        Titoletto(tavolo, "Restano " + Numero(rimaste) + " carte", 2400, 4800);
        Nota(tavolo, Riassunto(numero, rimaste, statistiche), 400, 5160);
    } else {
        const std::string esito = DidascaliaEsito(record, true);
        if (!esito.empty()) Titoletto(tavolo, esito, 2400, YEsito);
    }
    Nota(tavolo, Premi(AnnullaTaglia, "iniziare una nuova partita"), 1500, 5410);
}

} // namespace schermate
