// The names of the numbers of options: each is the number that its operation is told by.

#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <type_traits>
#include <vector>

using aiuti::Scrive;
using Pdf = clsPDFCreator;
using testing::ElementsAre;

namespace {

using Numeri = std::vector<std::int32_t>;

} // namespace

TEST(Options, DocumentoEPagine)
{
    EXPECT_EQ(
        (Numeri{Pdf::Reader1_3, Pdf::Reader1_4, Pdf::Reader1_5, Pdf::Reader1_6, Pdf::Reader1_7}),
        (Numeri{0, 1, 2, 3, 4}));
    EXPECT_EQ((Numeri{Pdf::UnitPoint, Pdf::UnitInch, Pdf::UnitMillimeter, Pdf::UnitCentimeter,
                      Pdf::UnitCustom}),
              (Numeri{0, 1, 2, 3, 255}));
    EXPECT_EQ((Numeri{Pdf::PageUpright, Pdf::PageTurned}), (Numeri{0, 1}));
    EXPECT_EQ((Numeri{Pdf::LabelDecimal, Pdf::LabelRoman, Pdf::LabelSmallRoman, Pdf::LabelLetters,
                      Pdf::LabelSmallLetters, Pdf::LabelNone}),
              (Numeri{0, 1, 2, 3, 4, 255}));
}

TEST(Options, Carta)
{
    EXPECT_EQ((Numeri{Pdf::PaperA4, Pdf::PaperA4Landscape, Pdf::PaperA3, Pdf::PaperA3Landscape,
                      Pdf::PaperA2, Pdf::PaperA2Landscape, Pdf::PaperA1, Pdf::PaperA1Landscape,
                      Pdf::PaperA0, Pdf::PaperA5, Pdf::PaperA5Landscape, Pdf::PaperA6,
                      Pdf::PaperA6Landscape, Pdf::PaperA7, Pdf::PaperA7Landscape, Pdf::PaperLetter,
                      Pdf::PaperFanfold}),
              (Numeri{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
    EXPECT_EQ(Pdf::PaperCustom, 255);
}

TEST(Options, Testo)
{
    EXPECT_EQ((Numeri{Pdf::StyleRegular, Pdf::StyleBold, Pdf::StyleItalic, Pdf::StyleUnderline,
                      Pdf::StyleOverline, Pdf::StyleStrikeOut}),
              (Numeri{0, 1, 2, 4, 8, 16}));
    EXPECT_EQ((Numeri{Pdf::RenderFill, Pdf::RenderStroke, Pdf::RenderFillStroke,
                      Pdf::RenderInvisible, Pdf::RenderClip}),
              (Numeri{0, 1, 2, 3, 4}));
    EXPECT_EQ((Numeri{Pdf::AlignLeft, Pdf::AlignRight, Pdf::AlignCenter, Pdf::AlignJustified,
                      Pdf::AlignBottom, Pdf::AlignMiddle}),
              (Numeri{1, 2, 4, 64, 16, 32}));
}

TEST(Options, LineeEAree)
{
    EXPECT_EQ((Numeri{Pdf::PaintNothing, Pdf::PaintStroke, Pdf::PaintClose, Pdf::PaintFill}),
              (Numeri{0, 1, 2, 4}));
    EXPECT_EQ((Numeri{Pdf::CapKeep, Pdf::CapButt, Pdf::CapRound, Pdf::CapSquare}),
              (Numeri{-1, 0, 1, 2}));
    EXPECT_EQ((Numeri{Pdf::JoinKeep, Pdf::JoinMiter, Pdf::JoinRound, Pdf::JoinBevel}),
              (Numeri{-1, 0, 1, 2}));
}

TEST(Options, OggettiMotiviFigure)
{
    EXPECT_EQ((Numeri{Pdf::PlayNever, Pdf::PlayEven, Pdf::PlayOdd, Pdf::PlayEvery,
                      Pdf::PlayOddButFirst, Pdf::PlayOnTop}),
              (Numeri{0, 2, 4, 7, 12, 16}));
    EXPECT_EQ((Numeri{Pdf::TilingColored, Pdf::TilingUncolored}), (Numeri{1, 2}));
    EXPECT_EQ((Numeri{Pdf::FilterNone, Pdf::FilterRunLength, Pdf::FilterLZW, Pdf::FilterASCII85,
                      Pdf::FilterASCIIHex}),
              (Numeri{0, 1, 2, 4, 8}));
}

TEST(Options, SegnalibriELegami)
{
    EXPECT_EQ(
        (Numeri{Pdf::FitDrawing, Pdf::FitHeight, Pdf::FitWidth, Pdf::FitRectangle, Pdf::FitCorner}),
        (Numeri{0, 1, 2, 3, 4}));
    EXPECT_EQ((Numeri{Pdf::HighlightNone, Pdf::HighlightInvert, Pdf::HighlightOutline,
                      Pdf::HighlightPush}),
              (Numeri{0, 1, 2, 3}));
}

TEST(Options, Note)
{
    EXPECT_EQ((Numeri{Pdf::IconNote, Pdf::IconComment, Pdf::IconKey, Pdf::IconHelp,
                      Pdf::IconParagraph, Pdf::IconNewParagraph, Pdf::IconInsert}),
              (Numeri{0, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ((Numeri{Pdf::NoteLeft, Pdf::NoteCenter, Pdf::NoteRight}), (Numeri{0, 1, 2}));
    EXPECT_EQ((Numeri{Pdf::BorderSolid, Pdf::BorderDashed, Pdf::BorderBeveled, Pdf::BorderInset,
                      Pdf::BorderUnderline}),
              (Numeri{0, 1, 2, 3, 4}));
    EXPECT_EQ((Numeri{Pdf::NoteInvisible, Pdf::NoteHidden, Pdf::NotePrint, Pdf::NoteNoZoom,
                      Pdf::NoteNoRotate, Pdf::NoteNoView, Pdf::NoteReadOnly, Pdf::NoteLocked}),
              (Numeri{1, 2, 4, 8, 16, 32, 64, 128}));
}

TEST(Options, Timbri)
{
    EXPECT_EQ(
        (Numeri{Pdf::StampApproved, Pdf::StampAsIs, Pdf::StampConfidential, Pdf::StampDepartmental,
                Pdf::StampDraft, Pdf::StampExperimental, Pdf::StampExpired, Pdf::StampFinal,
                Pdf::StampForComment, Pdf::StampForPublicRelease, Pdf::StampNotApproved,
                Pdf::StampNotForPublicRelease, Pdf::StampSold, Pdf::StampTopSecret}),
        (Numeri{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13}));
}

TEST(Options, Errori)
{
    EXPECT_EQ((Numeri{Pdf::ErrorInvalidCall, Pdf::ErrorOverflow, Pdf::ErrorOutOfMemory,
                      Pdf::ErrorTypeMismatch, Pdf::ErrorFileNotFound, Pdf::ErrorInputOutput,
                      Pdf::ErrorDiskFull, Pdf::ErrorPermissionDenied, Pdf::ErrorFileAccess,
                      Pdf::ErrorPathNotFound}),
              (Numeri{5, 6, 7, 13, 53, 57, 61, 70, 75, 76}));
    try {
        clsPDFCreator().EndDoc();
        FAIL() << "no document is open";
    } catch (const clsPDFCreator::Error& errore) {
        EXPECT_EQ(errore.Number(), Pdf::ErrorInvalidCall);
    }
}

// They mix with numbers, with one another and with what is known at run time only, and are found
// through an object, too.
TEST(Options, SonoNumeri)
{
    static const std::int32_t bordo = clsPDFCreator::Version().empty() ? 0 : Pdf::PaintStroke;
    static_assert(std::is_same_v<decltype(Pdf::AlignRight), const std::int32_t>);
    static_assert((Pdf::AlignRight | Pdf::AlignMiddle) == 34 && Pdf::StyleBold + 2 == 3);
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) {
                    pdf.DrawRect(1, 2, 3, 4, bordo + pdf.PaintFill);
                    pdf.DrawRect(1, 2, 3, 4, 1 | Pdf::PaintFill);
                }),
                ElementsAre("n", "1 2 3 4 re", "B", "n", "1 2 3 4 re", "B"));
}

TEST(Options, NonOccupanoNulla)
{
    EXPECT_EQ(sizeof(clsPDFCreator), sizeof(void*));
}
