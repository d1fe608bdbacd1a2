// Small helpers that all tests share: a folder of one's own, files as bytes, a clock that stands.
// They know no game: MazziDiProva.h has shoes, AmbienteDiProva.h what a report needs around it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace aiuti {

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
