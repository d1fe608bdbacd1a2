// Fonts: the table of those that the document uses, and measuring with the present one.

#include "Windows1252.h"
#include "clsPDFCreator_State.h"

#include <array>

namespace {

enum : std::int32_t
{
    Bold = 1,
    Italic = 2,
};

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

void AppendUpper(std::string& target, std::string_view text)
{
    for (const char c : text) {
        target.push_back(c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c);
    }
}

// The family without blanks in upper case, known synonyms made one.
void NormalizeFamily(std::string& key, std::string_view family)
{
    key.clear();
    AppendUpper(key, family);
    std::erase(key, ' ');
    if (key == "TIMESNEWROMAN") key = "TIMES";
    else if (key == "COURIERNEW") key = "COURIER";
    else if (key == "HELVETICA") key = "ARIAL";
}

} // namespace

void clsPDFCreator::SetFont(std::string_view FontFamily, float Size, std::int32_t Style)
{
    State::RequireFinite(Size);
    m->FindOrAddFont(FontFamily, Style);
    m->FontStyle = Style;
    if (Size != 0) m->FontSize = Size;
}

void clsPDFCreator::SetFontSize(float Size)
{
    State::RequireFinite(Size);
    m->FontSize = Size;
}

void clsPDFCreator::ShareFonts(bool Share)
{
    m->ShareFonts = Share;
}

float clsPDFCreator::TextLength(std::string_view Text) const
{
    return pdf::prFloat(m->TextWidth(InWindows1252(Text)));
}

float clsPDFCreator::TextHeight() const
{
    return m->InUnits(m->FontSize);
}

// The keys stored, in upper case throughout, and the keys searched, whose style is not, meet only
// where no style is named, on purpose: a font is told by its number, and every call that is not
// plain Arial, Symbol or ZapfDingbats adds one.
void clsPDFCreator::State::FindOrAddFont(std::string_view family, std::int32_t style)
{
    NormalizeFamily(FontKey, family);
    const bool bold = (style & Bold) != 0;
    const bool italic = (style & Italic) != 0;
    const StandardFont& standard = StandardOf(FontKey);
    const std::string_view baseFont =
        standard.BaseFonts[static_cast<std::size_t>(style & (Bold | Italic))];
    const bool known = standard.Key == FontKey;
    if (known && (bold || italic)) {
        FontKey.append(bold ? ",Bold" : ",").append(italic ? "Italic" : "");
    }
    if (const auto found = FontKeys.find(FontKey); found != FontKeys.end()) {
        return UseFont(found->second);
    }
    if (ShareFonts) {
        if (const auto found = BaseFonts.find(baseFont); found != BaseFonts.end()) {
            return UseFont(found->second);
        }
    }
    pdf::prRequireRoom(static_cast<std::int32_t>(Fonts.size()), "caratteri");
    Fonts.push_back({baseFont, pdf::MetricsOf(standard.Family, bold, italic)});
    FontKey.clear();
    AppendUpper(FontKey, baseFont);
    FontKeys.try_emplace(FontKey, Fonts.size());
    BaseFonts.try_emplace(baseFont, Fonts.size());
    UseFont(Fonts.size());
}

void clsPDFCreator::State::UseFont(std::size_t number)
{
    if (number == CurrentFont) return;
    CurrentFont = number;
    FontName.assign("_FNT_");
    pdf::prAppendInteger(FontName, static_cast<std::int64_t>(number));
}

void clsPDFCreator::State::RequireFont() const
{
    if (CurrentFont != 0) return;
    throw ErroreRuntime(NumeroErrore::ChiamataNonValida, "nessun carattere scelto: manca SetFont",
                        "clsPDFCreator");
}

pdf::TextMetrics clsPDFCreator::State::Metrics() const
{
    return {Fonts[CurrentFont - 1].Metrics.Widths,
            FontSize,
            CharSpacing,
            WordSpacing,
            HorizontalScaling,
            Scale};
}

double clsPDFCreator::State::TextWidth(std::string_view text) const
{
    return CurrentFont == 0 ? 0 : Metrics().WidthOf(text);
}

// Widths and descriptors are the reader's own: it knows the standard fonts by these names.
void clsPDFCreator::State::prWriteFonts()
{
    std::string name;
    std::int32_t number = 0;
    for (const Font& font : Fonts) {
        const std::int32_t object = Out.prInitObj(0);
        name.assign("_FNT_");
        pdf::prAppendInteger(name, ++number);
        FontResources.append("/").append(name).append(" ");
        pdf::prAppendInteger(FontResources, object);
        FontResources.append(" 0 R \r");
        Out.prLine("<< /Type /Font /Subtype /Type1 /Name /", name, " /BaseFont /", font.BaseFont,
                   " /FirstChar 0 /LastChar 255");
        // Both have an encoding of their own; with a style in their names they are not known as
        // such, on purpose.
        const bool ownEncoding = font.BaseFont == "Symbol" || font.BaseFont == "ZapfDingbats";
        if (!ownEncoding) Out.prWriteRaw("/Encoding 3 0 R");
        Out.prWriteRaw(" >>");
        Out.prEndObj();
    }
}
