// The words of Racconto.h. Where a row stands, and how its name is turned, is laid out in
// Schermate.cpp.

#include "Racconto.h"

#include "LibreriaCarte.h"
#include "Misure.h"

#include <algorithm>
#include <array>

namespace racconto {

namespace {

constexpr std::int32_t NumeroSemi = 4;
constexpr std::array<const char*, 13> Valori = {"asso",  "due",   "tre",  "quattro", "cinque",
                                                "sei",   "sette", "otto", "nove",    "dieci",
                                                "fante", "donna", "re"};
constexpr std::array<const char*, NumeroSemi> Semi = {"fiori", "quadri", "cuori", "picche"};

// A part of the picture, and where it stands.
struct Parte
{
    float X;
    float Y;
    std::string Testo;
};

// What stands beside the name of a row, in twips: a card's height that ends a little below the
// point from which the name reads upwards.
class Fascia
{
public:
    explicit Fascia(const Didascalia& nome)
        : m_fine(nome.Y + oltre)
    {
    }
    float Inizio() const { return m_fine - altezza; }
    bool Contiene(float y) const { return y >= Inizio() && y < m_fine; }
    bool Contiene(const CartaPosata& carta) const
    {
        return Contiene(static_cast<float>(carta.Y * TwipPerPixel));
    }

private:
    static constexpr float oltre = 40;
    static constexpr float altezza = static_cast<float>(AltezzaDiCarta * TwipPerPixel);

    float m_fine;
};

// What is told of a picture: its captions, each once, and its cards that lie face up.
struct Detto
{
    std::vector<Didascalia> Scritte;
    std::vector<CartaPosata> Carte;
};

Detto DaDire(const std::vector<Elemento>& elementi)
{
    Detto detto;
    for (const auto& elemento : elementi) {
        const auto* scritta = std::get_if<Didascalia>(&elemento);
        const auto* carta = std::get_if<CartaPosata>(&elemento);
        if (scritta != nullptr && !scritta->Ripetuta) detto.Scritte.push_back(*scritta);
        if (carta != nullptr && carta->Modo == ModoFaccia) detto.Carte.push_back(*carta);
    }
    return detto;
}

bool NomeDiRiga(const Didascalia& scritta)
{
    return scritta.Angolo == VersoLAlto;
}

std::string Riga(const Didascalia& nome, const Detto& detto)
{
    const Fascia fascia(nome);
    std::string testo;
    for (const auto& carta : detto.Carte) {
        if (!fascia.Contiene(carta)) continue;
        testo.append(testo.empty() ? "" : ", ").append(NomeCarta(carta.Carta));
    }
    if (testo.empty()) testo = "nessuna carta";
    for (const auto& altra : detto.Scritte) {
        if (!NomeDiRiga(altra) && fascia.Contiene(altra.Y)) testo += ", totale " + altra.Testo;
    }
    return nome.Testo + ": " + testo;
}

bool InUnaRiga(const Didascalia& scritta, const std::vector<Didascalia>& scritte)
{
    return std::any_of(scritte.begin(), scritte.end(), [&](const Didascalia& nome) {
        return NomeDiRiga(nome) && Fascia(nome).Contiene(scritta.Y);
    });
}

} // namespace

std::string NomeCarta(std::int32_t numero)
{
    const auto quante = static_cast<std::int32_t>(Valori.size()) * NumeroSemi;
    if (numero < 0 || numero >= quante) return {};
    return std::string(Valori[static_cast<std::size_t>(numero / NumeroSemi)]) + " di " +
           Semi[static_cast<std::size_t>(numero % NumeroSemi)];
}

std::string Racconta(const std::vector<Elemento>& elementi)
{
    const Detto detto = DaDire(elementi);
    std::vector<Parte> parti;
    for (const auto& scritta : detto.Scritte) {
        if (NomeDiRiga(scritta)) {
            parti.push_back({scritta.X, Fascia(scritta).Inizio(), Riga(scritta, detto)});
        } else if (!InUnaRiga(scritta, detto.Scritte)) {
            parti.push_back({scritta.X, scritta.Y, scritta.Testo});
        }
    }
    std::stable_sort(parti.begin(), parti.end(), [](const Parte& una, const Parte& altra) {
        return una.Y != altra.Y ? una.Y < altra.Y : una.X < altra.X;
    });
    std::string testo;
    for (const auto& parte : parti) testo.append(testo.empty() ? "" : "; ").append(parte.Testo);
    return testo;
}

} // namespace racconto
