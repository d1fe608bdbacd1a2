// Texts that the window shows in more than one place, and their way into Qt. What stands in one
// place only is written there: Form1_Controlli.cpp, Schermate.cpp, Form1_*.cpp.
#pragma once

#include <QString>

#include <string>
#include <string_view>

inline constexpr std::string_view NomeProgramma = "Scalvino";

// "1.0.0", from the project's version.
inline constexpr std::string_view VersioneProgramma = SCALVINO_VERSIONE;

// The program as a command, on a terminal and for the desktop.
inline constexpr std::string_view NomeComando = "scalvino";

// "Versione 1.0.0".
inline std::string TestoVersione()
{
    return "Versione " + std::string(VersioneProgramma);
}

// Captions of buttons that change, or that other texts name.
inline constexpr const char* SimulaUna = "Simula taglia";
inline constexpr const char* SimulaTante = "Simula taglie";
inline constexpr const char* ColpoSuccessivo = "Colpo successivo --->";
inline constexpr const char* AnnullaTaglia = "Annulla taglia";

// What numTaglie holds at least.
inline constexpr const char* UnaTaglia = "1";

inline QString InQt(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
