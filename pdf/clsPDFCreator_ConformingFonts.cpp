// Fonts of a conforming document: each stands in it once, either as one of the standard 14 with
// its measures (ISO 32000-1, 9.6.2) or with its file (9.6.3, 9.9).

#include "clsPDFCreator_State.h"

// The number that content streams call it by.
std::int32_t clsPDFCreator::State::prUseFont(std::size_t number)
{
    Font& font = Fonts[number - 1];
    const auto called = static_cast<std::int32_t>(number);
    if (font.UsedIn == DrawingNumber) return called;
    if (font.Object == 0) prNumberFont(font);
    Used.Fonts.append("/_FNT_" + std::to_string(called) + " " + std::to_string(font.Object) +
                      " 0 R ");
    font.UsedIn = DrawingNumber;
    return called;
}

// The object of a font that is the same, or new ones: itself, its descriptor, its file.
void clsPDFCreator::State::prNumberFont(Font& font)
{
    for (const Font& other : Fonts) {
        if (other.Object == 0 || !prSameFont(font, other)) continue;
        font.Object = other.Object;
        font.First = false;
        return;
    }
    font.Object = prReserve(font.Embedded == nullptr ? 2 : 3);
}

bool clsPDFCreator::State::prSameFont(const Font& one, const Font& other)
{
    if (one.Embedded == nullptr || other.Embedded == nullptr) {
        return one.Embedded == other.Embedded && one.Standard == other.Standard;
    }
    return one.BaseFont == other.BaseFont && one.Embedded->Encoded == other.Embedded->Encoded;
}

// The document begins: fonts that were added without their files take them in or let them go.
void clsPDFCreator::State::prTakeFontFiles()
{
    for (const auto& font : TrueTypeFonts) {
        if (Conforming && font->Length == 0) {
            prRequireEmbeddable(font->File, font->FileName);
            prEncode(*font, font->Bytes);
        }
        font->Bytes = {};
    }
}

void clsPDFCreator::State::prWriteConformingFonts()
{
    for (const Font& font : Fonts) {
        if (font.Object == 0 || !font.First) continue;
        const bool standard = font.Embedded == nullptr;
        const bool ownEncoding =
            standard ? font.Standard->OwnEncoding : font.Embedded->File.Symbolic;
        Out.prInitObj(font.Object);
        Out.prPrint("<< /Type /Font /Subtype /", standard ? "Type1" : "TrueType", " /BaseFont /",
                    prNameOf(font), ownEncoding ? "" : " /Encoding /WinAnsiEncoding",
                    " /FirstChar 0 /LastChar 255 /FontDescriptor ", font.Object + 1,
                    " 0 R /Widths [");
        prWriteWidthRows(*font.Metrics.Widths);
        Out.prWriteRaw("] >>");
        Out.prEndObj();
        prWriteConformingDescriptor(font);
    }
}

std::string_view clsPDFCreator::State::prNameOf(const Font& font)
{
    return font.Embedded == nullptr ? font.Standard->Name : font.BaseFont;
}

void clsPDFCreator::State::prWriteConformingDescriptor(const Font& font)
{
    const bool standard = font.Embedded == nullptr;
    Out.prInitObj(font.Object + 1);
    Out.prPart("<< /Type /FontDescriptor /FontName /", prNameOf(font), " ",
               standard ? std::string_view(font.Standard->Descriptor)
                        : std::string_view(font.Embedded->File.Descriptor));
    if (!standard) Out.prPart(" /FontFile2 ", font.Object + 2, " 0 R");
    Out.prPrint(" >>");
    Out.prEndObj();
    if (!standard) prWriteConformingFile(font.Object + 2, *font.Embedded);
}

void clsPDFCreator::State::prWriteConformingFile(std::int32_t object, const TrueType& font)
{
    Out.prInitObj(object);
    Out.prPrint("<< /Filter /", font.Filter, " /Length ",
                static_cast<std::int32_t>(font.Encoded.size()), " /Length1 ",
                static_cast<std::int32_t>(font.Length), " >>");
    Out.prBeginStream();
    Out.prPrint(font.Encoded);
    Out.prEndStream();
}
