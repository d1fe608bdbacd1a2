// The table of fonts and measuring with it.

#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using aiuti::Disegno;
using aiuti::Documento;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

// The base fonts of the document, in the order of their numbers.
std::vector<std::string> CaratteriDi(const Disegno& scelte)
{
    const auto letto = Documento({}, [&scelte](clsPDFCreator& pdf) {
        pdf.BeginPage();
        scelte(pdf);
        pdf.EndPage();
    });
    std::vector<std::string> nomi;
    for (const auto& oggetto : letto.Oggetti) {
        if (!oggetto.starts_with("<< /Type /Font ")) continue;
        const std::string inizio = "<< /Type /Font /Subtype /Type1 /Name /_FNT_" +
                                   std::to_string(nomi.size() + 1) + " /BaseFont /";
        EXPECT_THAT(oggetto, testing::StartsWith(inizio));
        nomi.push_back(oggetto.substr(inizio.size(), oggetto.find(" /FirstChar") - inizio.size()));
    }
    return nomi;
}

std::string OggettoDelCarattere(std::string_view famiglia, std::int32_t stile)
{
    const auto letto = Documento({}, [&](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.SetFont(famiglia, 10, stile);
        pdf.EndPage();
    });
    return letto.Oggetto(11);
}

float Lunga(std::string_view testo, const Disegno& prima)
{
    clsPDFCreator pdf;
    prima(pdf);
    return pdf.TextLength(testo);
}

} // namespace

// ---- Which font ------------------------------------------------------------------------------

TEST(SetFont, HelveticaEArialSonoUnoSolo)
{
    EXPECT_THAT(CaratteriDi([](clsPDFCreator& pdf) {
                    pdf.SetFont("Helvetica", 12);
                    pdf.SetFont("Arial", 12);
                }),
                ElementsAre("Arial"));
}

TEST(SetFont, ArialGrassettoDueVolteSonoDue)
{
    EXPECT_THAT(CaratteriDi([](clsPDFCreator& pdf) {
                    pdf.SetFont("Arial", 12, 1);
                    pdf.SetFont("Arial", 12, 1);
                }),
                ElementsAre("Arial,Bold", "Arial,Bold"));
}

TEST(SetFont, SymbolDueVolteEUnoConLoStileUnAltro)
{
    EXPECT_THAT(CaratteriDi([](clsPDFCreator& pdf) {
                    pdf.SetFont("Symbol", 10);
                    pdf.SetFont("Symbol", 10);
                    pdf.SetFont("Symbol", 12);
                }),
                ElementsAre("Symbol"));
    EXPECT_THAT(CaratteriDi([](clsPDFCreator& pdf) {
                    pdf.SetFont("Symbol", 10, 1);
                    pdf.SetFont("Symbol", 10, 1);
                }),
                ElementsAre("Symbol,Bold", "Symbol,Bold"));
}

TEST(SetFont, SymbolGrassettoSiAggiungeAncheDopoQuelloNormale)
{
    EXPECT_THAT(CaratteriDi([](clsPDFCreator& pdf) {
                    pdf.SetFont("Symbol", 10);
                    pdf.SetFont("Symbol", 10, 1);
                    pdf.SetFont("Symbol", 10);
                }),
                ElementsAre("Symbol", "Symbol,Bold"));
}

TEST(SetFont, ZapfDingbatsSiRitrova)
{
    EXPECT_THAT(CaratteriDi([](clsPDFCreator& pdf) {
                    pdf.SetFont("Zapf Dingbats", 10);
                    pdf.SetFont("ZAPFDINGBATS", 10);
                    pdf.SetFont("ZapfDingbats", 10, 3);
                }),
                ElementsAre("ZapfDingbats", "ZapfDingbats,BoldItalic"));
}

TEST(SetFont, TimesECourierSiAggiungonoSempre)
{
    EXPECT_THAT(CaratteriDi([](clsPDFCreator& pdf) {
                    pdf.SetFont("Times New Roman", 10);
                    pdf.SetFont("Times New Roman", 10);
                    pdf.SetFont("Times", 10, 2);
                    pdf.SetFont("Courier New", 10);
                    pdf.SetFont("Courier", 10, 1);
                }),
                ElementsAre("TimesNewRoman", "TimesNewRoman", "TimesNewRoman,Italic", "CourierNew",
                            "CourierNew,Bold"));
}

TEST(SetFont, VentiVolteTimesSonoVentiCaratteri)
{
    EXPECT_EQ(CaratteriDi([](clsPDFCreator& pdf) {
                  for (int i = 0; i < 20; ++i) pdf.SetFont("Times New Roman", 10);
              }).size(),
              20U);
}

TEST(SetFont, UnaFamigliaIgnotaHaNomeELarghezzeDiArial)
{
    EXPECT_THAT(CaratteriDi([](clsPDFCreator& pdf) {
                    pdf.SetFont("Verdana", 14, 1);
                    EXPECT_FLOAT_EQ(pdf.TextLength("A"), 10.108F); // 722 thousandths of 14
                    pdf.SetFont("Verdana", 14, 1);
                }),
                ElementsAre("Arial,Bold", "Arial,Bold"));
}

TEST(SetFont, DopoUnaFamigliaIgnotaNormaleArialLaTrova)
{
    EXPECT_THAT(CaratteriDi([](clsPDFCreator& pdf) {
                    pdf.SetFont("Verdana", 8); // never found under its own name
                    pdf.SetFont("Verdana", 8);
                    pdf.SetFont("Arial", 8);
                    pdf.SetFont("Helvetica", 8);
                }),
                ElementsAre("Arial", "Arial"));
}

TEST(SetFont, MaiuscoleEBianchiNonContano)
{
    EXPECT_THAT(CaratteriDi([](clsPDFCreator& pdf) {
                    pdf.SetFont("ar i AL", 8);
                    pdf.SetFont(" helvetica ", 8);
                    pdf.SetFont("timesnewroman", 8, 3);
                    pdf.SetFont("sYMBOL", 8);
                }),
                ElementsAre("Arial", "TimesNewRoman,BoldItalic", "Symbol"));
}

TEST(SetFont, GliStiliDecorativiNonCambianoIlCarattere)
{
    EXPECT_THAT(CaratteriDi([](clsPDFCreator& pdf) {
                    pdf.SetFont("Arial", 8);
                    pdf.SetFont("Arial", 8, 4 + 8 + 16);
                    pdf.SetFont("Arial", 8, 16 + 2);
                }),
                ElementsAre("Arial", "Arial,Italic"));
}

TEST(SetFont, UnaFamigliaVuotaEArial)
{
    EXPECT_THAT(CaratteriDi([](clsPDFCreator& pdf) { pdf.SetFont("", 8); }), ElementsAre("Arial"));
}

TEST(SetFont, UnaFamigliaColNomeDiUnaChiaveNonSiTrova)
{
    // Keys of entries are in upper case throughout; a family may happen to be one of them.
    EXPECT_THAT(CaratteriDi([](clsPDFCreator& pdf) {
                    pdf.SetFont("Arial", 8, 1);
                    pdf.SetFont("arial,bold", 8); // the key "ARIAL,BOLD"
                }),
                ElementsAre("Arial,Bold"));
}

TEST(SetFont, UnaChiaveCercataInvanoSiTrovaQuandoCE)
{
    EXPECT_THAT(CaratteriDi([](clsPDFCreator& pdf) {
                    pdf.SetFont("Courier New", 8);
                    pdf.SetFont("arial,bold", 8); // not there yet: a plain Arial
                    pdf.SetFont("Arial", 8, 1);
                    pdf.SetFont("arial,bold", 8);
                    EXPECT_FLOAT_EQ(pdf.TextLength("A"), 5.776F); // 722 thousandths of 8
                }),
                ElementsAre("CourierNew", "Arial", "Arial,Bold"));
}

TEST(SetFont, ConCorpoZeroTieneQuelloDiPrima)
{
    clsPDFCreator pdf;
    pdf.SetFont("Arial", 12);
    pdf.SetFont("Times New Roman");
    EXPECT_EQ(pdf.TextHeight(), 12);
}

// The resource name in use after AddFont under one name and SetFont with another.
std::string Trovato(std::string_view aggiunto, std::string_view cercato)
{
    const auto righe = aiuti::Scrive([&](clsPDFCreator& pdf) {
        pdf.SetFont("Courier New", 10);
        pdf.AddFont(SCALVINO_SEMI "/ttf/unicode.ttf", aggiunto, false);
        pdf.SetFont(cercato, 10);
        pdf.DrawText(0, 10, "a");
    });
    return righe[1].substr(0, righe[1].find(' '));
}

TEST(AddFont, SiTrovaAncheSottoUnNomeAccentato)
{
    EXPECT_EQ(Trovato("Città", "Città"), "/_FNT_2");
    EXPECT_EQ(Trovato("Città", "C ITTÀ"), "/_FNT_2");
    EXPECT_EQ(Trovato("ÀÞŸŠŒŽ", "àþÿšœž"), "/_FNT_2");
    EXPECT_EQ(Trovato("×÷ß€", "×÷ß€"), "/_FNT_2");
    EXPECT_EQ(Trovato("×", "÷"), "/_FNT_3"); // one below the other by the step of letters
    EXPECT_EQ(Trovato("Città", "Citta"), "/_FNT_3");
}

TEST(AddFont, INomiFuoriDaWindows1252SonoDistinti)
{
    EXPECT_EQ(Trovato("Дом", "Дом"), "/_FNT_2");
    EXPECT_EQ(Trovato("Дом", "城市村"), "/_FNT_3");
    EXPECT_EQ(Trovato("Дом", "???"), "/_FNT_3");
    EXPECT_EQ(Trovato("\xE0\xC3", "\xE0\xC3"), "/_FNT_2"); // no UTF-8 at all
    EXPECT_EQ(Trovato("\xE0", "\xC0"), "/_FNT_3");
}

TEST(SetFontSize, CambiaSoloIlCorpo)
{
    EXPECT_THAT(CaratteriDi([](clsPDFCreator& pdf) {
                    pdf.SetFont("Verdana", 14, 1);
                    pdf.SetFontSize(12);
                    EXPECT_FLOAT_EQ(pdf.TextLength("A"), 8.664F);
                    EXPECT_EQ(pdf.TextHeight(), 12);
                }),
                ElementsAre("Arial,Bold"));
}

TEST(ShareFonts, OgniCarattereUnaVoltaSola)
{
    const auto scelte = [](bool condivisi) {
        return [condivisi](clsPDFCreator& pdf) {
            pdf.ShareFonts(condivisi);
            pdf.SetFont("Verdana", 8);
            pdf.SetFont("Times New Roman", 8);
            pdf.SetFont("Arial", 8, 1);
            pdf.SetFont("Verdana", 9);
            pdf.SetFont("Times", 8);
            pdf.SetFont("Verdana", 8, 1);
        };
    };
    EXPECT_THAT(CaratteriDi(scelte(true)), ElementsAre("Arial", "TimesNewRoman", "Arial,Bold"));
    EXPECT_EQ(CaratteriDi(scelte(false)).size(), 6U);
}

// ---- The objects -----------------------------------------------------------------------------

TEST(OggettiDeiCaratteri, NominanoIlCarattereSenzaLarghezze)
{
    EXPECT_EQ(OggettoDelCarattere("Times New Roman", 1),
              "<< /Type /Font /Subtype /Type1 /Name /_FNT_1 /BaseFont /TimesNewRoman,Bold "
              "/FirstChar 0 /LastChar 255\r\n/Encoding 3 0 R\r\n >>");
}

TEST(OggettiDeiCaratteri, SymbolEZapfDingbatsHannoLaLoroCodifica)
{
    EXPECT_THAT(OggettoDelCarattere("Symbol", 0), Not(HasSubstr("/Encoding")));
    EXPECT_THAT(OggettoDelCarattere("ZapfDingbats", 0), Not(HasSubstr("/Encoding")));
    EXPECT_THAT(OggettoDelCarattere("Symbol", 0), EndsWith("/LastChar 255\r\n >>"));
}

TEST(OggettiDeiCaratteri, ConUnoStileHannoQuellaComune)
{
    EXPECT_THAT(OggettoDelCarattere("Symbol", 1), HasSubstr("\r\n/Encoding 3 0 R\r\n"));
    EXPECT_THAT(OggettoDelCarattere("ZapfDingbats", 2), HasSubstr("\r\n/Encoding 3 0 R\r\n"));
}

TEST(OggettiDeiCaratteri, NeCeUnoAncheSeNonServe)
{
    const auto letto = Documento([](clsPDFCreator& pdf) { pdf.SetFont("Arial", 8); },
                                 [](clsPDFCreator& pdf) {
                                     pdf.BeginPage();
                                     pdf.EndPage();
                                 });
    EXPECT_THAT(letto.Oggetto(6), HasSubstr("/Font <<\r/_FNT_1 11 0 R \r>>\r"));
}

TEST(OggettiDeiCaratteri, IlTestoUsaIlNomeDellUltimoScelto)
{
    const auto righe = aiuti::Scrive(
        [](clsPDFCreator& pdf) {
            pdf.SetFont("Times New Roman", 10);
            pdf.DrawText(0, 10, "a");
            pdf.SetFont("Times New Roman", 11);
            pdf.DrawText(0, 20, "b");
        },
        {"a", "b"});
    EXPECT_EQ(righe[1], "/_FNT_1 10 Tf 10 TL");
    EXPECT_EQ(righe[5], "/_FNT_2 11 Tf 11 TL");
}

// ---- Measuring -------------------------------------------------------------------------------

TEST(TextLength, DueAInArialDieci)
{
    EXPECT_FLOAT_EQ(Lunga("AA", [](clsPDFCreator& pdf) { pdf.SetFont("Arial", 10); }), 13.34F);
}

TEST(TextLength, SenzaCarattereEZero)
{
    EXPECT_EQ(Lunga("AA", [](clsPDFCreator&) {}), 0);
}

TEST(TextLength, NellUnitaDelChiamante)
{
    EXPECT_FLOAT_EQ(Lunga("AA",
                          [](clsPDFCreator& pdf) {
                              pdf.SetScale(1);
                              pdf.SetFont("Arial", 72);
                          }),
                    1.334F);
}

TEST(TextLength, LaSpaziaturaContaPerOgniCarattereAncheLUltimo)
{
    aiuti::Scrive([](clsPDFCreator& pdf) {
        pdf.SetFont("Arial", 10);
        pdf.SetCharSpacing(1);
        EXPECT_FLOAT_EQ(pdf.TextLength("AA"), 15.34F);
        EXPECT_FLOAT_EQ(pdf.TextLength(""), 0);
    });
}

TEST(TextLength, LoSpazioFraLeParoleContaPerOgniBianco)
{
    aiuti::Scrive([](clsPDFCreator& pdf) {
        pdf.SetFont("Arial", 10);
        pdf.SetWordSpacing(3);
        EXPECT_FLOAT_EQ(pdf.TextLength("A A A"), 3 * 6.67F + 2 * 2.78F + 6);
    });
}

TEST(TextLength, LaScalaOrizzontaleAllargaTutto)
{
    aiuti::Scrive([](clsPDFCreator& pdf) {
        pdf.SetFont("Arial", 10);
        pdf.SetCharSpacing(1);
        pdf.SetTextHorizontalScaling(200);
        EXPECT_FLOAT_EQ(pdf.TextLength("AA"), 30.68F);
    });
}

TEST(TextLength, MisuraICodiciDiWindows1252)
{
    const Disegno arial = [](clsPDFCreator& pdf) { pdf.SetFont("Arial", 1000); };
    EXPECT_EQ(Lunga("è", arial), 556);    // one character, not two bytes
    EXPECT_EQ(Lunga("Ω", arial), 556);    // as "?"
    EXPECT_EQ(Lunga("\xFF", arial), 556); // no UTF-8: as "?"
    EXPECT_EQ(Lunga("\x7F", arial), 750);
    EXPECT_EQ(Lunga("—", arial), 1000); // code 151
}

TEST(TextLength, OgniFamigliaHaLaSuaTabella)
{
    const auto misura = [](std::string_view famiglia, std::int32_t stile, std::string_view testo) {
        return Lunga(testo, [=](clsPDFCreator& pdf) { pdf.SetFont(famiglia, 1000, stile); });
    };
    EXPECT_EQ(misura("Courier New", 0, "Wi"), 1200);
    EXPECT_EQ(misura("Times New Roman", 0, "Wi"), 944 + 278);
    EXPECT_EQ(misura("Times New Roman", 1, "Wi"), 1000 + 278);
    EXPECT_EQ(misura("Times New Roman", 2, "Wi"), 833 + 278);
    EXPECT_EQ(misura("Times New Roman", 3, "Wi"), 889 + 278);
    EXPECT_EQ(misura("Arial", 1, "Wi"), 944 + 278);
    EXPECT_EQ(misura("Symbol", 0, "\u00B7"), 460); // code 183, the bullet
    EXPECT_EQ(misura("ZapfDingbats", 0, "34"), 755 + 846);
}

TEST(TextHeight, IlCorpoNellUnitaDelChiamante)
{
    clsPDFCreator pdf;
    EXPECT_EQ(pdf.TextHeight(), 0);
    pdf.SetFont("Arial", 12);
    EXPECT_EQ(pdf.TextHeight(), 12);
    pdf.SetScale(3);
    EXPECT_FLOAT_EQ(pdf.TextHeight(), 0.42333332F);
}
