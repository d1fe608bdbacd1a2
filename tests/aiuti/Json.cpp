// Reads and writes the values of Json.h.
#include "Json.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <utility>

namespace aiuti {

namespace {

constexpr std::array<std::pair<char, char>, 8> Fughe = {{{'"', '"'},
                                                         {'\\', '\\'},
                                                         {'/', '/'},
                                                         {'b', '\b'},
                                                         {'f', '\f'},
                                                         {'n', '\n'},
                                                         {'r', '\r'},
                                                         {'t', '\t'}}};

void AggiungiUtf8(std::string& testo, std::uint32_t codice)
{
    const auto byte = [&testo](std::uint32_t valore) {
        testo.push_back(static_cast<char>(static_cast<unsigned char>(valore)));
    };
    const auto seguito = [&byte, codice](unsigned bit) { byte(0x80 | ((codice >> bit) & 0x3F)); };
    if (codice < 0x80) return byte(codice);
    if (codice < 0x800) {
        byte(0xC0 | (codice >> 6));
    } else if (codice < 0x10000) {
        byte(0xE0 | (codice >> 12));
        seguito(6);
    } else {
        byte(0xF0 | (codice >> 18));
        seguito(12);
        seguito(6);
    }
    seguito(0);
}

class Lettore
{
public:
    explicit Lettore(std::string_view testo)
        : m_resto(testo)
    {
    }

    Json Valore()
    {
        Spazi();
        if (m_resto.empty()) Sbaglia();
        if (m_resto.front() == '[') return Elenco();
        if (m_resto.front() == '"') return Testo();
        if (Prende("true")) return true;
        if (Prende("false")) return false;
        if (Prende("null")) return {};
        return Numero();
    }

    void Fine()
    {
        Spazi();
        if (!m_resto.empty()) Sbaglia();
    }

private:
    [[noreturn]] void Sbaglia() const
    {
        throw std::invalid_argument("no JSON: " + std::string(m_resto.substr(0, 40)));
    }

    void Spazi()
    {
        const auto fine = m_resto.find_first_not_of(" \t\r\n");
        m_resto.remove_prefix(std::min(fine, m_resto.size()));
    }

    bool Prende(std::string_view parola)
    {
        const bool c = m_resto.substr(0, parola.size()) == parola;
        if (c) m_resto.remove_prefix(parola.size());
        return c;
    }

    char Carattere()
    {
        if (m_resto.empty()) Sbaglia();
        const char c = m_resto.front();
        m_resto.remove_prefix(1);
        return c;
    }

    Json Elenco()
    {
        std::vector<Json> voci;
        Carattere();
        Spazi();
        if (Prende("]")) return voci;
        do {
            voci.push_back(Valore());
            Spazi();
        } while (Prende(","));
        if (!Prende("]")) Sbaglia();
        return voci;
    }

    Json Testo()
    {
        std::string testo;
        Carattere();
        for (char c = Carattere(); c != '"'; c = Carattere()) {
            if (c == '\\') Fuga(testo);
            else testo.push_back(c);
        }
        return testo;
    }

    void Fuga(std::string& testo)
    {
        const char c = Carattere();
        if (c == 'u') return AggiungiUtf8(testo, Codice());
        for (const auto& [nome, byte] : Fughe) {
            if (nome == c) return testo.push_back(byte);
        }
        Sbaglia();
    }

    // Two escapes may stand for one character beyond U+FFFF.
    std::uint32_t Codice()
    {
        const std::uint32_t primo = Esadecimale();
        if (primo < 0xD800 || primo > 0xDBFF || !Prende("\\u")) return primo;
        return 0x10000 + ((primo - 0xD800) << 10) + (Esadecimale() - 0xDC00);
    }

    std::uint32_t Esadecimale()
    {
        std::uint32_t valore = 0;
        const std::string_view cifre = m_resto.substr(0, 4);
        const auto [fine, esito] =
            std::from_chars(cifre.data(), cifre.data() + cifre.size(), valore, 16);
        if (esito != std::errc() || fine != cifre.data() + 4) Sbaglia();
        m_resto.remove_prefix(4);
        return valore;
    }

    Json Numero()
    {
        double valore = 0;
        const auto [fine, esito] =
            std::from_chars(m_resto.data(), m_resto.data() + m_resto.size(), valore);
        if (esito != std::errc()) Sbaglia();
        m_resto.remove_prefix(static_cast<std::size_t>(fine - m_resto.data()));
        return valore;
    }

    std::string_view m_resto;
};

// As short as it is exact.
std::string Cifre(double numero)
{
    std::array<char, 32> cifre{};
    const auto fine = std::to_chars(cifre.data(), cifre.data() + cifre.size(), numero).ptr;
    return {cifre.data(), fine};
}

std::string TraVirgolette(const std::string& testo)
{
    std::string fatto = "\"";
    for (const char c : testo) {
        if (c == '"' || c == '\\') fatto.push_back('\\');
        fatto.push_back(c);
    }
    return fatto + '"';
}

} // namespace

Json Json::parse(std::string_view testo)
{
    Lettore lettore(testo);
    Json letto = lettore.Valore();
    lettore.Fine();
    return letto;
}

std::string Json::dump() const
{
    if (const bool* vero = std::get_if<bool>(&m_valore)) return *vero ? "true" : "false";
    if (const double* numero = std::get_if<double>(&m_valore)) return Cifre(*numero);
    if (const std::string* testo = std::get_if<std::string>(&m_valore))
        return TraVirgolette(*testo);
    if (std::holds_alternative<std::nullptr_t>(m_valore)) return "null";
    std::string fatto;
    for (const Json& voce : Elenco()) fatto += (fatto.empty() ? "" : ",") + voce.dump();
    return "[" + fatto + "]";
}

void Json::erase(std::size_t i)
{
    auto& elenco = std::get<std::vector<Json>>(m_valore);
    elenco.erase(elenco.begin() + static_cast<std::ptrdiff_t>(i));
}

} // namespace aiuti
