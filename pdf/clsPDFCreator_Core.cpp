// The document: settings, opening, closing, what belongs to all of it. Where to begin reading; a
// page goes on in _Pages.cpp.

#include "ApriConShell.h"
#include "Calendario.h"
#include "FileSulDisco.h"
#include "Percorsi.h"
#include "Windows1252.h"
#include "clsPDFCreator_State.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <new>

namespace {

constexpr std::string_view WriterVersion = "1.9.1";

// State::FixedObjects by name; 2 to 6 are written by EndDoc.
enum : std::int32_t
{
    InfoObject = 1,
    CatalogObject = 2,
    EncodingObject = 3,
    PageTreeObject = 4,
    ResourceObject = 5,
    PageResourceObject = 6,
};

constexpr std::int32_t CustomPaper = 255;

// Four bytes above 127 early in the file tell programs that it is no text (ISO 32000-1, 7.5.2).
constexpr std::string_view BinaryComment = "%\xE2\xE3\xCF\xD3";

// Whole points on purpose: exact sizes would move all that is placed by the lower edge by a part of
// one.
struct Paper
{
    float Width, Height; // points
};

constexpr std::array<Paper, 17> Papers = {{
    {596, 842},   // A4
    {842, 596},   //
    {842, 1192},  // A3
    {1192, 842},  //
    {1192, 1685}, // A2
    {1685, 1192}, //
    {1685, 2384}, // A1
    {2384, 1685}, //
    {2384, 3371}, // A0, portrait only
    {421, 596},   // A5
    {596, 421},   //
    {298, 421},   // A6
    {421, 298},   //
    {210, 298},   // A7
    {298, 210},   //
    {612, 792},   // Letter
    {612, 864},   // 8.5 by 12 inches
}};

std::string DateOf(const clsPDFCreator::DateTime& time)
{
    constexpr int lastYear = 9999; // a fifth digit would push the others out of the date
    if (time.Year > lastYear) {
        pdf::prInvalidCall("l'anno di una data può essere al massimo 9999");
    }
    constexpr int mostMinutes = 1439; // less than a day
    if (time.Offset > mostMinutes || time.Offset < -mostMinutes) {
        pdf::prInvalidCall("una data dista da UTC meno di un giorno");
    }
    return pdf::prDate(time);
}

bool IsLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool IsLetterOrDigit(char c)
{
    return IsLetter(c) || (c >= '0' && c <= '9');
}

// Parts of 1 to 8 letters, after the first one also digits, with hyphens between.
bool IsLanguage(std::string_view tag)
{
    constexpr std::size_t longestPart = 8;
    bool first = true;
    for (;;) {
        const auto part = tag.substr(0, tag.find('-'));
        if (part.empty() || part.size() > longestPart) return false;
        const auto fits = first ? IsLetter : IsLetterOrDigit;
        if (!std::all_of(part.begin(), part.end(), fits)) return false;
        if (part.size() == tag.size()) return true;
        tag.remove_prefix(part.size() + 1);
        first = false;
    }
}

clsPDFCreator::DateTime Now()
{
    using namespace std::chrono;
    const local_seconds now = CalendarioInUso.Adesso();
    const auto day = floor<days>(now);
    const year_month_day date(day);
    const hh_mm_ss time(now - day);
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(time.hours().count()),
            static_cast<int>(time.minutes().count()),
            static_cast<int>(time.seconds().count()),
            static_cast<int>(CalendarioInUso.Scarto().count())};
}

int RandomDigit()
{
    return CalendarioInUso.CifraCasuale();
}

} // namespace

clsPDFCreator::clsPDFCreator()
    : m(std::make_unique<State>())
{
    m->DocProperties = {"(senza titolo)",
                        "",
                        std::string(State::DefaultAuthor),
                        std::string(State::DefaultCreator),
                        std::string(State::ClassBanner),
                        ""};
    SetClock({Now, RandomDigit});
}

clsPDFCreator::~clsPDFCreator() = default;
clsPDFCreator::clsPDFCreator(clsPDFCreator&&) noexcept = default;
clsPDFCreator& clsPDFCreator::operator=(clsPDFCreator&&) noexcept = default;

void clsPDFCreator::SetClock(Clock NewClock)
{
    m->Out.prRequireIdle();
    m->DocClock = std::move(NewClock);
    m->Created = m->DocClock.Now();
    m->CreationDate = DateOf(m->Created);
}

std::string clsPDFCreator::Version()
{
    return std::string(WriterVersion);
}

void clsPDFCreator::PDFReader(std::int32_t ReaderVersion)
{
    m->Out.prRequireIdle();
    m->ReaderVersion = ReaderVersion;
}

void clsPDFCreator::Conforming(bool On)
{
    m->Out.prRequireIdle();
    m->ConformingAsked = On;
    if (!m->Out.prIsOpen()) m->Conforming = On;
}

void clsPDFCreator::Compress(std::int32_t Level)
{
    m->Out.prRequireIdle();
    constexpr std::int32_t smallest = 9;
    std::string reason;
    if (Level < 0 || Level > smallest) reason = "i documenti si comprimono da 0 a 9";
    else if (Level > 0 && !pdf::prCanDeflate()) {
        reason = "i documenti non si possono comprimere: la libreria è senza zlib";
    }
    if (!reason.empty()) {
        pdf::prInvalidCall(reason);
    }
    m->CompressLevel = Level;
}

void clsPDFCreator::Orientation(std::int32_t NewOrientation)
{
    m->Out.prRequireIdle();
    m->DocOrientation = NewOrientation;
}

void clsPDFCreator::Margin(float NewMargin)
{
    m->Out.prRequireIdle();
    State::prRequireFinite(NewMargin);
    m->PageMargin = pdf::prFloat(m->prInPoints(NewMargin));
}

std::int16_t clsPDFCreator::Pages() const
{
    return m->PageCount;
}

void clsPDFCreator::SetScale(std::int32_t Mode, float Custom)
{
    constexpr double inch = 72;
    constexpr double millimetresPerInch = 25.4;
    constexpr std::int32_t customMode = 255;
    m->Out.prRequireIdle();
    State::prRequireFinite(Custom);
    if (Mode == 0) m->Scale = 1;
    if (Mode == 1) m->Scale = inch;
    if (Mode == 2) m->Scale = pdf::prFloat(inch / millimetresPerInch);
    if (Mode == 3) m->Scale = pdf::prFloat(inch / (millimetresPerInch / 10));
    if (Mode == customMode) m->Scale = Custom;
}

void clsPDFCreator::SetPaperSize(std::int32_t Code, float Width, float Height)
{
    m->Out.prRequireIdle();
    State::prRequireFinite(Width, Height);
    if (Code == CustomPaper) {
        m->PageWidth = pdf::prFloat(m->prInPoints(Width));
        m->PageHeight = pdf::prFloat(m->prInPoints(Height));
    } else if (Code >= 0 && static_cast<std::size_t>(Code) < Papers.size()) {
        const Paper& paper = Papers[static_cast<std::size_t>(Code)];
        m->PageWidth = paper.Width;
        m->PageHeight = paper.Height;
    }
}

void clsPDFCreator::SetDocProperty(std::string_view DocTitle, std::string_view DocSubject,
                                   std::string_view DocAuthor, std::string_view DocCreator,
                                   std::string_view DocProducer, std::string_view DocKeywords)
{
    m->Out.prRequireIdle();
    auto& properties = m->DocProperties;
    properties.Title = DocTitle;
    properties.Subject = DocSubject;
    properties.Keywords = DocKeywords;
    if (!DocAuthor.empty()) properties.Author = DocAuthor;
    if (!DocCreator.empty()) properties.Creator = DocCreator;
    if (!DocProducer.empty()) properties.Producer = DocProducer;
}

void clsPDFCreator::SetLanguage(std::string_view Tag)
{
    m->Out.prRequireIdle();
    if (!IsLanguage(Tag)) {
        pdf::prInvalidCall("\"" + std::string(Tag) + "\" non indica una lingua");
    }
    m->Language = Tag;
}

std::string clsPDFCreator::BeginDoc(const std::string& FileName)
{
    m->Out.prClose();
    std::string name = FileName.empty() ? m->prUnnamedFile() : FileName;
    PretendiNonSpeciale(name);
    m->prBeginDocument(name, [&name] { return pdf::prToFile(name); });
    return name;
}

void clsPDFCreator::BeginDocTo(std::function<void(std::string_view)> Sink)
{
    if (!Sink) {
        pdf::prInvalidCall("manca la funzione che riceve il documento");
    }
    m->Out.prClose();
    m->prBeginDocument("", [&Sink] { return pdf::prToSink(std::move(Sink)); });
}

void clsPDFCreator::BeginDocTo(std::ostream& Stream)
{
    m->Out.prClose();
    m->prBeginDocument("", [&Stream] { return pdf::prToStream(Stream); });
}

void clsPDFCreator::State::prBeginDocument(
    const std::string& fileName, const std::function<std::unique_ptr<pdf::Output>()>& open)
{
    // Errors in them must not cost the file there is.
    Conforming = ConformingAsked;
    const std::string info = Conforming ? prConformingInfo() : prInfoText();
    prTakeFontFiles();
    Out.prOpen(open(), prFormat());
    try {
        prBeginFile(info);
        FileName = fileName;
    } catch (...) {
        Out.prDiscard(); // of a document that was never begun nothing stays
        throw;
    }
    Out.prKeep();
}

void clsPDFCreator::State::prBeginFile(const std::string& info)
{
    Out.prWriteRaw("%PDF-1." + std::to_string(prMinorVersion()));
    if (Conforming) Out.prWriteRaw(BinaryComment);
    Out.prPrint("% ", ClassBanner, " rel. ", WriterVersion);
    OpenedWith = DocProperties;
    prWriteDictionary(InfoObject, info);
    Out.prSetCounter(Conforming ? +ConformingPageTree : FixedObjects);
    KeptForDrawing = 0;
}

void clsPDFCreator::EndDoc()
try {
    m->prRequire();
    if (m->Conforming) m->prEndConformingFile();
    else m->prEndFile();
    m->Out.prClose();
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::State::prEndFile()
{
    const std::int32_t outlines = Bookmarks.empty() ? 0 : prWriteOutlines();
    prWriteFonts();
    prWriteImages();
    const std::int32_t metadata = prWriteMetadata();
    prWriteGradients();
    prWriteCatalog(outlines, metadata);
    prWriteDictionary(EncodingObject, "<< /Type /Encoding /BaseEncoding /WinAnsiEncoding >>");
    prWriteResources(ResourceObject, false);
    prWriteResources(PageResourceObject, true);
    prWritePageTree();

    const std::uint64_t crossReferences = Out.prPosition();
    Out.prWriteCrossReferences();
    Out.prWriteRaw("trailer");
    // One less than the entries of the table, on purpose: readers take it as it is and may remark
    // on it.
    Out.prPrint("<< /Size ", Out.prCounter(), " /Info ", +InfoObject, " 0 R /Root ", +CatalogObject,
                " 0 R >>");
    Out.prWriteRaw("startxref\r" + std::to_string(crossReferences));
    Out.prWriteRaw("%%EOF\r");
}

std::int64_t clsPDFCreator::State::prMinorVersion() const
{
    constexpr std::int64_t ofClassic = 3;
    constexpr std::int64_t ofConforming = 7;
    return std::max(ofClassic + ReaderVersion, Conforming ? ofConforming : INT64_MIN);
}

void clsPDFCreator::OpenDoc()
{
    if (m->FileName.empty()) {
        pdf::prInvalidCall("nessun documento da aprire");
    }
    if (!ApriConShell(PercorsoCompleto(m->FileName), StileFinestra::MassimizzataConFuoco)) {
        throw ErroreRuntime(NumeroErrore::FileNonTrovato, "nessun programma può aprire il file",
                            m->FileName);
    }
}

// The day, the time and a digit read as one number: two such files of one second seldom meet.
std::string clsPDFCreator::State::prUnnamedFile() const
{
    const DateTime now = DocClock.Now();
    std::uint64_t number = static_cast<std::uint64_t>(now.Day);
    for (const int part : {now.Hour, now.Minute, now.Second}) {
        number = number * 100 + static_cast<std::uint64_t>(part);
    }
    number = number * 10 + static_cast<std::uint64_t>(DocClock.RandomDigit());

    std::array<char, 16> digits = {};
    const auto end = std::to_chars(digits.begin(), digits.end(), number, 16).ptr;
    std::string name = "~";
    for (const char* digit = digits.data(); digit != end; ++digit) {
        name.push_back(*digit >= 'a' ? static_cast<char>(*digit - 'a' + 'A') : *digit);
    }
    return name + ".pdf";
}

// A "#" in one of the texts is a placeholder in its turn, on purpose: it takes the text that comes
// after, and is an error where it asks for a number.
std::string clsPDFCreator::State::prInfoText() const
{
    const auto& texts = DocProperties;
    const pdf::Argument arguments[] = {InWindows1252(texts.Title),
                                       InWindows1252(texts.Author),
                                       InWindows1252(texts.Creator),
                                       InWindows1252(texts.Producer),
                                       CreationDate,
                                       InWindows1252(texts.Subject),
                                       InWindows1252(texts.Keywords)};
    return pdf::prExpand("<<\r/Title (#p)\r/Author (#p)\r/Creator (#p)\r/Producer (#p)\r"
                         "/CreationDate (#p)\r/Subject (#p)\r/Keywords (#p)\r>>",
                         arguments)
        .value(); // there are never fewer placeholders than arguments here
}

void clsPDFCreator::State::prWriteDictionary(std::int32_t number, std::string_view text)
{
    Out.prInitObj(number);
    Out.prWriteRaw(text);
    Out.prEndObj();
}

void clsPDFCreator::State::prWriteCatalog(std::int32_t outlines, std::int32_t metadata)
{
    std::string text = "<< /Type /Catalog\r/Pages 4 0 R\r";
    if (outlines != 0) text.append("/Outlines " + std::to_string(outlines) + " 0 R\r");
    text.append("/PageLayout /OneColumn\r/PageMode ");
    text.append(outlines != 0 ? "/UseOutlines" : "/UseNone").append("\r/Lang (");
    text.append(Language.empty() ? "it" : Language).append(") \r");
    // The language belongs to version 1.4; that of every document does not raise it.
    constexpr std::int64_t versionOfLanguage = 4;
    if (!Language.empty() && prMinorVersion() < versionOfLanguage) text.append("/Version /1.4\r");
    if (!PageLabels.empty())
        text.append("/PageLabels << /Nums [ ").append(PageLabels).append(" ] >>\r");
    text.append("/ViewerPreferences << /HideToolbar false /DisplayDocTitle true "
                "/HideWindowUI false >>\r/Metadata ");
    text.append(std::to_string(metadata)).append(" 0 R\r>>");
    prWriteDictionary(CatalogObject, text);
}

void clsPDFCreator::State::prWriteResources(std::int32_t number, bool withPatterns)
{
    const bool images = !ImageResources.empty();
    Out.prInitObj(number);
    Out.prPart("<<\r");
    if (!Fonts.empty()) prWriteFontNames();
    Out.prPart("/ProcSet [/PDF /Text", images ? " /ImageB /ImageC /ImageI" : "", " ]\r");
    if (images || !FormResources.empty()) {
        Out.prPart("/XObject <<\r", ImageResources, images ? "\r" : "", FormResources, ">>\r");
    }
    if (withPatterns && !PatternResources.empty()) {
        Out.prPart("/ColorSpace << /xxCSxx [ /Pattern /DeviceRGB ] >> \r/Pattern <<\r",
                   PatternResources, ">>\r");
    }
    Out.prPrint(">>");
    Out.prEndObj();
}

void clsPDFCreator::State::prWritePageTree()
{
    std::string text = "<<\r/Type /Pages\r/Count " + std::to_string(PageCount);
    text.append("\r/MediaBox ").append(prBox(0));
    text.append("\r/CropBox ").append(prBox(PageMargin)).push_back('\r');
    if (DocOrientation == 1) text.append("/Rotate 90\r");
    text.append("/Kids [").append(Kids).append(" ]\r/Resources 6 0 R\r>>");
    prWriteDictionary(PageTreeObject, text);
}

std::string clsPDFCreator::State::prBox(double margin) const
{
    std::string box = "[";
    for (const double number : {margin, margin, PageWidth - margin, PageHeight - margin}) {
        if (box.size() > 1) box.push_back(' ');
        pdf::prAppendNumber(box, number);
    }
    return box + "]";
}
