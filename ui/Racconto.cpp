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
    explicit Fascia(const Scritta& nome)
        : m_fine(nome.Y + oltre)
    {
    }
    float Inizio() const { return m_fine - altezza; }
    bool Contiene(float y) const { return y >= Inizio() && y < m_fine; }
    bool Contiene(const Carta& carta) const
    {
        return Contiene(static_cast<float>(carta.Y * TwipPerPixel));
    }

private:
    static constexpr float oltre = 40;
    static constexpr float altezza = static_cast<float>(AltezzaDiCarta * TwipPerPixel);

    float m_fine;
};

std::string Riga(const Scritta& nome, const std::vector<Scritta>& scritte,
                 const std::vector<Carta>& carte)
{
    const Fascia fascia(nome);
    std::string testo;
    for (const auto& carta : carte) {
        if (!fascia.Contiene(carta)) continue;
        testo.append(testo.empty() ? "" : ", ").append(NomeCarta(carta.Numero));
    }
    if (testo.empty()) testo = "nessuna carta";
    for (const auto& altra : scritte) {
        if (!altra.Verticale && fascia.Contiene(altra.Y)) testo.append(", totale " + altra.Testo);
    }
    return nome.Testo + ": " + testo;
}

bool InUnaRiga(const Scritta& scritta, const std::vector<Scritta>& scritte)
{
    return std::any_of(scritte.begin(), scritte.end(), [&](const Scritta& nome) {
        return nome.Verticale && Fascia(nome).Contiene(scritta.Y);
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

std::string Racconta(const std::vector<Scritta>& scritte, const std::vector<Carta>& carte)
{
    std::vector<Parte> parti;
    for (const auto& scritta : scritte) {
        if (scritta.Verticale) {
            parti.push_back({scritta.X, Fascia(scritta).Inizio(), Riga(scritta, scritte, carte)});
        } else if (!InUnaRiga(scritta, scritte)) {
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
