// A coup record read: its fields, its hands with their cards, and what the last record of a shoe
// passes for. Who writes records: GiocaColpo in Colpo.cpp.
#pragma once

#include "Carte.h"

#include <array>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace modCarte {

// The hand of one row: card texts joined by "#". for (const auto carta : mano) walks over them. The
// texts live as long as the record.
class Mano
{
public:
    class Iteratore
    {
    public:
        explicit constexpr Iteratore(std::string_view carte)
            : m_resto(carte)
            , m_ancora(!carte.empty())
        {
        }

        constexpr std::string_view operator*() const { return m_resto.substr(0, Fine()); }

        constexpr Iteratore& operator++()
        {
            m_ancora = Fine() != std::string_view::npos;
            if (m_ancora) m_resto.remove_prefix(Fine() + 1);
            return *this;
        }

        constexpr bool operator==(std::default_sentinel_t) const { return !m_ancora; }

    private:
        constexpr std::size_t Fine() const { return m_resto.find('#'); }

        std::string_view m_resto;
        bool m_ancora;
    };

    explicit constexpr Mano(std::string_view carte)
        : m_carte(carte)
    {
    }

    constexpr Iteratore begin() const { return Iteratore(m_carte); }
    static constexpr std::default_sentinel_t end() { return {}; }

    constexpr int NumeroCarte() const
    {
        int numero = 0;
        for (auto carta = begin(); carta != end(); ++carta) ++numero;
        return numero;
    }

    // As it stands in the record.
    constexpr std::string_view Testo() const { return m_carte; }

private:
    std::string_view m_carte;
};

// The seven fields of a record, which it reads without copying: the text must outlive it. Missing
// fields are empty, further ones are dropped; all comparisons are exact.
class RecordColpo
{
public:
    explicit constexpr RecordColpo(std::string_view testo)
    {
        for (auto& campo : m_campi) campo = Stacca(testo);
        m_carte = testo;
    }

    constexpr std::string_view Numero() const { return m_campi[0]; }
    constexpr std::string_view Esito() const { return m_campi[1]; }  // "N", "R", "E" or empty
    constexpr std::string_view Colore() const { return m_campi[2]; } // "C", "I", "E" or empty
    constexpr std::string_view TotaleNero() const { return m_campi[3]; }
    constexpr std::string_view TotaleRosso() const { return m_campi[4]; }

    constexpr Mano Nero() const
    {
        auto carte = m_carte;
        return Mano(Stacca(carte));
    }

    constexpr Mano Rosso() const
    {
        auto carte = m_carte;
        Stacca(carte);
        return Mano(Stacca(carte));
    }

    constexpr bool VinceNero() const { return Esito() == "N"; }
    constexpr bool VinceRosso() const { return Esito() == "R"; }
    constexpr bool Pari() const { return Esito() == "E"; }
    constexpr bool VinceColore() const { return Colore() == "C"; }
    constexpr bool VinceInverso() const { return Colore() == "I"; }

    // A tie of the lowest totals.
    constexpr bool Trentuno() const
    {
        return Pari() && TotaleNero() == "31" && TotaleRosso() == "31";
    }

    int NumeroCarte() const { return Nero().NumeroCarte() + Rosso().NumeroCarte(); }

    // Whether the totals add up to 61 or less, as they do in most coups that ran out of cards. A
    // last record that is not short passes for a complete coup: two complete rows have 62 or more.
    // Breve takes the totals for 16-bit whole numbers: error 13 when one is anything else, error 6
    // beyond 16 bits. BreveComeScritto takes the number at the start of each and never fails. The
    // two agree on every record that the game makes.
    bool Breve() const;
    bool BreveComeScritto() const;

private:
    // Takes the first field and its comma off the text.
    static constexpr std::string_view Stacca(std::string_view& testo)
    {
        const auto virgola = testo.find(',');
        const auto campo = testo.substr(0, virgola);
        testo.remove_prefix(virgola == std::string_view::npos ? testo.size() : virgola + 1);
        return campo;
    }

    std::array<std::string_view, 5> m_campi;
    std::string_view m_carte; // both hands: split only when asked for, which statistics never do
};

} // namespace modCarte
