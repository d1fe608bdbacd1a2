// Prints the exact odds of quote_esatte.h; verifica_quote.py checks them on small shoes, dealt card
// after card.
#include "quote_esatte.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>

// Usage: stampa_quote [assi due tre ... nove dieci]
// One "Name value" line per probability; 17 significant digits identify a double uniquely.

namespace {

quote::Composizione LeggiComposizione(char** argomenti)
{
    quote::Composizione composizione{};
    for (int& n : composizione) {
        char* fine = nullptr;
        errno = 0;
        const long letto = std::strtol(*argomenti, &fine, 10);
        if (fine == *argomenti || *fine != '\0' || errno != 0 || letto < 0 || letto > INT_MAX) {
            throw std::invalid_argument("card counts must be whole numbers");
        }
        n = static_cast<int>(letto);
        ++argomenti;
    }
    return composizione;
}

void Stampa(const char* nome, double p)
{
    std::printf("%s %.17g\n", nome, p);
}

void StampaTutte(const quote::QuotePrimoColpo& quote)
{
    Stampa("VinceNero", quote.vinceNero);
    Stampa("VinceRosso", quote.vinceRosso);
    Stampa("Pari", quote.pari);
    Stampa("TrentunoApres", quote.trentunoApres);
    Stampa("Colore", quote.colore);
    Stampa("Inverso", quote.inverso);
    Stampa("NeroColore", quote.neroColore);
    Stampa("NeroInverso", quote.neroInverso);
    Stampa("RossoColore", quote.rossoColore);
    Stampa("RossoInverso", quote.rossoInverso);
    Stampa("Incompiuto", quote.incompiuto);
    for (std::size_t i = 0; i < quote::kTotali; ++i) {
        std::printf("TotaleNero%zu %.17g\n", quote::kPrimoTotale + i, quote.totaleNero[i]);
    }
    for (std::size_t i = 0; i < quote::kTotali; ++i) {
        std::printf("TotaleRosso%zu %.17g\n", quote::kPrimoTotale + i, quote.totaleRosso[i]);
    }
    for (std::size_t k = 0; k < quote.carteColpo.size(); ++k) {
        if (quote.carteColpo[k] > 0.0) {
            std::printf("CarteColpo%zu %.17g\n", k, quote.carteColpo[k]);
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 1 && argc != 1 + static_cast<int>(quote::kValori)) {
        std::fprintf(stderr, "usage: stampa_quote [ten card counts, aces first]\n");
        return 2;
    }
    try {
        StampaTutte(quote::CalcolaQuotePrimoColpo(argc == 1 ? quote::kSeiMazzi
                                                            : LeggiComposizione(argv + 1)));
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "stampa_quote: %s\n", errore.what());
        return 2;
    }
    return 0;
}
