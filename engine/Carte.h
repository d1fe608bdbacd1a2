// Cards: their codes and texts, values, suits and colours. Next: modCarte.h, the game played with
// them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace modCarte {

// A card code is 1 to 312: pack after pack of 52, each pack hearts, diamonds, clubs, spades, each
// suit ace to king. A card text is the value text followed by the suit letter: "AC", "10F", "QQ".

inline constexpr int CarteMazzetto = 52;
inline constexpr int CarteTaglia = 312;
inline constexpr int NumeroCarteAnnullate = 5;

// Value index 1 (ace) to 13 (king).
constexpr std::int16_t ValoreCarta(std::int16_t codice)
{
    constexpr int valoriSeme = 13;
    const int resto = codice % valoriSeme;
    return static_cast<std::int16_t>(resto == 0 ? valoriSeme : resto);
}

// Points 1 to 10: the value index up to nine, ten for all higher cards.
constexpr std::int16_t PuntiCarta(std::int16_t codice)
{
    const std::int16_t valore = ValoreCarta(codice);
    return valore <= 9 ? valore : std::int16_t{10};
}

// "A", "2" to "10", "J", "Q", "K"; empty for a negative code.
constexpr std::string_view NomeValore(std::int16_t codice)
{
    constexpr std::array<std::string_view, 13> nomi = {"A", "2", "3",  "4", "5", "6", "7",
                                                       "8", "9", "10", "J", "Q", "K"};
    const std::int16_t valore = ValoreCarta(codice);
    return valore < 1 ? std::string_view() : nomi[static_cast<std::size_t>(valore) - 1];
}

// "C" hearts, "Q" diamonds, "F" clubs, "P" spades; empty for a code whose remainder by 52 falls
// outside 1 to 52 (a negative code).
constexpr std::string_view SemeCarta(std::int16_t codice)
{
    const int resto = codice % CarteMazzetto;
    const int posto = resto == 0 ? CarteMazzetto : resto;
    if (posto < 1) return "";
    if (posto <= 13) return "C";
    if (posto <= 26) return "Q";
    if (posto <= 39) return "F";
    return "P";
}

// Value text and suit letter together.
std::string TestoCarta(std::int16_t codice);

// The parts of a card text, which may be any text: all but its last character, and that one (the
// null character of an empty text).
constexpr std::string_view ValoreScritto(std::string_view carta)
{
    return carta.substr(0, carta.empty() ? 0 : carta.size() - 1);
}

constexpr char SemeScritto(std::string_view carta)
{
    return carta.empty() ? '\0' : carta.back();
}

// Whether a card text is one of hearts or diamonds.
constexpr bool CartaRossa(std::string_view carta)
{
    return SemeScritto(carta) == 'C' || SemeScritto(carta) == 'Q';
}

// Value index 1 to 13 of a card text, 0 when it has none. Never fails.
std::int32_t ValoreDaTesto(std::string_view testo);

// Suit index of a card text: "F" 0, "Q" 1, "C" 2, "P" 3, anything else 0. Never fails.
std::int32_t SemeDaTesto(std::string_view testo);

// The card library's number of a card, 0 (ace of clubs) to 51 (king of spades):
// (valore - 1) * 4 + seme. Error 6 (Overflow) when that leaves 32 bits.
std::int32_t IndiceCarta(std::int32_t valore, std::int32_t seme);

} // namespace modCarte
