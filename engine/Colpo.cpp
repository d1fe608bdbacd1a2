// Dealing one coup, deciding it and writing its record: the rules stand above GiocaColpo in
// modCarte.h. Records are read by RecordColpo.h.

#include "modCarte.h"

#include "ErroreRuntime.h"

#include <charconv>
#include <cstddef>
#include <cstring>

namespace modCarte {

namespace {

constexpr int UltimoIndice = CarteTaglia - 1;
constexpr int PuntiDaSuperare = 30;

// What the dealer needs to know of a card, worked out once for every code.
struct Carta
{
    std::array<char, 4> testo{}; // card text and "#", then anything
    std::uint8_t lunghezza = 0;  // of card text and "#"
    std::int8_t punti = 0;
    bool rossa = false;
};

constexpr Carta CostruisciCarta(std::int16_t codice)
{
    Carta carta;
    const auto aggiungi = [&carta](std::string_view testo) {
        for (const char c : testo) carta.testo[carta.lunghezza++] = c;
    };
    aggiungi(NomeValore(codice));
    aggiungi(SemeCarta(codice));
    aggiungi("#");
    carta.punti = static_cast<std::int8_t>(PuntiCarta(codice));
    carta.rossa = CartaRossa(SemeCarta(codice));
    return carta;
}

constexpr std::array<Carta, CarteTaglia + 1> Carte = [] {
    std::array<Carta, CarteTaglia + 1> carte;
    for (std::size_t codice = 0; codice < carte.size(); ++codice) {
        carte[codice] = CostruisciCarta(static_cast<std::int16_t>(codice));
    }
    return carte;
}();

const Carta& CartaDi(std::int16_t codice)
{
    // Before the first shuffle Mazzo is all zero, which reads as a king; other codes cannot come
    // out of a shuffle, and reading beyond the table is never allowed.
    const auto indice = static_cast<std::size_t>(static_cast<std::uint16_t>(codice));
    if (indice >= Carte.size()) throw ErroreRuntime(NumeroErrore::IndiceFuoriIntervallo);
    return Carte[indice];
}

// A row while it is dealt: the cards from index primo up to, not including, index fine, and their
// texts.
struct ManoInGioco
{
    int primo;
    int fine;
    int totale;
    bool completa;
    std::size_t lunghezza; // of testo, its trailing "#" left out
    // Room for the longest row. Not initialised on purpose: clearing 1,248 bytes a hand costs more
    // than dealing it.
    std::array<char, std::size_t{4} * CarteTaglia> testo;

    explicit ManoInGioco(int indice)
        : primo(indice)
        , fine(indice)
        , totale(0)
        , completa(false)
        , lunghezza(0)
    {
    }

    std::string_view Carte() const { return {testo.data(), lunghezza}; }
};

// Deals from the row's first index until the total passes 30 or there is no card left.
void Dai(const std::array<std::int16_t, CarteTaglia>& mazzo, ManoInGioco& mano)
{
    while (mano.totale <= PuntiDaSuperare && mano.fine <= UltimoIndice) {
        const Carta& carta = CartaDi(mazzo[static_cast<std::size_t>(mano.fine)]);
        std::memcpy(mano.testo.data() + mano.lunghezza, carta.testo.data(), carta.testo.size());
        mano.lunghezza += carta.lunghezza;
        mano.totale += carta.punti;
        ++mano.fine;
    }
    if (mano.fine > mano.primo) --mano.lunghezza; // the one trailing "#"
    mano.completa = mano.totale > PuntiDaSuperare;
}

// Lower total wins; equal totals are "E", 31-31 included.
char Esito(int totaleNero, int totaleRosso)
{
    if (totaleNero < totaleRosso) return 'N';
    if (totaleNero > totaleRosso) return 'R';
    return 'E';
}

// The coup's first card against the winning row: the same colour is "C", the other one "I".
char Colore(char esito, bool primaRossa)
{
    if (esito == 'E') return 'E';
    const bool vinceNero = esito == 'N';
    return vinceNero == primaRossa ? 'I' : 'C';
}

// The fields before the cards: number, outcome, colour, totals, each with its comma.
class Testata
{
public:
    void Campo(char c)
    {
        m_testo[m_lunghezza++] = c;
        m_testo[m_lunghezza++] = ',';
    }

    void CampoVuoto() { m_testo[m_lunghezza++] = ','; }

    void Campo(std::int64_t numero)
    {
        const auto esito =
            std::to_chars(m_testo.data() + m_lunghezza, m_testo.data() + m_testo.size(), numero);
        *esito.ptr = ',';
        m_lunghezza = static_cast<std::size_t>(esito.ptr - m_testo.data()) + 1;
    }

    std::string_view Testo() const { return {m_testo.data(), m_lunghezza}; }

private:
    std::array<char, 96> m_testo; // three numbers of at most 20 characters, two letters, commas
    std::size_t m_lunghezza = 0;
};

void ScriviRecord(std::string& record, const std::array<std::int16_t, CarteTaglia>& mazzo,
                  const ManoInGioco& nero, const ManoInGioco& rosso)
{
    Testata testata;
    testata.Campo(static_cast<std::int64_t>(NumeroColpo));
    if (rosso.completa) {
        const char esito = Esito(nero.totale, rosso.totale);
        const bool primaRossa = CartaDi(mazzo[static_cast<std::size_t>(nero.primo)]).rossa;
        testata.Campo(esito);
        testata.Campo(Colore(esito, primaRossa));
    } else {
        testata.CampoVuoto(); // outcome and colour of a coup that ran out stay empty
        testata.CampoVuoto();
    }
    testata.Campo(std::int64_t{nero.totale});
    testata.Campo(std::int64_t{rosso.totale});
    record.assign(testata.Testo()).append(nero.Carte()).append(1, ',').append(rosso.Carte());
}

} // namespace

void GiocaColpo(std::string& record)
{
    const auto& mazzo = Mazzo;
    if (!(Posizione >= 0)) throw ErroreRuntime(NumeroErrore::IndiceFuoriIntervallo);
    // Past the end every position is alike: there is no card.
    const int primo = Posizione > UltimoIndice ? CarteTaglia : static_cast<int>(Posizione);

    ManoInGioco nero(primo);
    Dai(mazzo, nero);
    ManoInGioco rosso(nero.fine);
    if (nero.completa) Dai(mazzo, rosso);
    ScriviRecord(record, mazzo, nero, rosso);

    if (rosso.completa) {
        FineTaglia = Falso;
        Posizione = rosso.fine;
        NumeroColpo += 1;
        return;
    }
    FineTaglia = Vero;
    // One past the first card that did not exist, so 313, on purpose: the reports count the cards
    // used from there. A further call finds no card at Posizione itself and moves one on.
    Posizione = Posizione > UltimoIndice ? Posizione + 1 : CarteTaglia + 1;
}

std::string GiocaColpo()
{
    std::string record;
    GiocaColpo(record);
    return record;
}

} // namespace modCarte
