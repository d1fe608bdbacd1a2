#include "modCarte.h"

#include "Casuale.h"
#include "ErroreRuntime.h"
#include "Numeri.h"

#include <algorithm>
#include <bitset>
#include <cstddef>

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
    // The bounds are swapped on purpose: a small r picks a late position.
    const std::int16_t oltre = Intero16(std::int64_t{rimasti} + 1);
    const std::int16_t posto = casuale::Casuale(stato, 0, oltre);
    if (posto < 1 || posto > rimasti) throw ErroreRuntime(NumeroErrore::IndiceFuoriIntervallo);
    return posto;
}

// Every element taken out of the list closes its gap, so that the position drawn at turn j counts
// only the elements that were left. Going back from the last turn, each position at or past one
// taken earlier moves up by one: then all of them are positions in the full list. This is the
// removal from an ordered list without the list, and several times as fast.
void RiportaAllaListaIntera(std::vector<std::int16_t>& posti)
{
    for (std::size_t j = posti.size(); j-- > 0;) {
        const std::int16_t tolto = posti[j];
        std::int16_t* const poi = posti.data();
        for (std::size_t i = j + 1; i < posti.size(); ++i) {
            poi[i] = static_cast<std::int16_t>(poi[i] + (poi[i] >= tolto ? 1 : 0));
        }
    }
}

std::vector<std::int16_t> Estrai(std::int16_t massimo, std::int16_t minimo, std::size_t quanti,
                                 bool unici)
{
    auto& stato = casuale::StatoPronto();
    std::vector<std::int16_t> estratti(quanti);
    int rimasti = std::max(massimo - minimo + 1, 0);
    for (auto& estratto : estratti) {
        estratto = EstraiPosto(stato, rimasti);
        if (unici) --rimasti;
    }
    if (unici) RiportaAllaListaIntera(estratti);
    // Element 1 of the full list is minimo.
    for (auto& estratto : estratti) estratto = static_cast<std::int16_t>(estratto + minimo - 1);
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
        rifiuta("le carte sono " + TestoNumero(static_cast<std::int64_t>(codici.size())) +
                " invece di 312");
    }
    std::bitset<CarteTaglia + 1> visti;
    for (const std::int16_t codice : codici) {
        const std::string testo = TestoNumero(std::int64_t{codice});
        if (codice < 1 || codice > CarteTaglia) rifiuta("il codice " + testo + " non esiste");
        if (visti.test(static_cast<std::size_t>(codice))) {
            rifiuta("la carta " + testo + " si ripete");
        }
        visti.set(static_cast<std::size_t>(codice));
    }
    std::copy(codici.begin(), codici.end(), Mazzo.begin());
    IniziaTaglia();
}

} // namespace modCarte
