// Reads shoes from lines, refuses with the reason, and reads a shoe again when it is dealt. Where
// each stands in the file: IndiceMazzi.cpp; lines and their places: platform/LetturaFile.h.
#include "FileMazzi.h"

#include "ErroreRuntime.h"
#include "MotiviMazzo.h"
#include "Numeri.h"

#include <algorithm>
#include <bitset>

namespace cli {

namespace {

using modCarte::CarteMazzetto;
using modCarte::CarteTaglia;
using modCarte::TestoCarta;

constexpr std::size_t Mazzetti = CarteTaglia / CarteMazzetto;

// Enough for any shoe with generous blanks and a long comment.
constexpr std::size_t RigaMassima = 64 * 1024;

[[noreturn]] void Rifiuta(const std::string& motivo)
{
    throw ErroreRuntime(NumeroErrore::ChiamataNonValida, motivo);
}

// A word as it may be shown: short, and without control characters of a hostile file.
std::string Citata(std::string_view parola)
{
    constexpr std::size_t massimo = 20;
    std::string citata(parola.substr(0, massimo));
    std::replace_if(
        citata.begin(), citata.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
    return "\"" + citata + (parola.size() > massimo ? "..." : "") + "\"";
}

std::vector<std::string_view> Parole(std::string_view riga)
{
    constexpr std::string_view separatori = ",; \t\r";
    constexpr std::string_view segnoDiUtf8 = "\xEF\xBB\xBF"; // what some editors begin a file with
    if (riga.starts_with(segnoDiUtf8)) riga.remove_prefix(segnoDiUtf8.size());
    riga = riga.substr(0, riga.find('#'));
    std::vector<std::string_view> parole;
    for (;;) {
        const auto inizio = riga.find_first_not_of(separatori);
        if (inizio == std::string_view::npos) return parole;
        riga.remove_prefix(inizio);
        const auto fine = std::min(riga.find_first_of(separatori), riga.size());
        parole.push_back(riga.substr(0, fine));
        riga.remove_prefix(fine);
    }
}

std::optional<std::int16_t> CodiceMazzetto(std::string_view testo)
{
    for (std::int16_t codice = 1; codice <= CarteMazzetto; ++codice) {
        if (TestoCarta(codice) == testo) return codice;
    }
    return std::nullopt;
}

Taglia DaCodici(const std::vector<std::string_view>& parole)
{
    Taglia taglia{};
    std::bitset<CarteTaglia + 1> visti;
    for (std::size_t i = 0; i < taglia.size(); ++i) {
        std::uint64_t codice = 0;
        if (!LeggiInteroSenzaSegno(parole[i], codice) || codice < 1 || codice > CarteTaglia) {
            Rifiuta(Citata(parole[i]) + " non è un codice da 1 a 312");
        }
        const auto posto = static_cast<std::size_t>(codice);
        if (visti.test(posto)) Rifiuta(modCarte::MotivoCartaRipetuta(parole[i]));
        visti.set(posto);
        taglia[i] = static_cast<std::int16_t>(codice);
    }
    return taglia;
}

Taglia DaTesti(const std::vector<std::string_view>& parole)
{
    Taglia taglia{};
    std::array<std::size_t, CarteMazzetto + 1> usate{};
    for (std::size_t i = 0; i < taglia.size(); ++i) {
        const auto codice = CodiceMazzetto(parole[i]);
        if (!codice) Rifiuta(Citata(parole[i]) + " non è una carta");
        auto& mazzetto = usate[static_cast<std::size_t>(*codice)];
        if (mazzetto == Mazzetti) {
            Rifiuta("la carta " + std::string(parole[i]) + " compare più di 6 volte");
        }
        taglia[i] = static_cast<std::int16_t>(*codice + static_cast<int>(mazzetto) * CarteMazzetto);
        ++mazzetto;
    }
    return taglia;
}

// From 0 to 51, the same in each pack.
std::uint64_t Carta(std::int16_t codice)
{
    return static_cast<std::uint64_t>((codice - 1) % CarteMazzetto);
}

bool StessaCarta(std::int16_t uno, std::int16_t altro)
{
    return Carta(uno) == Carta(altro);
}

// A number that shoes with the same cards share and others hardly ever do (the hash FNV-1a).
std::uint64_t Impronta(const Taglia& taglia)
{
    std::uint64_t impronta = 14695981039346656037U;
    for (const std::int16_t codice : taglia) {
        impronta = (impronta ^ Carta(codice)) * 1099511628211U;
    }
    return impronta ^ (impronta >> IndiceMazzi::BitImpronta);
}

} // namespace

std::optional<Taglia> LeggiTaglia(std::string_view riga)
{
    const auto parole = Parole(riga);
    if (parole.empty()) return std::nullopt;
    if (parole.size() != CarteTaglia) {
        Rifiuta(modCarte::MotivoNumeroCarte(parole.size()));
    }
    // The first word decides which of the two forms the line has.
    return CodiceMazzetto(parole.front()) ? DaTesti(parole) : DaCodici(parole);
}

FileMazzi::FileMazzi(const std::string& percorso)
    : m_file(percorso, RigaMassima)
{
}

bool FileMazzi::Leggi(std::optional<std::int64_t> massimo, const std::function<bool()>& fermare)
{
    const auto riga = [&](std::size_t numero, std::uint64_t inizio, std::string_view testo) {
        try {
            const auto taglia = LeggiTaglia(testo);
            // Lines beyond the last shoe wanted are read and checked, too, but not kept.
            if (taglia && (!massimo || Quante() < *massimo)) Aggiungi(inizio, *taglia);
        } catch (const ErroreRuntime& errore) {
            throw ErroreRuntime(errore.Numero(),
                                "riga " + TestoNumero(static_cast<std::int64_t>(numero)) + ": " +
                                    errore.Motivo(),
                                Percorso());
        }
    };
    if (!m_file.Leggi(riga, fermare)) return false;
    if (Quante() == 0) {
        throw ErroreRuntime(NumeroErrore::ChiamataNonValida, "non contiene nessuna taglia",
                            Percorso());
    }
    return true;
}

void FileMazzi::Aggiungi(std::uint64_t inizio, const Taglia& taglia)
{
    if (m_file.Rileggibile()) {
        m_indice.Aggiungi(inizio, Impronta(taglia));
        return;
    }
    m_indice.Aggiungi(m_intere.size(), Impronta(taglia));
    m_intere.push_back(taglia);
}

// Nothing when no shoe stands there any more.
std::optional<Taglia> FileMazzi::Rileggi(std::uint64_t inizio) const
{
    if (!m_file.Rileggibile()) return m_intere.at(static_cast<std::size_t>(inizio));
    const std::string riga = m_file.RigaA(inizio);
    try {
        return LeggiTaglia(riga);
    } catch (const ErroreRuntime&) {
        return std::nullopt; // every line was a good one when it was checked
    }
}

Taglia FileMazzi::Mazzo(std::size_t indice) const
{
    const auto taglia = Rileggi(m_indice.Inizio(indice));
    if (taglia && m_indice.Conosce(indice, Impronta(*taglia))) return *taglia;
    throw ErroreRuntime(NumeroErrore::ChiamataNonValida,
                        "la taglia " + TestoNumero(static_cast<std::int64_t>(indice) + 1) +
                            " è cambiata da quando è stata controllata",
                        Percorso());
}

std::optional<IndiceMazzi::Ripetute> FileMazzi::Ripetizioni(const std::function<bool()>& fermare)
{
    return m_indice.Ripetizioni([&](std::uint64_t una, std::uint64_t altra) {
        if (fermare()) return false;
        const auto prima = Rileggi(una);
        const auto seconda = Rileggi(altra);
        return prima && seconda &&
               std::equal(prima->begin(), prima->end(), seconda->begin(), StessaCarta);
    });
}

std::string RigaTaglia(const Taglia& taglia)
{
    std::string riga;
    for (const std::int16_t codice : taglia) {
        if (!riga.empty()) riga.push_back(',');
        riga += TestoNumero(std::int64_t{codice});
    }
    riga.push_back('\n');
    return riga;
}

} // namespace cli
