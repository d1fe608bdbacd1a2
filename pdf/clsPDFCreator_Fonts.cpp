// Fonts: the table of those that the document uses, and measuring with the present one. Files of
// fonts are read in TrueTypeFile.cpp.

#include "Encoders.h"
#include "InputFile.h"
#include "LetterCase.h"
#include "Windows1252.h"
#include "clsPDFCreator_State.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

enum : std::int32_t
{
    Bold = 1,
    Italic = 2,
};

constexpr std::string_view Deflated = "FlateDecode";

struct StandardFont
{
    std::string_view Key; // of a family, normalised
    pdf::Family Family;
    std::array<std::string_view, 4> BaseFonts; // by style: regular, bold, italic, both
};

constexpr StandardFont ArialFont = {
    "ARIAL", pdf::Family::Arial, {"Arial", "Arial,Bold", "Arial,Italic", "Arial,BoldItalic"}};

constexpr std::array<StandardFont, 4> StandardFonts = {{
    {"TIMES",
     pdf::Family::Times,
     {"TimesNewRoman", "TimesNewRoman,Bold", "TimesNewRoman,Italic", "TimesNewRoman,BoldItalic"}},
    {"COURIER",
     pdf::Family::Courier,
     {"CourierNew", "CourierNew,Bold", "CourierNew,Italic", "CourierNew,BoldItalic"}},
    {"SYMBOL",
     pdf::Family::Symbol,
     {"Symbol", "Symbol,Bold", "Symbol,Italic", "Symbol,BoldItalic"}},
    {"ZAPFDINGBATS",
     pdf::Family::ZapfDingbats,
     {"ZapfDingbats", "ZapfDingbats,Bold", "ZapfDingbats,Italic", "ZapfDingbats,BoldItalic"}},
}};

// What any other family is drawn with is Arial.
const StandardFont& StandardOf(std::string_view key)
{
    for (const auto& font : StandardFonts) {
        if (font.Key == key) return font;
    }
    return ArialFont;
}

std::string Upper(std::string_view text)
{
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), pdf::prUpperCase);
    return upper;
}

// The accented letters of Windows-1252, UTF-8, to upper case. Keys stay UTF-8, so that names which
// Windows-1252 does not have are told apart, too.
void RaiseAccents(std::string& text)
{
    constexpr std::pair<std::string_view, std::string_view> others[] = {
        {"ÿ", "Ÿ"}, {"š", "Š"}, {"œ", "Œ"}, {"ž", "Ž"}};
    constexpr char step = 'a' - 'A'; // "à" to "þ" but "÷", as far as from "a" to "A"
    for (auto at = text.find('\xC3'); at != std::string::npos; at = text.find('\xC3', at + 1)) {
        if (at + 1 == text.size()) break;
        char& second = text[at + 1];
        if (second >= '\xA0' && second <= '\xBE' && second != '\xB7') {
            second = static_cast<char>(second - step);
        }
    }
    for (const auto& [small, capital] : others) {
        for (auto at = text.find(small); at != std::string::npos; at = text.find(small, at)) {
            text.replace(at, small.size(), capital);
        }
    }
}

// The family (UTF-8) without blanks in upper case, known synonyms made one.
std::string NormalizedFamily(std::string_view family)
{
    std::string key = Upper(family);
    RaiseAccents(key);
    std::erase(key, ' ');
    if (key == "TIMESNEWROMAN") return "TIMES";
    if (key == "COURIERNEW") return "COURIER";
    if (key == "HELVETICA") return "ARIAL";
    return key;
}

// The style as the search writes it. Of the standard families only, so that it is found under no
// key: stored keys are in upper case throughout.
std::string StyleSuffix(bool bold, bool italic)
{
    if (!bold && !italic) return "";
    return std::string(",") + (bold ? "Bold" : "") + (italic ? "Italic" : "");
}

// Both have an encoding of their own; with a style in their names they are not known as such, on
// purpose.
bool HasOwnEncoding(std::string_view baseFont)
{
    return pdf::prSameInUpperCase(baseFont, "SYMBOL") ||
           pdf::prSameInUpperCase(baseFont, "ZAPFDINGBATS");
}

std::uint16_t InWidth(float width)
{
    constexpr float widest = 65535;
    return static_cast<std::uint16_t>(std::clamp(width, 0.F, widest));
}

} // namespace

void clsPDFCreator::SetFont(std::string_view FontFamily, float Size, std::int32_t Style)
{
    m->Out.prRequireIdle();
    State::prRequireFinite(Size);
    auto& request = m->prRequestOf(FontFamily, Style);
    const std::size_t found = m->prFindFont(request);
    m->CurrentFont = found != 0 ? found : m->prAddStandardFont(request);
    m->FontStyle = Style;
    if (Size != 0) m->FontSize = Size;
}

void clsPDFCreator::SetFontSize(float Size)
{
    m->Out.prRequireIdle();
    State::prRequireFinite(Size);
    m->FontSize = Size;
}

void clsPDFCreator::ShareFonts(bool Share)
{
    m->Out.prRequireIdle();
    m->ShareFonts = Share;
}

float clsPDFCreator::TextLength(std::string_view Text) const
{
    return pdf::prFloat(m->prTextWidth(InWindows1252(Text)));
}

float clsPDFCreator::TextHeight() const
{
    return pdf::prFloat(m->prInUnits(m->FontSize));
}

clsPDFCreator::State::FontRequest& clsPDFCreator::State::prRequestOf(std::string_view family,
                                                                     std::int32_t style)
{
    const std::int32_t face = style & (Bold | Italic);
    for (auto& request : FontRequests) {
        if (request.Style == face && request.Family == family) return request;
    }
    return prAddRequest(family, face);
}

clsPDFCreator::State::FontRequest& clsPDFCreator::State::prAddRequest(std::string_view family,
                                                                      std::int32_t face)
{
    constexpr std::size_t mostKept = 64;
    if (FontRequests.size() == mostKept) FontRequests.clear();
    const bool bold = (face & Bold) != 0;
    const bool italic = (face & Italic) != 0;
    std::string key = NormalizedFamily(family);
    const StandardFont& standard = StandardOf(key);
    if (standard.Key == key) key += StyleSuffix(bold, italic);
    const std::string_view baseFont = standard.BaseFonts[static_cast<std::size_t>(face)];
    const Font font = {baseFont, pdf::prMetricsOf(standard.Family, bold, italic), nullptr,
                       &pdf::prStandardFace(standard.Family, bold, italic)};
    FontRequests.push_back(
        {std::string(family), face, font, std::move(key), Upper(baseFont), 0, 0, 0, false});
    return FontRequests.back();
}

// The keys stored and the keys searched meet only where no style is named, on purpose: every call
// that is not plain Arial, Symbol or ZapfDingbats adds a font, whose number then names it.
std::size_t clsPDFCreator::State::prFindFont(FontRequest& request) const
{
    if (request.Found == 0 && request.KnownKeys != FontKeys.size()) {
        request.KnownKeys = FontKeys.size(); // the answer stays until there are more
        const auto found = FontKeys.find(request.SearchKey);
        if (found != FontKeys.end()) request.Found = found->second;
    }
    if (request.Found != 0 || !(ShareFonts || Conforming)) return request.Found;
    if (request.Shared == 0) {
        const auto shared = BaseFonts.find(request.Standard.BaseFont);
        if (shared != BaseFonts.end()) request.Shared = shared->second;
    }
    return request.Shared;
}

std::size_t clsPDFCreator::State::prAddStandardFont(FontRequest& request)
{
    prKeepObjects(1);
    Fonts.push_back(request.Standard);
    if (std::exchange(request.Added, true)) return Fonts.size();
    // A key belongs to the first font that has it.
    FontKeys.try_emplace(request.StoredKey, Fonts.size());
    BaseFonts.try_emplace(request.Standard.BaseFont, Fonts.size());
    return Fonts.size();
}

void clsPDFCreator::State::prNoFont()
{
    pdf::prInvalidCall("nessun carattere scelto: manca SetFont");
}

double clsPDFCreator::State::prTextWidth(std::string_view text) const
{
    return CurrentFont == 0 ? 0 : prMetrics().WidthOf(text);
}

void clsPDFCreator::AddFont(const std::string& FileName, std::string_view FontName, bool Embed)
{
    m->Out.prRequireIdle();
    m->prRequireObjects(State::prObjectsOfFont(Embed));
    m->prAddFont(pdf::prReadFile(FileName), FileName, FontName, Embed);
}

void clsPDFCreator::AddFontData(std::string_view Bytes, std::string_view FontName, bool Embed)
{
    m->Out.prRequireIdle();
    m->prRequireObjects(State::prObjectsOfFont(Embed));
    const std::string what = "font \"" + std::string(FontName) + "\"";
    pdf::prRequireInput(Bytes, what);
    m->prAddFont(Bytes, what, FontName, Embed);
}

void clsPDFCreator::State::prAddFont(std::string_view bytes, const std::string& what,
                                     std::string_view fontName, bool embed)
{
    auto font = std::make_unique<TrueType>();
    font->File = pdf::prReadTrueType(bytes, what);
    embed = embed || (Conforming && Out.prIsOpen());
    if (embed) prRequireEmbeddable(font->File, what);
    std::transform(font->File.Widths.begin(), font->File.Widths.end(), font->Widths.begin(),
                   InWidth);
    if (embed) prEncode(*font, bytes);
    else if (!Out.prIsOpen()) prKeepFile(*font, bytes, what);
    const auto descent = static_cast<std::int16_t>(std::clamp(font->File.Descent, -32768.F, 0.F));
    prKeepObjects(prObjectsOfFont(embed));
    TrueTypeFonts.push_back(std::move(font)); // first, so that no font is known but gone
    const TrueType& added = *TrueTypeFonts.back();
    Fonts.push_back({added.File.Name, {&added.Widths, descent}, &added});
    FontKeys.try_emplace(NormalizedFamily(fontName), Fonts.size());
}

void clsPDFCreator::State::prRequireEmbeddable(const pdf::TrueTypeFont& font,
                                               const std::string& fileName)
{
    if (font.MayEmbed) return;
    throw ErroreRuntime(NumeroErrore::PermessoNegato,
                        "il carattere non permette di essere incorporato", fileName);
}

// Until it is known whether the document will have to have it.
void clsPDFCreator::State::prKeepFile(TrueType& font, std::string_view bytes,
                                      const std::string& what)
{
    font.Bytes = bytes;
    font.FileName = what;
}

// Deflated on its own and now, not where it is written: so the file's own bytes need not be kept.
void clsPDFCreator::State::prEncode(TrueType& font, std::string_view bytes) const
{
    const bool deflated = CompressLevel > 0;
    font.Encoded = deflated ? pdf::Deflate(CompressLevel).Whole(bytes) : pdf::prLZWEncode(bytes);
    font.Filter = deflated ? Deflated : "LZWDecode";
    font.Length = bytes.size();
}

// Widths and descriptors of the standard fonts are the reader's own: it knows them by these names.
void clsPDFCreator::State::prWriteFonts()
{
    std::int32_t number = 0;
    for (Font& font : Fonts) {
        font.Object = Out.prInitObj(0);
        Out.prPrint("<< /Type /Font /Subtype /", font.Embedded != nullptr ? "TrueType" : "Type1",
                    " /Name /_FNT_", ++number, " /BaseFont /", font.BaseFont,
                    " /FirstChar 0 /LastChar 255");
        if (!HasOwnEncoding(font.BaseFont)) Out.prWriteRaw("/Encoding 3 0 R");
        if (font.Embedded != nullptr) prWriteWidths(font.Object, *font.Embedded);
        Out.prWriteRaw(" >>");
        Out.prEndObj();
        if (font.Embedded != nullptr) prWriteDescriptor(font.Object + 1, *font.Embedded);
    }
}

// What pages call the fonts. Written piece by piece: a long document has thousands of them.
void clsPDFCreator::State::prWriteFontNames()
{
    std::int32_t number = 0;
    Out.prPart("/Font <<\r");
    for (const Font& font : Fonts) Out.prPart("/_FNT_", ++number, " ", font.Object, " 0 R \r");
    Out.prPart(">>\r");
}

void clsPDFCreator::State::prWriteWidths(std::int32_t object, const TrueType& font)
{
    Out.prPrint("/FontDescriptor ", object + 1, " 0 R");
    Out.prWriteRaw("/Widths [");
    prWriteWidthRows(font.Widths);
    Out.prWriteRaw("]");
}

void clsPDFCreator::State::prWriteWidthRows(const std::array<std::uint16_t, 256>& widths)
{
    constexpr std::size_t widthsInALine = 16;
    for (std::size_t code = 0; code < widths.size(); ++code) {
        Out.prPart(static_cast<std::int32_t>(widths[code]), " ");
        if ((code + 1) % widthsInALine == 0) Out.prPrint("");
    }
}

// The descriptor and, where the font is embedded, its file.
void clsPDFCreator::State::prWriteDescriptor(std::int32_t object, const TrueType& font)
{
    Out.prInitObj(object);
    Out.prPrint("<< /Type /FontDescriptor /FontName /", font.File.Name, " ", font.File.Descriptor,
                " ");
    if (font.Length == 0) {
        Out.prWriteRaw(">>");
        return Out.prEndObj();
    }
    Out.prPrint("/FontFile2 ", object + 1, " 0 R >>");
    Out.prEndObj();
    prEmbedFile(object + 1, font);
}

// The file (ISO 32000-1, 9.9), its length in the document and its length before encoding.
void clsPDFCreator::State::prEmbedFile(std::int32_t object, const TrueType& font)
{
    Out.prInitObj(object);
    Out.prPrint("<< /Filter /", font.Filter, " /Length ", object + 1, " 0 R /Length1 ", object + 2,
                " 0 R >>");
    Out.prBeginStream();
    if (font.Filter == Deflated) Out.prWriteDeflated(font.Encoded);
    else Out.prWriteBytes(font.Encoded);
    Out.prEndStream();
    for (const std::size_t length : {font.Encoded.size(), font.Length}) {
        Out.prInitObj(0);
        Out.prWriteRaw(std::to_string(length));
        Out.prEndObj();
    }
}
