// Reads the user's regional settings. reports/FormatiNumero.h uses the marks.
#include "Separatori.h"

#include "Windows1252.h"

#include <array>

#include <windows.h>

namespace {

std::string Voce(LCTYPE tipo)
{
    std::array<wchar_t, 16> testo{};
    if (GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, tipo, testo.data(),
                        static_cast<int>(testo.size())) == 0) {
        return {};
    }
    std::string utf8;
    for (const wchar_t carattere : testo) {
        if (carattere == 0) break;
        AggiungiUtf8(utf8, static_cast<char32_t>(carattere));
    }
    return utf8;
}

} // namespace

Separatori SeparatoriUtente()
{
    Separatori separatori;
    const std::string decimali = Voce(LOCALE_SDECIMAL);
    if (!decimali.empty()) separatori.Decimali = decimali;
    // "0" stands for digits that are not grouped, whatever the mark.
    if (!Voce(LOCALE_SGROUPING).starts_with('0')) separatori.Migliaia = Voce(LOCALE_STHOUSAND);
    return separatori;
}
