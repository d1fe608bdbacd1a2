// Barcodes: EAN-13 (ISO/IEC 15420) and Code 39 (ISO/IEC 16388), drawn as rectangles by _Paths.cpp.

#include "Cifre.h"
#include "clsPDFCreator_State.h"

#include <algorithm>
#include <array>
#include <new>
#include <optional>

namespace {

constexpr double DefaultModule = 0.8; // points
constexpr double LargestModule = 2.0;

// Not positive (or no number) is the default.
double ModuleOf(double width)
{
    return width > 0 ? std::min(width, LargestModule) : DefaultModule;
}

[[noreturn]] void Refuse(std::string reason, const std::string& code)
{
    throw ErroreRuntime(NumeroErrore::ChiamataNonValida, std::move(reason), "\"" + code + "\"");
}

// ---- EAN-13. "1" is a module of a bar --------------------------------------------------------

constexpr std::size_t EanDigits = 13;
constexpr std::size_t HalfDigits = 6;
constexpr int DigitModules = 7;
constexpr int EdgeModules = 3;
constexpr int CentreModules = 5;
constexpr std::string_view EdgeGuard = "101";
constexpr std::string_view CentreGuard = "01010";

constexpr std::array<std::string_view, 10> OddPatterns = {
    "0001101", "0011001", "0010011", "0111101", "0100011",
    "0110001", "0101111", "0111011", "0110111", "0001011"};

constexpr std::array<std::string_view, 10> EvenPatterns = {
    "0100111", "0110011", "0011011", "0100001", "0011101",
    "0111001", "0000101", "0010001", "0001001", "0010111"};

// How the first digit, which has no bars of its own, shows in the left half.
constexpr std::array<std::string_view, 10> Parities = {"AAAAAA", "AABABB", "AABBAB", "AABBBA",
                                                       "ABAABB", "ABBAAB", "ABBBAA", "ABABAB",
                                                       "ABABBA", "ABBABA"};

std::size_t DigitOf(char c)
{
    return static_cast<std::size_t>(c - '0');
}

// The thirteen digits of a code of twelve; a thirteenth given is replaced by the right one.
std::string WithCheckDigit(const std::string& code)
{
    if (!SoloCifre(code) || code.size() < EanDigits - 1 || code.size() > EanDigits) {
        Refuse("un EAN-13 vuole 12 o 13 cifre", code);
    }
    std::string full = code.substr(0, EanDigits - 1);
    std::size_t sum = 0;
    for (std::size_t i = 0; i < full.size(); ++i) sum += DigitOf(full[i]) * (i % 2 == 0 ? 1 : 3);
    full.push_back(static_cast<char>('0' + (10 - sum % 10) % 10));
    return full;
}

std::string RightPattern(char digit)
{
    std::string pattern(OddPatterns[DigitOf(digit)]);
    for (char& module : pattern) module = module == '0' ? '1' : '0';
    return pattern;
}

// The modules of both halves without the guards.
std::array<std::string, 2> EanHalves(const std::string& digits)
{
    std::array<std::string, 2> halves;
    const std::string_view parity = Parities[DigitOf(digits[0])];
    for (std::size_t i = 0; i < HalfDigits; ++i) {
        const std::size_t digit = DigitOf(digits[1 + i]);
        halves[0].append(parity[i] == 'A' ? OddPatterns[digit] : EvenPatterns[digit]);
        halves[1].append(RightPattern(digits[1 + HalfDigits + i]));
    }
    return halves;
}

// ---- Code 39. Bars "b" and spaces "w" by turns, wide ones in upper case ----------------------

constexpr std::string_view Code39Characters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%*";

constexpr std::array<std::string_view, 44> Code39Patterns = {
    "bwbWBwBwb", "BwbWbwbwB", "bwBWbwbwB", "BwBWbwbwb", "bwbWBwbwB", "BwbWBwbwb", "bwBWBwbwb",
    "bwbWbwBwB", "BwbWbwBwb", "bwBWbwBwb", "BwbwbWbwB", "bwBwbWbwB", "BwBwbWbwb", "bwbwBWbwB",
    "BwbwBWbwb", "bwBwBWbwb", "bwbwbWBwB", "BwbwbWBwb", "bwBwbWBwb", "bwbwBWBwb", "BwbwbwbWB",
    "bwBwbwbWB", "BwBwbwbWb", "bwbwBwbWB", "BwbwBwbWb", "bwBwBwbWb", "bwbwbwBWB", "BwbwbwBWb",
    "bwBwbwBWb", "bwbwBwBWb", "BWbwbwbwB", "bWBwbwbwB", "BWBwbwbwb", "bWbwBwbwB", "BWbwBwbwb",
    "bWBwBwbwb", "bWbwbwBwB", "BWbwbwBwb", "bWBwbwBwb", "bWbWbWbwb", "bWbWbwbWb", "bWbwbWbWb",
    "bwbWbWbWb", "bWbwBwBwb",
};

bool IsData(char c)
{
    return c != '*' && Code39Characters.find(c) != std::string_view::npos;
}

// A character of full ASCII as two data characters: one of four shifts and a letter.
std::optional<std::string> Shifted(char c)
{
    struct Range
    {
        int First, Last;
        char Shift, Letter; // of the first one
    };
    constexpr Range ranges[] = {{0, 0, '%', 'U'},     {1, 26, '$', 'A'},    {27, 31, '%', 'A'},
                                {'!', '/', '/', 'A'}, {':', ':', '/', 'Z'}, {';', '?', '%', 'F'},
                                {'@', '@', '%', 'V'}, {'[', '_', '%', 'K'}, {'`', '`', '%', 'W'},
                                {'a', 'z', '+', 'A'}, {'{', 127, '%', 'P'}};
    const int code = static_cast<unsigned char>(c);
    for (const auto& [first, last, shift, letter] : ranges) {
        if (code < first || code > last) continue;
        return std::string{shift, static_cast<char>(letter + (code - first))};
    }
    return std::nullopt;
}

// The characters to draw, start and stop included.
std::string Code39Data(const std::string& text)
{
    std::string data = "*";
    for (const char c : text) {
        if (IsData(c)) {
            data.push_back(c);
            continue;
        }
        const auto pair = Shifted(c);
        if (!pair) Refuse("il Code 39 ha solo i caratteri ASCII", text);
        data.append(*pair);
    }
    return data + "*";
}

} // namespace

void clsPDFCreator::DrawEAN13(std::string_view Code, float X, float Y, bool ShowText,
                              float BarHeight, float ModuleWidth)
try {
    constexpr double usualHeight = 69; // modules
    constexpr double guardReach = 5;   // modules that guards reach into the text line
    m->prRequire(X, Y, BarHeight, ModuleWidth);
    const std::string digits = WithCheckDigit(std::string(Code));
    const std::size_t font = ShowText ? m->prBarcodeFont() : 0;
    const double module = m->prInUnits(ModuleOf(ModuleWidth));
    const double height = BarHeight > 0 ? BarHeight : usualHeight * module;
    const double guards = height + guardReach * module;
    const auto halves = EanHalves(digits);

    double x = X;
    for (const auto& [modules, barHeight] : {std::pair<std::string_view, double>{EdgeGuard, guards},
                                             {halves[0], height},
                                             {CentreGuard, guards},
                                             {halves[1], height},
                                             {EdgeGuard, guards}}) {
        m->prDrawModules(x, Y, modules, module, barHeight);
        x += module * static_cast<double>(modules.size());
    }
    if (ShowText) m->prDrawEanText(font, X, Y + height, digits, module);
    m->prSetCurrent(m->prInPoints(X), m->prInPoints(Y));
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::DrawCODE39(std::string_view Code, float X, float Y, float Height, bool ShowText,
                               float ModuleWidth, float Ratio)
try {
    constexpr double usualRatio = 2.5;
    constexpr double usualHeight = 40; // modules
    constexpr double textSize = 10;    // modules, like the distance of its baseline from the bars
    m->prRequire(X, Y, Height, ModuleWidth, Ratio);
    const std::string text(Code); // ASCII is the same in every encoding, and all else is refused
    const std::string data = Code39Data(text);
    const std::size_t font = ShowText ? m->prBarcodeFont() : 0;
    const double narrow = m->prInUnits(ModuleOf(ModuleWidth));
    const double wide = narrow * (Ratio > 0 ? static_cast<double>(Ratio) : usualRatio);
    const double height = Height > 0 ? Height : usualHeight * narrow;

    double x = X;
    for (const char c : data) {
        for (const char element : Code39Patterns[Code39Characters.find(c)]) {
            const double width = element == 'B' || element == 'W' ? wide : narrow;
            const bool bar = element == 'B' || element == 'b';
            if (bar) m->prRectangle(x, Y, width, height, State::FillPath);
            x += width;
        }
        x += narrow; // between two characters
    }
    if (ShowText) {
        const double middle = (X + x - narrow) / 2;
        m->prDrawBarcodeText(font, {{middle, text}}, Y + height + textSize * narrow,
                             textSize * narrow);
    }
    m->prSetCurrent(m->prInPoints(X), m->prInPoints(Y));
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

// Bars standing side by side are one rectangle.
void clsPDFCreator::State::prDrawModules(double x, double y, std::string_view modules,
                                         double module, double height)
{
    for (std::size_t from = modules.find('1'); from != std::string_view::npos;
         from = modules.find('1', from)) {
        const std::size_t to = std::min(modules.find('0', from), modules.size());
        prRectangle(x + module * static_cast<double>(from), y,
                    module * static_cast<double>(to - from), height, FillPath);
        from = to;
    }
}

// Each digit under its own bars, the first one left of the symbol.
void clsPDFCreator::State::prDrawEanText(std::size_t font, double x, double y,
                                         const std::string& digits, double module)
{
    constexpr double size = 11;      // modules: a digit of this font is then as wide as its bars
    constexpr double baseline = 9;   // modules below the bars
    constexpr double firstDigit = 5; // modules left of the symbol
    std::vector<BarcodeText> texts = {{x - firstDigit * module, digits.substr(0, 1)}};
    for (std::size_t i = 0; i < 2 * HalfDigits; ++i) {
        const double before = i < HalfDigits ? EdgeModules : EdgeModules + CentreModules;
        const double middle = before + DigitModules * (static_cast<double>(i) + 0.5);
        texts.push_back({x + middle * module, digits.substr(1 + i, 1)});
    }
    prDrawBarcodeText(font, texts, y + baseline * module, size * module);
}

// The number of a fixed-width font, asked for before the first bar: one that finds no room draws
// nothing.
std::size_t clsPDFCreator::State::prBarcodeFont()
{
    auto& request = prRequestOf("CourierNew", 0);
    const std::size_t shared = prFindFont(request);
    const std::size_t font = shared != 0 ? shared : prAddStandardFont(request);
    if (Conforming) prUseFont(font);
    return font;
}

// Texts centred on their places, in the font of that number. The font of before is the present one
// again afterwards. size: user units.
void clsPDFCreator::State::prDrawBarcodeText(std::size_t font,
                                             const std::vector<BarcodeText>& texts, double y,
                                             double size)
{
    const auto [fontBefore, sizeBefore] = std::pair{CurrentFont, FontSize};
    CurrentFont = font;
    FontSize = pdf::prFloat(prInPoints(size));
    for (const auto& [middle, text] : texts) {
        prWriteText(prInPoints(middle - prTextWidth(text) / 2), prInPoints(y), text, 0);
    }
    CurrentFont = fontBefore;
    FontSize = sizeBefore;
}
