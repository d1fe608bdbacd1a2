// Small helpers that all tests share: shoes by hand, a folder of one's own, files as bytes.
#pragma once

#include "Ambiente.h"
#include "modCarte.h"

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace aiuti {

// The code of a card text in the first pack ("AC" is 1); fails the test for anything else.
std::int16_t Codice(std::string_view testo);

// Puts the named cards at index inizio of a shoe of 312 cards (each of the 52 texts six times)
// and deals from there: Posizione inizio, NumeroColpo numero. The cards before and after are the
// remaining ones in order of their codes.
void PreparaMazzo(std::initializer_list<std::string_view> carte, int inizio = 5, double numero = 1);

// The shoes of a golden shoe file.
std::vector<std::vector<std::int16_t>> MazziDorati(const std::string& nome);

// The bytes of a golden file.
std::string Dorato(const std::string& nome);

// The whole file as bytes; fails the test when it cannot be read.
std::string Byte(const std::filesystem::path& percorso);

// The lines of a text, without their CR LF.
std::vector<std::string> Righe(const std::string& testo);

// A new folder of its own, with a final separator, removed with all it holds at the end.
class CartellaDiProva
{
public:
    CartellaDiProva();
    ~CartellaDiProva();
    CartellaDiProva(const CartellaDiProva&) = delete;
    CartellaDiProva& operator=(const CartellaDiProva&) = delete;
    std::string Nome() const { return m_cartella.string() + Separatore; }
    std::filesystem::path File(std::string_view nome) const { return m_cartella / nome; }
    std::vector<std::string> Contenuto() const; // names, sorted

private:
    static constexpr char Separatore =
        static_cast<char>(std::filesystem::path::preferred_separator);
    std::filesystem::path m_cartella;
};

// Report surroundings for one test: a folder of its own, marks "," and ".", every report opened
// noted down. Puts everything back at its end.
class AmbienteDiProva
{
public:
    AmbienteDiProva();
    ~AmbienteDiProva();
    AmbienteDiProva(const AmbienteDiProva&) = delete;
    AmbienteDiProva& operator=(const AmbienteDiProva&) = delete;

    // Deals these shoes in turn instead of shuffling.
    void Distribuisci(const std::vector<std::vector<std::int16_t>>& mazzi);

    CartellaDiProva Cartella;
    std::vector<std::string> Aperti;
    std::vector<StileFinestra> Stili;
    std::vector<Stampe::Messaggio> Messaggi;

private:
    Stampe::Ambiente m_prima;
};

// The moment of the golden documents, 2 January 2026, 03:04:05, while this lives.
class CalendarioDorato
{
public:
    CalendarioDorato();
    ~CalendarioDorato();
    CalendarioDorato(const CalendarioDorato&) = delete;
    CalendarioDorato& operator=(const CalendarioDorato&) = delete;
};

} // namespace aiuti
