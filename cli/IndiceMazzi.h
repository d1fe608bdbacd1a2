// Where the shoes of a file stand and what each is known by, in few bytes a shoe. Who reads
// them: FileMazzi.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>

namespace cli {

class IndiceMazzi
{
public:
    // Bits of a fingerprint that are kept.
    static constexpr int BitImpronta = 48;

    // Adds a shoe; inizio must grow from one to the next and stay below 2^48, more than any file
    // that could be read in a week.
    void Aggiungi(std::uint64_t inizio, std::uint64_t impronta);

    std::size_t Quante() const { return m_voci.size(); }

    // Of shoe number indice, from 0 on.
    std::uint64_t Inizio(std::size_t indice) const { return m_voci.at(indice).Inizio(); }
    bool Conosce(std::size_t indice, std::uint64_t impronta) const
    {
        return m_voci.at(indice).Impronta() == SoloImpronta(impronta);
    }

    // Shoes that an earlier one is equal to.
    struct Ripetute
    {
        std::size_t Quante;
        std::size_t Prima; // index of the first of them
        std::size_t Come;  // index of the shoe before it that it is equal to
    };

    // Nothing when all shoes differ. uguali is asked about two shoes of one fingerprint, by where
    // they begin, the earlier one first; several equal ones are asked about one after the other.
    std::optional<Ripetute>
    Ripetizioni(const std::function<bool(std::uint64_t una, std::uint64_t altra)>& uguali);

private:
    // Twelve bytes on purpose: two numbers of 64 bits would take a third more for each of millions.
    class Voce
    {
    public:
        Voce(std::uint64_t inizio, std::uint64_t impronta);
        std::uint64_t Inizio() const;
        std::uint64_t Impronta() const;

    private:
        std::uint32_t m_inizioBasso;
        std::uint32_t m_improntaBassa;
        std::uint16_t m_inizioAlto;
        std::uint16_t m_improntaAlta;
    };

    static std::uint64_t SoloImpronta(std::uint64_t impronta);
    std::size_t Indice(std::uint64_t inizio) const;

    // Grows without holding everything twice, as a vector would.
    std::deque<Voce> m_voci;
};

} // namespace cli
