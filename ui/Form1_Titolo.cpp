// The title screen, help and exit.

#include "Form1.h"

#include "ErroreRuntime.h"
#include "Generale.h"
#include "Testi.h"

#include <array>
#include <string>

namespace {

struct CartaDelTitolo
{
    std::int32_t X;
    std::int32_t Y;
    std::int32_t Carta;
};

// Two fans of four. The numbers are the card library's: the fourth and fifth were meant as spades
// of suit 4, which does not exist, and have always been the next value's clubs.
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

constexpr Colore Verde{105, 230, 0};
constexpr Colore Grigio{127, 127, 127};
constexpr Colore Rosso{255, 0, 0};
constexpr Colore Nero{0, 0, 0};

void ScriviNome(Superficie& tavolo)
{
    constexpr std::int32_t punti = 20;
    tavolo.ImpostaFont("Arial Black", punti, Vero);
    tavolo.ImpostaPosizione(1220, 270);
    tavolo.ImpostaColoreTesto(Grigio);
    tavolo.Stampa("SCALVINO");
    tavolo.ImpostaPosizione(1200, 250);
    tavolo.ImpostaColoreTesto(Rosso);
    tavolo.Stampa("SCALVINO");
    tavolo.ImpostaColoreTesto(Nero);
}

} // namespace

void Form1::MostraTitolo()
{
    Superficie& tavolo = *m_tavolo;
    tavolo.Pulisci();
    tavolo.ImpostaSfondo(Verde);
    ScriviNome(tavolo);
    constexpr std::int32_t faccia = 0;
    for (const auto& carta : Ventagli) {
        tavolo.cdtDraw(carta.X, carta.Y, carta.Carta, faccia, Grigio);
    }
    PrintSemplice(tavolo, "Simulazione gioco e statistiche del Scalvino", 700, 4000, "Arial", 22);
    PrintSemplice(tavolo, "Versione " + std::string(VersioneProgramma), 3500, 5000, "Arial", 14);
    PrintSemplice(tavolo, "Realizzato da Vellarmo", 2700, 5300, "Arial", 14);
    tavolo.Aggiorna();
}

void Form1::cmdHelp_Click()
{
    try {
        Generale::TrovaCartella(); // it may have been missing at the start and be there by now
    } catch (const ErroreRuntime&) {
        return; // like a folder that cannot be written
    }
    Generale::ApriRisorsa(Generale::NomeGuida, Generale::PaginaGuida);
}

void Form1::cmdExit_Click()
{
    close();
}
