// Fills templates and escapes texts; clsPDFCreator_Core.cpp fills the information dictionary.

#include "Template.h"
#include "Failure.h"

#include "ErroreRuntime.h"
#include "Number.h"
#include "Numeri.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace pdf {

namespace {

[[noreturn]] void WrongKind(char placeholder)
{
    prFail(NumeroErrore::TipoNonCorrispondente,
           std::string("l'argomento non è adatto al segnaposto \"#") + placeholder + "\"");
}

double NumberOf(const Argument& argument, char placeholder)
{
    const auto* number = std::get_if<double>(&argument);
    if (number == nullptr) WrongKind(placeholder);
    if (!std::isfinite(*number)) {
        prNotFinite();
    }
    return *number;
}

std::string TextOf(const Argument& argument, char placeholder)
{
    if (const auto* text = std::get_if<std::string>(&argument)) return *text;
    if (const auto* number = std::get_if<double>(&argument)) return TestoNumero(*number);
    WrongKind(placeholder);
}

std::string FlagText(const Argument& argument)
{
    const auto* flag = std::get_if<bool>(&argument);
    if (flag == nullptr) WrongKind('b');
    return *flag ? "true" : "false";
}

std::string DateText(const Argument& argument)
{
    const auto* date = std::get_if<clsPDFCreator::DateTime>(&argument);
    if (date == nullptr) WrongKind('d');
    return prDate(*date);
}

// What stands for the placeholder; nothing when it is none.
std::optional<std::string> Value(char placeholder, const Argument& argument)
{
    constexpr double largestComponent = 255;
    constexpr int thousandths = 3;
    switch (placeholder) {
    case 'i':
        return prNumber(std::floor(NumberOf(argument, placeholder)), 0);
    case 's':
        return prNumber(NumberOf(argument, placeholder), thousandths);
    case 'c':
        return prNumber(NumberOf(argument, placeholder) / largestComponent, thousandths);
    case 't':
        return TextOf(argument, placeholder);
    case 'p':
        return prPDFString(TextOf(argument, placeholder));
    case 'd':
        return DateText(argument);
    case 'b':
        return FlagText(argument);
    case '#':
        return "#";
    default:
        return std::nullopt;
    }
}

void AppendDigits(std::string& text, int value, int digits)
{
    std::string number = std::to_string(std::max(value, 0));
    const auto wanted = static_cast<std::size_t>(digits);
    if (number.size() < wanted) number.insert(0, wanted - number.size(), '0');
    text.append(number, number.size() - wanted, wanted);
}

} // namespace

std::string prDate(const clsPDFCreator::DateTime& date)
{
    std::string text = "D:";
    AppendDigits(text, date.Year, 4);
    for (const int part : {date.Month, date.Day, date.Hour, date.Minute, date.Second}) {
        AppendDigits(text, part, 2);
    }
    return text + "Z+01'00'";
}

std::optional<std::string> prExpand(std::string_view pattern, std::span<const Argument> arguments)
{
    std::string text(pattern);
    std::size_t from = 0;
    for (const Argument& argument : arguments) {
        const auto place = text.find('#', from);
        if (place == std::string::npos) return std::nullopt;
        const bool pair = place + 1 < text.size();
        const auto value = pair ? Value(text[place + 1], argument) : std::nullopt;
        if (value) text.replace(place, 2, *value);
        from = place + 1;
    }
    return text;
}

char* prPutPDFString(char* at, std::string_view text)
{
    for (const char c : text) {
        if (c == '\\' || c == '(' || c == ')') *at++ = '\\';
        *at++ = c;
    }
    return at;
}

std::string prPDFString(std::string_view text)
{
    std::string escaped(2 * text.size(), '\0');
    const char* end = prPutPDFString(escaped.data(), text);
    escaped.resize(static_cast<std::size_t>(end - escaped.data()));
    return escaped;
}

} // namespace pdf
