// What a document is made of while it is written: fonts, pictures, bookmarks, tables and so on.
// clsPDFCreator_State.h keeps them.
#pragma once

#include "FontWidths.h"
#include "Picture.h"
#include "StandardFonts.h"
#include "TrueTypeFile.h"

#include <array>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace pdf {

struct Parts
{
    // A font read from a file.
    struct TrueType
    {
        pdf::TrueTypeFont File;
        std::array<std::uint16_t, 256> Widths;
        std::string Encoded;     // the file as it will stand in the document
        std::string_view Filter; // that decodes it
        std::size_t Length = 0;  // of the file itself; 0: not embedded
        std::string Bytes;       // the file; kept while it may have to be embedded all the same
        std::string FileName;    // for errors
    };

    // A font of the document; the standard ones share their static tables.
    struct Font
    {
        std::string_view BaseFont; // static, or of the file
        pdf::FaceMetrics Metrics;
        const TrueType* Embedded; // nullptr for the standard ones
        const pdf::StandardFace* Standard =
            nullptr;             // of the standard ones in a conforming document
        std::int32_t Object = 0; // its number, once it is written or, in a conforming one, used
        std::int32_t UsedIn = 0; // the drawing that used it last
        bool First = true;       // it has not taken over the object of another one
    };

    // A picture of the document; its content is gone once it is written.
    struct Image
    {
        std::string FileName; // "" for one from bytes
        std::string Key;      // the caller's; from bytes, behind ContentKey or CallerKey
        pdf::Picture Content;
        std::int32_t Object = 0; // its number, once it is written or, in a conforming one, used
        std::int32_t UsedIn = 0; // the drawing that used it last
    };

    // What a picture from bytes is known by: their digest, or what the caller calls it.
    static constexpr char ContentKey = '#';
    static constexpr char CallerKey = '=';

    struct Bookmark
    {
        std::string Title;  // UTF-8
        std::int32_t Level; // from 1
        std::string Destination;
    };

    // A bookmark in the tree; numbers of others count from 0, the document's title.
    struct OutlineItem
    {
        std::string Title; // UTF-8
        std::string Destination;
        std::size_t Parent;
        std::vector<std::size_t> Children;
    };

    // A picture of annotations that the end of their page will write.
    struct NewAppearance
    {
        std::int32_t Object;
        std::string Entries;
        std::string Content;
    };

    struct BarcodeText
    {
        double Middle; // user units
        std::string Text;
    };

    struct GradientKind
    {
        std::string_view ShadingType; // ISO 32000-1, 8.7.4.5
        std::string_view Exponent;    // 1, a blend in even steps, as this type writes it
    };

    struct GradientEnds
    {
        std::initializer_list<double> Coordinates; // points
        const std::string& First;                  // colours
        const std::string& Last;
        bool ExtendStart;
        bool ExtendEnd;
    };

    struct Gradient
    {
        std::string Text;
        std::int32_t Object; // 0: the next one, once it is written
    };

    // What a family and style lead to, kept because the same few are asked for again and again.
    struct FontRequest
    {
        std::string Family; // as the caller wrote it
        std::int32_t Style; // bold and italic only
        Font Standard;
        std::string SearchKey;
        std::string StoredKey;
        std::size_t Found;     // number of the font that the search finds, 0 for none
        std::size_t Shared;    // number of the font that all calls share, 0 while there is none
        std::size_t KnownKeys; // how many keys there were when none was found
        bool Added;            // a font of these keys is in the table
    };

    // A reusable object that pages may play by themselves.
    struct AutoObject
    {
        std::string Name;
        std::int32_t Flags;
    };

    // A reusable object, tiling or gradient of a conforming document.
    struct Drawing
    {
        std::int32_t Object = 0; // its number, once it is used or begun
        std::int32_t UsedIn = 0; // the drawing that used it last
        bool Made = false;       // or being made
        bool Uncoloured = false; // chosen with a colour
        bool Contained = false;  // another one uses it
        std::vector<Drawing*> Contents;
    };
    using Drawings = std::map<std::string, Drawing>; // by their names as they stand in the file

    // What the drawing in progress uses, in the order of first use: entries of the dictionaries in
    // its resources.
    struct Resources
    {
        std::string Fonts;
        std::string XObjects;
        std::string Patterns;
        bool Uncoloured = false; // the colour space of uncoloured tilings
    };

    struct Properties // UTF-8
    {
        std::string Title, Subject, Author, Creator, Producer, Keywords;
    };

    // What a background and a frame of that size wrote on the page; lengths in user units of that
    // scale.
    struct Frame
    {
        double Width;
        double Height;
        float Scale;
        std::string Background;
        std::string Edge;
    };

    // How a table, a row or a cell is painted: width in user units, colours as the operations that
    // set them, and no operation for one that is not painted. Cells that inherit a style share it
    // with their row, and so the frames it has drawn.
    struct Style
    {
        std::string Fill;
        float LineWidth = 0;
        std::string LineColor;
        std::vector<Frame> Frames;
    };
    using SharedStyle = std::shared_ptr<Style>;

    struct Point
    {
        float X = 0;
        float Y = 0;
    };

    // A table and how far it has come. Lengths in user units.
    struct TableState
    {
        Point Origin;
        SharedStyle OwnStyle = std::make_shared<Style>();
        SharedStyle RowStyle = OwnStyle;
        Point RowPosition;
        float RowHeight = 0;
        float CellX = 0; // relative to the row
        float CellWidth = 0;
        bool RowOpen = false;
        bool CellOpen = false;
    };

    // How a path is painted, added up; an open path goes on with the next operation.
    enum PaintOption : std::int32_t
    {
        OpenPath = 0,
        StrokePath = 1,
        ClosePath = 2,
        FillPath = 4,
    };
};

} // namespace pdf
