// What a clsPDFCreator keeps between two calls, and the procedures that its sources share, by the
// source that has them: "_Core" is clsPDFCreator_Core.cpp. What kinds of things it keeps is told in
// clsPDFCreator_Parts.h.
// Numbers that the writer keeps are 32 bits wide; products and sums are formed in double.
#pragma once

#include "Failure.h"
#include "Objects.h"
#include "TextLayout.h"
#include "clsPDFCreator.h"
#include "clsPDFCreator_Parts.h"

#include <array>
#include <cmath>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace pdf {

inline constexpr std::string_view PatternKind = "una trama"; // in messages about its name

// What content streams call the colour space of uncoloured tilings.
inline constexpr std::string_view UncolouredSpace = "/xxCSxx";

} // namespace pdf

struct clsPDFCreator::State : pdf::Parts
{
    // The first numbers belong to what every document has: the information dictionary, which
    // BeginDoc writes, and the catalog and its like, which EndDoc writes.
    static constexpr std::int32_t FixedObjects = 6;

    // The same of a conforming document, which has fewer of them.
    enum : std::int32_t
    {
        ConformingInfo = 1,
        ConformingCatalog = 2,
        ConformingPageTree = 3,
    };

    // How many objects a page takes without its annotations, a reusable object or tiling with its
    // length, a stream that EndDoc writes with its length.
    static constexpr std::int32_t ObjectsOfPage = 4;
    static constexpr std::int32_t ObjectsOfDrawing = 2;
    static constexpr std::int32_t ObjectsOfStream = 2;

    static constexpr std::string_view ClassBanner = "clsPDFCreator 2004-2026 Orvenna";
    static constexpr std::string_view DefaultCreator = "Scalvino 1.0";
    static constexpr std::string_view DefaultAuthor = "Orvenna";

    pdf::Objects Out;

    // ---- Document
    Clock DocClock;
    DateTime Created = {};
    std::string CreationDate; // the same as the classic form of a document has it
    Properties DocProperties;
    Properties OpenedWith; // those of BeginDoc: the metadata do not follow later changes
    std::string FileName;
    std::int32_t ReaderVersion = 0;
    bool ConformingAsked = false;   // for the document that begins next
    bool Conforming = false;        // this one is so; while there is none, the next one
    std::int32_t CompressLevel = 0; // 0 to 9
    std::string Language;           // a tag; "" while none was set
    std::int32_t DocOrientation = 0;
    float PageWidth = 596;
    float PageHeight = 842;
    float PageMargin = 0;
    float Scale = 1; // points per user unit
    std::string ImageResources;
    std::string FormResources;
    std::string PatternResources;
    std::vector<Bookmark> Bookmarks; // without the first one, the document's title
    std::vector<Image> Images;
    std::int32_t ImageFilters = 0;
    std::vector<Gradient> Gradients; // not yet written
    std::int32_t GradientCount = 0;

    // Objects kept back, so that the document can be ended whatever is refused: for what EndDoc
    // writes (the metadata at first), and for the end of the page or drawing that is open.
    std::int32_t KeptForEnd = ObjectsOfStream;
    std::int32_t KeptForDrawing = 0;

    // ---- Conforming documents
    Drawings Forms;
    Drawings Patterns;
    std::int32_t DrawingNumber = 0;    // of the page, object or tiling begun last, from 1
    Drawing* OpenDrawing = nullptr;    // the object or tiling being drawn
    std::int32_t DrawingResources = 0; // the object of its resources; its length comes next
    Resources Used;

    // ---- Pages
    std::int16_t PageCount = 0;
    std::int32_t PageObject = 0; // of the page being drawn
    bool PageTurned = false;
    std::int32_t FirstPage = 0;
    std::string Kids;
    std::string PageLabels;
    std::vector<std::string> Annotations; // of the page being drawn
    std::vector<NewAppearance> NewAppearances;
    std::unordered_map<std::string, std::int32_t> Appearances; // objects by what they look like
    std::vector<AutoObject> AutoObjects;
    Point Current; // points

    // ---- Text
    float WordSpacing = 0;
    float CharSpacing = 0;
    float HorizontalScaling = 100;
    float FontSize = 0;
    std::int32_t FontStyle = 0;
    std::size_t CurrentFont = 0; // number from 1; 0: none chosen yet
    bool ShareFonts = false;
    std::vector<Font> Fonts;
    std::vector<std::unique_ptr<TrueType>> TrueTypeFonts;
    std::unordered_map<std::string, std::size_t> FontKeys;       // first font with that key
    std::unordered_map<std::string_view, std::size_t> BaseFonts; // first font of that name
    std::vector<FontRequest> FontRequests;
    std::vector<pdf::TextLine> Lines; // of the box in progress

    // ---- Graphics
    // Colours as the operations that set them: frames write them over and over.
    std::string FillColor = "0 0 0 rg";
    std::string LineColor = "0 0 0 RG";
    std::string ChosenColor; // becomes one of them
    bool FillChosen = false; // by the caller, on this page or reusable object
    float LineWidth = 1;     // points

    // ---- Tables
    TableState Table;                    // the one begun last and not ended
    std::vector<TableState> OuterTables; // in whose open cells it stands, the outermost first

    // Raises what every drawing operation raises first: no open document, a number not finite.
    template <typename... Numbers>
    void prRequire(Numbers... numbers) const
    {
        Out.prRequireOpen();
        prRequireFinite(numbers...);
    }
    template <typename... Numbers>
    static void prRequireFinite(Numbers... numbers)
    {
        if (!(true && ... && std::isfinite(numbers))) pdf::prNotFinite();
    }

    // How the document that begins next is laid out.
    pdf::Format prFormat() const { return {Conforming, CompressLevel}; }

    // Raises error 6 unless there are so many more objects besides those kept back. While there is
    // no page, one is kept back, too: no reader opens a document without.
    void prRequireObjects(std::int32_t more) const;

    // The same, and keeps them back for EndDoc.
    void prKeepObjects(std::int32_t more);

    // Points to user units; 0 while the unit has no length.
    double prInUnits(double points) const { return Scale == 0 ? 0 : points / Scale; }
    double prInPoints(double units) const { return units * Scale; }
    void prSetCurrent(double x, double y) { Current = {pdf::prFloat(x), pdf::prFloat(y)}; }

    // What every page, reusable object and tile starts with: line width, fill and no table.
    void prBeginDrawing();

    // Ends the content of a reusable object or tile, and writes its length as the next object.
    void prEndDrawing();

    // ---- _Core, _Metadata
    std::string prUnnamedFile() const;
    std::string prInfoText() const;

    // Begins a document under that name, "" for one that is no file.
    void prBeginDocument(const std::string& fileName,
                         const std::function<std::unique_ptr<pdf::Output>()>& open);

    // Writes the head of a document just opened, with that text as its information dictionary.
    void prBeginFile(const std::string& info);
    void prEndFile();
    void prWriteCatalog(std::int32_t outlines, std::int32_t metadata);
    void prWriteResources(std::int32_t number, bool withPatterns);
    void prWritePageTree();

    // The paper, so far from its edges (in points), as an array.
    std::string prBox(double margin) const;
    std::int64_t prMinorVersion() const;
    void prWriteDictionary(std::int32_t number, std::string_view text);
    std::int32_t prWriteMetadata();
    std::string prPacketOfLength(std::size_t length) const;
    std::string prXMPPacket() const;

    // ---- _Conforming, _ConformingMetadata
    std::string prConformingInfo() const;
    std::string prDocumentId() const;
    void prEndConformingFile();
    void prWriteConformingCatalog(std::int32_t outlines, std::int32_t metadata);
    void prWriteConformingPageTree();
    std::int32_t prWriteConformingMetadata();
    std::string prConformingPacket() const;

    // ---- _Drawings. Names as they stand in the file

    // Gives out so many numbers in a row and returns the first; error 6 without room for them.
    std::int32_t prReserve(std::int32_t count);

    // Error 5 for a name that the writer gives itself.
    static void prRequireObjectName(const std::string& name);
    static void prRequireTilingName(const std::string& name);

    // The drawing in progress uses the object of that name, or what an operation that sets a colour
    // chooses. Error 5 where it would come to contain itself.
    void prUseObject(const std::string& name);
    void prUseColor(std::string_view operation);
    void prUseNamed(Drawing& used, const std::string& name, std::string& list);
    void prRequireNoCircle(const Drawing& used, const std::string& name) const;
    static bool prHolds(const Drawing& outer, const Drawing& inner);

    // Begins an object or tiling; error 5 for the name of one that there is.
    std::int32_t prBeginNamed(Drawings& drawings, const std::string& name);
    void prEndNamed();
    std::string prResources() const;
    void prWriteUnmade();

    // A text outside the pages (UTF-8) as the whole string that stands in the file.
    std::string prString(std::string_view text) const;

    // ---- _Pages, _Forms
    void prWritePage();
    void prWriteConformingPage();
    std::string prWriteConformingAnnotations();
    void prAppendPageLabel(std::int32_t style, std::string_view prefix, std::int32_t firstValue);
    void prWriteAnnotations(std::int32_t lengthObject);
    void prBeginForm(const std::string& name);
    void prBeginConformingForm(const std::string& name);
    void prPlayObject(std::string_view name);
    void prPlayAutoObjects(bool atEnd);

    // ---- _Navigation
    double prFromBottom(double y) const; // user units from the top to points from the bottom
    std::string prDestination(std::int32_t fitMode, double left, double top, double right,
                              double bottom, double zoom) const;
    std::vector<OutlineItem> prOutlineTree() const;
    std::int32_t prWriteOutlines();
    std::int32_t prVisibleItems(const std::vector<OutlineItem>& items) const;
    void prWriteSiblings(const std::vector<std::size_t>& children, std::size_t item,
                         std::int32_t firstObject);

    // ---- _Notes
    template <typename... Numbers>
    void prRequireAnnotation(Numbers... numbers) const
    {
        prRequire(numbers...);
        prRequireObjects(Conforming ? 7 : 1); // two, a picture, its length, a font of three
    }
    void prAddAnnotation(std::string lines); // of its dictionary, without the end
    std::string prBoxFont();
    std::array<double, 4> prReadable(const std::array<double, 4>& rectangle) const;
    std::array<double, 4> prAnnotationRect(double x, double y, double width, double height) const;

    // ---- _Appearances. Rectangles in points: left, bottom, right, top

    // Keeps a picture for the page's end and returns the entry that gives it to an annotation of
    // that place. Its words are in Helvetica of that style.
    std::string prAppearance(const std::array<double, 4>& rectangle, const std::string& content,
                             std::int32_t style = 0);
    std::string prAppearanceFont(std::int32_t style);
    void prWriteAppearances();

    // ---- _Images
    std::int32_t prImageOf(const std::string& fileName, std::string_view key,
                           const std::function<pdf::Picture()>& read);
    void prDrawImage(std::int32_t image, double x, double y, double width, double height);
    void prUseImage(std::int32_t number);
    void prWriteConformingImage(Image& image);
    void prWriteImages();
    void prWriteImage(std::int32_t number, std::int32_t object, pdf::Picture& picture);
    void prWritePalette(std::string palette);

    // ---- _Patterns
    void prUseGradient(const GradientKind& kind, std::initializer_list<double> coordinates,
                       const std::vector<std::string>& colors, bool extendStart, bool extendEnd);
    std::int32_t prBeginTile(const std::string& name);
    std::int32_t prBeginConformingTile(const std::string& name);
    std::string prGradient(const GradientKind& kind, const GradientEnds& ends) const;
    std::string prConformingGradient(const GradientKind& kind, const GradientEnds& ends) const;
    std::int32_t prNameGradient(const std::string& name);
    void prWriteGradients();

    // ---- _Barcodes. Lengths in user units
    void prDrawModules(double x, double y, std::string_view modules, double module, double height);
    void prDrawEanText(std::size_t font, double x, double y, const std::string& digits,
                       double module);
    std::size_t prBarcodeFont();
    void prDrawBarcodeText(std::size_t font, const std::vector<BarcodeText>& texts, double y,
                           double size);

    // ---- _Fonts, _ConformingFonts
    FontRequest& prRequestOf(std::string_view family, std::int32_t style);
    FontRequest& prAddRequest(std::string_view family, std::int32_t face);
    std::size_t prFindFont(FontRequest& request) const;
    std::size_t prAddStandardFont(FontRequest& request);
    // The drawing in progress uses the font of that number; returns it.
    std::int32_t prUseFont(std::size_t number);
    void prNumberFont(Font& font);
    static bool prSameFont(const Font& one, const Font& other);
    static std::string_view prNameOf(const Font& font);
    static void prKeepFile(TrueType& font, std::string_view bytes, const std::string& what);
    static void prRequireEmbeddable(const pdf::TrueTypeFont& font, const std::string& fileName);
    void prTakeFontFiles();
    void prWriteConformingFonts();
    void prWriteConformingDescriptor(const Font& font);
    void prWriteConformingFile(std::int32_t object, const TrueType& font);
    void prWriteWidthRows(const std::array<std::uint16_t, 256>& widths);
    // The objects that a font of AddFont takes: itself and its descriptor; embedded, its file with
    // its length in the document and its own.
    static std::int32_t prObjectsOfFont(bool embed) { return embed ? 5 : 2; }

    // Adds the font that the bytes are; what: named in errors.
    void prAddFont(std::string_view bytes, const std::string& what, std::string_view fontName,
                   bool embed);
    void prWriteFonts();
    void prWriteFontNames();
    void prWriteWidths(std::int32_t object, const TrueType& font);
    void prWriteDescriptor(std::int32_t object, const TrueType& font);
    void prEncode(TrueType& font, std::string_view bytes) const;
    void prEmbedFile(std::int32_t object, const TrueType& font);
    std::int32_t prPresentFont()
    {
        return Conforming ? prUseFont(CurrentFont) : static_cast<std::int32_t>(CurrentFont);
    }
    pdf::TextMetrics prMetrics() const
    {
        return {Fonts[CurrentFont - 1].Metrics.Widths,
                FontSize,
                CharSpacing,
                WordSpacing,
                HorizontalScaling,
                Scale};
    }
    double prTextWidth(std::string_view text) const;
    void prRequireFont() const
    {
        if (CurrentFont == 0) prNoFont();
    }
    [[noreturn]] static void prNoFont();

    // ---- _Text. Texts in Windows-1252
    void prWriteText(double x, double y, std::string_view text, double angle);
    void prTextMatrix(double x, double y, double angle);
    void prDrawDecorations(double x, double y, std::string_view text, double angle);
    void prWriteLine(const pdf::TextLine& line, double width, double indent,
                     std::int32_t alignment);
    double prFirstBaseline(double y, double height, double leading, std::size_t lines,
                           std::int32_t options) const;

    // ---- _Colors, _Paths, _Axes. Lengths in user units
    static void prChooseFill(std::string& operation, std::string_view color,
                             std::string_view patternColor = {});
    static void prChooseLine(std::string& operation, std::string_view color,
                             std::string_view patternColor = {});
    void prAdopt(std::string& present);
    void prSetFill(std::string_view color, std::string_view patternColor = {});
    void prSetLine(std::string_view color, std::string_view patternColor = {});
    void prSetLineWidth(double width);
    void prSetDash(double on, double off);
    void prPaintOp(std::int32_t options);
    void prMove(double x, double y);
    void prLineTo(double x, double y, std::int32_t options);
    void prCurve(double x1, double y1, double x2, double y2, double x3, double y3,
                 std::int32_t options);
    void prShortCurve(double x1, double y1, double x3, double y3, std::string_view operation,
                      std::int32_t options);
    void prRectangle(double x, double y, double width, double height, std::int32_t options);
    void prRoundRectangle(double x, double y, double width, double height, double radius,
                          std::int32_t options);
    void prEllipse(double x, double y, double rayX, double rayY, std::int32_t options);
    static constexpr double MostArcPieces = 4000;
    void prArc(double x, double y, double ray, double start, double end, std::int32_t options);
    void prRotate(double angle);
    void prOpenSpace(double x, double y, double scalingX = 1, double scalingY = 1);

    // ---- _Tables
    static SharedStyle prStyleOf(std::string_view fill, float lineWidth, std::string_view lineColor,
                                 const SharedStyle& inherited);
    Frame& prFrameOf(Style& style, double width, double height) const;
    void prPaintFrame(Style& style, double width, double height);
    void prUseFrameColors(const Style& style);
};
