// The outcomes that are counted, in one table: statistics, totals, data for other programs and
// exact odds all go through it, row by row. How the records are counted: Statistiche.cpp.
#pragma once

#include "RecordColpo.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace modCarte {

// A number for each outcome. A new outcome takes a member here and a row in Esiti below; nothing
// else has to change but the layouts of the reports that shall show it.
template <typename Numero>
struct ContiEsiti
{
    Numero VinceNero = 0;
    Numero VinceRosso = 0;
    Numero Colore = 0;
    Numero Inverso = 0;
    Numero Pari = 0; // all ties, those at 31 included
    Numero TrentunoApres = 0;
    Numero NeroColore = 0;
    Numero NeroInverso = 0;
    Numero RossoColore = 0;
    Numero RossoInverso = 0;

    bool operator==(const ContiEsiti&) const = default;
};

// Of an outcome that no report shows.
inline constexpr std::size_t NonMostrato = static_cast<std::size_t>(-1);

// What a record is asked.
using Condizione = bool (RecordColpo::*)() const;

template <typename Numero>
struct RigaEsito
{
    std::string_view Nome;             // as data for other programs call it
    Numero ContiEsiti<Numero>::*Conto; // where it is counted
    Condizione Quando;                 // the records that count,
    std::optional<Condizione> Insieme; // of a combined outcome those for which this holds, too
    std::size_t PostoReport;           // its place in the reports, from 0 on
    double QuotaPrimoColpo;            // how probable it is for the first coup of a shoe
};

// The rows stand in the order of data for other programs. The odds are worked out from the
// composition of the shoe (the tests work them out again): Nero and Rosso are alike while the shoe
// cannot run out, and so are Colore and Inverso, since every value has as many black cards as red.
template <typename Numero, typename C = ContiEsiti<Numero>, typename R = RecordColpo>
inline constexpr std::array Esiti = std::to_array<RigaEsito<Numero>>({
    {"VinceNero", &C::VinceNero, &R::VinceNero, {}, 0, 0.44520054341892984},
    {"VinceRosso", &C::VinceRosso, &R::VinceRosso, {}, 1, 0.44520054341892984},
    {"Colore", &C::Colore, &R::VinceColore, {}, 3, 0.44520054341892984},
    {"Inverso", &C::Inverso, &R::VinceInverso, {}, 4, 0.44520054341892984},
    {"Pari", &C::Pari, &R::Pari, {}, 2, 0.10959891316214038},
    {"TrentunoApres", &C::TrentunoApres, &R::Trentuno, {}, 5, 0.021891370486570891},
    {"NeroColore", &C::NeroColore, &R::VinceNero, &R::VinceColore, 6, 0.22260027170946492},
    {"NeroInverso", &C::NeroInverso, &R::VinceNero, &R::VinceInverso, 7, 0.22260027170946492},
    {"RossoColore", &C::RossoColore, &R::VinceRosso, &R::VinceColore, 8, 0.22260027170946492},
    {"RossoInverso", &C::RossoInverso, &R::VinceRosso, &R::VinceInverso, 9, 0.22260027170946492},
});

inline constexpr std::size_t NumeroEsiti = Esiti<double>.size();

// The outcome at this index of the table.
template <typename Numero>
constexpr Numero& Conto(ContiEsiti<Numero>& conti, std::size_t esito)
{
    return conti.*Esiti<Numero>[esito].Conto;
}

template <typename Numero>
constexpr Numero Conto(const ContiEsiti<Numero>& conti, std::size_t esito)
{
    return conti.*Esiti<Numero>[esito].Conto;
}

// Adds outcome by outcome; Numero holds every sum exactly.
template <typename Numero, typename Altro>
constexpr void AggiungiConti(ContiEsiti<Numero>& conti, const ContiEsiti<Altro>& altri)
{
    for (std::size_t i = 0; i < NumeroEsiti; ++i) {
        Conto(conti, i) += static_cast<Numero>(Conto(altri, i));
    }
}

// The coups that came to an end: each is won by one row or a tie.
template <typename Numero>
constexpr Numero ColpiCompiuti(const ContiEsiti<Numero>& conti)
{
    return conti.VinceNero + conti.VinceRosso + conti.Pari;
}

// ---- The order of the reports ----------------------------------------------------------------

inline constexpr std::size_t NumeroMostrati = [] {
    std::size_t quanti = 0;
    for (const auto& riga : Esiti<double>) {
        if (riga.PostoReport != NonMostrato) ++quanti;
    }
    return quanti;
}();

// Indices in Esiti of the outcomes that reports show, in their order.
inline constexpr std::array<std::size_t, NumeroMostrati> OrdineReport = [] {
    std::array<std::size_t, NumeroMostrati> ordine{};
    for (std::size_t i = 0; i < NumeroEsiti; ++i) {
        const std::size_t posto = Esiti<double>[i].PostoReport;
        if (posto != NonMostrato) ordine.at(posto) = i;
    }
    return ordine;
}();

// Where in OrdineReport the combined outcomes begin, which are its last ones.
inline constexpr std::size_t PrimoCombinato = [] {
    std::size_t posto = 0;
    while (posto < NumeroMostrati && !Esiti<double>[OrdineReport[posto]].Insieme) ++posto;
    return posto;
}();

// ---- The outcomes of one coup ----------------------------------------------------------------

// For each outcome of the table whether a coup is one: 1 or 0.
using EsitiColpo = std::array<std::uint16_t, NumeroEsiti>;

// The outcomes of a coup record; all 0 for the record that ran out of cards.
EsitiColpo EsitiDelColpo(const RecordColpo& colpo);

} // namespace modCarte
