// Names for the numbers by which operations of clsPDFCreator.h choose: clsPDFCreator::AlignRight.
//
// A name is a plain number: it stands wherever its number does, is added to others (or joined by
// "|") where numbers are added up, and goes together with numbers that have no name. What each
// number brings about is said beside its operation.
#pragma once

#include <cstdint>

// The names that clsPDFCreator takes over. Holds nothing.
struct clsPDFCreatorOptions
{
    // ---- Document and pages --------------------------------------------------------------------

    // PDFReader: the version of the file.
    static constexpr std::int32_t Reader1_3 = 0, Reader1_4 = 1, Reader1_5 = 2, Reader1_6 = 3,
                                  Reader1_7 = 4;

    // SetScale: the unit of lengths.
    static constexpr std::int32_t UnitPoint = 0, UnitInch = 1, UnitMillimeter = 2,
                                  UnitCentimeter = 3, UnitCustom = 255;

    // SetPaperSize: the paper, portrait or lying. PaperFanfold is 8.5 by 12 inches.
    static constexpr std::int32_t PaperA4 = 0, PaperA4Landscape = 1, PaperA3 = 2,
                                  PaperA3Landscape = 3, PaperA2 = 4, PaperA2Landscape = 5,
                                  PaperA1 = 6, PaperA1Landscape = 7, PaperA0 = 8, PaperA5 = 9,
                                  PaperA5Landscape = 10, PaperA6 = 11, PaperA6Landscape = 12,
                                  PaperA7 = 13, PaperA7Landscape = 14, PaperLetter = 15,
                                  PaperFanfold = 16, PaperCustom = 255;

    // Orientation and BeginPage: how a page is shown.
    static constexpr std::int32_t PageUpright = 0, PageTurned = 1;

    // BeginPage: the labels of pages. With LabelNone alone the range of the page before goes on.
    static constexpr std::int32_t LabelDecimal = 0, LabelRoman = 1, LabelSmallRoman = 2,
                                  LabelLetters = 3, LabelSmallLetters = 4, LabelNone = 255;

    // ---- Text ----------------------------------------------------------------------------------

    // SetFont: the style, added up.
    static constexpr std::int32_t StyleRegular = 0, StyleBold = 1, StyleItalic = 2,
                                  StyleUnderline = 4, StyleOverline = 8, StyleStrikeOut = 16;

    // SetTextRenderingMode: one of the first four; RenderClip may be added to it.
    static constexpr std::int32_t RenderFill = 0, RenderStroke = 1, RenderFillStroke = 2,
                                  RenderInvisible = 3, RenderClip = 4;

    // DrawText (the first three), DrawTextBox and DrawParagraph: the place of text.
    static constexpr std::int32_t AlignLeft = 1, AlignRight = 2, AlignCenter = 4,
                                  AlignJustified = 64;

    // DrawTextBox and DrawParagraph: its height in the box, added to its place; the top without.
    static constexpr std::int32_t AlignBottom = 16, AlignMiddle = 32;

    // ---- Lines and areas -----------------------------------------------------------------------

    // All that draw lines and areas: how a path is painted, added up. PaintNothing lets it go on.
    static constexpr std::int32_t PaintNothing = 0, PaintStroke = 1, PaintClose = 2, PaintFill = 4;

    // SetLineStyle: the ends of lines. CapKeep leaves them as they are.
    static constexpr std::int32_t CapKeep = -1, CapButt = 0, CapRound = 1, CapSquare = 2;

    // SetLineStyle: the corners of lines. JoinKeep leaves them as they are.
    static constexpr std::int32_t JoinKeep = -1, JoinMiter = 0, JoinRound = 1, JoinBevel = 2;

    // ---- Objects, tilings, pictures ------------------------------------------------------------

    // BeginObject: the pages that play an object by themselves. PlayOnTop, added to one of the
    // others, does so at the end of the page.
    static constexpr std::int32_t PlayNever = 0, PlayEven = 2, PlayOdd = 4, PlayEvery = 7,
                                  PlayOddButFirst = 12, PlayOnTop = 16;

    // BeginTiling: coloured by what is drawn in it, or where it is chosen.
    static constexpr std::int32_t TilingColored = 1, TilingUncolored = 2;

    // FilterDecode: how the data of pictures are encoded, added up.
    static constexpr std::int32_t FilterNone = 0, FilterRunLength = 1, FilterLZW = 2,
                                  FilterASCII85 = 4, FilterASCIIHex = 8;

    // ---- Bookmarks, notes, links ---------------------------------------------------------------

    // AddBookmark: what the reader shows. FitHeight goes from Left on, FitWidth from Top on.
    static constexpr std::int32_t FitDrawing = 0, FitHeight = 1, FitWidth = 2, FitRectangle = 3,
                                  FitCorner = 4;

    // AddNoteIcon: the icon.
    static constexpr std::int32_t IconNote = 0, IconComment = 1, IconKey = 2, IconHelp = 3,
                                  IconParagraph = 4, IconNewParagraph = 5, IconInsert = 6;

    // AddNoteBox: the place of its text. These are not the numbers of DrawTextBox.
    static constexpr std::int32_t NoteLeft = 0, NoteCenter = 1, NoteRight = 2;

    // AddNoteBox: its border.
    static constexpr std::int32_t BorderSolid = 0, BorderDashed = 1, BorderBeveled = 2,
                                  BorderInset = 3, BorderUnderline = 4;

    // AddNoteStamp: what the stamp says.
    static constexpr std::int32_t StampApproved = 0, StampAsIs = 1, StampConfidential = 2,
                                  StampDepartmental = 3, StampDraft = 4, StampExperimental = 5,
                                  StampExpired = 6, StampFinal = 7, StampForComment = 8,
                                  StampForPublicRelease = 9, StampNotApproved = 10,
                                  StampNotForPublicRelease = 11, StampSold = 12,
                                  StampTopSecret = 13;

    // AddNoteIcon, AddNoteBox and AddNoteStamp: flags of an annotation (ISO 32000-1, 12.5.3), added
    // up. Whoever names some and wants it printed names NotePrint, too.
    static constexpr std::int32_t NoteInvisible = 1, NoteHidden = 2, NotePrint = 4, NoteNoZoom = 8,
                                  NoteNoRotate = 16, NoteNoView = 32, NoteReadOnly = 64,
                                  NoteLocked = 128;

    // AddWebLink: how a link looks while it is pressed.
    static constexpr std::int32_t HighlightNone = 0, HighlightInvert = 1, HighlightOutline = 2,
                                  HighlightPush = 3;

    // ---- Errors --------------------------------------------------------------------------------

    // What clsPDFCreator::Error::Number says.
    static constexpr std::int32_t ErrorInvalidCall = 5, ErrorOverflow = 6, ErrorOutOfMemory = 7,
                                  ErrorTypeMismatch = 13, ErrorFileNotFound = 53,
                                  ErrorInputOutput = 57, ErrorDiskFull = 61,
                                  ErrorPermissionDenied = 70, ErrorFileAccess = 75,
                                  ErrorPathNotFound = 76;
};
