// Where each thread's random stream starts from: a seed, or the system's entropy. The draws
// themselves stand in Casuale.h, where the shuffle inlines them.

#include "Casuale.h"

#include "Entropia.h"
#include "ErroreRuntime.h"
#include "Numeri.h"
#include "Orologio.h"
#include "modCarte.h"

namespace modCarte {

namespace casuale {

namespace {

constinit thread_local Stato statoProprio;

// Seeds such as 1 and 2 differ in few bits. So many steps carry each bit of the start into the
// whole state; fewer would leave the first cards of neighbouring shoes alike.
void Agita(Generatore& generatore)
{
    constexpr int giri = 18;
    for (int i = 0; i < giri; ++i) generatore.Prossimo();
}

} // namespace

void MescolaOrologio(Stato& stato)
{
    // What changes from one tick of the clock to the next are the low bits of the time: an odd
    // multiplier brings them to the top of the word, too, from which r is taken.
    constexpr std::uint64_t spargi = 0x9E3779B97F4A7C15u;
    const double secondi = stato.orologio != nullptr ? stato.orologio() : SecondiDaMezzanotte();
    stato.generatore.a += std::bit_cast<std::uint64_t>(secondi) * spargi;
}

Stato& StatoPronto()
{
    if (statoProprio.modo == Modo::DaAvviare) AvviaEntropia();
    return statoProprio;
}

} // namespace casuale

std::int16_t Casuale(std::int16_t massimo, std::int16_t minimo)
{
    return casuale::Casuale(casuale::StatoPronto(), massimo, minimo);
}

void AvviaSeme(std::uint64_t seme, std::uint64_t taglia)
{
    auto& stato = casuale::statoProprio;
    constexpr std::uint64_t terza = 0x5CA1F1A05CA1F1A1u;
    stato.generatore = {seme, taglia, terza, 1};
    casuale::Agita(stato.generatore);
    stato.modo = casuale::Modo::Seme;
}

void AvviaEntropia()
{
    auto& stato = casuale::statoProprio;
    stato.generatore = {Entropia64(), Entropia64(), Entropia64(), 1};
    casuale::Agita(stato.generatore);
    stato.modo = casuale::Modo::Entropia;
}

void ImpostaOrologio(double (*orologio)())
{
    casuale::statoProprio.orologio = orologio;
}

void ImpostaSorgente(float (*sorgente)())
{
    casuale::statoProprio.sorgente = sorgente;
}

} // namespace modCarte
