// Reusable objects: what they are in the file, and which pages play them.

#include "Aiuti.h"
#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using aiuti::Disegno;
using aiuti::Documento;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

void UnaPagina(clsPDFCreator& pdf)
{
    pdf.BeginPage();
    pdf.EndPage();
}

void Vuoto(clsPDFCreator& pdf, std::string_view nome, std::int32_t segni = 0)
{
    pdf.BeginObject(nome, segni);
    pdf.EndObject();
}

// Where a form of these flags is played on pages 1 to 7: each number, with "+" behind it when at
// the end of the page.
std::string Pagine(std::int32_t segni)
{
    const auto letto = Documento({}, [segni](clsPDFCreator& pdf) {
        Vuoto(pdf, "Modulo", segni);
        for (int i = 0; i < 7; ++i) {
            pdf.BeginPage();
            pdf.SetColorLine("red");
            pdf.EndPage();
        }
    });
    std::string dove;
    for (int pagina = 1; pagina <= letto.Pagine(); ++pagina) {
        const auto righe = aiuti::Righe(letto.Contenuto(pagina));
        const std::string disegno = "1 0 0 RG";
        const std::string gioco = "/Modulo Do";
        if (righe == std::vector<std::string>{righe[0], righe[1], righe[2], gioco, disegno}) {
            dove += std::to_string(pagina);
        } else if (righe ==
                   std::vector<std::string>{righe[0], righe[1], righe[2], disegno, gioco}) {
            dove += std::to_string(pagina) + "+";
        } else {
            EXPECT_EQ(righe, (std::vector<std::string>{righe[0], righe[1], righe[2], disegno}));
        }
    }
    return dove;
}

} // namespace

TEST(BeginObject, IlModuloELaSuaLunghezza)
{
    const auto letto = Documento({}, [](clsPDFCreator& pdf) {
        UnaPagina(pdf);
        pdf.BeginObject("Timbro", 0);
        pdf.DrawLine(1, 2, 3, 4);
        pdf.EndObject();
    });
    EXPECT_EQ(letto.Oggetto(11),
              "<< /Type /XObject /Subtype /Form /FormType 1 /Name /Timbro\r\n"
              "/BBox [0 0 596 842]\r\n/Matrix [1 0 0 1 0 0]\r\n/Length 12 0 R >>");
    EXPECT_EQ(letto.Flusso(11), "q\r\n1 2 m 3 4 l\r\nS\r\nQ\r\n");
    EXPECT_EQ(letto.Oggetto(12), "22");
    EXPECT_THAT(letto.Oggetto(6), HasSubstr("/XObject <<\r/Timbro 11 0 R \r>>\r"));
}

TEST(BeginObject, IlRiquadroEQuelloDiTaglioDellaPagina)
{
    const auto letto = Documento(
        [](clsPDFCreator& pdf) {
            pdf.SetScale(3);
            pdf.Margin(1);
        },
        [](clsPDFCreator& pdf) {
            Vuoto(pdf, "Timbro");
            UnaPagina(pdf);
        });
    EXPECT_THAT(letto.Oggetto(7), HasSubstr("\r\n/BBox [28.346 28.346 567.654 813.654]\r\n"));
    EXPECT_THAT(letto.Oggetto(4), HasSubstr("\r/CropBox [28.346 28.346 567.654 813.654]\r"));
}

TEST(PlayObject, NominaIlModulo)
{
    EXPECT_THAT(aiuti::Righe(Documento({},
                                       [](clsPDFCreator& pdf) {
                                           Vuoto(pdf, "Timbro");
                                           pdf.BeginPage();
                                           pdf.PlayObject("Timbro");
                                           pdf.EndPage();
                                       })
                                 .Contenuto(1)),
                ElementsAre("1 0 0 -1 0 842 cm ", "0 0 0 rg", "0 0 0 RG", "/Timbro Do"));
}

TEST(PlayObject, UnModuloFattoDopoLUltimaPaginaVale)
{
    const auto letto = Documento({}, [](clsPDFCreator& pdf) {
        for (int i = 0; i < 2; ++i) {
            pdf.BeginPage();
            pdf.PlayObject("Footers");
            pdf.EndPage();
        }
        Vuoto(pdf, "Footers", 7);
    });
    EXPECT_THAT(letto.NomiMancanti, IsEmpty());
    EXPECT_THAT(letto.Oggetto(6), HasSubstr("/XObject <<\r/Footers 15 0 R \r>>\r"));
}

TEST(PlayObject, UnNomeMaiFattoRestaSenzaModulo)
{
    const auto letto = Documento({}, [](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.PlayObject("Nessuno");
        pdf.EndPage();
    });
    EXPECT_THAT(letto.NomiMancanti, ElementsAre("XObject /Nessuno"));
}

TEST(PlayObject, UnModuloNeGiocaUnAltro)
{
    const auto letto = Documento({}, [](clsPDFCreator& pdf) {
        Vuoto(pdf, "Dentro");
        pdf.BeginObject("Fuori");
        pdf.PlayObject("Dentro");
        pdf.EndObject();
        pdf.BeginPage();
        pdf.PlayObject("Fuori");
        pdf.EndPage();
    });
    EXPECT_THAT(letto.NomiMancanti, IsEmpty());
    EXPECT_EQ(letto.Flusso(9), "q\r\n/Dentro Do\r\nQ\r\n");
}

TEST(ModuliAutomatici, OgniCombinazioneDiSegni)
{
    EXPECT_EQ(Pagine(0), "");
    EXPECT_EQ(Pagine(1), "");
    EXPECT_EQ(Pagine(2), "246");
    EXPECT_EQ(Pagine(3), "246");
    EXPECT_EQ(Pagine(4), "1357");
    EXPECT_EQ(Pagine(5), "1357");
    EXPECT_EQ(Pagine(6), "1234567");
    EXPECT_EQ(Pagine(7), "1234567");
    EXPECT_EQ(Pagine(8), "");
    EXPECT_EQ(Pagine(10), "246");
    EXPECT_EQ(Pagine(12), "357");
    EXPECT_EQ(Pagine(14), "234567");
    EXPECT_EQ(Pagine(15), "1234567");
}

TEST(ModuliAutomatici, ConSediciAllaFineDellaPagina)
{
    EXPECT_EQ(Pagine(16), "");
    EXPECT_EQ(Pagine(17), "");
    EXPECT_EQ(Pagine(18), "2+4+6+");
    EXPECT_EQ(Pagine(20), "1+3+5+7+");
    EXPECT_EQ(Pagine(28), "3+5+7+");
    EXPECT_EQ(Pagine(23), "1+2+3+4+5+6+7+");
    EXPECT_EQ(Pagine(31), "1+2+3+4+5+6+7+");
}

TEST(ModuliAutomatici, SoloSullePagineCominciateDopo)
{
    const auto letto = Documento({}, [](clsPDFCreator& pdf) {
        UnaPagina(pdf);
        Vuoto(pdf, "Modulo", 7);
        UnaPagina(pdf);
    });
    EXPECT_EQ(letto.Contenuto(1).find("Do"), std::string::npos);
    EXPECT_THAT(letto.Contenuto(2), HasSubstr("\r\n/Modulo Do\r\n"));
}

TEST(ModuliAutomatici, NellOrdineInCuiSonoFatti)
{
    const auto letto = Documento({}, [](clsPDFCreator& pdf) {
        Vuoto(pdf, "Fondo", 7 + 16);
        Vuoto(pdf, "Uno", 4);
        Vuoto(pdf, "Due", 7);
        UnaPagina(pdf);
    });
    EXPECT_THAT(letto.Contenuto(1),
                testing::EndsWith("0 0 0 RG\r\n/Uno Do\r\n/Due Do\r\n/Fondo Do\r\n"));
}

TEST(ModuliAutomatici, SiGiocanoAncheAMano)
{
    const auto letto = Documento({}, [](clsPDFCreator& pdf) {
        Vuoto(pdf, "Modulo", 7);
        pdf.BeginPage();
        pdf.PlayObject("Modulo");
        pdf.EndPage();
    });
    EXPECT_THAT(letto.Contenuto(1), testing::EndsWith("/Modulo Do\r\n/Modulo Do\r\n"));
}

TEST(UnModulo, HaLeCoordinateDiUnaPaginaELoSpessoreDiPartenza)
{
    const auto letto = Documento([](clsPDFCreator& pdf) { pdf.SetScale(3); },
                                 [](clsPDFCreator& pdf) {
                                     pdf.BeginPage();
                                     pdf.SetLineStyle(5);
                                     pdf.EndPage();
                                     pdf.BeginObject("Modulo");
                                     pdf.DrawLine(1, 1, 2, 2);
                                     pdf.BeginTable(0, 0);
                                     pdf.EndTable();
                                     pdf.EndObject();
                                 });
    EXPECT_EQ(letto.Flusso(11),
              "q\r\n28.346 28.346 m 56.693 56.693 l\r\nS\r\nq\r\n1 w\r\nQ\r\nQ\r\n");
}
