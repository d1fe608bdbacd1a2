// Texts that the window shows in more than one place, and their way into Qt.
#pragma once

#include <QString>

#include <string>
#include <string_view>

inline constexpr std::string_view NomeProgramma = "Scalvino";

// "1.0.0", from the project's version.
inline constexpr std::string_view VersioneProgramma = SCALVINO_VERSIONE;

inline QString InQt(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
