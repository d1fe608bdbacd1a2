// What appearance streams draw: borders, boxes with text, stamps.

#include "Appearance.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using testing::HasSubstr;
using testing::Not;

namespace {

// A box of 100 by 60 without a border, its text black, 10 points.
pdf::BoxLook Riquadro(std::string testo, std::int32_t lato = 0)
{
    return {100, 60, std::move(testo), 10, "", lato, ""};
}

std::string Scritto(std::string testo, std::int32_t lato = 0)
{
    return pdf::prBoxContent(Riquadro(std::move(testo), lato), {0, 0, ""});
}

std::ptrdiff_t Righe(const std::string& contenuto)
{
    std::ptrdiff_t righe = 0;
    for (auto at = contenuto.find("Tj\n"); at != std::string::npos;
         at = contenuto.find("Tj\n", at + 1)) {
        ++righe;
    }
    return righe;
}

// What Scritto writes before the lines and after them.
const std::string Inizio = "0 0 100 60 re\nW n\nBT\n0 0 0 rg\n/Helv 10 Tf\n";
const std::string Fine = "ET\n";

} // namespace

// ---- Borders ---------------------------------------------------------------------------------

// Half the line lies on either side of the path, so that all of it is inside.
TEST(Bordo, InteroATrattiESotto)
{
    EXPECT_EQ(pdf::prBorderContent(30, 40, {2, 0, "#FF0000"}), "1 0 0 RG\n2 w\n1 1 28 38 re\nS\n");
    EXPECT_EQ(pdf::prBorderContent(30, 40, {2, 1, "#FF0000"}),
              "1 0 0 RG\n2 w\n[3] 0 d\n1 1 28 38 re\nS\n");
    EXPECT_EQ(pdf::prBorderContent(30, 40, {2, 4, "#FF0000"}), "1 0 0 RG\n2 w\n0 1 m\n30 1 l\nS\n");
}

// A second edge of 2 points within the first: its upper left half and its lower right half.
TEST(Bordo, InRilievoEIncavato)
{
    const std::string sopra = "2 2 m\n2 38 l\n28 38 l\n26 36 l\n4 36 l\n4 4 l\nf\n";
    const std::string sotto = "2 2 m\n28 2 l\n28 38 l\n26 36 l\n26 4 l\n4 4 l\nf\n";
    const std::string linea = "0 0 0 RG\n2 w\n1 1 28 38 re\nS\n";
    EXPECT_EQ(pdf::prBorderContent(30, 40, {2, 2, ""}),
              "1 g\n" + sopra + "0.5 g\n" + sotto + linea);
    EXPECT_EQ(pdf::prBorderContent(30, 40, {2, 3, ""}),
              "0.5 g\n" + sopra + "0.75 g\n" + sotto + linea);
}

TEST(Bordo, UnoStileIgnotoEIntero)
{
    for (const std::int32_t stile : {-1, 5, 2147483647}) {
        EXPECT_EQ(pdf::prBorderContent(30, 40, {1, stile, ""}),
                  pdf::prBorderContent(30, 40, {1, 0, ""}));
    }
}

TEST(Bordo, DiNienteODiMenoNonSiVede)
{
    EXPECT_EQ(pdf::prBorderContent(30, 40, {0, 2, ""}), "");
    EXPECT_EQ(pdf::prBorderContent(30, 40, {-3, 0, ""}), "");
}

// A line of 15 points fills the rectangle, and there is no room for a second edge.
TEST(Bordo, TroppoLargoRiempieIlRettangolo)
{
    for (const std::int32_t stile : {0, 2}) {
        EXPECT_EQ(pdf::prBorderContent(30, 40, {1e30, stile, ""}),
                  "0 0 0 RG\n15 w\n7.5 7.5 15 25 re\nS\n");
    }
}

// ---- Boxes -----------------------------------------------------------------------------------

// The first baseline is 2 and 8.5 points below the upper edge.
TEST(Riquadro, UnaRigaASinistra)
{
    EXPECT_EQ(Scritto("Nota"), Inizio + "1 0 0 1 2 49.5 Tm\n(Nota) Tj\n" + Fine);
}

// "Nota" is 722 + 556 + 278 + 556 thousandths wide: 21.12 of the 96 points between the margins.
TEST(Riquadro, InMezzoEADestra)
{
    EXPECT_THAT(Scritto("Nota", 1), HasSubstr("1 0 0 1 39.44 49.5 Tm\n"));
    EXPECT_THAT(Scritto("Nota", 2), HasSubstr("1 0 0 1 76.88 49.5 Tm\n"));
    EXPECT_EQ(Scritto("Nota", 3), Scritto("Nota", 0));
}

TEST(Riquadro, OgniFineDiRigaVaACapo)
{
    const std::string righe =
        Inizio + "1 0 0 1 2 49.5 Tm\n(a) Tj\n1 0 0 1 2 38 Tm\n(b) Tj\n" + Fine;
    for (const char* testo : {"a\rb", "a\nb", "a\r\nb"}) EXPECT_EQ(Scritto(testo), righe);
    EXPECT_EQ(Righe(Scritto("a\n\nb")), 3);
    EXPECT_EQ(Righe(Scritto("a\n\rb")), 3);
}

TEST(Riquadro, AndandoACapoFraLeParole)
{
    const std::string scritto = Scritto("Una nota che non entra in una riga");
    EXPECT_THAT(scritto, HasSubstr("(Una nota che non) Tj"));
    EXPECT_THAT(scritto, HasSubstr("(entra in una riga) Tj"));
}

// 96 points hold 17 letters of 5.56.
TEST(Riquadro, UnaParolaTroppoLargaSiSpezza)
{
    const std::string scritto = Scritto(std::string(40, 'a'));
    EXPECT_THAT(scritto, HasSubstr("(" + std::string(17, 'a') + ") Tj"));
    EXPECT_THAT(scritto, HasSubstr("(" + std::string(6, 'a') + ") Tj"));
    EXPECT_EQ(Righe(scritto), 3);
}

// 56 points hold five lines of 11.5, the last one cut off by the edge.
TEST(Riquadro, DiUnTestoLunghissimoSoloCioCheSiVede)
{
    EXPECT_EQ(Righe(Scritto(std::string(100000, 'm'))), 5);
    std::string parole;
    for (int parola = 0; parola < 25000; ++parola) parole += "tre ";
    EXPECT_EQ(Righe(Scritto(parole)), 5);
    EXPECT_EQ(Righe(Scritto(std::string(100000, '\n'))), 5);
}

TEST(Riquadro, CioCheNonELetteraEUnPuntoDiDomanda)
{
    EXPECT_THAT(Scritto(std::string("a\0b\x1B\x7F\x81\x8D\x8F\x90\x9D", 10)),
                HasSubstr("(a?b" + std::string(7, '?') + ") Tj"));
    EXPECT_THAT(Scritto("a\tb"), HasSubstr("(a b) Tj"));
    EXPECT_THAT(Scritto("L'et\xE0 \x80"), HasSubstr("(L'et\xE0 \x80) Tj"));
}

TEST(Riquadro, ParentesiEBarreNonChiudonoLaStringa)
{
    EXPECT_THAT(Scritto("a)(\\"), HasSubstr("(a\\)\\(\\\\) Tj"));
}

TEST(Riquadro, SfondoColoreEBordo)
{
    auto riquadro = Riquadro("x");
    riquadro.Background = "#00FF00";
    riquadro.TextColor = "#0000FF";
    EXPECT_EQ(pdf::prBoxContent(riquadro, {1, 0, "#FF0000"}),
              "0 1 0 rg\n0 0 100 60 re\nf\n1 0 0 RG\n1 w\n0.5 0.5 99 59 re\nS\n"
              "1 1 98 58 re\nW n\nBT\n0 0 1 rg\n/Helv 10 Tf\n1 0 0 1 3 48.5 Tm\n(x) Tj\nET\n");
}

// The text keeps 2 points off the inner edge.
TEST(Riquadro, IlTestoStaDentroIlBordoInRilievo)
{
    for (const std::int32_t stile : {2, 3}) {
        EXPECT_THAT(pdf::prBoxContent(Riquadro("x"), {3, stile, ""}),
                    HasSubstr("6 6 88 48 re\nW n\nBT\n0 0 0 rg\n/Helv 10 Tf\n1 0 0 1 8 43.5 Tm\n"));
    }
}

TEST(Riquadro, SenzaPostoNonHaTesto)
{
    for (const double lato : {0.5, 4.0}) {
        EXPECT_EQ(pdf::prBoxContent({lato, lato, "x", 10, "", 0, ""}, {0, 0, ""}), "");
    }
}

TEST(AltezzaDelleLettere, DentroCioCheSiPuoDisegnare)
{
    EXPECT_EQ(pdf::prLetterSize(9.5), 9.5);
    EXPECT_EQ(pdf::prLetterSize(0), 12);
    EXPECT_EQ(pdf::prLetterSize(-7), 12);
    EXPECT_EQ(pdf::prLetterSize(1e-30), 0.1);
    EXPECT_EQ(pdf::prLetterSize(1e30), 14400);
}

// ---- Stamps ----------------------------------------------------------------------------------

TEST(Timbro, OgniTimbroDiceIlSuo)
{
    const char* parole[] = {"APPROVED",     "AS IS",
                            "CONFIDENTIAL", "DEPARTMENTAL",
                            "DRAFT",        "EXPERIMENTAL",
                            "EXPIRED",      "FINAL",
                            "FOR COMMENT",  "FOR PUBLIC RELEASE",
                            "NOT APPROVED", "NOT FOR PUBLIC RELEASE",
                            "SOLD",         "TOP SECRET"};
    std::int32_t timbro = 0;
    for (const char* parola : parole) {
        EXPECT_THAT(pdf::prStampContent(timbro++, 90, 30, ""),
                    HasSubstr("(" + std::string(parola) + ") Tj\n"));
    }
    for (const std::int32_t ignoto : {-1, 14, -2147483647}) {
        EXPECT_EQ(pdf::prStampContent(ignoto, 90, 30, ""), pdf::prStampContent(4, 90, 30, ""));
    }
}

// The frame is 1.8 points wide. "SOLD", 667 + 778 + 611 + 722 thousandths, fits by its height: 19.2
// points between the margins are the capitals of 26.741.
TEST(Timbro, CorniceEParoleNelLoroColore)
{
    const std::string timbro = pdf::prStampContent(12, 90, 30, "#0000FF");
    EXPECT_THAT(timbro, HasSubstr("0 0 1 RG\n0 0 1 rg\n1.8 w\n5.4 0.9 m\n"));
    EXPECT_THAT(timbro, HasSubstr("h\nS\nBT\n/HeBo 26.741 Tf\n7.857 5.4 Td\n(SOLD) Tj\nET\n"));
}

TEST(Timbro, LeParoleLungheSonoPiuPiccole)
{
    const auto corpo = [](std::int32_t timbro) {
        const std::string scritto = pdf::prStampContent(timbro, 90, 30, "");
        return std::stod(scritto.substr(scritto.find("/HeBo ") + 6));
    };
    EXPECT_LT(corpo(11), corpo(9));
    EXPECT_LT(corpo(9), corpo(12));
}

TEST(Timbro, TroppoPiccoloHaLaSolaCornice)
{
    EXPECT_THAT(pdf::prStampContent(0, 0.1, 0.1, ""), Not(HasSubstr("BT")));
}
