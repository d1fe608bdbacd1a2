// What is seen of the screens: single pixels and boxes of ink that survive another font, and whole
// pictures of the five screens and the 53 cards against golden ones. In which order each is drawn
// is tried in prova_Form1_Gioco.cpp.

#include "LibreriaCarte.h"
#include "Schermate.h"
#include "Tavolo.h"

#include <algorithm>
#include <cstdlib>

using namespace aiuti;

namespace {

// Mean difference that a golden picture forgives.
constexpr double Tolleranza = 0.15;

// Compares with the golden picture of this name; with SCALVINO_RIGENERA set writes it anew. The
// tolerance lets a new version of a font or of Qt pass, a caption moved by a pixel not.
void Confronta(const QImage& immagine, const char* nome)
{
    const QString percorso = QStringLiteral(SCALVINO_SCHERMATE "/%1.png").arg(QLatin1String(nome));
    if (std::getenv("SCALVINO_RIGENERA") != nullptr) {
        ASSERT_TRUE(immagine.save(percorso));
        return;
    }
    const QImage dorata(percorso);
    ASSERT_FALSE(dorata.isNull()) << nome;
    EXPECT_LT(Scarto(immagine, dorata.convertToFormat(QImage::Format_RGB32)), Tolleranza) << nome;
}

} // namespace

TEST(Schermate, LaRigaSiStringeDaOttoCarteInSu)
{
    for (int carte = 0; carte <= 7; ++carte) {
        EXPECT_EQ(schermate::PassoColpo(carte), 60);
        EXPECT_EQ(schermate::PassoFinale(carte), 60);
    }
    for (const int carte : {8, 9, 15, 31}) {
        EXPECT_EQ(schermate::PassoColpo(carte), 45);
        EXPECT_EQ(schermate::PassoFinale(carte), 50);
    }
}

TEST_F(Tavolo, IlTitoloHaColoriECarte)
{
    const QImage immagine = Immagine();
    EXPECT_EQ(Punto(0, 0), Verde);
    EXPECT_EQ(Punto(549, 387), Verde);
    EXPECT_EQ(Punto(90, 80), Grigio);   // outside corner of the first card
    EXPECT_EQ(Punto(430, 140), Grigio); // and of the last, at its right
    EXPECT_TRUE(Vicini(Punto(100, 82), Qt::white, 40));
    const QRect titolo = Inchiostro({0, 0, 550, 70});
    EXPECT_NEAR(titolo.left(), 80, 4);
    EXPECT_LT(titolo.bottom(), 60);
    int rossi = 0;
    int grigi = 0;
    for (int y = 0; y < 70; ++y) {
        for (int x = 0; x < 550; ++x) {
            if (Vicini(immagine.pixelColor(x, y), QColor(255, 0, 0), 30)) ++rossi;
            if (Vicini(immagine.pixelColor(x, y), Grigio, 30)) ++grigi;
        }
    }
    EXPECT_GT(rossi, 1000);
    EXPECT_GT(grigi, 50);
    EXPECT_LT(grigi, rossi);
}

TEST_F(Tavolo, NelColpoOgniCosaStaNellaSuaFascia)
{
    Colpo();
    const QRect nero = Inchiostro({0, 60, 58, 130});
    const QRect rosso = Inchiostro({0, 200, 58, 188});
    for (const auto& [etichetta, fondo] : {std::pair(nero, 163), std::pair(rosso, 303)}) {
        EXPECT_GE(etichetta.left(), 10);
        EXPECT_LE(etichetta.right(), 10 + 32);
        EXPECT_LE(etichetta.bottom(), fondo + 1);
        EXPECT_GT(etichetta.bottom(), fondo - 6);
    }
    EXPECT_GE(nero.top(), 70); // the label is no longer than its row
    EXPECT_GE(rosso.top(), 205);
    const QRect totaleNero = Inchiostro({490, 60, 60, 110});
    const QRect totaleRosso = Inchiostro({490, 200, 60, 110});
    for (const auto& [totale, cima] : {std::pair(totaleNero, 110), std::pair(totaleRosso, 247)}) {
        EXPECT_NEAR(totale.left(), 508, 3);
        EXPECT_GE(totale.top(), cima);
        EXPECT_LE(totale.bottom(), cima + 28);
        EXPECT_LT(totale.right(), 549);
    }
    EXPECT_EQ(Punto(60, 70), Grigio);
    EXPECT_EQ(Punto(60, 210), Grigio);
    EXPECT_EQ(Punto(380, 100), Verde); // five cards end at 371
    EXPECT_TRUE(Vicini(Punto(365, 150), Qt::white, 60));
}

TEST_F(Tavolo, IlRiassuntoEntraNelTavolo)
{
    Clicca("cmdMescola");
    modCarte::Statistiche = {88, 88, 88, 88, 88, 88, 0, 0, 0, 0};
    Colpi({"0", "1,,,32,27,KP#9C#5F#8Q,10F#QC#7P"});
    Clicca("cmdColpo");
    const QRect riassunto = Inchiostro({0, 344, 550, 15});
    EXPECT_NEAR(riassunto.left(), 27, 3);
    EXPECT_LT(riassunto.right(), 548);
}

TEST_F(Tavolo, LeRigheDelleStatisticheNonSiToccano)
{
    Video();
    // Rows 20 pixels apart: between two of them a line without ink, and the columns apart.
    for (const int y : {100, 120, 140, 160, 180, 200, 220, 240, 260, 286, 306, 326, 346}) {
        const QRect etichetta = Inchiostro({60, y, 170, 20});
        EXPECT_NEAR(etichetta.left(), 67, 3) << y;
        EXPECT_LT(etichetta.right(), 228) << y;
        EXPECT_NEAR(Inchiostro({228, y, 70, 20}).left(), 234, 4) << y;
        EXPECT_TRUE(Inchiostro({60, y - 1, 400, 1}).isNull()) << y;
    }
}

// What is asked for stays the same: only the picture differs.
TEST_F(Tavolo, LeColonneDiTanteTaglieNonSiToccano)
{
    for (const char* taglie : {"10000", "30000"}) {
        Risponditore mano(QMessageBox::Yes);
        Video(taglie);
        for (const int y : {120, 140, 160, 180, 200, 220, 240, 260, 286, 306, 326, 346}) {
            EXPECT_TRUE(Inchiostro({297, y, 3, 20}).isNull()) << y;
            EXPECT_NEAR(Inchiostro({297, y, 100, 20}).left(), 301, 2) << y;
        }
        const auto passi = registro->UltimaSchermata();
        const auto carte = std::find_if(passi.begin(), passi.end(), [](const auto& passo) {
            return passo.find("| 3500 2100 |") != std::string::npos;
        });
        ASSERT_NE(carte, passi.end());
        EXPECT_TRUE(carte->ends_with("| Verdana | 16 400 0 | 0 0 0")) << *carte;
    }
}

// ---- Golden pictures -------------------------------------------------------------------------

class SchermateDorate : public Tavolo
{
protected:
    void Guarda(const char* nome)
    {
        if (Carte().Disegno().Rapporto != 1) return; // drawn at 1x; the tests above hold at all
        Confronta(Carte().Disegno().Immagine, nome);
    }
};

TEST_F(SchermateDorate, Titolo)
{
    Guarda("titolo");
}

TEST_F(SchermateDorate, NuovaTaglia)
{
    Clicca("cmdMescola");
    Guarda("nuova");
}

TEST_F(SchermateDorate, Colpo)
{
    Tavolo::Colpo();
    Guarda("colpo");
}

TEST_F(SchermateDorate, Fine)
{
    Tavolo::Fine();
    Guarda("fine");
}

TEST_F(SchermateDorate, Statistiche)
{
    Video();
    Guarda("statistiche");
}

TEST_F(SchermateDorate, StatisticheDiTanteTaglie)
{
    Video("10000");
    Guarda("statistiche-10000");
    VideoDi(1e6);
    Guarda("statistiche-1000000");
    VideoDi(1e9);
    Guarda("statistiche-1000000000");
}

// The smallest caption, one pixel further on, is more than the tolerance forgives.
TEST_F(SchermateDorate, LaTolleranzaNonNascondeUnPixel)
{
    const auto disegna = [this](float x) {
        Carte().Pulisci();
        Carte().PrintText("Realizzato da Vellarmo", x, 5300, "Arial", 14, 400, 0, Falso, Falso,
                          Falso);
        return Carte().Disegno().Immagine.copy();
    };
    EXPECT_GT(Scarto(disegna(2700), disegna(2715)), Tolleranza);
    EXPECT_EQ(Scarto(disegna(2700), disegna(2702)), 0);
}

TEST_F(SchermateDorate, CinquantatreCarte)
{
    constexpr int colonne = 13;
    Tela tela{QImage(colonne * 71, 5 * 96, QImage::Format_RGB32), 1};
    tela.Immagine.fill(Verde);
    for (int carta = 0; carta < 52; ++carta) {
        cdtDraw(tela, 71 * (carta / 4), 96 * (carta % 4), carta, ModoFaccia, {127, 127, 127});
    }
    cdtDraw(tela, 0, 4 * 96, DorsoCarta, ModoDorso, {127, 127, 127});
    Confronta(tela.Immagine, "carte");
}
