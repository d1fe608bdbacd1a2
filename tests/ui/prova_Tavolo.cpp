// What is seen: single pixels and boxes of ink that survive another font, and whole pictures of the
// five screens and the 53 cards against golden ones.

#include "Caratteri.h"
#include "Finestra.h"
#include "FormatiNumero.h"
#include "Generale.h"
#include "LibreriaCarte.h"
#include "Stampe.h"

#include <QFontDatabase>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

using namespace aiuti;

namespace {

const QColor Verde(105, 230, 0);
const QColor Grigio(127, 127, 127);

class Tavolo : public Finestra
{
protected:
    TavoloCarte& Carte() { return *Trova<TavoloCarte>("picCard"); }

    // The picture at one pixel of the layout each, whatever the screen's density.
    QImage Immagine()
    {
        const QImage& intera = Carte().Disegno().Immagine;
        EXPECT_EQ(intera.size(), (QSizeF(550, 388) * Carte().Disegno().Rapporto).toSize());
        return intera.scaled(550, 388, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }

    // The pixel of the screen where a pixel of the layout begins, untouched by scaling.
    QColor Punto(int x, int y)
    {
        const qreal rapporto = Carte().Disegno().Rapporto;
        return Carte().Disegno().Immagine.pixelColor(qRound(x * rapporto), qRound(y * rapporto));
    }

    // The smallest box within zona that holds every pixel which differs from the background.
    QRect Inchiostro(const QRect& zona)
    {
        const QImage immagine = Immagine();
        QRect riquadro;
        for (int y = zona.top(); y <= zona.bottom(); ++y) {
            for (int x = zona.left(); x <= zona.right(); ++x) {
                if (!Vicini(immagine.pixelColor(x, y), Verde, 60)) riquadro |= QRect(x, y, 1, 1);
            }
        }
        return riquadro;
    }

    static bool Vicini(const QColor& uno, const QColor& altro, int scarto)
    {
        return std::abs(uno.red() - altro.red()) <= scarto &&
               std::abs(uno.green() - altro.green()) <= scarto &&
               std::abs(uno.blue() - altro.blue()) <= scarto;
    }

    void Colpo()
    {
        Clicca("cmdMescola");
        Colpi({"0", "1,R,I,33,32,KC#AQ#QF#2P#10C,JC#KQ#9F#3P", "2,,,0,0,,"});
        Clicca("cmdColpo");
    }

    void Fine()
    {
        Clicca("cmdMescola");
        modCarte::Statistiche = {17, 16, 18, 15, 2, 1, 9, 8, 9, 7};
        Colpi({"0", "1,,,32,27,KP#9C#5F#8Q,10F#QC#7P"});
        Clicca("cmdColpo");
    }

    void Video(const char* taglie = "1000")
    {
        Stampe::AmbienteInUso.PreparaTaglia = [](std::int64_t taglia) {
            modCarte::AvviaSeme(2026, static_cast<std::uint64_t>(taglia));
            modCarte::MescolaMazzo();
        };
        Scegli(FormaVideo, true);
        Scrivi(taglie);
        Clicca("cmdTaglie");
    }

    // The rows of the statistics as a run of so many shoes would print them, which takes hours.
    void VideoDi(double taglie)
    {
        struct UnaRiga
        {
            float Y;
            const char* Etichetta;
            double PerTaglia;
            const char* Quota;
        };
        constexpr std::array<UnaRiga, 13> righe = {{
            {1500, "Taglie:", 1, ""},
            {1800, "Colpi totali:", 28.6525, "28,65"},
            {2100, "Carte utilizzate:", 303.9664, "97,43%"},
            {2400, "Vincite Nero:", 12.7280, "44,42%"},
            {2700, "Vincite Rosso:", 12.7020, "44,33%"},
            {3000, "Colpi pari:", 3.1548, "11,01%"},
            {3300, "Vincite Colore:", 12.7286, "44,42%"},
            {3600, "Vincite Inverso:", 12.7014, "44,33%"},
            {3900, "31 après:", 0.6252, "2,18%"},
            {4300, "Nero-Colore:", 6.3682, "22,23%"},
            {4600, "Nero-Inverso:", 6.3598, "22,20%"},
            {4900, "Rosso-Colore:", 6.3604, "22,20%"},
            {5200, "Rosso-Inverso:", 6.3416, "22,13%"},
        }};
        Carte().Pulisci();
        for (const auto& [y, etichetta, perTaglia, quota] : righe) {
            Scritta(etichetta, 1000, y);
            Scritta(Stampe::MigliaiaConZero(std::llround(perTaglia * taglie), {",", "."}), 3500, y);
            if (*quota != '\0') Scritta(quota, 4500, y);
        }
        Carte().Aggiorna();
    }

    void Scritta(const std::string& testo, float x, float y)
    {
        Carte().PrintText(testo, x, y, "Verdana", 16, 400, 0, Falso, Falso, Falso);
    }

    // What these captions look like on an empty table, each a text and its x on the line y 1500.
    QImage Riga(const std::vector<std::pair<std::string, float>>& scritte)
    {
        Carte().Pulisci();
        for (const auto& [testo, x] : scritte) Scritta(testo, x, 1500);
        Carte().Aggiorna();
        return Carte().Disegno().Immagine.copy();
    }
};

// Mean difference of a channel, 0 to 255.
double Scarto(const QImage& una, const QImage& altra)
{
    if (una.size() != altra.size()) return 255;
    double somma = 0;
    for (int y = 0; y < una.height(); ++y) {
        for (int x = 0; x < una.width(); ++x) {
            const QColor a = una.pixelColor(x, y);
            const QColor b = altra.pixelColor(x, y);
            somma += std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
                     std::abs(a.blue() - b.blue());
        }
    }
    return somma / (3.0 * una.width() * una.height());
}

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

// ---- The surface -----------------------------------------------------------------------------

TEST_F(Tavolo, ConservaIlDisegnoEUnNuovoSfondoLoRicopre)
{
    Carte().Pulisci();
    Carte().PrintText("Ciao", 1500, 1500, "Arial", 28, 400, 0, Falso, Falso, Falso);
    EXPECT_FALSE(Inchiostro({0, 0, 550, 388}).isNull());
    Carte().ImpostaSfondo({0, 0, 255});
    EXPECT_EQ(Punto(110, 110), QColor(0, 0, 255));
    Carte().Pulisci();
    EXPECT_EQ(Punto(0, 0), QColor(0, 0, 255));
    EXPECT_EQ(Carte().ColoreTesto(), Colore());
}

TEST_F(Tavolo, SiRidisegnaDaSoloQuandoCambiaLaDensita)
{
    Colpo();
    const QImage prima = Carte().Disegno().Immagine;
    Carte().Disegno().Immagine = QImage(10, 10, QImage::Format_RGB32);
    Carte().repaint();
    EXPECT_EQ(Carte().Disegno().Immagine, prima);
    // Also after a clear that kept colours of an earlier screen.
    Clicca("cmdCancel");
    const QImage titolo = Carte().Disegno().Immagine;
    Carte().Disegno().Immagine = QImage(10, 10, QImage::Format_RGB32);
    Carte().repaint();
    EXPECT_EQ(Carte().Disegno().Immagine, titolo);
}

TEST_F(Tavolo, CioCheSiVedeEIlDisegno)
{
    Colpo();
    const QImage vista = Carte().grab().toImage().convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(vista.size(), Carte().Disegno().Immagine.size());
    EXPECT_LT(Scarto(vista, Carte().Disegno().Immagine), 0.01);
}

TEST_F(Tavolo, RidisegnatoRicominciaDaiColoriDiAllora)
{
    Carte().Pulisci();
    Carte().PrintText("Prima", 1500, 1500, "Arial", 28, 400, 0, Falso, Falso, Falso);
    Carte().ImpostaColoreTesto({255, 0, 0});
    Carte().PrintText("Dopo", 1500, 3000, "Arial", 28, 400, 0, Falso, Falso, Falso);
    const QImage prima = Carte().Disegno().Immagine;
    Carte().Disegno().Immagine = QImage(10, 10, QImage::Format_RGB32);
    Carte().repaint();
    EXPECT_EQ(Carte().Disegno().Immagine, prima);
}

// At once, not when events are dealt with again: a report may keep the thread busy until its end.
TEST_F(Tavolo, AggiornareDipingeSubito)
{
    QCoreApplication::processEvents();
    const ContaDipinti contatore(&Carte());
    Carte().Aggiorna();
    EXPECT_EQ(contatore.Dipinti, 1);
}

TEST_F(Tavolo, LeCarteTroppoADestraSonoTagliate)
{
    Carte().Pulisci();
    Carte().cdtDraw(530, 20, 0, 0, {127, 127, 127});
    Carte().cdtDraw(-30, -40, 0, 0, {127, 127, 127});
    EXPECT_EQ(Punto(530, 20), Grigio);
    EXPECT_TRUE(Vicini(Punto(545, 60), Qt::white, 40));
    EXPECT_TRUE(Vicini(Punto(30, 10), Qt::white, 40));
}

// ---- Sizes and faces -------------------------------------------------------------------------

TEST(Caratteri, LAltezzaDellaCellaDecideLaMisura)
{
    using caratteri::PixelPerCella;
    EXPECT_EQ(PixelPerCella("Arial", 14), 12);
    EXPECT_EQ(PixelPerCella("Arial", 22), 20);
    EXPECT_EQ(PixelPerCella("Arial", 28), 25);
    EXPECT_EQ(PixelPerCella("Verdana", 16), 13);
    EXPECT_EQ(PixelPerCella("Arial Black", 32), 23);
    EXPECT_EQ(PixelPerCella("Arial", 0), 1);
    EXPECT_EQ(PixelPerCella("Arial", -5), 1);
    EXPECT_EQ(caratteri::PixelPerPunti(20), 27);
    EXPECT_EQ(caratteri::Ascendente("Arial", 20), 18);
    EXPECT_EQ(caratteri::Ascendente("Arial Black", 23), 25);
}

TEST(Caratteri, OgniFacciaHaChiLaDisegna)
{
    for (const char* faccia : {"Arial", "Verdana", "Arial Black"}) {
        const QFont font = caratteri::Font(faccia, 400, 20);
        EXPECT_EQ(QFontInfo(font).family(), font.family()) << faccia;
        EXPECT_EQ(QFontInfo(font).pixelSize(), 20);
    }
    EXPECT_GE(QFontInfo(caratteri::Font("Arial Black", 400, 20)).weight(), QFont::Bold);
    // The substitute at its heaviest, whatever weights it has here.
    const bool propria = QFontDatabase::hasFamily(QStringLiteral("Arial Black"));
    EXPECT_EQ(caratteri::Font("Arial Black", 400, 20).weight(), propria ? 400 : 900);
    EXPECT_LE(QFontInfo(caratteri::Font("Verdana", 400, 20)).weight(), QFont::Medium);
    // An unknown face is no failure.
    EXPECT_EQ(caratteri::Font("Nessuna Faccia", 400, 12).pixelSize(), 12);
}

TEST_F(Tavolo, LaDidascaliaStaNellaSuaCella)
{
    struct Caso
    {
        const char* Faccia;
        int Altezza;
    };
    for (const auto& [faccia, altezza] :
         {Caso{"Arial", 14}, {"Arial", 22}, {"Arial", 28}, {"Verdana", 16}, {"Arial Black", 32}}) {
        Carte().Pulisci();
        Carte().PrintText("ÀHgjpq", 1500, 1500, faccia, altezza, 400, 0, Falso, Falso, Falso);
        const QRect inchiostro = Inchiostro({0, 0, 550, 388});
        EXPECT_GE(inchiostro.left(), 99) << faccia;
        EXPECT_LE(inchiostro.left(), 104) << faccia;
        EXPECT_GE(inchiostro.top(), 99) << faccia << altezza;
        EXPECT_LE(inchiostro.bottom(), 100 + altezza) << faccia << altezza;
        EXPECT_GE(inchiostro.height(), altezza / 2) << faccia;
    }
}

TEST_F(Tavolo, LAngoloGiraIlTestoVersoLAlto)
{
    Carte().Pulisci();
    Carte().PrintText("NERO", 1500, 3000, "Arial", 28, 400, 900, Falso, Falso, Falso);
    const QRect su = Inchiostro({0, 0, 550, 388});
    EXPECT_GE(su.left(), 99);
    EXPECT_LE(su.right(), 100 + 28);
    EXPECT_LE(su.bottom(), 201);
    EXPECT_GT(su.height(), 2 * su.width());
    Carte().Pulisci();
    Carte().PrintText("NERO", 1500, 3000, "Arial", 28, 400, 0, Falso, Falso, Falso);
    const QRect piano = Inchiostro({0, 0, 550, 388});
    EXPECT_NEAR(piano.width(), su.height(), 2);
    // Longer than its band it simply runs on upwards.
    Carte().PrintText("NERO NERO NERO NERO NERO", 1500, 3000, "Arial", 28, 400, 900, Falso, Falso,
                      Falso);
    EXPECT_EQ(Inchiostro({0, 0, 550, 388}).top(), 0);
}

TEST_F(Tavolo, CorsivoSottolineatoEBarratoSiVedono)
{
    const auto disegna = [this](Flag corsivo, Flag sottolineato, Flag barrato) {
        Carte().Pulisci();
        Carte().PrintText("Il", 1500, 1500, "Arial", 28, 400, 0, corsivo, sottolineato, barrato);
        return Carte().Disegno().Immagine.copy();
    };
    const QImage normale = disegna(Falso, Falso, Falso);
    EXPECT_NE(disegna(Vero, Falso, Falso), normale);
    EXPECT_NE(disegna(Falso, Vero, Falso), normale);
    EXPECT_NE(disegna(Falso, Falso, Vero), normale);
    EXPECT_EQ(disegna(Falso, Falso, 1), disegna(Falso, Falso, Vero));
}

// ---- The screens -----------------------------------------------------------------------------

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

// Columns are fixed: what is too long for its own is drawn narrower, and what is not stays.
TEST_F(Tavolo, UnTotaleLungoSiStringeQuantoBasta)
{
    const QRect valore(228, 95, 72, 30);
    for (const char* lungo : {"3.040.458", "304.058.123", "304.058.123.456"}) {
        SCOPED_TRACE(lungo);
        Riga({{lungo, 3500}});
        const QRect libero = Inchiostro({228, 95, 300, 30});
        Riga({{lungo, 3500}, {"97,45%", 4500}});
        const QRect stretto = Inchiostro(valore);
        EXPECT_NEAR(stretto.left(), libero.left(), 1);
        EXPECT_NEAR(stretto.top(), libero.top(), 1);
        EXPECT_NEAR(stretto.bottom(), libero.bottom(), 1);
        EXPECT_LT(stretto.right(), libero.right());
        // A blank of 4 pixels stays, and no more; the last digit has an edge of its own.
        EXPECT_LE(stretto.right(), 300 - 4);
        EXPECT_GE(stretto.right(), 300 - 4 - 3);
    }
}

TEST_F(Tavolo, SoloChiUrterebbeSiStringe)
{
    // The caption further right keeps its picture, and a short one before it, too.
    const QImage quota = Riga({{"97,45%", 4500}});
    const QImage corto = Riga({{"304.058", 3500}});
    const QImage insieme = Riga({{"304.058", 3500}, {"97,45%", 4500}});
    const int meta = qRound(296 * Carte().Disegno().Rapporto);
    const QRect sinistra(0, 0, meta, insieme.height());
    const QRect destra(meta, 0, insieme.width() - meta, insieme.height());
    EXPECT_EQ(insieme.copy(sinistra), corto.copy(sinistra));
    EXPECT_EQ(insieme.copy(destra), quota.copy(destra));
    EXPECT_EQ(Riga({{"304.058.123", 3500}, {"97,45%", 4500}}).copy(destra), quota.copy(destra));
    // Whichever of the two comes first.
    EXPECT_EQ(Riga({{"97,45%", 4500}, {"304.058.123", 3500}}),
              Riga({{"304.058.123", 3500}, {"97,45%", 4500}}));
    // Another line, the same place and what reads upwards are no neighbours.
    const QImage lungo = Riga({{"304.058.123", 3500}});
    const QRect riga(0, qRound(95 * Carte().Disegno().Rapporto), lungo.width(),
                     qRound(30 * Carte().Disegno().Rapporto));
    Scritta("97,45%", 4500, 3000);
    Carte().PrintText("NERO", 5400, 1500, "Arial", 28, 400, 900, Falso, Falso, Falso);
    Carte().Aggiorna();
    EXPECT_EQ(Carte().Disegno().Immagine.copy(riga).copy(0, 0, meta, riga.height()),
              lungo.copy(riga).copy(0, 0, meta, riga.height()));
    EXPECT_EQ(Riga({{"304.058.123", 3500}, {"304.058.123", 3500}}).size(), lungo.size());
}

TEST_F(Tavolo, StrettoRestaAncheRidisegnato)
{
    const QImage prima = Riga({{"304.058.123", 3500}, {"97,45%", 4500}});
    Carte().Disegno().Immagine = QImage(10, 10, QImage::Format_RGB32);
    Carte().repaint();
    EXPECT_EQ(Carte().Disegno().Immagine, prima);
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
