// A PDF writer: pages are written to the file as they are drawn.
//
//     clsPDFCreator pdf;
//     pdf.BeginDoc("saluto.pdf"); pdf.BeginPage();
//     pdf.SetFont("Times New Roman", 24);
//     pdf.DrawText(298, 100, "Buongiorno", clsPDFCreator::AlignCenter); // in the middle of A4
//     pdf.EndPage(); pdf.EndDoc();
//
// Life of a document: settings, BeginDoc, then pages (BeginPage ... EndPage) and reusable objects
// (BeginObject ... EndObject, outside pages), EndDoc. One object writes one document, used by one
// thread at a time; for another document make another object. The calls must be paired as said
// here: that is not checked, and a document in which they are not cannot be read.
//
// Coordinates: the origin is the top left corner of the page, x grows to the right, y downward.
// Lengths are in user units (SetScale), font sizes, character and word spacing always in points.
//
// Operations that choose by a number take its name as well: AlignRight is 2, and all others stand
// in clsPDFCreator_Options.h.
//
// Texts are UTF-8 and become Windows-1252 bytes in the file; a character outside that set is
// drawn as "?". File names are the system's own bytes, passed on unchanged. Colours are texts:
//
//     "#FF8000"        red, green and blue in hexadecimal digits
//     "%25"            a grey: 25 percent of black
//     "Red"            one of Black, Gray, Silver, White, Fuchsia, Magenta, Red, Yellow, Green,
//                      Aqua, Cyan, Blue; upper or lower case. Green is the full "#00FF00".
//     anything else    the name of a pattern
//
// Names, of reusable objects and of patterns, are any text: what cannot stand in a name of the file
// is escaped (ISO 32000-1, 7.3.5). A pattern whose name reads as one of the colours above is never
// chosen. Two names are the same when their Windows-1252 bytes are: give each to one object and one
// tiling at most, and leave to the writer those that it gives itself, "_IMG_1" for pictures and
// "SHAD_1_ING" for gradients, with any number. Error 5, and nothing written, for a name with a byte
// 0 or of more than 127 bytes.
//
// Errors are of the one type ErroreRuntime: error 5 for an operation that needs an open document
// when there is none (all operations that draw or write need one; they do not repeat it below) and
// for text without a font; error 6 (Overflow) for a number that is not finite, for the 32768th line
// of a box and for anything that the 32767 objects of a document have no room for (a page takes 4
// of them, a font 1; the manual has a table); the system's failures to open, write or close the
// file with its name and the reason. What EndDoc will need for what is there already is kept back,
// and so is one page: after a refusal nothing has changed and the document can be ended. After a
// failed write every further operation on that document fails with the same error, and the file
// stays as far as it was written. So it is after an operation that memory ran out in before it was
// done; std::bad_alloc is the only error of another type. An operation names below only the errors
// that it has besides these.
//
// What the file holds is described by ISO 32000-1 (PDF 1.7), whose clauses are named below.
#pragma once

#include "ErroreRuntime.h"
#include "clsPDFCreator_Options.h"

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

// The version of this header, for the preprocessor: 10901 is 1.9.1. Version() tells the library's.
#define CLSPDFCREATOR_VERSION_MAJOR 1
#define CLSPDFCREATOR_VERSION_MINOR 9
#define CLSPDFCREATOR_VERSION_PATCH 1
#define CLSPDFCREATOR_VERSION                                                                      \
    (CLSPDFCREATOR_VERSION_MAJOR * 10000 + CLSPDFCREATOR_VERSION_MINOR * 100 +                     \
     CLSPDFCREATOR_VERSION_PATCH)

class SCALVINO_PUBBLICO clsPDFCreator : public clsPDFCreatorOptions
{
public:
    // What is thrown: what() is file and reason in one line, in Italian; Number() one of the error
    // numbers; File() and Reason() are empty where there is none. ErroreRuntime is the same type.
    using Error = ErroreRuntime;

    // File() of the errors that are the writer's own: they concern no file.
    static constexpr std::string_view ErrorSource = "clsPDFCreator";

    // A moment of the Gregorian calendar, written into the document as it is.
    struct DateTime
    {
        int Year,       // 0 to 9999
            Month,      // 1 to 12
            Day,        // 1 to 31
            Hour,       // 0 to 23
            Minute,     // 0 to 59
            Second,     // 0 to 60
            Offset = 0; // minutes east of UTC, -1439 to 1439; written by Conforming alone
    };

    // Where the date of a document and the name of an unnamed file come from.
    struct Clock
    {
        // The present moment.
        std::function<DateTime()> Now;

        // A digit from 0 to 9 that makes names of one second differ.
        std::function<int()> RandomDigit;
    };

    // Takes the creation date from the system's clock (from SOURCE_DATE_EPOCH, seconds since 1970
    // in UTC, while the environment holds it).
    clsPDFCreator();

    // Leaves the file as it is: a document without EndDoc stays incomplete.
    ~clsPDFCreator();

    // Takes over another writer with the document it has open. That one may then only be destroyed
    // or be given another writer.
    clsPDFCreator(clsPDFCreator&&) noexcept;

    // The same; a document that was open here stays incomplete.
    clsPDFCreator& operator=(clsPDFCreator&&) noexcept;

    // A document has one writer.
    clsPDFCreator(const clsPDFCreator&) = delete;

    // A document has one writer.
    clsPDFCreator& operator=(const clsPDFCreator&) = delete;

    // Replaces the clock, both of its functions by those of NewClock (neither may be missing), and
    // takes the creation date from it; error 5 for a year above 9999. Call it before BeginDoc.
    void SetClock(Clock NewClock);

    // With Share a font already in use is used again, where otherwise SetFont adds one to the
    // document at nearly every call: much smaller files. Off at first.
    void ShareFonts(bool Share);

    // With On the document is one that no reader remarks on. Off at first; call it before BeginDoc.
    //
    // Version 1.7 unless PDFReader asks for more; a right /Size, a binary comment (ISO 32000-1,
    // 7.5.2) and an /ID (14.4) made from the clock, the file's name and the properties. Each
    // drawing names what it uses; each font stands once, as one of the standard 14 with its widths
    // and descriptor (9.6.2) or embedded, whatever AddFont says. Properties are taken literally.
    // Every text outside the pages (properties, bookmarks, labels, notes) is exact in any script
    // (7.9.2.2), dates carry their offset, the metadata are UTF-8 and say what the properties say;
    // the language is that of SetLanguage or none. Annotations bring their appearance (12.5.5), in
    // which letters outside Windows-1252 are "?". Only pages are limited to 32767, objects to
    // 8388607 (annex C).
    //
    // What is played or chosen as a colour and never made draws nothing; the first bookmark, the
    // title, leads to the first page. docs/conforme.md tells every byte.
    //
    // Error 5 where a document could not be so: an object or tiling that is begun under the name
    // of another one, or under one that the writer gives itself, or that contains itself. Error 70
    // from BeginDoc for a font added before that forbids to be embedded.
    void Conforming(bool On = true);

    // Deflates what documents begun from now on hold (ISO 32000-1, 7.4.4): the content of pages,
    // objects and tilings, pictures for which FilterDecode asks no filter, and fonts added from now
    // on. Level: 1 quick to 9 small, 0 (at first) off. With Conforming the small objects are
    // packed, too (7.5.7, 7.5.8). Call it before BeginDoc. Error 5 for another level, and for any
    // but 0 where the library was built without zlib.
    void Compress(std::int32_t Level);

    // The natural language of the document (ISO 32000-1, 14.9.2) as a Tag like "it" or "en-GB":
    // 1 to 8 letters, then parts of 1 to 8 letters or digits after hyphens (RFC 5646); error 5 for
    // anything else. Call it before EndDoc. A document of version 1.3 thereby becomes one of 1.4.
    void SetLanguage(std::string_view Tag);

    // ---- Document ------------------------------------------------------------------------------

    // The reader that the file asks for (ISO 32000-1, 7.5.2): ReaderVersion 0 (at first) writes
    // version 1.3, 1 1.4 and so on. Takes effect with BeginDoc; changes nothing else in the file.
    void PDFReader(std::int32_t ReaderVersion);

    // Distance NewMargin of the crop box (ISO 32000-1, 14.11.2) from the edges of the paper, in
    // user units of this moment; 0 at first. Readers show what is inside; nothing is moved.
    void Margin(float NewMargin);

    // Pages begun so far, 0 to 32767.
    std::int16_t Pages() const;

    // The current point's distance from the left edge in user units. The drawing operations set
    // the point, a new page puts it at (0, 0).
    float GetX() const;

    // The current point's distance from the upper edge in user units.
    float GetY() const;

    // The user unit by Mode: 0 point (at first), 1 inch, 2 millimetre, 3 centimetre, 255 Custom
    // points; any other mode changes nothing. Call it before any operation that takes lengths: what
    // is stored already is not converted.
    void SetScale(std::int32_t Mode, float Custom = 1);

    // The paper of all pages by Code, portrait and landscape: 0 (at first) and 1 A4, 2 and 3 A3, 4
    // and 5 A2, 6 and 7 A1, 8 A0 portrait, 9 and 10 A5, 11 and 12 A6, 13 and 14 A7, 15 Letter, 16
    // 8.5 by 12 inches, 255 Width by Height in user units; any other code changes nothing. Call it
    // before the first page: the file has one size for all, that of EndDoc.
    void SetPaperSize(std::int32_t Code, float Width = 0, float Height = 0);

    // With NewOrientation 1 readers show every page turned clockwise by 90 degrees, with any other
    // number (at first) as it is. Coordinates stay those of the page not turned.
    void Orientation(std::int32_t NewOrientation);

    // What readers tell about the document (ISO 32000-1, 14.3.3): DocTitle, DocSubject and
    // DocKeywords are replaced each time, by nothing when not given; DocAuthor, DocCreator and
    // DocProducer only by a text that is not empty. After BeginDoc only the title still has an
    // effect: it is the first bookmark.
    //
    // A "#" in them is no plain character in the information dictionary, on purpose: the values
    // (title, author, creator, producer, creation date, subject, keywords) are put one after the
    // other where the next "#" stands, and after each the search goes on behind its own first
    // character. With the title "C# guide" the author is used up by "# " and lost, every later
    // value stands in the entry before its own, and the keywords are "#p". "#p", "#t" and "##"
    // there use up the next value likewise: "#p" takes it in, "#t" does so without escaping it, so
    // that a ")" in it can leave the string and what follows become part of the file's structure.
    // Take "#" out of every text that is not your own. The metadata and the first bookmark show it
    // as it is.
    void SetDocProperty(std::string_view DocTitle = {}, std::string_view DocSubject = {},
                        std::string_view DocAuthor = {}, std::string_view DocCreator = {},
                        std::string_view DocProducer = {}, std::string_view DocKeywords = {});

    // Opens the file, in place of one of that name, and returns the name. An empty FileName: "~", a
    // hexadecimal number and ".pdf" in the current folder. Replaced are a regular file of this user
    // and a symbolic link (itself, never what it leads to); anything else there is an error and
    // stays, as does a link to a device, a pipe, a socket or what the program has open
    // (/dev/stdout). A document still open is closed as it stands. Error 13, with the file there
    // untouched, for a property of the document in which "#d" or the like asks for something that
    // is no text. A failure after the old file is gone leaves none.
    std::string BeginDoc(const std::string& FileName = {});

    // Begins a document that goes to Sink as it is made: pieces in their order, some 64 KB each and
    // none empty, each there for the length of one call; nothing is sought back. What Sink throws
    // fails the document as a full disk does: error 57 with that reason, 7 for std::bad_alloc, an
    // ErroreRuntime as it is. The operations of this writer are error 5 while Sink is called, but
    // for those that only tell something; it must not move or destroy the writer. Error 5 for an
    // empty function; the document still open then goes on. Otherwise as BeginDoc, which may follow
    // it. OpenDoc has nothing to open. A document without EndDoc stays incomplete: what Sink does
    // not have yet it never gets.
    void BeginDocTo(std::function<void(std::string_view)> Sink);

    // The same into Stream, a binary one, which must live until EndDoc or the next document. One
    // that fails, or reports a failure by throwing, fails the document as a full disk does: error
    // 57, now if it is not good any more. EndDoc flushes it and leaves it open.
    void BeginDocTo(std::ostream& Stream);

    // Writes what belongs to the whole document and closes the file. End the last page first.
    void EndDoc();

    // ---- Pages ---------------------------------------------------------------------------------

    // Begins a page and returns its number. Fill and line colour are black, the line width is 1
    // point, character and word spacing are 0, horizontal scaling is 100.
    //
    // Orientation: 1 shows this page turned by 90 degrees. The other arguments start a range of
    // page labels (ISO 32000-1, 12.4.2): PageLabel 0 decimal, 1 Roman, 2 small Roman, 3 letters,
    // 4 small letters, anything else no number; LabelPrefix stands before it; FirstValue 0 to
    // 65534 is the number of this page, -1 counts from 1. A range starts unless PageLabel has no
    // meaning, the prefix is empty and FirstValue is -1; so with the defaults each page is
    // labelled 1.
    std::int16_t BeginPage(std::int32_t Orientation = 0, std::int32_t PageLabel = 0,
                           std::string_view LabelPrefix = {}, std::int32_t FirstValue = -1);

    // Ends the page: writes its content's length and its annotations.
    void EndPage();

    // ---- Text state ----------------------------------------------------------------------------
    //
    // What is set here holds until it is changed or until the next page (ISO 32000-1, 9.3).

    // Adds W points after each blank; less than 0 takes them away.
    void SetWordSpacing(float W);

    // Adds W points after each character, blanks included; less than 0 takes them away.
    void SetCharSpacing(float W);

    // Draws characters and the spaces between them W percent as wide as they are.
    void SetTextHorizontalScaling(float W);

    // How letters are painted by W: 0 filled, 1 stroked, 2 both, 3 invisible, 4 to 7 the same and
    // added to the clipping path (ISO 32000-1, 9.3.6). Any other number is written as it is;
    // readers differ in what they show.
    void SetTextRenderingMode(std::int32_t W);

    // Writes Text as one line with its baseline at Y. Options: 1 (or none) starts at X, 2 ends
    // there, 4 is centred on it. Angle: degrees, counterclockwise, around the start. Underlines,
    // overlines and strikes out as SetFont asked. The current point moves to the start of the text,
    // one font size below Y.
    void DrawText(float X, float Y, std::string_view Text, std::int32_t Options = 1,
                  float Angle = 0);

    // ---- Lines and areas -----------------------------------------------------------------------
    //
    // Options of all of them: 1 stroke, 2 close the path, 4 fill, added up; with 0 the path goes
    // on with the next operation (ISO 32000-1, 8.5). Coordinates and lengths are in user units.

    // The lines drawn from here to the end of the page (ISO 32000-1, 8.4.3): Width in user units,
    // negative to keep it; Cap 0 butt, 1 round, 2 square, -1 keep; Join 0 miter, 1 round, 2 bevel,
    // -1 keep; Miter limit, its whole part, from 1, less to keep it; DashOn and DashOff in user
    // units, both 0 for a solid line: the dashes are always set.
    void SetLineStyle(float Width, std::int32_t Cap = -1, std::int32_t Join = -1, float Miter = 0,
                      float DashOn = 0, float DashOff = 0);

    // Starts a path, or a new part of it, at (X, Y), which becomes the current point.
    void MoveTo(float X, float Y);

    // Goes on with a straight line to (X, Y), which becomes the current point, and paints the path
    // by Options.
    void DrawLineTo(float X, float Y, std::int32_t Options = 1);

    // A line of its own from (X1, Y1) to (X2, Y2), painted by Options. The current point is its
    // start.
    void DrawLine(float X1, float Y1, float X2, float Y2, std::int32_t Options = 1);

    // A rectangle with one corner at (X, Y), painted by Options; Width to the right and Height
    // downward, the other way where negative. With a Radius above 0 its corners are round, as far
    // as half its sides allow. A path not yet painted is dropped. The current point moves only with
    // round corners: to the left end of the upper side.
    void DrawRect(float X, float Y, float Width, float Height, std::int32_t Options = 1,
                  float Radius = 0);

    // A Bezier curve (ISO 32000-1, 8.5.2.2) from the current point to (X3, Y3), which becomes the
    // current point, with the control points (X1, Y1) and (X2, Y2). The path is painted by Options.
    void DrawCurveA(float X1, float Y1, float X2, float Y2, float X3, float Y3,
                    std::int32_t Options = 1);

    // The same with the first control point on the start: (X2, Y2) is the second one, (X3, Y3) the
    // end, Options paint the path.
    void DrawCurveB(float X2, float Y2, float X3, float Y3, std::int32_t Options = 1);

    // The same with the second control point on the end: (X1, Y1) is the first one, (X3, Y3) the
    // end, Options paint the path.
    void DrawCurveC(float X1, float Y1, float X3, float Y3, std::int32_t Options = 1);

    // A circle of radius Ray around (X, Y), painted by Options: a path of its own from the right
    // end, clockwise as seen. The current point is its right end.
    void DrawCircle(float X, float Y, float Ray, std::int32_t Options = 1);

    // An ellipse around (X, Y), RayX wide to either side and RayY high, painted by Options: a path
    // like that of a circle. The current point is its right end.
    void DrawEllipse(float X, float Y, float RayX, float RayY, std::int32_t Options = 1);

    // An arc of radius Ray around (X, Y) from StartAngle to EndAngle: degrees, 0 to the right,
    // counterclockwise as seen; an end below the start stands for full turns more, of which at most
    // 1000 are drawn. It starts a path, painted by Options. The current point is its end.
    void DrawArc(float X, float Y, float Ray, float StartAngle, float EndAngle,
                 std::int32_t Options = 1);

    // ---- Reusable objects ----------------------------------------------------------------------

    // Begins a drawing that pages can play by name, before or after it is made (a form XObject, ISO
    // 32000-1, 8.10). Between pages only; same coordinates as a page. Name: any, see the top of the
    // file. Flags play it on pages begun later: 7 every page, 2 even, 4 odd, 12 odd but the first;
    // 16 more plays it at the end of the page, over what is there; 0 and 1 never. Tilings are
    // better not chosen in it: one widespread reader may refuse the page.
    void BeginObject(std::string_view Name, std::int32_t Flags = 0);

    // Ends the drawing that BeginObject began.
    void EndObject();

    // Draws the object of that Name under the axes of this moment. One that is never made is
    // missing in the file; readers then draw nothing.
    void PlayObject(std::string_view Name);

    // ---- Measuring and boxes of text -----------------------------------------------------------

    // The width of Text in user units with the present font, spacing and scaling; 0 without a font.
    float TextLength(std::string_view Text) const;

    // The font size in user units; 0 until one is given.
    float TextHeight() const;

    // Returns any Bytes as ASCII base-85 (ISO 32000-1, 7.4.3), with "~>" at the end. Needs no
    // document.
    static std::string prToASCII85(std::string_view Bytes);

    // Lays Text out in a box with its upper left corner at (X, Y), wrapping at blanks; returns the
    // number of lines. Draws no frame and clips nothing: a word wider than Width sticks out, Height
    // only serves the vertical alignment. Decorations of the font are not drawn.
    //
    // Text: CR LF ends a paragraph, a "\n" or "\r" alone ends nothing and is drawn as the font has
    // it; several blanks count as one. A paragraph always fits a Width of its own TextLength.
    // LineSpacing: multiple of the font size. Indent: of each paragraph's first line. Options: one
    // of 1 left, 2 right, 4 centre, 64 justified, plus 16 bottom or 32 middle; none or several of
    // the first four: lines start at X without an indent. Angle: degrees, counterclockwise, around
    // the start of the first line. The current point is (X, Y).
    //
    // A justified line reaches the right edge only with a word spacing of 0 and a horizontal
    // scaling of 100: its blanks are widened in place of the word spacing, not on top of it, on
    // purpose, so that for each blank that spacing is missing at the end; and the reader scales the
    // widening once more. Character spacing counts behind the last letter, too.
    std::int16_t DrawParagraph(float X, float Y, float Width, float Height, std::string_view Text,
                               float LineSpacing = 1, float Indent = 0, std::int32_t Options = 1,
                               float Angle = 0);

    // ---- Bookmarks -----------------------------------------------------------------------------

    // Adds a bookmark (ISO 32000-1, 12.3.3) called Title that leads to the page begun last, before
    // the first one nowhere. Level 1 stands under the document's title, which is the first
    // bookmark; 0 and less count as 1, more than one deeper than the bookmark before as one deeper.
    // FitMode, what the reader shows: 0 the page's drawing, 1 from Left on in full height, 2 from
    // Top on in full width, 3 the rectangle from (Left, Top) to (Right, Bottom), 4 from the corner
    // (Left, Top) on at the factor Zoom (1 is the real size, 0 as it is); anything else leads
    // nowhere. Needs no open document.
    void AddBookmark(std::string_view Title, std::int32_t Level = 1, std::int32_t FitMode = 0,
                     float Left = 0, float Top = 0, float Right = 0, float Bottom = 0,
                     float Zoom = 0);

    // ---- Notes and links -----------------------------------------------------------------------
    //
    // Annotations of the open page (ISO 32000-1, 12.5): not drawn, but shown by the reader, in
    // place and size whatever the axes. One widespread reader opens no page with more than 10,000.
    // Flags: as there in 12.5.3, 4 lets them be printed. An empty Color or Title is left out, as is
    // a Color that is a pattern.
    //
    // Each reader draws them in its own way; with Conforming all show the same. There a note
    // without a Color is yellow, a stamp dark red; a box has its border in TextColor, breaks words
    // wider than itself and shows no line below its lower edge; a FontSize that is not positive is
    // 12; a negative Width or Height goes the other way, and what has no area has no picture.

    // A note with Text behind an Icon of 20 points, its upper left corner at (X, Y): 0 note, 1
    // comment, 2 key, 3 help, 4 paragraph, 5 new paragraph, 6 insertion; the reader's own for any
    // other. Open shows the text at once. Color of icon and window, Title of the window, Flags.
    void AddNoteIcon(std::string_view Text, std::int32_t Icon, float X, float Y, bool Open = false,
                     std::string_view Color = {}, std::string_view Title = {},
                     std::int32_t Flags = 4);

    // A note with Text written on the page, its upper left corner at (X, Y), Width by Height.
    // FontSize in points; TextColor no pattern; Align 0 left, 1 centre, 2 right; BorderWidth in
    // points; BorderStyle 0 solid, 1 dashed, 2 beveled, 3 inset, 4 underline; Color of the
    // background; Flags. Without a Title it has the writer's own. Uses plain Arial, added to the
    // document where it is missing; the present font stays.
    void AddNoteBox(std::string_view Text, float X, float Y, float Width, float Height,
                    float FontSize = 12, std::string_view TextColor = "Black",
                    std::int32_t Align = 0, float BorderWidth = 1, std::int32_t BorderStyle = 0,
                    std::string_view Color = {}, std::string_view Title = {},
                    std::int32_t Flags = 4);

    // A rubber stamp, its upper left corner at (X, Y), Width by Height, with Text as a note behind
    // it and its Title, Color and Flags. Stamp: 0 approved, 1 as is, 2 confidential, 3
    // departmental, 4 draft, 5 experimental, 6 expired, 7 final, 8 for comment, 9 for public
    // release, 10 not approved, 11 not for public release, 12 sold, 13 top secret; the reader's own
    // for any other.
    void AddNoteStamp(std::string_view Text, float X, float Y, float Width, float Height,
                      std::int32_t Stamp = 0, std::string_view Title = {},
                      std::string_view Color = {}, std::int32_t Flags = 4);

    // A link to the address URL (ISO 32000-1, 12.6.4.7): an area with its upper left corner at (X,
    // Y), Width by Height. Highlight while it is pressed: 0 none, 1 inverted, 2 outlined, 3 pushed;
    // the reader's own for any other. Border: width in points, 0 none. The address is not checked;
    // with Conforming what is not ASCII in it, and each blank, is written as "%" and two digits.
    void AddWebLink(std::string_view URL, float X, float Y, float Width, float Height,
                    std::int32_t Highlight = 1, float Border = 0);

    // ---- Axes ----------------------------------------------------------------------------------
    //
    // They change the coordinates of what follows, until EndGraphicSpace or the end of the page
    // (ISO 32000-1, 8.3.4). The current point's numbers stay.

    // Moves the origin by DX to the right and DY downward.
    void MakeAxisTranslation(float DX, float DY);

    // Multiplies what follows by the factors ScalingX and ScalingY, whatever the user unit.
    void MakeAxisScaling(float ScalingX, float ScalingY);

    // Turns what follows by Angle around the origin: degrees, clockwise as seen; less than half a
    // degree from none or from full turns changes nothing.
    void MakeAxisRotation(float Angle);

    // Degrees by which the x axis leans downward, AngleX, and the y axis to the right, AngleY;
    // between -90 and 90.
    void MakeAxisSkewing(float AngleX, float AngleY);

    // Saves the graphics state (ISO 32000-1, 8.4.2) and moves the origin to (X, Y), scaled by the
    // factors ScalingX and ScalingY; they nest. The current point is (X, Y) as seen from outside.
    void BeginGraphicSpace(float X, float Y, float ScalingX = 1, float ScalingY = 1);

    // Gives back what the matching BeginGraphicSpace saved: axes, colours, line and text state of
    // the file. The writer's own idea of them, which tables inherit, stays as it was inside.
    void EndGraphicSpace();

    // ---- Tables --------------------------------------------------------------------------------
    //
    // BeginTable, then rows from top to bottom, in each its cells from left to right; in a cell
    // the origin is its top left corner. A table stays on one page and measures nothing: widths
    // and heights are the caller's. FillColor "" takes what the row (the table) has, LineWidth -1
    // and LineColor "" likewise; a width of 0 draws no frame. A table takes a fill that the
    // caller has set on this page, or else none, and the present line. A colour given to a table,
    // row or cell is no tiling of kind 2, which would lack its own.
    //
    // Tables nest: one begun in an open cell has its origin there, and its EndTable gives back the
    // table around it, whose cell, row and style are as they were. Table, row and cell each save
    // the graphics state once; a reader may allow no more than 28 such states (ISO 32000-1, annex
    // C).
    //
    // A row's own background and frame are as wide as the cell begun last, on purpose (nothing
    // before the first cell of the table): the cells paint themselves over them.

    // Begins a table with its upper left corner at (X, Y), in an open cell one of its own.
    // FillColor, LineWidth in user units and LineColor are those of its rows. The current point is
    // (X, Y), and again after EndTable.
    void BeginTable(float X, float Y, std::string_view FillColor = {}, float LineWidth = -1,
                    std::string_view LineColor = {});

    // Begins a row of that Height below the row before. FillColor, LineWidth and LineColor are
    // those of its cells. The current point is (0, 0).
    void BeginRow(float Height, std::string_view FillColor = {}, float LineWidth = -1,
                  std::string_view LineColor = {});

    // Ends the row; does nothing where none is begun.
    void EndRow();

    // Begins a cell of that Width to the right of the cell before and paints it: background of
    // FillColor inside a frame of LineWidth and LineColor. The current point is (0, 0), the cell's
    // upper left corner.
    void BeginColumn(float Width, std::string_view FillColor = {}, float LineWidth = -1,
                     std::string_view LineColor = {});

    // Ends the cell; does nothing where none is begun.
    void EndColumn();

    // Ends the table begun last. Line and fill are what they were when it was begun, and the table
    // in whose cell it stood goes on.
    void EndTable();

    // ---- Patterns ------------------------------------------------------------------------------

    // Begins a tile (ISO 32000-1, 8.7.3), drawn like a page with its own corner as the origin, that
    // fills areas as the colour called Name (any, see the top of the file). Between pages only. The
    // cell reaches from (X1, Y1) to (X2, Y2) and is repeated every XStep and YStep, all in user
    // units. PaintKind: 1 coloured by the drawing itself, 2 by the PatternColor it is chosen with;
    // any other as 1.
    void BeginTiling(std::string_view Name, float X1, float Y1, float X2, float Y2, float XStep,
                     float YStep, std::int32_t PaintKind = 1);

    // Ends the tile that BeginTiling began.
    void EndTiling();

    // Fills what follows with a blend (ISO 32000-1, 8.7.4.5.4) of the first and the last of Colors,
    // between the circles around (X0, Y0) with radius R0 and around (X1, Y1) with radius R1, on the
    // page and in user units whatever the axes. ExtendStart and ExtendEnd go on with that end's
    // colour beyond it. Error 5 without colours.
    void SetRadialFill(const std::vector<std::string>& Colors, float X0, float Y0, float R0,
                       float X1, float Y1, float R1, bool ExtendStart = true,
                       bool ExtendEnd = true);

    // Fills what follows with a blend (ISO 32000-1, 8.7.4.5.3) of the first and the last of Colors
    // along the line from (X0, Y0) to (X1, Y1), on the page and in user units whatever the axes.
    // ExtendStart and ExtendEnd go on with that end's colour beyond it. Error 5 without colours.
    void SetLinearFill(const std::vector<std::string>& Colors, float X0, float Y0, float X1,
                       float Y1, bool ExtendStart = true, bool ExtendEnd = true);

    // ---- Version, boxes, opening ---------------------------------------------------------------

    // The version of this writer, "1.9.1". Needs no document.
    static std::string Version();

    // The same as DrawParagraph: lays Text out in a box at (X, Y), Width by Height, and returns the
    // number of lines. LineSpacing, Indent, Options and Angle as there.
    std::int16_t DrawTextBox(float X, float Y, float Width, float Height, std::string_view Text,
                             float LineSpacing = 1, float Indent = 0, std::int32_t Options = 1,
                             float Angle = 0);

    // Opens the file of the last BeginDoc with the desktop's program for it, without waiting.
    // Error 5 where there is none: before the first BeginDoc and after a BeginDocTo. Error 53 where
    // nothing can open files. A document that was refused at its beginning counts as none.
    void OpenDoc();

    // ---- Barcodes ------------------------------------------------------------------------------
    //
    // Drawn in the present fill colour, from the top left corner of the first bar on; what scanners
    // want free on both sides is the caller's: 11 modules left and 7 right of an EAN-13, 10 on
    // either side of a Code 39. ModuleWidth, of the narrowest bar, in points: 0.8 when not
    // positive, at most 2. ShowText writes the text under the bars and adds a font to the document;
    // the present one stays. The current point moves to (X, Y).

    // An EAN-13 (ISO/IEC 15420) at (X, Y). Code: 12 digits; a 13th is ignored, the check digit is
    // always the right one. BarHeight in user units, 69 modules when not positive; the guard bars
    // are 5 modules longer. ShowText, ModuleWidth: above. Error 5 for anything but 12 or 13 digits;
    // nothing is drawn then.
    void DrawEAN13(std::string_view Code, float X, float Y, bool ShowText = true,
                   float BarHeight = 0, float ModuleWidth = 0);

    // A Code 39 (ISO/IEC 16388) at (X, Y). Code: ASCII; what Code 39 does not have itself takes two
    // of its characters, a shift ("$", "%", "/" or "+") and a letter. The shifts are characters
    // themselves, so that a text like "$A" and the control character 1 (Ctrl-A) have the same bars:
    // how the scanner is set decides which it reads. No check character is added. Height in user
    // units, 40 modules when not positive. Ratio of wide to narrow, 2.5 when not positive.
    // ShowText, ModuleWidth: above. Error 5 for characters that are not ASCII; nothing is drawn
    // then.
    void DrawCODE39(std::string_view Code, float X, float Y, float Height = 0, bool ShowText = true,
                    float ModuleWidth = 0, float Ratio = 0);

    // ---- Fonts ---------------------------------------------------------------------------------

    // Chooses the font, which holds from page to page. FontFamily: Times New Roman, Courier New,
    // Arial (Helvetica), Symbol, ZapfDingbats (ISO 32000-1, 9.6.2.2) or one of AddFont, blanks and
    // case apart; any other name is drawn as Arial. Size in points, 0 keeps the present one. Style,
    // added up: 1 bold, 2 italic, 4 underline, 8 overline, 16 strike out.
    //
    // Only plain Arial, Symbol and ZapfDingbats are found again; every other call adds a font to
    // the document, the same one included, on purpose: fonts are shared only when ShareFonts asks
    // for it.
    void SetFont(std::string_view FontFamily, float Size = 0, std::int32_t Style = 0);

    // Changes the Size alone, in points. Needs neither font nor document.
    void SetFontSize(float Size);

    // ---- Images --------------------------------------------------------------------------------

    // Draws the picture FileName (ISO 32000-1, 8.9) over a rectangle with its upper left corner at
    // (X, Y), Width by Height: a Windows bitmap (.bmp), the first frame of a GIF (.gif) or a JPEG
    // (.jpg, .jpeg) of at most 1 GiB. It is read once for each file name and Key: another Key reads
    // it again. The current point moves to (X, Y). An error with file and reason, and nothing
    // drawn, for any other file.
    void DrawImage(const std::string& FileName, float X, float Y, float Width, float Height,
                   std::string_view Key = {});

    // ---- Colours, fonts of one's own -----------------------------------------------------------

    // The Color of areas and text from here to the end of the page (ISO 32000-1, 8.6.8).
    // PatternColor: that of a tiling of kind 2. An empty Color changes nothing.
    void SetColorFill(std::string_view Color, std::string_view PatternColor = {});

    // The Color of lines, likewise, and of decorations of text. PatternColor: that of a tiling of
    // kind 2. An empty Color changes nothing.
    void SetColorLine(std::string_view Color, std::string_view PatternColor = {});

    // Adds a TrueType font (ISO 32000-1, 9.6.3) from its file FileName, at most 1 GiB: SetFont
    // finds it as FontName, blanks and case apart, and ignores bold and italic for it. Embed puts
    // the file into the document (9.9), so that the text looks the same everywhere. An error with
    // file and reason for a file that is no such font; error 70 for one that, with Embed, forbids
    // it.
    void AddFont(const std::string& FileName, std::string_view FontName, bool Embed = true);

    // The same from Bytes, all those of the font's file, which need to live for the call only.
    // FontName and Embed as there. Errors tell of font "FontName" in the place of a file.
    void AddFontData(std::string_view Bytes, std::string_view FontName, bool Embed = true);

    // The colour text of three values, red, green, blue (0 to 255), or of four, cyan, magenta,
    // yellow, black (percent); beyond its range a value counts as the nearest in it. That of black
    // for any other count. Needs no document.
    template <typename... Values>
    static std::string ToColor(Values... values)
    {
        const float list[] = {static_cast<float>(values)..., 0};
        return ColorOf(list, sizeof...(values));
    }

    // ---- Image data ----------------------------------------------------------------------------

    // Draws a picture from its Bytes, a whole file of one of the kinds of DrawImage, told apart by
    // how it begins; they need to live for the call only. X, Y, Width and Height as there. A Key
    // stands for one picture: Bytes are looked at when it is drawn first. Without a Key pictures
    // are told apart by their content, of which a digest is made at each call. Errors tell of
    // immagine "Key" in the place of a file; error 5 for bytes of no known kind.
    void DrawImageData(std::string_view Bytes, float X, float Y, float Width, float Height,
                       std::string_view Key = {});

    // How the data of all images are encoded (ISO 32000-1, 7.4), Filters added up: 1 run-length, 2
    // LZW, 4 ASCII base-85, 8 hexadecimal; 0 at first. JPEG data take 4 and 8 only. What stands
    // when EndDoc writes them counts. 12 is better avoided: one widespread reader hangs on some
    // palettes encoded so.
    void FilterDecode(std::int32_t Filters);

private:
    struct SCALVINO_INTERNO State;

    // A pointer in the place of a switch, such as a text for the bars of DrawEAN13, would silently
    // count as true: such a call does not compile.
    template <typename... Values>
    using IfPointer =
        std::enable_if_t<(... || (std::is_pointer_v<Values> || std::is_member_pointer_v<Values>))>;

    template <typename T, typename = IfPointer<T>>
    void ShareFonts(T) = delete;
    template <typename T, typename = IfPointer<T>>
    void Conforming(T) = delete;
    template <typename T, typename = IfPointer<T>>
    void AddNoteIcon(std::string_view, std::int32_t, float, float, T, std::string_view = {},
                     std::string_view = {}, std::int32_t = 0) = delete;
    template <typename... T, typename = IfPointer<T...>>
    void SetRadialFill(const std::vector<std::string>&, float, float, float, float, float, float,
                       T...) = delete;
    template <typename... T, typename = IfPointer<T...>>
    void SetLinearFill(const std::vector<std::string>&, float, float, float, float, T...) = delete;
    template <typename T, typename = IfPointer<T>>
    void DrawEAN13(std::string_view, float, float, T, float = 0, float = 0) = delete;
    template <typename T, typename = IfPointer<T>>
    void DrawCODE39(std::string_view, float, float, float, T, float = 0, float = 0) = delete;
    template <typename T, typename = IfPointer<T>>
    void AddFont(const std::string&, std::string_view, T) = delete;
    template <typename T, typename = IfPointer<T>>
    void AddFontData(std::string_view, std::string_view, T) = delete;

    static std::string ColorOf(const float* values, std::size_t count);

    std::unique_ptr<State> m;
};
