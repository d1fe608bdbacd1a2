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

// Until the first words are spread over the whole state.
void Agita(Generatore& generatore)
{
    constexpr int giri = 18;
    for (int i = 0; i < giri; ++i) generatore.Prossimo();
}

void MescolaOrologio(Stato& stato)
{
    // An odd multiplier brings the changing low bits of the time to the top of the word, too.
    constexpr std::uint64_t spargi = 0x9E3779B97F4A7C15u;
    const double secondi = stato.orologio != nullptr ? stato.orologio() : SecondiDaMezzanotte();
    stato.generatore.a += std::bit_cast<std::uint64_t>(secondi) * spargi;
}

} // namespace

Stato& StatoPronto()
{
    if (statoProprio.modo == Modo::DaAvviare) AvviaEntropia();
    return statoProprio;
}

float NumeroR(Stato& stato)
{
    if (stato.sorgente != nullptr) return stato.sorgente();
    // The clock is read before every single draw on purpose, as the program always did: it moves
    // the stream on and never restarts it, so that two draws in one tick still differ.
    if (stato.modo == Modo::Entropia) MescolaOrologio(stato);
    constexpr int scarto = 64 - 23;
    const auto k = static_cast<float>(stato.generatore.Prossimo() >> scarto);
    constexpr float passo = 1.0F / 8388608.0F; // 2^-23
    return (k + 0.5F) * passo;
}

std::int16_t Casuale(Stato& stato, std::int16_t massimo, std::int16_t minimo)
{
    const std::int16_t d = Intero16(std::int64_t{massimo} - minimo + 1);
    const float r = NumeroR(stato);
    // Single-precision factors, but product and sum in double: in single precision the largest r
    // would round some sums up to the next position.
    const double somma = static_cast<double>(static_cast<float>(d)) * static_cast<double>(r) +
                         static_cast<double>(static_cast<float>(minimo));
    // A number of any size (a replaced source may give it) must be refused before it is converted.
    constexpr double limite = 32768;
    if (!(somma >= -limite && somma < limite)) throw ErroreRuntime(NumeroErrore::Overflow);
    // Truncation and one step down is the floor, at a third of a library call's cost.
    const int troncata = static_cast<int>(somma);
    return static_cast<std::int16_t>(somma < troncata ? troncata - 1 : troncata);
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
