// Bookmarks. Pages are 842 points high, and everything here counts y from the bottom: what a caller
// places at 20 stands at 822.

#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using aiuti::Disegno;
using aiuti::Documento;
using testing::HasSubstr;
using testing::Not;

namespace {

const Disegno Niente = [](clsPDFCreator&) {};

// Where a bookmark of that mode leads, from the only entry below the title.
std::string Destinazione(std::int32_t modo)
{
    const auto letto = Documento(Niente, [modo](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.AddBookmark("Qui", 1, modo, 10, 20, 30, 50, 2);
        pdf.EndPage();
    });
    const std::string inizio = "<< /Title (Qui)\r\n/Parent 12 0 R\r\n";
    const std::string voce = letto.Oggetto(13);
    EXPECT_EQ(voce.substr(0, inizio.size()), inizio);
    return voce.substr(inizio.size());
}

} // namespace

TEST(AddBookmark, OgniModoDiMostrareLaPagina)
{
    EXPECT_EQ(Destinazione(0), "/Dest [7 0 R /FitB]\r\n>>");
    EXPECT_EQ(Destinazione(1), "/Dest [7 0 R /FitV 10]\r\n>>");
    EXPECT_EQ(Destinazione(2), "/Dest [7 0 R /FitH 822]\r\n>>");
    EXPECT_EQ(Destinazione(3), "/Dest [7 0 R /FitR 10 792 30 822]\r\n>>");
    EXPECT_EQ(Destinazione(4), "/Dest [7 0 R /XYZ 10 822 2]\r\n>>");
    EXPECT_EQ(Destinazione(5), ">>");
    EXPECT_EQ(Destinazione(-1), ">>");
}

// The root is 11, the title 12. "Sotto" asks for level 3 right after level 1 and gets 2.
TEST(AddBookmark, UnAlberoSottoIlTitolo)
{
    const auto letto = Documento([](clsPDFCreator& pdf) { pdf.SetDocProperty("Il (libro)"); },
                                 [](clsPDFCreator& pdf) {
                                     pdf.BeginPage();
                                     pdf.AddBookmark("Uno");
                                     pdf.AddBookmark("Sotto", 3, 4, 10, 20, 0, 0, 1.5F);
                                     pdf.AddBookmark("Due", 1, 2, 0, 100);
                                     pdf.AddBookmark("Tre", 0);
                                     pdf.EndPage();
                                 });
    EXPECT_EQ(letto.Oggetto(11), "<< /Count 1 /First 12 0 R /Last 12 0 R >>");
    EXPECT_EQ(letto.Oggetto(12),
              "<< /Title (Il \\(libro\\))\r\n/Parent 11 0 R\r\n/First 13 0 R\r\n/Last 16 0 R\r\n"
              "/Count 3\r\n>>");
    EXPECT_EQ(letto.Oggetto(13),
              "<< /Title (Uno)\r\n/Parent 12 0 R\r\n/First 14 0 R\r\n/Last 14 0 R\r\n"
              "/Next 15 0 R\r\n/Dest [7 0 R /FitB]\r\n>>");
    EXPECT_EQ(letto.Oggetto(14),
              "<< /Title (Sotto)\r\n/Parent 13 0 R\r\n/Dest [7 0 R /XYZ 10 822 1.5]\r\n>>");
    EXPECT_EQ(letto.Oggetto(15), "<< /Title (Due)\r\n/Parent 12 0 R\r\n/Prev 13 0 R\r\n"
                                 "/Next 16 0 R\r\n/Dest [7 0 R /FitH 742]\r\n>>");
    EXPECT_EQ(letto.Oggetto(16),
              "<< /Title (Tre)\r\n/Parent 12 0 R\r\n/Prev 15 0 R\r\n/Dest [7 0 R /FitB]\r\n>>");
    EXPECT_THAT(letto.Oggetto(2), HasSubstr("\r/Outlines 11 0 R\r"));
    EXPECT_THAT(letto.Oggetto(2), HasSubstr("\r/PageMode /UseOutlines\r"));
}

TEST(AddBookmark, SenzaNonCEUnIndice)
{
    const auto letto = Documento(Niente, [](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.EndPage();
    });
    EXPECT_THAT(letto.Oggetto(2), Not(HasSubstr("/Outlines")));
    EXPECT_THAT(letto.Oggetto(2), HasSubstr("\r/PageMode /UseNone\r"));
}

TEST(AddBookmark, PrimaDiOgniPaginaNonPortaInNessunLuogo)
{
    const auto letto = Documento(Niente, [](clsPDFCreator& pdf) {
        pdf.AddBookmark("Presto");
        pdf.BeginPage();
        pdf.EndPage();
    });
    EXPECT_EQ(letto.Oggetto(13), "<< /Title (Presto)\r\n/Parent 12 0 R\r\n>>");
}
