// Pages: their objects, labels and current point.

#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using aiuti::Disegno;
using aiuti::Documento;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

void UnaPagina(clsPDFCreator& pdf)
{
    pdf.BeginPage();
    pdf.EndPage();
}

// What stands in the number tree of the page labels; nothing without one.
std::string Etichette(const Disegno& pagine)
{
    const std::string catalogo = Documento({}, pagine).Oggetto(2);
    const std::string inizio = "/PageLabels << /Nums [ ";
    const auto da = catalogo.find(inizio);
    if (da == std::string::npos) return "";
    const auto dopo = da + inizio.size();
    return catalogo.substr(dopo, catalogo.find(" ] >>\r", dopo) - dopo);
}

std::string Etichetta(std::int32_t stile, std::string_view prefisso = {}, std::int32_t primo = -1)
{
    return Etichette([&](clsPDFCreator& pdf) {
        pdf.BeginPage(0, stile, prefisso, primo);
        pdf.EndPage();
    });
}

} // namespace

TEST(BeginPage, QuattroNumeriDiFilaDaSette)
{
    const auto letto = Documento({}, UnaPagina);
    EXPECT_EQ(letto.Oggetto(7), "<< /Type /Page /Parent 4 0 R /Contents 8 0 R\r/Annots 10 0 R >>");
    EXPECT_EQ(letto.Oggetto(8), "<< /Length 9 0 R >>");
    EXPECT_EQ(letto.Oggetto(10), "[  ]");
    EXPECT_THAT(letto.NumeriContenuto, ElementsAre(8));
}

TEST(BeginPage, LePagineSeguentiContinuanoINumeri)
{
    const auto letto = Documento({}, [](clsPDFCreator& pdf) {
        for (int i = 0; i < 3; ++i) UnaPagina(pdf);
    });
    EXPECT_THAT(letto.NumeriPagina, ElementsAre(7, 11, 15));
    EXPECT_THAT(letto.NumeriContenuto, ElementsAre(8, 12, 16));
    EXPECT_THAT(letto.Oggetto(4), HasSubstr("\r/Count 3\r"));
    EXPECT_THAT(letto.Oggetto(4), HasSubstr("\r/Kids [7 0 R 11 0 R 15 0 R  ]\r"));
    EXPECT_EQ(letto.Oggetto(11),
              "<< /Type /Page /Parent 4 0 R /Contents 12 0 R\r/Annots 14 0 R >>");
}

TEST(BeginPage, RestituisceIlNumeroDellaPaginaEPagesLeConta)
{
    Documento({}, [](clsPDFCreator& pdf) {
        EXPECT_EQ(pdf.Pages(), 0);
        EXPECT_EQ(pdf.BeginPage(), 1);
        EXPECT_EQ(pdf.Pages(), 1);
        pdf.EndPage();
        EXPECT_EQ(pdf.BeginPage(), 2);
        pdf.EndPage();
        EXPECT_EQ(pdf.Pages(), 2);
    });
}

TEST(BeginPage, OgniPaginaCominciaConGliAssiEIlNero)
{
    EXPECT_EQ(Documento({}, UnaPagina).Contenuto(1),
              "1 0 0 -1 0 842 cm \r\n0 0 0 rg\r\n0 0 0 RG\r\n");
    EXPECT_THAT(Documento(
                    [](clsPDFCreator& pdf) {
                        pdf.SetScale(3);
                        pdf.SetPaperSize(255, 10, 20);
                    },
                    UnaPagina)
                    .Contenuto(1),
                testing::StartsWith("1 0 0 -1 0 566.929 cm \r\n"));
}

TEST(BeginPage, LaLunghezzaContaLaFineDellUltimaRiga)
{
    EXPECT_EQ(Documento({}, UnaPagina).Oggetto(9), "40"); // 20 + 10 + 10 bytes
}

TEST(BeginPage, GirataSoloQuella)
{
    const auto letto = Documento({}, [](clsPDFCreator& pdf) {
        UnaPagina(pdf);
        pdf.BeginPage(1);
        pdf.EndPage();
        pdf.BeginPage(2);
        pdf.EndPage();
    });
    EXPECT_EQ(letto.Oggetto(11),
              "<< /Type /Page /Parent 4 0 R /Contents 12 0 R\r/Rotate 90\r/Annots 14 0 R >>");
    for (const int altro : {4, 7, 15}) EXPECT_THAT(letto.Oggetto(altro), Not(HasSubstr("Rotate")));
}

TEST(Etichette, TrePagineNormaliHannoTreSerie)
{
    EXPECT_EQ(Etichette([](clsPDFCreator& pdf) {
                  for (int i = 0; i < 3; ++i) UnaPagina(pdf);
              }),
              "0 << /S /D >> 1 << /S /D >> 2 << /S /D >> ");
}

TEST(Etichette, OgniStile)
{
    EXPECT_EQ(Etichetta(0), "0 << /S /D >> ");
    EXPECT_EQ(Etichetta(1), "0 << /S /R >> ");
    EXPECT_EQ(Etichetta(2), "0 << /S /r >> ");
    EXPECT_EQ(Etichetta(3), "0 << /S /A >> ");
    EXPECT_EQ(Etichetta(4), "0 << /S /a >> ");
}

TEST(Etichette, PrefissoEPrimoValore)
{
    EXPECT_EQ(Etichetta(1, "A-", 5), "0 << /S /R /P (A-) /St 5 >> ");
    EXPECT_EQ(Etichetta(0, "(b)\\"), "0 << /S /D /P (\\(b\\)\\\\) >> ");
    EXPECT_EQ(Etichetta(0, "è €Ω"), "0 << /S /D /P (\xE8 \x80?) >> ");
    EXPECT_EQ(Etichetta(9, "A"), "0 << /P (A) >> ");
    EXPECT_EQ(Etichetta(9, "", 3), "0 << /St 3 >> ");
}

TEST(Etichette, SenzaStilePrefissoEPrimoNienteSerie)
{
    for (const std::int32_t stile : {5, 9, -1, 2147483647, -2147483647 - 1}) {
        EXPECT_EQ(Etichetta(stile), "");
    }
    EXPECT_EQ(Etichette([](clsPDFCreator& pdf) {
                  UnaPagina(pdf);
                  pdf.BeginPage(0, 9);
                  pdf.EndPage();
                  pdf.BeginPage(0, 2, "", 8);
                  pdf.EndPage();
              }),
              "0 << /S /D >> 2 << /S /r /St 8 >> ");
}

TEST(Etichette, IlPrimoValoreE16BitSenzaSegno)
{
    EXPECT_EQ(Etichetta(0, "", 0), "0 << /S /D /St 0 >> ");
    EXPECT_EQ(Etichetta(0, "", 65534), "0 << /S /D /St 65534 >> ");
    EXPECT_EQ(Etichetta(0, "", 65535), "0 << /S /D >> ");
    EXPECT_EQ(Etichetta(0, "", -2), "0 << /S /D /St 65534 >> ");
    EXPECT_EQ(Etichetta(0, "", 65536), "0 << /S /D /St 0 >> ");
}

TEST(PuntoCorrente, ZeroSuOgniPaginaNuova)
{
    Documento({}, [](clsPDFCreator& pdf) {
        pdf.BeginPage();
        EXPECT_EQ(pdf.GetX(), 0);
        EXPECT_EQ(pdf.GetY(), 0);
        pdf.DrawLine(10, 20, 30, 40);
        EXPECT_EQ(pdf.GetX(), 10);
        EXPECT_EQ(pdf.GetY(), 20);
        pdf.EndPage();
        pdf.BeginPage();
        EXPECT_EQ(pdf.GetX(), 0);
        EXPECT_EQ(pdf.GetY(), 0);
        pdf.EndPage();
    });
}

TEST(PuntoCorrente, SiLeggeNellUnitaDelChiamante)
{
    aiuti::ScriveInCentimetri([](clsPDFCreator& pdf) {
        pdf.DrawLine(1.5F, 2.5F, 0, 0);
        EXPECT_FLOAT_EQ(pdf.GetX(), 1.5F);
        EXPECT_FLOAT_EQ(pdf.GetY(), 2.5F);
    });
}

TEST(StatoDelTesto, LaPaginaNuovaLoAzzeraSenzaScrivereNiente)
{
    const auto letto = Documento({}, [](clsPDFCreator& pdf) {
        pdf.SetFont("Arial", 10);
        pdf.BeginPage();
        pdf.SetCharSpacing(5);
        pdf.SetWordSpacing(7);
        pdf.SetTextHorizontalScaling(50);
        EXPECT_FLOAT_EQ(pdf.TextLength("A A"), (16.12F + 15 + 7) / 2); // 2 * 6.67 + 2.78
        pdf.EndPage();
        pdf.BeginPage();
        EXPECT_FLOAT_EQ(pdf.TextLength("A A"), 16.12F);
        pdf.EndPage();
    });
    EXPECT_EQ(letto.Contenuto(2), "1 0 0 -1 0 842 cm \r\n0 0 0 rg\r\n0 0 0 RG\r\n");
}

TEST(SpessoreDellaLinea, UnPuntoSuOgniPaginaNuova)
{
    // Seen in what a table takes over.
    const auto letto = Documento({}, [](clsPDFCreator& pdf) {
        for (const float spessore : {5.0F, -1.0F}) {
            pdf.BeginPage();
            pdf.SetLineStyle(spessore);
            pdf.BeginTable(0, 0);
            pdf.EndTable();
            pdf.EndPage();
        }
    });
    EXPECT_THAT(letto.Contenuto(1), HasSubstr("\r\nq\r\n5 w\r\nQ\r\n"));
    EXPECT_THAT(letto.Contenuto(2), HasSubstr("\r\nq\r\n1 w\r\nQ\r\n"));
}
