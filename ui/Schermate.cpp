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

void Totali(Superficie& tavolo, const modCarte::RecordColpo& record)
{
    constexpr std::int32_t altezza = 28;
    PrintSemplice(tavolo, record.TotaleNero(), 7600, 1650, "Arial", altezza);
    PrintSemplice(tavolo, record.TotaleRosso(), 7600, 3700, "Arial", altezza);
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

// Not the step of the coup screen, on purpose.
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
    testo.append(record.VinceNero() ? "NERO" : "ROSSO");
    // Whatever is not Colore reads as Inverso.
    return testo.append(record.VinceColore() ? " e COLORE" : " e INVERSO");
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

void Colpo(Superficie& tavolo, std::int16_t numero, const modCarte::RecordColpo& record)
{
    Nomi(tavolo);
    Titoletto(tavolo, "Colpo della taglia: " + Numero(numero), 2000, 200);
    Riga(tavolo, record.Nero(), YNero, PassoColpo(record.Nero().NumeroCarte()));
    Riga(tavolo, record.Rosso(), YRosso, PassoColpo(record.Rosso().NumeroCarte()));
    Totali(tavolo, record);

    const std::string esito = DidascaliaEsito(record, false);
    const float x = record.Trentuno() ? 3000.0F : record.Pari() ? 2700.0F : 2200.0F;
    if (!esito.empty()) Titoletto(tavolo, esito, x, 4900);
    Nota(tavolo, "Premi 'Colpo successivo --->' per proseguire nella partita", 2000, 5400);
}

void FineTaglia(Superficie& tavolo, std::int16_t numero, const modCarte::RecordColpo& record,
                const modCarte::StatisticheTaglia& statistiche)
{
    Nomi(tavolo);
    if (record.Breve()) Titoletto(tavolo, "Fine taglia", 2600, 200);
    else Titoletto(tavolo, "Colpo della taglia: " + Numero(numero) + " (ultimo)", 2000, 200);

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
        if (!esito.empty()) Titoletto(tavolo, esito, 2400, 4900);
    }
    Nota(tavolo, "Premi 'Annulla taglia' per iniziare una nuova partita", 1500, 5410);
}

} // namespace schermate
