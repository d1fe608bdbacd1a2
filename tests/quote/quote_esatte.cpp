// Sums the exact odds of the first coup over all ways in which its rows can close. The comment
// below the includes says how.
#include "quote_esatte.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

// How the sum is arranged.
//
// A completed row is an "open" part, whose sum is at most 30, followed by a closing card. Every
// ordering of the open part keeps its running sum at or below 30, so all of them are legal, and an
// open multiset with a_v cards of value v stands for (sum a)! / prod a_v! sequences.
//
// Fix the closing cards x (Nero) and y (Rosso) and take them out of the shoe, leaving n_v cards of
// each value. With A and B the sizes of the open parts, the sequences with open multisets a and b
// have probability
//
//     c_xy * A! B! / (n)_(A+B+2) * prod_v [ (n_v)_(a_v+b_v) / (a_v! b_v!) ]
//
// where (n)_k is the falling factorial, n counts the full shoe and c_xy the ways to choose the two
// closing cards. The product is over single values: there is no need to enumerate multisets. Values
// are added one at a time to a table indexed by (sum, cards) of each row, which is all that the
// other factors and the constraint "sum at most 30, sum plus closing card above 30" depend upon.
//
// Every term is positive, so no cancellation occurs and relative errors stay near the rounding
// unit; carrying long double leaves the final doubles correct nearly to the last bit.

namespace quote {
namespace {

using Reale = long double;
using Indice = std::size_t;

constexpr Indice kMassimoAperta = kPrimoTotale - 1;
constexpr Indice kLatoTabella = kMassimoAperta + 1;

// An open row, as far as the values added so far are concerned.
struct Aperta
{
    Indice somma;
    Indice carte;
};

// Adding all the cards of one value to an open row: the row `da` with m such cards becomes row
// arrivo[inizio[da] + m]. The reachable rows are numbered densely since their pairs are stored.
struct Passo
{
    Indice valore = 0;
    std::vector<Aperta> righe;
    std::vector<Indice> inizio;
    std::vector<Indice> arrivo;
};

using Tabella = std::vector<Reale>;
using Coefficienti = std::array<Reale, kLatoTabella * kLatoTabella>;

Passo CostruisciPasso(const std::vector<Aperta>& partenze, Indice valore)
{
    constexpr Indice kAssente = static_cast<Indice>(-1);
    std::vector<Indice> numero(kLatoTabella * kLatoTabella, kAssente);
    Passo passo;
    passo.valore = valore;
    for (const Aperta& da : partenze) {
        passo.inizio.push_back(passo.arrivo.size());
        for (Indice m = 0; da.somma + m * valore <= kMassimoAperta; ++m) {
            const Aperta a = {da.somma + m * valore, da.carte + m};
            Indice& n = numero[a.somma * kLatoTabella + a.carte];
            if (n == kAssente) {
                n = passo.righe.size();
                passo.righe.push_back(a);
            }
            passo.arrivo.push_back(n);
        }
    }
    passo.inizio.push_back(passo.arrivo.size());
    return passo;
}

// High values come first: they leave few reachable rows, so that the tables grow only at the end.
// Aces are missing on purpose, see AggiungiAssi.
std::vector<Passo> CostruisciPassi()
{
    std::vector<Passo> passi;
    std::vector<Aperta> partenze = {{0, 0}};
    for (Indice valore = kValori; valore >= 2; --valore) {
        passi.push_back(CostruisciPasso(partenze, valore));
        partenze = passi.back().righe;
    }
    return passi;
}

// Element (p, q) is (n)_(p+q) / (p! q!), which vanishes by itself when the cards are too few.
void CalcolaCoefficienti(int n, Indice valore, Coefficienti& coefficienti)
{
    const Indice massimo = kMassimoAperta / valore;
    std::array<Reale, 2 * kLatoTabella> discendente{};
    std::array<Reale, kLatoTabella> fattoriale{};
    discendente[0] = 1;
    fattoriale[0] = 1;
    for (Indice k = 0; k < 2 * massimo; ++k) {
        const int rimaste = std::max(n - static_cast<int>(k), 0);
        discendente[k + 1] = discendente[k] * static_cast<Reale>(rimaste);
    }
    for (Indice k = 1; k <= massimo; ++k) {
        fattoriale[k] = fattoriale[k - 1] * static_cast<Reale>(k);
    }
    for (Indice p = 0; p <= massimo; ++p) {
        for (Indice q = 0; q <= massimo; ++q) {
            coefficienti[p * kLatoTabella + q] =
                discendente[p + q] / (fattoriale[p] * fattoriale[q]);
        }
    }
}

void Avanza(const Passo& passo, const Coefficienti& coefficienti, const Tabella& da, Tabella& a)
{
    const Indice latoDa = passo.inizio.size() - 1;
    const Indice latoA = passo.righe.size();
    a.assign(latoA * latoA, 0);
    for (Indice nero = 0; nero < latoDa; ++nero) {
        for (Indice p = passo.inizio[nero]; p < passo.inizio[nero + 1]; ++p) {
            const Reale* coefficiente = &coefficienti[(p - passo.inizio[nero]) * kLatoTabella];
            Reale* destinazione = &a[passo.arrivo[p] * latoA];
            for (Indice rosso = 0; rosso < latoDa; ++rosso) {
                const Reale peso = da[nero * latoDa + rosso];
                const Indice primo = passo.inizio[rosso];
                const Indice ultimo = passo.inizio[rosso + 1];
                for (Indice q = primo; q < ultimo; ++q) {
                    destinazione[passo.arrivo[q]] += peso * coefficiente[q - primo];
                }
            }
        }
    }
}

// What the sum over open parts and closing cards accumulates.
struct Somme
{
    std::array<Reale, kTotali * kTotali> totali{};
    std::array<Reale, kMaxCarteColpo + 1> carte{};
};

class Calcolo
{
public:
    explicit Calcolo(const Composizione& composizione);

    Somme Esegui();

private:
    void SommaChiusure(Indice x, Indice y);
    void AggiungiAssi(Indice x, Indice y, Reale scelte);
    void AggiungiTermini(Indice x, Indice y, Aperta nero, Aperta rosso, Reale peso,
                         Somme& somme) const;
    void Accumula(const Somme& parziali, bool ancheTrasposte);

    Composizione composizione_;
    std::vector<Passo> passi_ = CostruisciPassi();
    std::array<Reale, kLatoTabella> fattoriale_{};
    std::array<Reale, kMaxCarteColpo + 1> inversoDiscendente_{};
    Coefficienti coefficienti_{};
    Tabella tabella_;
    Tabella prossima_;
    Somme somme_;
};

Calcolo::Calcolo(const Composizione& composizione)
    : composizione_(composizione)
{
    fattoriale_[0] = 1;
    for (Indice k = 1; k < fattoriale_.size(); ++k) {
        fattoriale_[k] = fattoriale_[k - 1] * static_cast<Reale>(k);
    }
    Reale rimaste = 0;
    for (const int n : composizione_) {
        rimaste += static_cast<Reale>(n);
    }
    // Left at zero past the end of the shoe, where the numerators are zero too.
    Reale discendente = 1;
    for (Indice k = 0; k < inversoDiscendente_.size() && rimaste >= 0; ++k) {
        inversoDiscendente_[k] = 1 / discendente;
        discendente *= rimaste;
        rimaste -= 1;
    }
}

// The open parts play the same role in both rows, so swapping x and y transposes the result: only
// the unordered pairs are worked out.
Somme Calcolo::Esegui()
{
    for (Indice x = 1; x <= kValori; ++x) {
        for (Indice y = x; y <= kValori; ++y) {
            SommaChiusure(x, y);
        }
    }
    return somme_;
}

void Calcolo::SommaChiusure(Indice x, Indice y)
{
    const Composizione intera = composizione_;
    const Reale scelteX = static_cast<Reale>(composizione_[x - 1]--);
    const Reale scelteY = static_cast<Reale>(composizione_[y - 1]--);
    if (scelteX > 0 && scelteY > 0) {
        tabella_.assign(1, 1);
        for (const Passo& passo : passi_) {
            CalcolaCoefficienti(composizione_[passo.valore - 1], passo.valore, coefficienti_);
            Avanza(passo, coefficienti_, tabella_, prossima_);
            tabella_.swap(prossima_);
        }
        CalcolaCoefficienti(composizione_[0], 1, coefficienti_);
        AggiungiAssi(x, y, scelteX * scelteY);
    }
    composizione_ = intera;
}

// The aces are determined by the sum the open row has to reach, so that the largest table, the one
// with every value in it, need not be built.
//
// Partial sums for each Nero row keep the millions of terms from piling their rounding up in the
// same few accumulators.
void Calcolo::AggiungiAssi(Indice x, Indice y, Reale scelte)
{
    const std::vector<Aperta>& righe = passi_.back().righe;
    for (Indice nero = 0; nero < righe.size(); ++nero) {
        Somme parziali;
        for (Indice rosso = 0; rosso < righe.size(); ++rosso) {
            const Reale peso = tabella_[nero * righe.size() + rosso];
            if (peso > 0) {
                AggiungiTermini(x, y, righe[nero], righe[rosso], scelte * peso, parziali);
            }
        }
        Accumula(parziali, x != y);
    }
}

void Calcolo::Accumula(const Somme& parziali, bool ancheTrasposte)
{
    for (Indice i = 0; i < kTotali; ++i) {
        for (Indice j = 0; j < kTotali; ++j) {
            somme_.totali[i * kTotali + j] +=
                parziali.totali[i * kTotali + j] +
                (ancheTrasposte ? parziali.totali[j * kTotali + i] : 0);
        }
    }
    for (Indice k = 0; k < somme_.carte.size(); ++k) {
        somme_.carte[k] += ancheTrasposte ? 2 * parziali.carte[k] : parziali.carte[k];
    }
}

void Calcolo::AggiungiTermini(Indice x, Indice y, Aperta nero, Aperta rosso, Reale peso,
                              Somme& somme) const
{
    const Indice primoNero = std::max(nero.somma, kPrimoTotale - x);
    const Indice primoRosso = std::max(rosso.somma, kPrimoTotale - y);
    for (Indice sommaNero = primoNero; sommaNero <= kMassimoAperta; ++sommaNero) {
        const Indice assiNero = sommaNero - nero.somma;
        const Indice carteNero = nero.carte + assiNero;
        const Indice i = sommaNero + x - kPrimoTotale;
        for (Indice sommaRosso = primoRosso; sommaRosso <= kMassimoAperta; ++sommaRosso) {
            const Indice assiRosso = sommaRosso - rosso.somma;
            const Indice carteRosso = rosso.carte + assiRosso;
            const Indice j = sommaRosso + y - kPrimoTotale;
            const Indice carte = carteNero + carteRosso + 2;
            const Reale termine = peso * coefficienti_[assiNero * kLatoTabella + assiRosso] *
                                  fattoriale_[carteNero] * fattoriale_[carteRosso] *
                                  inversoDiscendente_[carte];
            somme.totali[i * kTotali + j] += termine;
            somme.carte[carte] += termine;
        }
    }
}

void VerificaComposizione(const Composizione& composizione)
{
    for (const int n : composizione) {
        if (n < 0 || n % 2 != 0) {
            throw std::invalid_argument("card counts must be even and not negative");
        }
    }
}

// Exchanging black and red on every card turns a uniform shuffle into a uniform shuffle, as each
// value has as many cards of either colour; it leaves all the points alone and flips the colour of
// the first card. Within each winner, Colore and Inverso are therefore equally likely.
void RipartisciColore(Reale vinceNero, Reale vinceRosso, QuotePrimoColpo& quote)
{
    quote.neroColore = static_cast<double>(vinceNero / 2);
    quote.neroInverso = quote.neroColore;
    quote.rossoColore = static_cast<double>(vinceRosso / 2);
    quote.rossoInverso = quote.rossoColore;
    quote.colore = static_cast<double>((vinceNero + vinceRosso) / 2);
    quote.inverso = quote.colore;
}

} // namespace

QuotePrimoColpo CalcolaQuotePrimoColpo(const Composizione& composizione)
{
    VerificaComposizione(composizione);
    const Somme somme = Calcolo(composizione).Esegui();

    Reale vinceNero = 0;
    Reale vinceRosso = 0;
    Reale pari = 0;
    std::array<Reale, kTotali> totaleNero{};
    std::array<Reale, kTotali> totaleRosso{};
    for (Indice i = 0; i < kTotali; ++i) {
        for (Indice j = 0; j < kTotali; ++j) {
            const Reale p = somme.totali[i * kTotali + j];
            (i < j ? vinceNero : i > j ? vinceRosso : pari) += p;
            totaleNero[i] += p;
            totaleRosso[j] += p;
        }
    }

    QuotePrimoColpo quote;
    const auto inDouble = [](Reale p) { return static_cast<double>(p); };
    quote.vinceNero = inDouble(vinceNero);
    quote.vinceRosso = inDouble(vinceRosso);
    quote.pari = inDouble(pari);
    quote.trentunoApres = inDouble(somme.totali[0]);
    quote.incompiuto = inDouble(1 - (vinceNero + vinceRosso + pari));
    RipartisciColore(vinceNero, vinceRosso, quote);
    std::transform(totaleNero.begin(), totaleNero.end(), quote.totaleNero.begin(), inDouble);
    std::transform(totaleRosso.begin(), totaleRosso.end(), quote.totaleRosso.begin(), inDouble);
    std::transform(somme.carte.begin(), somme.carte.end(), quote.carteColpo.begin(), inDouble);
    return quote;
}

} // namespace quote
