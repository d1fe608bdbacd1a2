// The shoe and its shuffle: positions drawn one by one from an ordered list. The random numbers
// come from Casuale.h, the coups are dealt in Colpo.cpp.

#include "modCarte.h"

#include "Casuale.h"
#include "ErroreRuntime.h"
#include "MotiviMazzo.h"
#include "Numeri.h"

#include <algorithm>
#include <bitset>
#include <cstddef>
#include <cstring>
#include <numeric>

namespace modCarte {

constinit thread_local std::array<std::int16_t, CarteTaglia> Mazzo{};
constinit thread_local double Posizione = 0;
constinit thread_local double NumeroColpo = 0;
constinit thread_local Flag FineTaglia = Falso;

namespace {

void IniziaTaglia()
{
    NumeroColpo = 1;
    Posizione = NumeroCarteAnnullate;
    FineTaglia = Falso;
}

// The position drawn from a list that has rimasti elements left, 1 to rimasti.
std::int16_t EstraiPosto(casuale::Stato& stato, int rimasti)
{
    // The bounds are swapped on purpose: a small r picks a late position, and every seed deals the
    // shoe that it is known for.
    const std::int16_t oltre = Intero16(std::int64_t{rimasti} + 1);
    const std::int16_t posto = casuale::Casuale(stato, 0, oltre);
    if (posto < 1 || posto > rimasti) throw ErroreRuntime(NumeroErrore::IndiceFuoriIntervallo);
    return posto;
}

std::vector<std::int16_t> TuttiDa(std::int16_t minimo, int quanti)
{
    std::vector<std::int16_t> numeri(static_cast<std::size_t>(quanti));
    std::iota(numeri.begin(), numeri.end(), minimo);
    return numeri;
}

// Takes the element at a position, 1 to rimasti, out of the list; those behind it close the gap.
// The list is short and its elements are small: moving them on by one step costs a few instructions
// of the processor, less than any bookkeeping that would spare it.
std::int16_t Togli(std::vector<std::int16_t>& lista, std::int16_t posto, int rimasti)
{
    std::int16_t* const tolto = lista.data() + (posto - 1);
    const std::int16_t numero = *tolto;
    std::memmove(tolto, tolto + 1, static_cast<std::size_t>(rimasti - posto) * sizeof numero);
    return numero;
}

std::vector<std::int16_t> Estrai(std::int16_t massimo, std::int16_t minimo, std::size_t quanti,
                                 bool unici)
{
    auto& stato = casuale::StatoPronto();
    int rimasti = std::max(massimo - minimo + 1, 0);
    std::vector<std::int16_t> lista = TuttiDa(minimo, rimasti);
    std::vector<std::int16_t> estratti(quanti);
    for (auto& estratto : estratti) {
        const std::int16_t posto = EstraiPosto(stato, rimasti);
        estratto =
            unici ? Togli(lista, posto, rimasti--) : lista[static_cast<std::size_t>(posto) - 1];
    }
    return estratti;
}

} // namespace

std::optional<std::vector<std::int16_t>> EstraiNumeri(std::int16_t massimo, std::int16_t minimo,
                                                      std::int16_t quanti, Flag unici)
{
    // One more than there are values, on purpose: a request for one too many is not refused here
    // but fails at its last draw.
    const int limite = (int{massimo} + 1) - (int{minimo} - 1);
    if (quanti > limite) return std::nullopt;
    const auto numero = static_cast<std::size_t>(std::max<std::int16_t>(quanti, 0));
    try {
        return Estrai(massimo, minimo, numero, unici != Falso);
    } catch (const ErroreRuntime&) {
        // Whatever fails inside the draw means "no list", never a message: the caller decides.
        return std::nullopt;
    }
}

void MescolaMazzo()
{
    const auto numeri = EstraiNumeri(CarteTaglia, 1, CarteTaglia, Vero);
    if (!numeri) {
        throw ErroreRuntime(NumeroErrore::TipoNonCorrispondente,
                            "la mescolata non ha dato un mazzo", "Mazzo");
    }
    std::copy(numeri->begin(), numeri->end(), Mazzo.begin());
    IniziaTaglia();
}

void ImpostaMazzo(std::span<const std::int16_t> codici)
{
    const auto rifiuta = [](const std::string& motivo) {
        throw ErroreRuntime(NumeroErrore::ChiamataNonValida, motivo, "Mazzo");
    };
    if (codici.size() != CarteTaglia) {
        rifiuta(MotivoNumeroCarte(codici.size()));
    }
    std::bitset<CarteTaglia + 1> visti;
    for (const std::int16_t codice : codici) {
        const std::string testo = TestoNumero(std::int64_t{codice});
        if (codice < 1 || codice > CarteTaglia) rifiuta("il codice " + testo + " non esiste");
        if (visti.test(static_cast<std::size_t>(codice))) {
            rifiuta(MotivoCartaRipetuta(testo));
        }
        visti.set(static_cast<std::size_t>(codice));
    }
    std::copy(codici.begin(), codici.end(), Mazzo.begin());
    IniziaTaglia();
}

} // namespace modCarte
