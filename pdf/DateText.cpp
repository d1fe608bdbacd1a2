// Writes a moment's parts with the signs that each form has between them.

#include "DateText.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string_view>

namespace pdf {

namespace {

constexpr std::size_t Pair = 2;

std::string Digits(int value, std::size_t count = Pair)
{
    const std::string number = std::string(count, '0') + std::to_string(std::max(value, 0));
    return number.substr(number.size() - count);
}

// The parts from the year on, with signs between those of the day, the two halves and those of the
// time.
std::string Moment(const clsPDFCreator::DateTime& date, std::string_view days,
                   std::string_view halves, std::string_view times)
{
    constexpr std::size_t yearDigits = 4;
    constexpr int lastSecond = 59;
    std::string text = Digits(date.Year, yearDigits);
    text.append(days).append(Digits(date.Month)).append(days).append(Digits(date.Day));
    text.append(halves).append(Digits(date.Hour)).append(times).append(Digits(date.Minute));
    return text.append(times).append(Digits(std::min(date.Second, lastSecond)));
}

std::string Offset(int minutes, std::string_view between)
{
    constexpr int hour = 60;
    const int size = std::abs(minutes);
    return (minutes < 0 ? "-" : "+") + Digits(size / hour) + std::string(between) +
           Digits(size % hour);
}

} // namespace

std::string prDateWithOffset(const clsPDFCreator::DateTime& date)
{
    return "D:" + Moment(date, "", "", "") + Offset(date.Offset, "'") + "'";
}

std::string prIsoDate(const clsPDFCreator::DateTime& date)
{
    return Moment(date, "-", "T", ":") + Offset(date.Offset, ":");
}

} // namespace pdf
