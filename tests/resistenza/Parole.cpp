// Words and whole texts at random, hostile ones too: what Documentista.cpp writes and names.
#include "Parole.h"

#include "Windows1252.h"

#include <algorithm>

namespace resistenza {

namespace {

const std::vector<std::string> Vocabolario = {
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

} // namespace

std::string Frase(Caso& caso, int quante)
{
    std::string frase = caso.Fra(Vocabolario);
    const int altre = caso.Intero(0, quante - 1);
    for (int i = 0; i < altre; ++i) frase.append(" ").append(caso.Fra(Vocabolario));
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

std::string TestoOstile(Caso& caso, int pezzi)
{
    static const std::vector<std::string> parti = {" scn Q BT /F 9 Tf (x) Tj ET q %",
                                                   " Do\r\nQ\r\nQ\r\n",
                                                   "endstream\r\nendobj\r\n",
                                                   ">> >> /Length 0",
                                                   " 0 R \r/X 1 0 R",
                                                   " ",
                                                   "\t",
                                                   "\r",
                                                   "\n",
                                                   "\f",
                                                   "(",
                                                   ")",
                                                   "<",
                                                   ">",
                                                   "<<",
                                                   ">>",
                                                   "[",
                                                   "]",
                                                   "{",
                                                   "}",
                                                   "/",
                                                   "//",
                                                   "%",
                                                   "#",
                                                   "##",
                                                   "#20",
                                                   "#2",
                                                   "#zz",
                                                   "#00",
                                                   "\\",
                                                   "à",
                                                   "€",
                                                   "Ÿ",
                                                   "日本",
                                                   "\xFF",
                                                   "\xC3",
                                                   "\x81",
                                                   "\x7F",
                                                   "\x01",
                                                   "\x1B[31m",
                                                   "true",
                                                   "null",
                                                   "-1",
                                                   "R"};
    std::string testo = caso.Fra(parti);
    if (testo.front() == '#' || testo.front() == '%') testo.insert(0, " ");
    const int altre = caso.Intero(0, pezzi - 1);
    for (int i = 0; i < altre; ++i) testo += caso.Fra(parti);
    return testo;
}

std::string TestoDiFuori(Caso& caso)
{
    static const std::vector<std::string> testi = {"L'età - 10 € “x” Łódź 日本",
                                                   "č",
                                                   "\u2828",
                                                   "\u2829 e \u5C5C",
                                                   "þÿ all'inizio",
                                                   "ï»¿ all'inizio",
                                                   "(\\)\r\n\t",
                                                   "😀 e 𝄞",
                                                   "fi ﬁ, fl ﬂ",
                                                   "\u00AD\u00A0",
                                                   std::string("a\0b", 3)};
    return caso.Una(3) ? TestoOstile(caso, 8) : caso.Fra(testi);
}

std::string Nome(Caso& caso, int numero)
{
    constexpr std::size_t byte = 126;
    const std::string coda = "_" + std::to_string(numero);
    if (caso.Una(3)) return "Nome" + coda;
    std::string nome = TestoOstile(caso, 8);
    while (InWindows1252(nome).size() + coda.size() > byte) nome = TestoOstile(caso, 8);
    if (caso.Una(6)) nome.append(byte - coda.size() - InWindows1252(nome).size(), '(');
    return nome + coda;
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
