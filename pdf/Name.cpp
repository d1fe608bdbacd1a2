// Checks and escapes the names of reusable objects and patterns.

#include "Name.h"
#include "Failure.h"

#include "ErroreRuntime.h"

namespace pdf {

namespace {

[[noreturn]] void Refuse(std::string_view what, const std::string& reason)
{
    prInvalidCall("il nome di " + std::string(what) + " " + reason);
}

bool StandsAsItIs(char c)
{
    constexpr std::string_view special = "()<>[]{}/%#"; // delimiters, and the mark of escapes
    return c >= '!' && c <= '~' && special.find(c) == std::string_view::npos;
}

} // namespace

void prRequireName(std::string_view bytes, std::string_view what)
{
    if (bytes.size() > LongestName) {
        Refuse(what, "ha " + std::to_string(bytes.size()) + " byte: al massimo sono " +
                         std::to_string(LongestName));
    }
    if (bytes.find('\0') != std::string_view::npos) Refuse(what, "contiene un byte 0");
}

char* prPutName(char* at, std::string_view bytes)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    for (const char c : bytes) {
        if (StandsAsItIs(c)) {
            *at++ = c;
            continue;
        }
        const auto code = static_cast<unsigned char>(c);
        *at++ = '#';
        *at++ = digits[code / 16U];
        *at++ = digits[code % 16U];
    }
    return at;
}

std::string prName(std::string_view bytes)
{
    std::string name(3 * bytes.size(), '\0');
    const char* end = prPutName(name.data(), bytes);
    name.resize(static_cast<std::size_t>(end - name.data()));
    return name;
}

} // namespace pdf
