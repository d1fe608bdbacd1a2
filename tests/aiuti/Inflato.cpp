// Reads deflated bytes bit by bit, as RFC 1951 describes them; DocumentoPdf.cpp asks.
#include "Inflato.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <stdexcept>
#include <vector>

namespace aiuti {

namespace {

[[noreturn]] void Rotto()
{
    throw std::runtime_error("dati compressi sbagliati");
}

// Bits from the lowest of each byte up.
class Bit
{
public:
    explicit Bit(std::string_view byte)
        : m_byte(byte)
    {
    }

    unsigned Uno()
    {
        if (m_posto / 8 >= m_byte.size()) Rotto();
        const unsigned byte = static_cast<unsigned char>(m_byte[m_posto / 8]);
        return byte >> (m_posto++ % 8) & 1U;
    }

    unsigned Numero(int bit)
    {
        unsigned numero = 0;
        for (int i = 0; i < bit; ++i) numero |= Uno() << i;
        return numero;
    }

    void AlByte() { m_posto = (m_posto + 7) / 8 * 8; }

    std::string_view Resto() const { return m_byte.substr(m_posto / 8); }

private:
    std::string_view m_byte;
    std::size_t m_posto = 0;
};

// Canonical Huffman codes: how many of each length, and the symbols in the order of their codes.
class Codici
{
public:
    explicit Codici(const std::vector<int>& lunghezze)
        : m_simboli(lunghezze.size())
    {
        for (const int lunghezza : lunghezze) ++m_quanti[static_cast<std::size_t>(lunghezza)];
        m_quanti[0] = 0;
        std::array<std::size_t, 16> inizio = {};
        for (std::size_t i = 1; i < 15; ++i) inizio[i + 1] = inizio[i] + m_quanti[i];
        for (std::size_t s = 0; s < lunghezze.size(); ++s) {
            const auto lunghezza = static_cast<std::size_t>(lunghezze[s]);
            if (lunghezza != 0) m_simboli[inizio[lunghezza]++] = static_cast<unsigned>(s);
        }
    }

    unsigned Prossimo(Bit& bit) const
    {
        std::size_t codice = 0, primo = 0, indice = 0;
        for (std::size_t lunghezza = 1; lunghezza < m_quanti.size(); ++lunghezza) {
            codice |= bit.Uno();
            const std::size_t quanti = m_quanti[lunghezza];
            if (codice < primo + quanti) return m_simboli[indice + codice - primo];
            indice += quanti;
            primo = (primo + quanti) << 1;
            codice <<= 1;
        }
        Rotto();
    }

private:
    std::array<std::size_t, 16> m_quanti = {};
    std::vector<unsigned> m_simboli;
};

// The least number of each symbol for lengths or distances, and the bits that follow.
struct Scaglioni
{
    int Primo;         // number of symbol 0
    unsigned Piatti;   // symbols without bits
    unsigned PerPasso; // symbols with the same count of bits
};

unsigned Valore(Bit& bit, unsigned simbolo, const Scaglioni& s)
{
    auto numero = static_cast<unsigned>(s.Primo);
    for (unsigned i = 0; i <= simbolo; ++i) {
        const int extra = i < s.Piatti ? 0 : static_cast<int>((i - s.Piatti) / s.PerPasso + 1);
        if (i == simbolo) return numero + bit.Numero(extra);
        numero += 1U << extra;
    }
    Rotto();
}

class Lettura
{
public:
    explicit Lettura(std::string_view byte)
        : m_bit(byte)
    {
    }

    std::string Tutto()
    {
        unsigned ultimo = 0;
        do {
            ultimo = m_bit.Uno();
            Blocco(m_bit.Numero(2));
        } while (ultimo == 0);
        m_bit.AlByte();
        return std::move(m_testo);
    }

    std::string_view Resto() const { return m_bit.Resto(); }

private:
    void Blocco(unsigned genere)
    {
        if (genere == 0) return Intatto();
        if (genere == 1) return Compresso(Codici(Fissi()), Codici(std::vector<int>(30, 5)));
        if (genere != 2) Rotto();
        Propri();
    }

    void Intatto()
    {
        m_bit.AlByte();
        const unsigned quanti = m_bit.Numero(16);
        if (m_bit.Numero(16) != (quanti ^ 0xFFFFU)) Rotto();
        for (unsigned i = 0; i < quanti; ++i) m_testo += static_cast<char>(m_bit.Numero(8));
    }

    static std::vector<int> Fissi()
    {
        std::vector<int> lunghezze(288, 8);
        for (std::size_t i = 144; i < 256; ++i) lunghezze[i] = 9;
        for (std::size_t i = 256; i < 280; ++i) lunghezze[i] = 7;
        return lunghezze;
    }

    void Propri()
    {
        constexpr std::array<std::size_t, 19> ordine = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                                        11, 4,  12, 3, 13, 2, 14, 1, 15};
        const std::size_t lettere = m_bit.Numero(5) + 257;
        const std::size_t distanze = m_bit.Numero(5) + 1;
        const std::size_t quanti = m_bit.Numero(4) + 4;
        std::vector<int> perLunghezze(ordine.size());
        for (std::size_t i = 0; i < quanti; ++i) {
            perLunghezze[ordine[i]] = static_cast<int>(m_bit.Numero(3));
        }
        const auto lunghezze = Lunghezze(Codici(perLunghezze), lettere + distanze);
        const auto meta = lunghezze.begin() + static_cast<std::ptrdiff_t>(lettere);
        Compresso(Codici({lunghezze.begin(), meta}), Codici({meta, lunghezze.end()}));
    }

    std::vector<int> Lunghezze(const Codici& codici, std::size_t quante)
    {
        std::vector<int> lunghezze;
        while (lunghezze.size() < quante) {
            const unsigned simbolo = codici.Prossimo(m_bit);
            if (simbolo == 16 && lunghezze.empty()) Rotto();
            if (simbolo < 16) lunghezze.push_back(static_cast<int>(simbolo));
            else if (simbolo == 16) {
                lunghezze.insert(lunghezze.end(), 3 + m_bit.Numero(2), int{lunghezze.back()});
            } else if (simbolo == 17) lunghezze.insert(lunghezze.end(), 3 + m_bit.Numero(3), 0);
            else lunghezze.insert(lunghezze.end(), 11 + m_bit.Numero(7), 0);
        }
        if (lunghezze.size() > quante) Rotto();
        return lunghezze;
    }

    void Compresso(const Codici& lettere, const Codici& distanze)
    {
        constexpr unsigned fine = 256, lunghissima = 28;
        for (;;) {
            const unsigned simbolo = lettere.Prossimo(m_bit);
            if (simbolo == fine) return;
            if (simbolo < fine) {
                m_testo += static_cast<char>(simbolo);
                continue;
            }
            const unsigned quale = simbolo - fine - 1;
            const unsigned lunghezza = quale == lunghissima ? 258 : Valore(m_bit, quale, {3, 8, 4});
            Ripeti(lunghezza, Valore(m_bit, distanze.Prossimo(m_bit), {1, 4, 2}));
        }
    }

    void Ripeti(unsigned lunghezza, unsigned distanza)
    {
        if (distanza > m_testo.size()) Rotto();
        for (unsigned i = 0; i < lunghezza; ++i)
            m_testo += char{m_testo[m_testo.size() - distanza]};
    }

    Bit m_bit;
    std::string m_testo;
};

// Adler-32, the highest byte first.
std::string Somma(std::string_view byte)
{
    constexpr std::uint32_t modulo = 65521;
    std::uint32_t a = 1, b = 0;
    for (const char c : byte) {
        a = (a + static_cast<unsigned char>(c)) % modulo;
        b = (b + a) % modulo;
    }
    std::string somma;
    for (const std::uint32_t parte : {b >> 8, b, a >> 8, a}) {
        somma += static_cast<char>(static_cast<unsigned char>(parte & 0xFFU));
    }
    return somma;
}

// Deflate with windows of at most 32 KB, no dictionary known before, and a check of these bits.
bool Testata(std::string_view byte)
{
    if (byte.size() < 2) return false;
    const unsigned metodo = static_cast<unsigned char>(byte[0]);
    const unsigned bandiere = static_cast<unsigned char>(byte[1]);
    return (metodo & 0x0FU) == 8 && metodo >> 4 <= 7 && (bandiere & 0x20U) == 0 &&
           (metodo * 256 + bandiere) % 31 == 0;
}

} // namespace

std::optional<std::string> Inflato(std::string_view byte)
{
    if (!Testata(byte)) return std::nullopt;
    try {
        Lettura lettura(byte.substr(2));
        std::string testo = lettura.Tutto();
        if (lettura.Resto() != Somma(testo)) return std::nullopt;
        return testo;
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
}

} // namespace aiuti
