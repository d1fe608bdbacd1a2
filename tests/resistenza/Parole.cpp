#include "Parole.h"

#include "Windows1252.h"

#include <algorithm>

namespace resistenza {

namespace {

const std::vector<std::string>& Vocabolario()
{
    static const std::vector<std::string> parole = {
        "Nero",
        "Rosso",
        "Colore",
        "Inverso",
        "trentuno",
        "après",
        "Egalité",
        "taglia",
        "colpo",
        "perché",
        "città",
        "più",
        "così",
        "virtù",
        "ÀÈÌÒÙ",
        "äöüÄÖÜß",
        "ñandú",
        "Øre",
        "œuvre",
        "Ÿ",
        "žluť",
        "Ševčík",
        "€",
        "«citato»",
        "“alte”",
        "‘mezze’",
        "–",
        "—",
        "…",
        "‰",
        "½",
        "±3",
        "µ",
        "©",
        "®",
        "™",
        "§",
        "¿qué?",
        "¡ea!",
        "(parentesi)",
        "((",
        "))",
        "\\barra\\",
        "#cancello",
        "##",
        "#d",
        "%percento",
        "<tag>",
        "[quadre]",
        "{graffe}",
        "/nome",
        "a&b",
        "\"virgolette\"",
        "l'apostrofo",
        "31",
        "12.345,67",
        "-0,5",
        "+39",
        "Привет",
        "мир",
        "Αθήνα",
        "日本語",
        "שלום",
        "سلام",
        "łódź",
        "ğ",
        "∑",
        "♥",
        "😀",
        "x",
        "WAVAToy",
    };
    return parole;
}

} // namespace

std::string Frase(Caso& caso, int quante)
{
    std::string frase = caso.Fra(Vocabolario());
    const int altre = caso.Intero(0, quante - 1);
    for (int i = 0; i < altre; ++i) frase.append(" ").append(caso.Fra(Vocabolario()));
    return frase;
}

std::string FraseComune(Caso& caso, int quante)
{
    constexpr unsigned char daQui = 0xA0;
    constexpr unsigned char finQui = 0x7F;
    std::string frase = Frase(caso, quante);
    const auto diversa = [](char c) {
        const auto codice = static_cast<unsigned char>(c);
        return codice > finQui && codice < daQui;
    };
    while (std::ranges::any_of(InWindows1252(frase), diversa)) frase = Frase(caso, quante);
    return frase;
}

std::string ParolaSemplice(Caso& caso)
{
    std::string parola;
    const int lettere = caso.Intero(3, 8);
    for (int i = 0; i < lettere; ++i) parola.push_back(static_cast<char>(caso.Intero('a', 'z')));
    return parola;
}

std::string ComeSiVede(std::string_view testo)
{
    std::string visto;
    for (const char codice : InWindows1252(testo)) {
        AggiungiUtf8(visto, DaWindows1252(static_cast<unsigned char>(codice)));
    }
    return visto;
}

} // namespace resistenza
