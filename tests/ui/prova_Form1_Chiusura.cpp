// Closing, whichever way and whenever: the files of the program go, once, and nothing else does.

#include "Applicazione.h"
#include "Finestra.h"
#include "LibreriaCarte.h"
#include "Segnali.h"
#include "Stampe.h"
#include "Utente.h"
#include "modCarte.h"

#include <QApplication>
#include <QClipboard>

#include <fstream>
#include <functional>
#include <new>

#include <unistd.h>

using namespace aiuti;
namespace fs = std::filesystem;

namespace {

const std::vector<std::string> Nostri = {"scalvino.htm", "taglie.htm", "taglie.pdf", "taglie.txt"};

void Crea(const fs::path& percorso)
{
    std::ofstream(percorso) << "qualcosa";
}

// Runs the program's event loop with this as its first event, until something ends it; returns the
// program's exit code.
int Esegui(const std::function<void()>& primo)
{
    auto* applicazione = static_cast<Applicazione*>(QCoreApplication::instance());
    QTimer::singleShot(0, applicazione, primo);
    QApplication::exec();
    const int codice = applicazione->CodiceUscita();
    applicazione->DimenticaGuasto();
    return codice;
}

// Root may delete everything: while this lives, the process has an ordinary user's rights.
class SenzaDiritti
{
public:
    SenzaDiritti()
    {
        if (SonoRadice()) {
            EXPECT_EQ(::seteuid(Nessuno), 0);
        }
        EXPECT_NE(::geteuid(), 0U);
    }
    ~SenzaDiritti()
    {
        if (::getuid() == 0) {
            EXPECT_EQ(::seteuid(0), 0);
        }
    }
    SenzaDiritti(const SenzaDiritti&) = delete;
    SenzaDiritti& operator=(const SenzaDiritti&) = delete;
};

// A message that ends the program begins with the error and says so at its end.
void SiChiude(const std::vector<Riquadro>& visti, const std::string& inizio)
{
    ASSERT_EQ(visti.size(), 1U);
    EXPECT_TRUE(visti[0].Testo.starts_with(inizio)) << visti[0].Testo;
    EXPECT_TRUE(visti[0].Testo.ends_with("\nIl programma si chiude.")) << visti[0].Testo;
}

// A started library draws, a stopped one does not.
bool LibreriaAvviata()
{
    Tela tela{QImage(100, 100, QImage::Format_RGB32), 1};
    tela.Immagine.fill(Qt::black);
    cdtDraw(tela, 0, 0, 0, ModoFaccia, {127, 127, 127});
    return tela.Immagine.pixelColor(35, 10) != QColor(Qt::black);
}

} // namespace

TEST_F(Finestra, ChiudereTogliePaginaEReport)
{
    for (const auto& nome : Nostri) Crea(ambiente.Cartella.File(nome));
    Crea(ambiente.Cartella.File("altro.txt"));
    Crea(ambiente.Cartella.File("taglie.csv"));
    EXPECT_TRUE(LibreriaAvviata());
    EXPECT_TRUE(finestra->close());
    EXPECT_TRUE(finestra->Chiusa());
    EXPECT_EQ(ambiente.Cartella.Contenuto(), (std::vector<std::string>{"altro.txt", "taglie.csv"}));
    EXPECT_FALSE(LibreriaAvviata());
}

TEST_F(Finestra, SenzaFileSiFermaLoStessoLaLibreria)
{
    EXPECT_TRUE(finestra->close());
    EXPECT_TRUE(ambiente.Cartella.Contenuto().empty());
    EXPECT_FALSE(LibreriaAvviata());
}

TEST_F(Finestra, EsciChiudeAncheAMetaPartita)
{
    Clicca("cmdMescola");
    Clicca("cmdColpo");
    Clicca("cmdExit");
    EXPECT_TRUE(finestra->Chiusa());
    EXPECT_FALSE(finestra->isVisible());
    EXPECT_FALSE(LibreriaAvviata());
}

TEST_F(Finestra, IPassiDiChiusuraSiFannoUnaVoltaSola)
{
    EXPECT_TRUE(finestra->close());
    Crea(ambiente.Cartella.File("taglie.txt"));
    finestra->show();
    EXPECT_TRUE(finestra->close());
    EXPECT_EQ(ambiente.Cartella.Contenuto(), std::vector<std::string>{"taglie.txt"});
}

TEST_F(Finestra, UnaCartellaAlPostoDelleNostreResta)
{
    for (const auto& nome : Nostri) fs::create_directory(ambiente.Cartella.File(nome));
    EXPECT_TRUE(finestra->close());
    EXPECT_EQ(ambiente.Cartella.Contenuto(), Nostri);
}

TEST_F(Finestra, UnLegameSiToglieSenzaCioACuiPorta)
{
    const fs::path altrove = ambiente.Cartella.File("altrove");
    Crea(altrove);
    fs::create_symlink(altrove, ambiente.Cartella.File("scalvino.htm"));
    EXPECT_TRUE(finestra->close());
    EXPECT_EQ(ambiente.Cartella.Contenuto(), std::vector<std::string>{"altrove"});
}

TEST_F(Finestra, CioCheEDiUnAltroNonSiTocca)
{
    ASSERT_TRUE(SonoRadice()) << "needs root to give a file away";
    for (const auto& nome : Nostri) {
        Crea(ambiente.Cartella.File(nome));
        Affida(ambiente.Cartella.File(nome), Nessuno);
    }
    Clicca("cmdHelp");
    EXPECT_TRUE(ambiente.Aperti.empty());
    EXPECT_TRUE(finestra->close());
    EXPECT_EQ(ambiente.Cartella.Contenuto(), Nostri);
    EXPECT_EQ(Byte(ambiente.Cartella.File("scalvino.htm")), "qualcosa");
}

// The help page cannot be deleted: that surfaces, but only after all the other steps.
TEST_F(Finestra, UnGuastoNellaPaginaNonFermaGliAltriPassi)
{
    const SenzaDiritti senza;
    CartellaDiProva chiusa;
    Crea(chiusa.File("scalvino.htm"));
    fs::permissions(chiusa.Nome(), fs::perms::owner_read | fs::perms::owner_exec);
    Stampe::AmbienteInUso.Cartella = chiusa.Nome();
    Risponditore mano;
    EXPECT_EQ(Esegui([this] { finestra->close(); }), 1);
    ASSERT_EQ(mano.Visti.size(), 1U);
    SiChiude(mano.Visti, "Errore 70: ");
    EXPECT_NE(mano.Visti[0].Testo.find("scalvino.htm"), std::string::npos);
    EXPECT_FALSE(LibreriaAvviata());
    EXPECT_EQ(chiusa.Contenuto(), std::vector<std::string>{"scalvino.htm"});
    fs::permissions(chiusa.Nome(), fs::perms::owner_all);
}

// ---- In the middle of a run ------------------------------------------------------------------

TEST_F(Finestra, ChiudereDuranteUnaCorsaLaFerma)
{
    for (const std::size_t forma : {FormaHtml, FormaPdf, FormaTxt, FormaVideo}) {
        SCOPED_TRACE(forma);
        Form1 altra;
        altra.ImpostaAmbiente();
        auto& inUso = Stampe::AmbienteInUso;
        inUso.Cartella = ambiente.Cartella.Nome();
        inUso.Apri = [this](const std::string& percorso, StileFinestra) {
            ambiente.Aperti.push_back(percorso);
        };
        ASSERT_TRUE(altra.Carica());
        altra.show();
        Crea(ambiente.Cartella.File("scalvino.htm"));
        altra.findChild<QCheckBox*>(QStringLiteral("chkStat"))->setChecked(true);
        altra.findChild<QRadioButton*>(QStringLiteral("optStampa%1").arg(forma))->setChecked(true);
        altra.findChild<QLineEdit*>(QStringLiteral("numTaglie"))->setText(QStringLiteral("9000"));
        int fatte = 0;
        bool paginaAllora = false;
        inUso.Cedi = [&] {
            if (++fatte == 3) {
                EXPECT_TRUE(altra.close());
                EXPECT_FALSE(altra.isVisible());
                paginaAllora = fs::exists(ambiente.Cartella.File("scalvino.htm"));
            }
            QCoreApplication::processEvents();
        };
        altra.findChild<QPushButton*>(QStringLiteral("cmdTaglie"))->click();
        EXPECT_EQ(fatte, 3);
        EXPECT_TRUE(paginaAllora); // the closing steps waited for the run
        EXPECT_TRUE(ambiente.Cartella.Contenuto().empty());
        EXPECT_TRUE(ambiente.Aperti.empty());
        EXPECT_FALSE(LibreriaAvviata());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    }
    Stampe::AmbienteInUso.Cedi = nullptr;
    Stampe::AmbienteInUso.Fermare = [] { return false; };
    std::int32_t misura = 0;
    cdtInit(misura, misura);
}

TEST_F(Finestra, ChiudereDuranteUnReportCompletoLoLasciaFinire)
{
    Stampe::AmbienteInUso.TagliaFatta = [this](std::int64_t taglia) {
        if (taglia == 1) {
            QMetaObject::invokeMethod(finestra.get(), &QWidget::close, Qt::QueuedConnection);
        }
    };
    Scegli(FormaTxt, false);
    Scrivi("4");
    Clicca("cmdTaglie");
    EXPECT_EQ(ambiente.Aperti.size(), 1U); // it was finished and opened
    EXPECT_TRUE(finestra->Chiusa());
    EXPECT_TRUE(ambiente.Cartella.Contenuto().empty());
}

TEST_F(Finestra, ChiudereConUnaDomandaApertaNonAvviaLaCorsa)
{
    Risponditore mano(QMessageBox::NoButton);
    mano.Guarda = [](QMessageBox&) { QApplication::closeAllWindows(); };
    Scegli(FormaTxt, true);
    Scrivi("10001");
    Clicca("cmdTaglie");
    EXPECT_TRUE(finestra->Chiusa());
    EXPECT_TRUE(ambiente.Aperti.empty());
    EXPECT_TRUE(ambiente.Cartella.Contenuto().empty());
}

// The answer comes when there is no window any more.
TEST_F(Finestra, UnSiDopoLaChiusuraNonAvviaLaCorsa)
{
    Risponditore mano(QMessageBox::Yes);
    mano.Guarda = [this](QMessageBox&) { EXPECT_TRUE(finestra->close()); };
    Scegli(FormaTxt, true);
    Scrivi("10001");
    const auto passi = registro->Passi.size();
    Clicca("cmdTaglie");
    EXPECT_EQ(mano.Visti.size(), 1U);
    EXPECT_TRUE(finestra->Chiusa());
    EXPECT_EQ(registro->Passi.size(), passi);
    EXPECT_TRUE(ambiente.Aperti.empty());
    EXPECT_TRUE(ambiente.Cartella.Contenuto().empty());
}

TEST_F(Finestra, UnaRichiestaDaFuoriFermaLaCorsa)
{
    Scegli(FormaTxt, true);
    Scrivi("9000");
    int fatte = 0;
    Stampe::AmbienteInUso.Cedi = [&] {
        if (++fatte == 4) ImpostaInterruzione(true);
        QCoreApplication::processEvents();
    };
    Clicca("cmdTaglie");
    ImpostaInterruzione(false);
    EXPECT_EQ(fatte, 4);
    EXPECT_TRUE(ambiente.Cartella.Contenuto().empty());
}

TEST_F(Finestra, UnReportCompletoVaFinoInFondo)
{
    for (const std::size_t forma : {FormaHtml, FormaPdf, FormaTxt}) {
        std::int64_t fatte = 0;
        Stampe::AmbienteInUso.TagliaFatta = [&](std::int64_t taglia) {
            fatte = taglia;
            ImpostaInterruzione(true);
            QTest::keyClick(finestra.get(), Qt::Key_Escape);
        };
        Scegli(forma, false);
        Scrivi("3");
        Clicca("cmdTaglie");
        ImpostaInterruzione(false);
        EXPECT_EQ(fatte, 3);
    }
    EXPECT_EQ(ambiente.Aperti.size(), 3U);
}

// ---- Failures --------------------------------------------------------------------------------

TEST_F(Finestra, UnGuastoDelReportFinisceIlProgramma)
{
    fs::create_directory(ambiente.Cartella.File("taglie.txt"));
    Crea(ambiente.Cartella.File("scalvino.htm"));
    Risponditore mano;
    Scegli(FormaTxt, false);
    EXPECT_EQ(Esegui([this] { Clicca("cmdTaglie"); }), 1);
    ASSERT_EQ(mano.Visti.size(), 1U);
    EXPECT_EQ(mano.Visti[0].Titolo, "Scalvino");
    EXPECT_EQ(mano.Visti[0].Icona, QMessageBox::Critical);
    EXPECT_EQ(mano.Visti[0].Pulsanti, std::vector<std::string>{"OK"});
    SiChiude(mano.Visti, "Errore 75: ");
    EXPECT_NE(mano.Visti[0].Testo.find("taglie.txt"), std::string::npos);
    EXPECT_TRUE(finestra->Chiusa());
    EXPECT_EQ(ambiente.Cartella.Contenuto(), std::vector<std::string>{"taglie.txt"});
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(Finestra, UnTestoIncollatoCheNonENumeroFinisceIlProgramma)
{
    Risponditore mano;
    QApplication::clipboard()->setText(QStringLiteral("dieci"));
    EXPECT_EQ(Esegui([this] { QTest::keyClick(Numero(), Qt::Key_Insert, Qt::ShiftModifier); }), 1);
    SiChiude(mano.Visti, "Errore 13: ");
    EXPECT_TRUE(finestra->Chiusa());
}

TEST_F(Finestra, UnGuastoInUnaTagliaFinisceIlProgrammaDopoAverSbloccato)
{
    Risponditore mano;
    Scegli(FormaHtml, true);
    Scrivi("5");
    Stampe::AmbienteInUso.PreparaTaglia = [](std::int64_t taglia) {
        if (taglia == 3) throw std::bad_alloc();
        modCarte::MescolaMazzo();
    };
    EXPECT_EQ(Esegui([this] { Clicca("cmdTaglie"); }), 1);
    SiChiude(mano.Visti, "Errore 7: ");
    EXPECT_TRUE(finestra->Chiusa());
    EXPECT_TRUE(ambiente.Cartella.Contenuto().empty());
}

// A failure out of an event that comes in the middle of a run.
TEST_F(Finestra, UnGuastoDuranteUnaCorsaLaFermaESiDiceUnaVoltaSola)
{
    Risponditore mano;
    Scegli(FormaTxt, true);
    Scrivi("9000");
    int fatte = 0;
    Stampe::AmbienteInUso.Cedi = [&] {
        if (++fatte == 4) {
            QTimer::singleShot(0, finestra.get(),
                               [this] { Numero()->setText(QStringLiteral("dieci")); });
        }
        QCoreApplication::processEvents();
    };
    EXPECT_EQ(Esegui([this] { Clicca("cmdTaglie"); }), 1);
    ASSERT_EQ(mano.Visti.size(), 1U);
    EXPECT_EQ(fatte, 4);
    EXPECT_TRUE(finestra->Chiusa());
    EXPECT_TRUE(ambiente.Cartella.Contenuto().empty());
    EXPECT_FALSE(LibreriaAvviata());
}

// The report fails, and then so does a closing step: the second follows from the first.
TEST_F(Finestra, DiDueGuastiSiDiceIlPrimo)
{
    const SenzaDiritti senza;
    CartellaDiProva chiusa;
    Crea(chiusa.File("scalvino.htm"));
    fs::permissions(chiusa.Nome(), fs::perms::owner_read | fs::perms::owner_exec);
    Stampe::AmbienteInUso.Cartella = chiusa.Nome();
    Risponditore mano;
    Scegli(FormaTxt, false);
    EXPECT_EQ(Esegui([this] { Clicca("cmdTaglie"); }), 1);
    ASSERT_EQ(mano.Visti.size(), 1U);
    EXPECT_NE(mano.Visti[0].Testo.find("taglie.txt"), std::string::npos) << mano.Visti[0].Testo;
    EXPECT_TRUE(finestra->Chiusa());
    EXPECT_FALSE(LibreriaAvviata());
    fs::permissions(chiusa.Nome(), fs::perms::owner_all);
}
