// The layout of the PDF report: pages, rows, cards and the general statistics.

#include "MazziDiProva.h"
#include "prova_Stampe_Pdf.h"

#include "ErroreRuntime.h"
#include "Regole.h"

using namespace Stampe;
using namespace stampepdf;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// ---- Pages -----------------------------------------------------------------------------------

TEST(StampaPdf, UnaTagliaEUnaPaginaSenzaStatisticheGenerali)
{
    const auto letto = Pieno("uno_trentuno");
    ASSERT_EQ(letto.Pagine(), 1);
    const Testi testi = TestiDi(letto.Contenuto(1));
    ASSERT_GE(testi.size(), 12U);
    // 28 coups: 6 Nero, 19 Rosso, 3 ties, one of them 31-31; 301 cards.
    EXPECT_THAT(Testi(testi.begin(), testi.begin() + 12),
                ElementsAre("pag. 1", "SCALVINO", "Taglia",
                            "Colpi taglia: 28 - Nero: 6 (21,43%) - Rosso: 19 (67,86%) - "
                            "Egalit\xE8: 3 (10,71%) - Carte utilizzate: 301",
                            "Colore: 14 (50,00%) - Inverso: 11 (39,29%) - 31 Apr\xE8s: 1 (3,57%)",
                            "Colpo", "Nero", "Rosso", "Colore", "Inverso", "Mano Nero",
                            "Mano Rosso"));
    EXPECT_THAT(TestiDi(PiePagina(letto)), ElementsAre("Scalvino \xA9 2026", "di 1"));
    EXPECT_THAT(letto.Contenuto(1), Not(HasSubstr("Statistiche generali")));
}

TEST(StampaPdf, TreTaglieHannoTrePagineEQuellaGenerale)
{
    const auto letto = Pieno("tre");
    ASSERT_EQ(letto.Pagine(), 4);
    for (int pagina = 1; pagina <= 3; ++pagina) {
        const Testi testi = TestiDi(letto.Contenuto(pagina));
        const auto numero = std::to_string(pagina);
        EXPECT_THAT(Testi(testi.begin(), testi.begin() + 3),
                    ElementsAre("pag. " + numero, "SCALVINO", "Taglia " + numero));
    }
    const Testi ultima = TestiDi(letto.Contenuto(4));
    EXPECT_THAT(Testi(ultima.begin(), ultima.begin() + 5),
                ElementsAre("pag. 4", "SCALVINO", "Statistiche generali", "Numero taglie:", "3"));
    EXPECT_THAT(TestiDi(PiePagina(letto)), ElementsAre("Scalvino \xA9 2026", "di 4"));
}

TEST(StampaPdf, OgniPaginaGiocaIlPiePaginaUnaVolta)
{
    const auto letto = Pieno("tre");
    for (int pagina = 1; pagina <= 4; ++pagina) {
        EXPECT_EQ(Conta(letto.Contenuto(pagina), "\r\n/Footers Do\r\n"), 1U);
    }
}

TEST(StampaPdf, LaTestaDiUnaPagina)
{
    // "pag. 1" is 2.444 em wide in Times, "SCALVINO" 5.167 em in bold Arial.
    const auto righe = aiuti::Righe(Pieno("uno_trentuno").Contenuto(1));
    EXPECT_THAT(Testi(righe.begin(), righe.begin() + 12),
                ElementsAre("1 0 0 -1 0 842 cm ", "0 0 0 rg", "0 0 0 RG", "BT", "/_FNT_1 6 Tf 6 TL",
                            "1 0 0 -1 509.745 822.047 Tm (pag. 1) Tj", "ET", "/Footers Do", "BT",
                            "/_FNT_2 14 Tf 14 TL", "1 0 0 -1 261.469 36.85 Tm (SCALVINO) Tj",
                            "ET"));
}

TEST(StampaPdf, IlTitoloStaPiuInBassoSullaPaginaGenerale)
{
    const auto letto = Pieno("tre");
    EXPECT_THAT(letto.Contenuto(3), HasSubstr(" 261.469 36.85 Tm (SCALVINO) Tj\r\n"));
    EXPECT_THAT(letto.Contenuto(4), HasSubstr(" 261.469 56.693 Tm (SCALVINO) Tj\r\n"));
}

TEST(StampaPdf, IlSottotitoloTieneIlGrassettoDelTitolo)
{
    // No font is added: size 12 in the second font of the page.
    const auto letto = Pieno("uno_trentuno");
    EXPECT_THAT(letto.Contenuto(1),
                aiuti::HaUnaParteCheSegue("/_FNT_2 12 Tf 12 TL\r\n"
                                          "1 0 0 -1 [0-9.]+ 56.693 Tm \\(Taglia\\) Tj\r\n"));
    EXPECT_THAT(letto.Contenuto(1), HasSubstr("/_FNT_3 8 Tf 8 TL\r\n"));
}

TEST(StampaPdf, IlPiePaginaALDueEAlDiciannove)
{
    // "di 1" is 1.528 em wide in Times.
    EXPECT_THAT(PiePagina(Pieno("uno_trentuno")),
                aiuti::Segue("q\r\nBT\r\n/_FNT_[0-9]+ 6 Tf 6 TL\r\n"
                             "1 0 0 -1 56.693 822.047 Tm \\(Scalvino \xA9 2026\\) Tj\r\nET\r\n"
                             "BT\r\n/_FNT_[0-9]+ 6 Tf 6 TL\r\n"
                             "1 0 0 -1 529.415 822.047 Tm \\(di 1\\) Tj\r\nET\r\nQ\r\n"));
}

// ---- Rows ------------------------------------------------------------------------------------

TEST(StampaPdf, LaTabellaStaADueEATreCentimetriEMezzo)
{
    const auto letto = Pieno("uno_trentuno");
    // Its line, then the heading at 3.5 cm, the first coup 0.6 cm further down.
    EXPECT_THAT(letto.Contenuto(1), HasSubstr("\r\nq\r\n0.283 w\r\nq\r\n1 0 0 1 56.693 99.213 cm"));
    EXPECT_THAT(letto.Contenuto(1), HasSubstr("\r\nq\r\n1 0 0 1 56.693 116.22 cm\r\n"));
    // The heading and 28 coups; the third cells stand at 56.693, too, but at 0 of their rows.
    EXPECT_EQ(Conta(letto.Contenuto(1), "\r\n1 0 0 1 56.693 ") -
                  Conta(letto.Contenuto(1), "\r\n1 0 0 1 56.693 0 cm"),
              29U);
}

TEST(StampaPdf, LIntestazioneHaSetteCelleEUnColpoNove)
{
    const auto letto = Pieno("uno_trentuno");
    const std::string& pagina = letto.Contenuto(1);
    const auto testa = pagina.find("1 0 0 1 56.693 99.213 cm");
    const auto primo = pagina.find("1 0 0 1 56.693 116.22 cm");
    const auto secondo = pagina.find("1 0 0 1 56.693 133.228 cm");
    ASSERT_LT(primo, secondo);
    const std::string righe[] = {pagina.substr(testa, primo - testa),
                                 pagina.substr(primo, secondo - primo)};
    // A frame for each cell and for the row itself, of the cell's or the row's width.
    const auto contorni = [](const std::string& riga, const char* larghezza) {
        return Conta(riga, std::string("\r\n0 0 ") + larghezza + " 17.008 re\r\nS\r\n");
    };
    EXPECT_EQ(contorni(righe[0], "0"), 1U);
    EXPECT_EQ(contorni(righe[0], "28.346"), 5U);
    EXPECT_EQ(contorni(righe[0], "170.079"), 2U);
    EXPECT_EQ(contorni(righe[1], "170.079"), 1U);
    EXPECT_EQ(contorni(righe[1], "28.346"), 7U);
    EXPECT_EQ(contorni(righe[1], "141.732"), 2U);
}

TEST(StampaPdf, UnPariMostraQuattroLineette)
{
    // Coup 1 of this shoe: E, E, 31, 31.
    EXPECT_THAT(RigaColpo(Pieno("uno_trentuno"), 1, 1),
                ElementsAre("1", "-", "-", "-", "-", "31", "10", "\xA8", "A", "\xA8", "3", "\xA8",
                            "9", "\xAA", "8", "\xA8", "31", "8", "\xA8", "6", "\xA8", "6", "\xA8",
                            "7", "\xA9", "3", "\xAA", "A", "\xAA"));
}

TEST(StampaPdf, ISegniStannoInAltoAlCentroDellaCella)
{
    // 10 points of leading less 2.2 of descent; the dash of Symbol is 0.549 em wide, the dot 0.46.
    const auto letto = Pieno("uno_trentuno");
    const std::string& pagina = letto.Contenuto(1);
    EXPECT_EQ(Conta(pagina, "1 0 0 -1 0 7.8 Tm\r\n11.428 0 Td (-) Tj"), 12U); // three ties
    EXPECT_EQ(Conta(pagina, "1 0 0 -1 0 7.8 Tm\r\n11.873 0 Td (\xB7) Tj"), 50U);
    EXPECT_EQ(Conta(pagina, "1 0 0 -1 0 7.8 Tm\r\n14.173 0 Td () Tj"), 50U);
}

TEST(StampaPdf, UnaVincitaMostraDuePunti)
{
    const auto letto = Pieno("uno_trentuno");
    const auto segni = [&letto](int colpo) {
        const Testi riga = RigaColpo(letto, 1, colpo);
        return Testi(riga.begin() + 1, riga.begin() + 6);
    };
    EXPECT_THAT(segni(2), ElementsAre("", "\xB7", "\xB7", "", "36")); // R, C
    EXPECT_THAT(segni(3), ElementsAre("\xB7", "", "\xB7", "", "31")); // N, C
    EXPECT_THAT(segni(4), ElementsAre("", "\xB7", "", "\xB7", "39")); // R, I
}

TEST(StampaPdf, IlRecordFinaleLungoHaSegniVuoti)
{
    EXPECT_THAT(RigaColpo(Pieno("uno_liscio"), 1, 29),
                ElementsAre("29", "", "", "", "", "37", "K", "\xA9", "7", "\xA9", "10", "\xA8", "J",
                            "\xA9", "28", "10", "\xA7", "6", "\xA8", "3", "\xAA", "5", "\xA7", "4",
                            "\xAA"));
}

TEST(StampaPdf, IlRecordFinaleBreveNonSiMostra)
{
    EXPECT_THAT(RigaColpo(Pieno("uno_trentuno"), 1, 29), IsEmpty());
    EXPECT_THAT(RigaColpo(Pieno("uno_trentuno"), 1, 28), Not(IsEmpty()));
}

TEST(StampaPdf, UnaCartaRossaEPoiDiNuovoNero)
{
    // 10Q, the first card of the first coup: its value ends 0.4 cm from the left edge of the cell,
    // where the suit begins; two digits are wider than the 0.2 cm of their box.
    const std::string pagina = Pieno("uno_trentuno").Contenuto(1);
    const auto carta = pagina.find("(10) Tj");
    ASSERT_NE(carta, std::string::npos);
    const auto inizio = pagina.rfind("BT\r\n", carta);
    const auto fine = pagina.find("0 0 0 rg\r\n", carta);
    EXPECT_THAT(
        pagina.substr(inizio, fine + 10 - inizio),
        aiuti::Segue("BT\r\n/_FNT_[0-9]+ 8 Tf 8 TL\r\n1 0 0 -1 0 842 Tm\r\n"
                     "1 0 0 -1 5.669 10.808 Tm\r\n-3.227 0 Td \\(10\\) Tj 3.227 0 Td T\\*\r\r\n"
                     "ET\r\n1 0 0 rg\r\n"
                     "BT\r\n/_FNT_[0-9]+ 10 Tf 10 TL\r\n1 0 0 -1 0 842 Tm\r\n"
                     "1 0 0 -1 11.339 8.469 Tm\r\n\\(\xA8\\) Tj T\\*\r\r\nET\r\n0 0 0 rg\r\n"));
}

TEST(StampaPdf, SoloCuoriEQuadriSonoRossiEDopoOgniCartaSiTornaNero)
{
    const auto letto = Pieno("uno_trentuno");
    const std::string& pagina = letto.Contenuto(1);
    std::size_t rosse = 0;
    std::size_t nere = 0;
    const Testi testi = TestiDi(pagina);
    for (const auto& testo : testi) {
        if (testo == "\xA9" || testo == "\xA8") ++rosse;
        if (testo == "\xA7" || testo == "\xAA") ++nere;
    }
    EXPECT_GT(rosse, 100U);
    EXPECT_GT(nere, 100U);
    EXPECT_EQ(Conta(pagina, "\r\n1 0 0 rg\r\n"), rosse);
    // Each red stands right before its glyph, and no value is shown while it is in force.
    for (auto p = pagina.find("\r\n1 0 0 rg\r\n"); p != std::string::npos;
         p = pagina.find("\r\n1 0 0 rg\r\n", p + 1)) {
        const auto nero = pagina.find("\r\n0 0 0 rg\r\n", p);
        const Testi dentro = TestiDi(pagina.substr(p, nero - p));
        ASSERT_EQ(dentro.size(), 1U);
        EXPECT_TRUE(dentro[0] == "\xA9" || dentro[0] == "\xA8");
    }
}

TEST(StampaPdf, UnaManoDiDieciCarteArrivaACinqueCentimetri)
{
    Prova prova("uno_trentuno");
    AmbienteInUso.PreparaTaglia = [](std::int64_t) {
        aiuti::PreparaMazzo(
            {"3C", "3Q", "3F", "3P", "3C", "3Q", "3F", "3P", "3C", "4F", "KC", "KQ", "KF", "AP"});
    };
    ASSERT_TRUE(StampaPdf(1));
    const auto letto = Intero(prova.Pdf());
    const Testi riga = RigaColpo(letto, 1, 1);
    EXPECT_EQ(riga.size(), 6U + 20U + 1U + 8U);
    // The tenth suit from 4.9 cm on.
    const std::string& pagina = letto.Contenuto(1);
    const auto decima = pagina.find("1 0 0 -1 138.898 8.469 Tm\r\n(\xA7) Tj");
    EXPECT_NE(decima, std::string::npos);
    EXPECT_EQ(pagina.find("1 0 0 -1 153.071 "), std::string::npos); // and no eleventh
}

TEST(StampaPdf, DopoIlQuarantaduesimoColpoSiScendeSottoLaPagina)
{
    // A shoe has some thirty coups: more are put in by hand.
    Prova prova("uno_trentuno");
    AmbienteInUso.PreparaTaglia = [prepara = AmbienteInUso.PreparaTaglia](std::int64_t taglia) {
        prepara(taglia);
        modCarte::NumeroColpo = 75; // the counting pass starts from here
    };
    ASSERT_TRUE(StampaPdf(1));
    const auto letto = Intero(prova.Pdf());
    EXPECT_EQ(letto.Pagine(), 1);
    EXPECT_THAT(letto.Contenuto(1), HasSubstr("1 0 0 1 56.693 830.55"));  // coup 43, at 29.3 cm
    EXPECT_THAT(letto.Contenuto(1), HasSubstr("1 0 0 1 56.693 1612.91")); // coup 89
}

TEST(SemeSymbol, DallUltimaLettera)
{
    EXPECT_EQ(SemeSymbol("10C"), "\u00A9");
    EXPECT_EQ(SemeSymbol("QQ"), "\u00A8");
    EXPECT_EQ(SemeSymbol("KF"), "\u00A7");
    EXPECT_EQ(SemeSymbol("AP"), "\u00AA");
    EXPECT_EQ(SemeSymbol("Ax"), "");
    EXPECT_EQ(SemeSymbol(""), "");
}

// ---- General statistics ----------------------------------------------------------------------

TEST(StatistichePdf, UnaPaginaSolaConLaSuaTabella)
{
    const auto letto = Statistiche("uno_trentuno");
    ASSERT_EQ(letto.Pagine(), 1);
    EXPECT_THAT(TestiDi(letto.Contenuto(1)), ElementsAreArray({"pag. 1",
                                                               "SCALVINO",
                                                               "Simulazione taglie",
                                                               "Statistiche generali",
                                                               "Numero taglie:",
                                                               "1",
                                                               "",
                                                               "Colpi totali:",
                                                               "28",
                                                               "28,00",
                                                               "Carte utilizzate:",
                                                               "301",
                                                               "96,47%",
                                                               "Vincite Nero:",
                                                               "6",
                                                               "21,43%",
                                                               "Vincite Rosso:",
                                                               "19",
                                                               "67,86%",
                                                               "Colpi pari:",
                                                               "3",
                                                               "10,71%",
                                                               "Vincite Colore:",
                                                               "14",
                                                               "50,00%",
                                                               "Vincite Inverso:",
                                                               "11",
                                                               "39,29%",
                                                               "31 apr\xE8s:",
                                                               "1",
                                                               "3,57%",
                                                               "Altre combinazioni vincenti",
                                                               "Vincite Nero-Colore:",
                                                               "5",
                                                               "17,86%",
                                                               "Vincite Nero-Inverso:",
                                                               "1",
                                                               "3,57%",
                                                               "Vincite Rosso-Colore:",
                                                               "9",
                                                               "32,14%",
                                                               "Vincite Rosso-Inverso:",
                                                               "10",
                                                               "35,71%"}));
    EXPECT_THAT(TestiDi(PiePagina(letto)), ElementsAre("Scalvino \xA9 2026", "di 1"));
}

TEST(StatistichePdf, ITitoliELaTabellaAlLoroPosto)
{
    const std::string pagina = Statistiche("uno_trentuno").Contenuto(1);
    EXPECT_THAT(pagina, HasSubstr(" 261.469 36.85 Tm (SCALVINO) Tj\r\n"));
    // 3 and 3.5 cm; both in the bold font of the title.
    EXPECT_THAT(pagina,
                aiuti::HaUnaParteCheSegue("/_FNT_2 12 Tf 12 TL\r\n1 0 0 -1 [0-9.]+ 85.039 Tm "
                                          "\\(Simulazione taglie\\) Tj\r\n"));
    EXPECT_THAT(pagina,
                aiuti::HaUnaParteCheSegue("/_FNT_2 10 Tf 10 TL\r\n1 0 0 -1 [0-9.]+ 99.213 Tm "
                                          "\\(Statistiche generali\\) Tj\r\n"));
    EXPECT_THAT(pagina, HasSubstr("\r\nq\r\n0.283 w\r\nq\r\n1 0 0 1 127.559 113.386 cm\r\n"));
    EXPECT_EQ(Conta(pagina, "1 0 0 1 127.559 "), 14U);
    EXPECT_EQ(Conta(pagina, "\r\n0 0 340.157 14.173 re\r\nS\r\n"), 2U); // 12 cm, and the next row
}

TEST(StatistichePdf, UnContoDiZeroEVuoto)
{
    // This shoe has no 31-31 tie.
    const Testi testi = TestiDi(Statistiche("uno_liscio").Contenuto(1));
    const auto apres = std::find(testi.begin(), testi.end(), "31 apr\xE8s:");
    ASSERT_NE(apres, testi.end());
    EXPECT_EQ(apres[1], "");
    EXPECT_EQ(apres[2], "0,00%");
}

TEST(StatistichePdf, DiceIlSuoAvanzamento)
{
    Prova prova("tre");
    Testi detti;
    StatistichePdf(3, [&detti](std::string_view testo) { detti.emplace_back(testo); });
    EXPECT_THAT(detti, ElementsAre("Elaborazione in corso. Attendere... Taglia 1 di 3",
                                   "Elaborazione in corso. Attendere... Taglia 2 di 3",
                                   "Elaborazione in corso. Attendere... Taglia 3 di 3"));
}

TEST(StatistichePdf, SonoUgualiAllaPaginaGeneraleDelReportPieno)
{
    const Testi sole = TestiDi(Statistiche("tre").Contenuto(1));
    const Testi generali = TestiDi(Pieno("tre").Contenuto(4));
    EXPECT_EQ(Testi(sole.begin() + 4, sole.end()), Testi(generali.begin() + 3, generali.end()));
}
