// The batch run: limits, the lock on all commands, the reports, progress, stopping, errors.

#include "Finestra.h"

#include "ErroreRuntime.h"
#include "Stampe.h"
#include "modCarte.h"

#include <QApplication>
#include <QEvent>

#include <gmock/gmock.h>

#include <fstream>
#include <map>

using namespace aiuti;
using R = Registratore;

namespace {

using Nomi = std::vector<std::string>;

const Riquadro Domanda = {"Scalvino",
                          "Oltre le 10.000 taglie si rischiano lunghi tempi di attesa e si stressa "
                          "la memoria.\nVuoi comunque continuare?",
                          QMessageBox::Question,
                          {"Sì", "No"},
                          "Sì"};

const char* const NomeForma[] = {"HTML", "PDF", "TXT"};
const int Massimo[] = {50, 20, 500};
const char* const NomeReport[] = {"taglie.htm", "taglie.pdf", "taglie.txt"};

// In the order in which they are locked.
const Nomi Comandi = {"Label1",     "numTaglie", "optStampa0", "optStampa1",
                      "optStampa2", "chkStat",   "cmdTaglie",  "cmdMescola",
                      "cmdColpo",   "cmdCancel", "cmdHelp",    "cmdExit",
                      "Frame1",     "Frame2",    "Frame3",     "optStampa3"};

// Notes which controls are switched on or off, in order.
class Interruttori : public QObject
{
public:
    explicit Interruttori(Form1& finestra)
    {
        for (auto* widget : finestra.findChildren<QWidget*>()) {
            stato[widget] = acceso(widget);
            widget->installEventFilter(this);
        }
    }
    Nomi Spenti;
    Nomi Accesi;

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override
    {
        auto* widget = static_cast<QWidget*>(oggetto);
        if (evento->type() == QEvent::EnabledChange && acceso(widget) != stato[widget]) {
            stato[widget] = acceso(widget);
            (stato[widget] ? Accesi : Spenti).push_back(widget->objectName().toStdString());
        }
        return false;
    }

private:
    // What was asked for the control itself, whatever becomes of its container.
    static bool acceso(QWidget* widget) { return !widget->testAttribute(Qt::WA_ForceDisabled); }
    std::map<QWidget*, bool> stato;
};

} // namespace

TEST_F(Finestra, ILimitiDeiReportCompleti)
{
    for (std::size_t forma = 0; forma < 3; ++forma) {
        SCOPED_TRACE(NomeForma[forma]);
        Scegli(forma, false);
        Risponditore mano;
        const auto massimo = std::to_string(Massimo[forma]);
        for (const auto& sotto : {std::to_string(Massimo[forma] - 1), massimo}) {
            ambiente.Aperti.clear();
            Scrivi(sotto);
            Clicca("cmdTaglie");
            EXPECT_EQ(ambiente.Aperti, (Nomi{ambiente.Cartella.Nome() + NomeReport[forma]}));
            EXPECT_EQ(Numero()->text().toStdString(), sotto);
        }
        EXPECT_TRUE(mano.Visti.empty());
        ambiente.Aperti.clear();
        for (const char* sopra : {"501", "99999999999999999999"}) {
            const auto disegnati = registro->Passi.size();
            mano.Visti.clear();
            Scrivi(sopra);
            Clicca("cmdTaglie");
            EXPECT_EQ(mano.Visti,
                      (std::vector{Esclamazione(std::string("Il numero massimo di taglie "
                                                            "visualizzabili in ") +
                                                NomeForma[forma] + " è " + massimo)}));
            EXPECT_EQ(Numero()->text().toStdString(), massimo);
            EXPECT_TRUE(ambiente.Aperti.empty());
            EXPECT_EQ(registro->Passi.size(), disegnati);
            EXPECT_EQ(Stato(), "");
        }
        Scrivi(std::to_string(Massimo[forma] + 1));
        Clicca("cmdTaglie");
        EXPECT_EQ(Numero()->text().toStdString(), massimo);
        // Pressing again runs the corrected number.
        mano.Visti.clear();
        Clicca("cmdTaglie");
        EXPECT_TRUE(mano.Visti.empty());
        EXPECT_EQ(ambiente.Aperti.size(), 1U);
    }
}

TEST_F(Finestra, LaDomandaOltreLeDiecimila)
{
    for (std::size_t forma = 0; forma < FormaNessuna; ++forma) {
        Scegli(forma, true);
        Risponditore no(QMessageBox::No);
        Scrivi("10001");
        Clicca("cmdTaglie");
        EXPECT_EQ(no.Visti, std::vector{Domanda});
        EXPECT_EQ(Numero()->text(), QStringLiteral("10001"));
        EXPECT_TRUE(ambiente.Aperti.empty());
        EXPECT_EQ(registro->Passi, SchermataTitolo());
    }
    Scegli(FormaTxt, true);
    {
        Risponditore chiuso(QMessageBox::NoButton); // closed without a button
        Clicca("cmdTaglie");
        EXPECT_EQ(chiuso.Visti.size(), 1U);
        EXPECT_TRUE(ambiente.Aperti.empty());
    }
    Risponditore si(QMessageBox::Yes);
    Clicca("cmdTaglie");
    EXPECT_EQ(ambiente.Aperti.size(), 1U);
    EXPECT_EQ(Numero()->text(), QStringLiteral("10001"));
    si.Visti.clear();
    Scrivi("10000");
    Clicca("cmdTaglie");
    EXPECT_TRUE(si.Visti.empty());
    EXPECT_EQ(ambiente.Aperti.size(), 2U);
}

// Beyond checked and unchecked, the box may be neither: statistics, but no question.
TEST_F(Finestra, NeSpuntataNoVuotaValeComeSpuntata)
{
    Risponditore mano;
    Scegli(FormaTxt, false);
    Statistiche()->setTristate(true);
    Statistiche()->setCheckState(Qt::PartiallyChecked);
    EXPECT_FALSE(Opzione(FormaVideo)->isEnabled());
    Scrivi("10001");
    Clicca("cmdTaglie");
    EXPECT_TRUE(mano.Visti.empty());
    EXPECT_EQ(Byte(ambiente.Cartella.File("taglie.txt")).find("Taglia 1"), std::string::npos);
    EXPECT_FALSE(Opzione(FormaVideo)->isEnabled());
}

TEST_F(Finestra, DuranteLaCorsaTuttoEBloccato)
{
    Scegli(FormaTxt, true);
    Scrivi("3");
    Interruttori interruttori(*finestra);
    int fatte = 0;
    Stampe::AmbienteInUso.Cedi = [&] {
        ++fatte;
        for (const auto& nome : Comandi) EXPECT_FALSE(Trova(nome.c_str())->isEnabled()) << nome;
        EXPECT_TRUE(Trova("picCard")->isEnabled());
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        EXPECT_EQ(Stato(),
                  "Elaborazione in corso. Attendere... Taglia " + std::to_string(fatte) + " di 3");
        EXPECT_EQ(registro->Passi.back(), "aggiorna");
        EXPECT_EQ(registro->UltimaSchermata(), SchermataTitolo());
        for (const auto& nome : Comandi) Clicca(nome.c_str());
        QCoreApplication::processEvents();
    };
    Clicca("cmdTaglie");
    EXPECT_EQ(fatte, 3);
    Nomi attesi = Comandi;
    attesi.erase(attesi.begin() + 8, attesi.begin() + 10); // were locked already
    attesi.pop_back();                                     // locked with its frame
    EXPECT_EQ(interruttori.Spenti, attesi);
    // Unlocked with their frames, so in another order.
    EXPECT_THAT(interruttori.Accesi, testing::UnorderedElementsAreArray(attesi));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(Stato(), "");
    EXPECT_EQ(Gioco(), "100");
    EXPECT_TRUE(Opzione(FormaVideo)->isEnabled());
    EXPECT_EQ(ambiente.Aperti.size(), 1U);
}

TEST_F(Finestra, UnReportCompletoTieneIlTestoDelComando)
{
    Scegli(FormaTxt, false);
    std::string stato;
    Stampe::AmbienteInUso.TagliaFatta = [&](std::int64_t) { stato = Stato(); };
    Clicca("cmdTaglie");
    EXPECT_EQ(stato, "Elaborazione taglie in corso. Attendere...");
    EXPECT_FALSE(Opzione(FormaVideo)->isEnabled());
}

TEST_F(Finestra, UnClicDuranteUnReportCompletoTrovaTuttoBloccato)
{
    Scegli(FormaTxt, false);
    Stampe::AmbienteInUso.TagliaFatta = [&](std::int64_t) {
        // As the window system would: it waits until somebody asks for events.
        for (const char* nome : {"cmdTaglie", "cmdMescola", "cmdHelp"}) {
            auto* widget = Trova(nome);
            const QPointF posto(5, 5);
            for (const auto tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QCoreApplication::postEvent(widget,
                                            new QMouseEvent(tipo, posto, widget->mapToGlobal(posto),
                                                            Qt::LeftButton, Qt::LeftButton, {}));
            }
        }
    };
    Clicca("cmdTaglie");
    QCoreApplication::processEvents();
    EXPECT_EQ(ambiente.Aperti.size(), 1U);
    EXPECT_EQ(Gioco(), "100");
}

TEST_F(Finestra, UnaCorsaAMetaPartitaLaFinisce)
{
    for (int colpi = 0; colpi < 3; ++colpi) {
        Clicca("cmdMescola");
        for (int i = 0; i < colpi; ++i) Clicca("cmdColpo");
        Scegli(FormaTxt, false);
        Clicca("cmdTaglie");
        EXPECT_EQ(Gioco(), "100");
        EXPECT_EQ(Stato(), "");
        EXPECT_EQ(registro->UltimaSchermata(), SchermataTitolo());
    }
    Clicca("cmdMescola");
    Clicca("cmdColpo");
    EXPECT_EQ(registro->Testi()[2], "Colpo della taglia: 1");
}

TEST_F(Finestra, UnaCorsaDopoLaFineDellaTagliaRiportaAllInizio)
{
    Clicca("cmdMescola");
    Colpi({"0", "1,,,32,27,KP#9C#5F#8Q,10F#QC#7P"});
    Clicca("cmdColpo");
    ASSERT_EQ(Gioco(), "001");
    Scegli(FormaTxt, false);
    Clicca("cmdTaglie");
    EXPECT_EQ(Gioco(), "100");
    EXPECT_EQ(Stato(), "");
    EXPECT_EQ(registro->UltimaSchermata(), SchermataTitolo());
}

TEST_F(Finestra, UnaCorsaRifiutataLasciaLaPartita)
{
    Risponditore mano;
    Clicca("cmdMescola");
    Scrivi("51");
    Clicca("cmdTaglie");
    EXPECT_EQ(Gioco(), "011");
    Clicca("cmdColpo");
    EXPECT_EQ(registro->Testi()[2], "Colpo della taglia: 1");
}

TEST_F(Finestra, DopoLaCorsaIlFuocoTornaDovEra)
{
    Scegli(FormaTxt, false);
    for (const char* nome : {"cmdTaglie", "numTaglie", "cmdHelp"}) {
        Trova(nome)->setFocus();
        Pulsante("cmdTaglie")->click();
        EXPECT_EQ(finestra->focusWidget(), Trova(nome));
    }
    Clicca("cmdMescola");
    Pulsante("cmdColpo")->setFocus();
    Pulsante("cmdTaglie")->click();
    EXPECT_EQ(finestra->focusWidget(), Pulsante("cmdMescola"));
}

TEST_F(Finestra, EscFermaUnaCorsaDiStatistiche)
{
    for (const std::size_t forma : {FormaHtml, FormaPdf, FormaTxt, FormaVideo}) {
        SCOPED_TRACE(forma);
        Scegli(forma, true);
        Scrivi("9000");
        int fatte = 0;
        Stampe::AmbienteInUso.Cedi = [&] {
            if (++fatte == 5) QTest::keyClick(finestra->windowHandle(), Qt::Key_Escape);
            QCoreApplication::processEvents();
        };
        Clicca("cmdTaglie");
        EXPECT_EQ(fatte, 5);
        EXPECT_TRUE(ambiente.Aperti.empty());
        EXPECT_TRUE(ambiente.Cartella.Contenuto().empty());
        EXPECT_EQ(Stato(), "");
        EXPECT_EQ(Gioco(), "100");
        EXPECT_TRUE(Pulsante("cmdTaglie")->isEnabled());
        EXPECT_EQ(registro->UltimaSchermata(), SchermataTitolo());
        // And only that run.
        fatte = 1000;
        Scrivi("2");
        Clicca("cmdTaglie");
        EXPECT_EQ(fatte, 1002);
        for (const auto& nome : ambiente.Cartella.Contenuto()) {
            std::filesystem::remove(ambiente.Cartella.File(nome));
        }
        ambiente.Aperti.clear();
    }
}

TEST_F(Finestra, SottoUnoSiDiceESiContinua)
{
    // The run is over when the message comes: nothing says "wait" any more.
    const auto finito = [this](QMessageBox&) {
        EXPECT_EQ(Stato(), "");
        EXPECT_TRUE(Pulsante("cmdTaglie")->isEnabled());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    };
    for (const char* testo : {"00", "-5", "0,4"}) {
        Risponditore mano;
        mano.Guarda = finito;
        Numero()->setText(QString::fromLatin1(testo));
        Scegli(FormaTxt, false);
        Clicca("cmdTaglie");
        ASSERT_EQ(mano.Visti.size(), 1U);
        EXPECT_EQ(mano.Visti[0].Titolo, "Scalvino");
        EXPECT_EQ(mano.Visti[0].Testo, "Errore 5: Chiamata o valore non validi.\nnumero di taglie\n"
                                       "deve essere almeno 1");
        EXPECT_EQ(mano.Visti[0].Icona, QMessageBox::Warning);
        EXPECT_EQ(mano.Visti[0].Pulsanti, Nomi{"OK"});
        EXPECT_TRUE(finestra->isVisible());
        EXPECT_EQ(Gioco(), "100");
        EXPECT_TRUE(Pulsante("cmdTaglie")->isEnabled());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_TRUE(ambiente.Aperti.empty());
        EXPECT_EQ(Stato(), "");
    }
}

// Whole numbers end at 2^53, numbers at all some 300 digits later.
TEST_F(Finestra, TroppeTaglieSiDiconoESiContinua)
{
    const std::string tanti(400, '9');
    for (const auto& testo : {std::string("9007199254740993000"), tanti, std::string("1e999")}) {
        for (std::size_t forma = 0; forma < FormaNessuna; ++forma) {
            Scegli(forma, true);
            Risponditore mano(QMessageBox::Yes);
            Numero()->setText(QString::fromStdString(testo));
            EXPECT_EQ(Pulsante("cmdTaglie")->text(), QStringLiteral("Simula taglie"));
            Clicca("cmdTaglie");
            ASSERT_FALSE(mano.Visti.empty());
            EXPECT_EQ(mano.Visti.back(), Esclamazione("Errore 6: Overflow.\nnumero di taglie\n"
                                                      "può essere al massimo 9007199254740992"));
            EXPECT_TRUE(finestra->isVisible());
            EXPECT_TRUE(Pulsante("cmdTaglie")->isEnabled());
            EXPECT_EQ(Numero()->text().toStdString(), testo);
            EXPECT_EQ(Stato(), "");
        }
    }
    EXPECT_TRUE(ambiente.Aperti.empty());
    Numero()->setText(QStringLiteral("-1e999"));
    EXPECT_EQ(Pulsante("cmdTaglie")->text(), QStringLiteral("Simula taglia"));
}

TEST_F(Finestra, UnaDivisionePerZeroSiDiceESiContinua)
{
    Risponditore mano;
    mano.Guarda = [this](QMessageBox&) { EXPECT_EQ(Stato(), ""); };
    // A shoe of which the full text report shows no coup: it cannot be dealt, only pretended.
    Stampe::AmbienteInUso.TagliaFatta = [](std::int64_t) {
        throw ErroreRuntime(NumeroErrore::DivisionePerZero);
    };
    Clicca("cmdTaglie");
    ASSERT_EQ(mano.Visti.size(), 1U);
    EXPECT_TRUE(mano.Visti[0].Testo.starts_with("Errore 11: "));
    EXPECT_TRUE(finestra->isVisible());
    EXPECT_TRUE(Pulsante("cmdTaglie")->isEnabled());
}

TEST_F(Finestra, IlNumeroSiLeggeConISegniDellUtente)
{
    Scegli(FormaTxt, false);
    Numero()->setText(QStringLiteral("2,5"));
    Clicca("cmdTaglie");
    EXPECT_EQ(ambiente.Aperti.size(), 1U); // halves to even: two shoes
    const auto testo = Byte(ambiente.Cartella.File("taglie.txt"));
    EXPECT_NE(testo.find("Taglia 2\r"), std::string::npos);
    EXPECT_EQ(testo.find("Taglia 3\r"), std::string::npos);
    // The limit reads only the start, up to what is no digit or point to it.
    Numero()->setText(QStringLiteral("1.000"));
    EXPECT_EQ(Pulsante("cmdTaglie")->text(), QStringLiteral("Simula taglie"));
}

TEST_F(Finestra, UnPdfOccupatoSiDiceENonSiTocca)
{
    Risponditore mano;
    const auto percorso = ambiente.Cartella.File("taglie.pdf");
    std::ofstream(percorso) << "vecchio";
    const std::ifstream lettore(percorso); // as a viewer holds it
    Scegli(FormaPdf, false);
    Clicca("cmdTaglie");
    EXPECT_EQ(Byte(percorso), "vecchio");
    EXPECT_TRUE(ambiente.Aperti.empty());
    EXPECT_TRUE(Pulsante("cmdTaglie")->isEnabled());
    EXPECT_EQ(Stato(), "");
    EXPECT_EQ(mano.Visti, (std::vector{Riquadro{"Ombrivento",
                                                "Il file è già aperto e in uso.\nChiudere il file "
                                                "aperto e rilanciare la stampa.",
                                                QMessageBox::Information,
                                                {"OK"},
                                                "OK"}}));
}
