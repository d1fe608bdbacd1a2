// Reads the user's locale without making it the process's own. reports/FormatiNumero.h uses the
// marks.
#include "Separatori.h"

#include "Windows1252.h"

#include <cerrno>
#include <climits>
#include <clocale>
#include <cstdlib>
#include <cwchar>
#include <new>

#include <locale.h>

namespace {

// The locale's bytes are in its own character set, which wide characters (Unicode here) bridge.
std::string InUtf8(const char* byte)
{
    std::string utf8;
    std::mbstate_t stato{};
    std::size_t rimasti = std::char_traits<char>::length(byte);
    while (rimasti > 0) {
        wchar_t carattere = 0;
        const std::size_t presi = std::mbrtowc(&carattere, byte, rimasti, &stato);
        if (presi == 0 || presi > rimasti) break;
        AggiungiUtf8(utf8, static_cast<char32_t>(carattere));
        byte += presi;
        rimasti -= presi;
    }
    return utf8;
}

bool Raggruppa(const char* gruppi)
{
    return gruppi != nullptr && *gruppi > 0 && *gruppi != CHAR_MAX;
}

// The settings for numbers. Their marks are in their own character set, whatever LC_CTYPE says
// (or fails to say: a name that this system does not have would spoil the numbers, too).
const char* ImpostazioneNumeri()
{
    for (const char* nome : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
        const char* valore = std::getenv(nome);
        if (valore != nullptr && *valore != '\0') return valore;
    }
    return "C";
}

// Nothing when the system does not have it.
locale_t LocaleUtente()
{
    const locale_t trovata =
        ::newlocale(LC_NUMERIC_MASK | LC_CTYPE_MASK, ImpostazioneNumeri(), nullptr);
    // Want of memory says nothing about the locale.
    if (trovata == nullptr && errno == ENOMEM) throw std::bad_alloc();
    return trovata;
}

} // namespace

Separatori SeparatoriUtente()
{
    Separatori separatori;
    const locale_t utente = LocaleUtente();
    if (utente == nullptr) return separatori;

    const locale_t prima = ::uselocale(utente);
    const lconv* uso = std::localeconv();
    const std::string decimali = InUtf8(uso->decimal_point);
    if (!decimali.empty()) separatori.Decimali = decimali;
    if (Raggruppa(uso->grouping)) separatori.Migliaia = InUtf8(uso->thousands_sep);
    ::uselocale(prima);
    ::freelocale(utente);
    return separatori;
}
