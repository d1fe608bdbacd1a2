// The card library: 52 faces, one back, and every way in which its file can be wrong.

#include "AmbienteDiProva.h"
#include "ErroreRuntime.h"
#include "Finestra.h"
#include "LibreriaCarte.h"

#include <QApplication>
#include <QtMath>

#include <fstream>
#include <set>

using namespace aiuti;

namespace {

const std::string Vero_ = SCALVINO_RISORSE "/carte.svg";

// The library with its own file again, whatever a test did.
class LibreriaCarte : public testing::Test
{
protected:
    ~LibreriaCarte() override
    {
        cdtTerm();
        ImpostaFileCarte(Vero_);
    }

    CartellaDiProva cartella;

    std::string File(const std::string& byte)
    {
        const auto percorso = cartella.File("carte.svg").string();
        std::ofstream(percorso, std::ios::binary) << byte;
        return percorso;
    }

    // The error number of starting with this file; 0 when it starts.
    static int Avvia(const std::string& percorso)
    {
        ImpostaFileCarte(percorso);
        std::int32_t larghezza = -1;
        std::int32_t altezza = -1;
        try {
            cdtInit(larghezza, altezza);
        } catch (const ErroreRuntime& errore) {
            EXPECT_EQ(errore.File(), percorso);
            EXPECT_EQ(larghezza, -1);
            return static_cast<int>(errore.Numero());
        }
        EXPECT_EQ(larghezza, 71);
        EXPECT_EQ(altezza, 96);
        return 0;
    }

    static QImage Disegna(int carta, int modo, qreal rapporto = 1, int x = 0, int y = 0,
                          Colore angoli = {1, 2, 3})
    {
        Tela tela{QImage(qRound(100 * rapporto), qRound(120 * rapporto), QImage::Format_RGB32),
                  rapporto};
        tela.Immagine.fill(Qt::magenta);
        cdtDraw(tela, x, y, carta, modo, angoli);
        return tela.Immagine;
    }

    static QImage Vuota(qreal rapporto = 1)
    {
        QImage vuota(qRound(100 * rapporto), qRound(120 * rapporto), QImage::Format_RGB32);
        vuota.fill(Qt::magenta);
        return vuota;
    }
};

} // namespace

TEST_F(LibreriaCarte, DisegnaCinquantadueFacceDiverseEUnDorso)
{
    ASSERT_EQ(Avvia(Vero_), 0);
    std::set<QByteArray> viste;
    const auto segna = [&](const QImage& immagine) {
        viste.insert(QByteArray(reinterpret_cast<const char*>(immagine.constBits()),
                                immagine.sizeInBytes()));
    };
    for (int carta = 0; carta < 52; ++carta) segna(Disegna(carta, ModoFaccia));
    segna(Disegna(DorsoCarta, ModoDorso));
    EXPECT_EQ(viste.size(), 53U);
    EXPECT_FALSE(viste.contains(
        QByteArray(reinterpret_cast<const char*>(Vuota().constBits()), Vuota().sizeInBytes())));
}

TEST_F(LibreriaCarte, IQuattroAngoliHannoIlColoreDato)
{
    ASSERT_EQ(Avvia(Vero_), 0);
    for (const qreal rapporto : {1.0, 1.5, 2.0, 3.0}) {
        for (int carta = 0; carta <= 52; ++carta) {
            const bool dorso = carta == 52;
            const QImage immagine = Disegna(dorso ? DorsoCarta : carta,
                                            dorso ? ModoDorso : ModoFaccia, rapporto, 10, 8);
            const auto pixel = [&](double x, double y) {
                return immagine.pixelColor(static_cast<int>(x * rapporto),
                                           static_cast<int>(y * rapporto));
            };
            const QColor angolo(1, 2, 3);
            const double fine = 0.4;
            EXPECT_EQ(pixel(10, 8), angolo) << carta << " a " << rapporto;
            EXPECT_EQ(pixel(10 + 71 - fine, 8), angolo) << carta << " a " << rapporto;
            EXPECT_EQ(pixel(10, 8 + 96 - fine), angolo) << carta << " a " << rapporto;
            EXPECT_EQ(pixel(10 + 71 - fine, 8 + 96 - fine), angolo) << carta << " a " << rapporto;
            // Nothing beyond the card, and no corner colour on it.
            EXPECT_EQ(pixel(9, 60), QColor(Qt::magenta));
            EXPECT_EQ(pixel(10 + 72, 60), QColor(Qt::magenta));
            EXPECT_EQ(pixel(40, 7), QColor(Qt::magenta));
            EXPECT_EQ(pixel(40, 8 + 97), QColor(Qt::magenta));
            EXPECT_NE(pixel(10 + 35, 8 + 3), angolo);
        }
    }
}

// Cards of a row lie 60 pixels apart: of a covered one the turned index must stay out of sight.
TEST_F(LibreriaCarte, LIndiceCapovoltoNonSpuntaDaSottoLaCartaSeguente)
{
    constexpr int passo = 60;
    ASSERT_EQ(Avvia(Vero_), 0);
    for (const qreal rapporto : {1.0, 1.25, 1.5, 2.0}) {
        for (int carta = 0; carta < 52; ++carta) {
            const QImage immagine = Disegna(carta, ModoFaccia, rapporto);
            for (int y = qRound(66 * rapporto); y < qRound(93 * rapporto); ++y) {
                for (int x = qRound(57.5 * rapporto); x < qRound(passo * rapporto); ++x) {
                    ASSERT_EQ(immagine.pixelColor(x, y), QColor(Qt::white))
                        << carta << " a " << rapporto << " in " << x << ", " << y;
                }
            }
        }
    }
}

TEST_F(LibreriaCarte, CioCheNonEUnaCartaNonDisegnaNulla)
{
    ASSERT_EQ(Avvia(Vero_), 0);
    for (const auto& [carta, modo] : {std::pair(-1, 0), std::pair(52, 0), std::pair(53, 0),
                                      std::pair(1000000, 0), std::pair(0, 1), std::pair(52, 1),
                                      std::pair(54, 1), std::pair(0, 2), std::pair(53, -1)}) {
        EXPECT_EQ(Disegna(carta, modo), Vuota()) << carta << " " << modo;
    }
}

TEST_F(LibreriaCarte, FermaNonDisegnaEDiNuovoAvviataSi)
{
    cdtTerm();
    cdtTerm();
    EXPECT_EQ(Disegna(0, ModoFaccia), Vuota());
    ASSERT_EQ(Avvia(Vero_), 0);
    EXPECT_NE(Disegna(0, ModoFaccia), Vuota());
    ASSERT_EQ(Avvia(Vero_), 0);
    cdtTerm();
    EXPECT_EQ(Disegna(0, ModoFaccia), Vuota());
}

TEST_F(LibreriaCarte, UnFileAssenteOIllegibileEErrore53)
{
    EXPECT_EQ(Avvia(cartella.File("non-c-e.svg").string()), 53);
    EXPECT_EQ(Avvia(cartella.Nome()), 53);
    EXPECT_EQ(Avvia("/dev/null"), 53);
    EXPECT_EQ(Avvia(File("")), 53);
    EXPECT_EQ(Disegna(0, ModoFaccia), Vuota());
}

TEST_F(LibreriaCarte, UnFileDanneggiatoEErrore53)
{
    const std::string intero = Byte(Vero_);
    ASSERT_EQ(Avvia(File(intero)), 0);
    EXPECT_EQ(Avvia(File("non sono un disegno")), 53);
    EXPECT_EQ(Avvia(File("<html></html>")), 53);
    EXPECT_EQ(Avvia(File(intero + "<")), 53);
    for (std::size_t taglio = 0; taglio < intero.size() - 2; taglio += intero.size() / 40) {
        EXPECT_EQ(Avvia(File(intero.substr(0, taglio))), 53) << taglio;
    }
    std::string sporco = intero;
    sporco[sporco.size() / 2] = '\0';
    EXPECT_EQ(Avvia(File(sporco)), 53);
    EXPECT_EQ(Avvia(File(intero + std::string(9 * 1024 * 1024, ' '))), 53);
}

TEST_F(LibreriaCarte, UnaCartaCheMancaOEStortaEErrore53)
{
    const std::string intero = Byte(Vero_);
    for (const std::string nome : {"carta0", "carta17", "carta51", "dorso53"}) {
        std::string senza = intero;
        const auto posto = senza.find("id=\"" + nome + "\"");
        ASSERT_NE(posto, std::string::npos);
        senza.replace(posto + 4, nome.size(), "altro");
        EXPECT_EQ(Avvia(File(senza)), 53) << nome;
    }
    // The first card a little wider than the others.
    std::string largo = intero;
    const auto posto = largo.find("width=\"70\"", largo.find("id=\"carta0\""));
    ASSERT_NE(posto, std::string::npos);
    largo.replace(posto, 10, "width=\"75\"");
    EXPECT_EQ(Avvia(File(largo)), 53);
}

TEST_F(LibreriaCarte, UnAvvioFallitoLasciaQuellaAvviata)
{
    ASSERT_EQ(Avvia(Vero_), 0);
    EXPECT_EQ(Avvia(File("non sono un disegno")), 53);
    EXPECT_NE(Disegna(0, ModoFaccia), Vuota());
}

TEST_F(LibreriaCarte, SenzaCarteLaFinestraNonSiApre)
{
    cdtTerm();
    ImpostaFileCarte(cartella.File("non-c-e.svg").string());
    AmbienteDiProva ambiente;
    Form1 finestra;
    Registratore registro;
    finestra.DisegnaSu(registro);
    Risponditore mano;
    EXPECT_FALSE(finestra.Carica());
    EXPECT_EQ(mano.Visti,
              std::vector{Esclamazione("La libreria CARDS.DLL non è presente nel sistema.")});
    EXPECT_TRUE(registro.Passi.empty()); // not even the title screen
    EXPECT_FALSE(finestra.isVisible());
}

// What touches the edge looks cut off: a pixel of white at least stays beside it.
TEST_F(LibreriaCarte, NessunSegnoToccaIlBordo)
{
    ASSERT_EQ(Avvia(Vero_), 0);
    for (const qreal rapporto : {1.0, 1.5, 2.0}) {
        const int prima = qCeil(rapporto);
        const int dopo = qFloor(2 * rapporto);
        const int larghezza = qRound(71 * rapporto);
        for (int carta = 0; carta < 52; ++carta) {
            const QImage immagine = Disegna(carta, ModoFaccia, rapporto);
            int segni = 0;
            for (int y = qRound(6 * rapporto); y < qRound(90 * rapporto); ++y) {
                for (int x = prima; x < dopo; ++x) {
                    segni += immagine.pixelColor(x, y) != QColor(Qt::white) ? 1 : 0;
                    segni += immagine.pixelColor(larghezza - 1 - x, y) != QColor(Qt::white) ? 1 : 0;
                }
            }
            EXPECT_EQ(segni, 0) << carta << " at " << rapporto;
        }
    }
}
