// The controls: kind, caption, place, container, tab order and initial state, row by row.

#include "Finestra.h"

#include <QFontInfo>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>
#include <map>

using namespace aiuti;

namespace {

// Places in pixels, worked out by hand: both edges rounded from twips.
struct Riga
{
    const char* Nome;
    const char* Genere;
    const char* Testo;
    const char* Contenitore;
    QRect Posto;
    int Tab;
    bool Abilitato;
};

const std::vector<Riga> Tabella = {
    {"cmdExit", "QPushButton", "Esci", "Form1", {697, 414, 79, 31}, 18, true},
    {"cmdHelp", "QPushButton", "Guida e regole", "Form1", {28, 412, 184, 31}, 17, true},
    {"picCard", "TavoloCarte", "", "Form1", {225, 21, 550, 388}, 11, true},
    {"Frame3", "QGroupBox", "Simula partita", "Form1", {28, 264, 184, 142}, 10, true},
    {"Picture2", "QWidget", "", "Frame3", {5, 15, 175, 123}, 13, true},
    {"cmdMescola", "QPushButton", "Mescola nuova taglia", "Picture2", {18, 11, 135, 27}, 16, true},
    {"cmdColpo", "QPushButton", "Colpo successivo --->", "Picture2", {18, 48, 135, 27}, 15, false},
    {"cmdCancel", "QPushButton", "Annulla taglia", "Picture2", {18, 86, 135, 27}, 14, false},
    {"Frame2", "QGroupBox", "Opzioni di visualizzazione", "Form1", {28, 74, 184, 144}, 4, true},
    {"chkStat", "QCheckBox", "Visualizza solo statistiche", "Frame2", {19, 117, 142, 18}, 9, true},
    {"Picture1", "QWidget", "", "Frame2", {3, 14, 177, 96}, 5, true},
    {"optStampa3", "QRadioButton", "Crea report a VIDEO", "Picture1", {15, 78, 150, 18}, 12, false},
    {"optStampa2", "QRadioButton", "Crea report in TXT", "Picture1", {15, 55, 150, 18}, 8, true},
    {"optStampa1", "QRadioButton", "Crea report in PDF", "Picture1", {15, 31, 150, 18}, 7, true},
    {"optStampa0", "QRadioButton", "Crea report in HTML", "Picture1", {15, 7, 150, 18}, 6, true},
    {"cmdTaglie", "QPushButton", "Simula taglia", "Form1", {28, 224, 184, 35}, 3, true},
    {"Frame1", "QGroupBox", "Taglie da simulare", "Form1", {28, 15, 184, 57}, 0, true},
    {"numTaglie", "QLineEdit", "1", "Frame1", {102, 20, 56, 21}, 1, true},
    {"Label1", "QLabel", "Numero taglie:", "Frame1", {20, 24, 68, 13}, 2, true},
    {"lblStatus", "QLabel", "", "Form1", {228, 421, 3, 13}, 19, true},
};

// Containers take no focus, so that their place in the chain shows nowhere.
bool Contenitore(const Riga& riga)
{
    return riga.Genere == std::string("QWidget") || riga.Genere == std::string("QGroupBox");
}

std::string Testo(const QWidget* widget)
{
    const QVariant testo = widget->property("text");
    const QVariant titolo = widget->property("title");
    return (titolo.isValid() ? titolo : testo).toString().toStdString();
}

} // namespace

TEST(Controlli, SonoQuelliDellaTabella)
{
    Form1 finestra;
    for (const auto& riga : Tabella) {
        SCOPED_TRACE(riga.Nome);
        const auto* widget = finestra.findChild<QWidget*>(QString::fromLatin1(riga.Nome));
        ASSERT_NE(widget, nullptr);
        EXPECT_STREQ(widget->metaObject()->className(), riga.Genere);
        EXPECT_EQ(Testo(widget), riga.Testo);
        EXPECT_EQ(widget->parentWidget()->objectName().toStdString(), riga.Contenitore);
        EXPECT_EQ(widget->geometry(), riga.Posto);
        EXPECT_EQ(widget->isEnabled(), riga.Abilitato);
        EXPECT_TRUE(widget->isVisibleTo(&finestra));
    }
    // And no others.
    std::size_t nostri = 0;
    for (const auto* widget : finestra.findChildren<QWidget*>()) {
        if (!widget->objectName().startsWith(QLatin1String("qt_"))) ++nostri;
    }
    EXPECT_EQ(nostri, Tabella.size());
}

TEST(Controlli, SonoCreatiNellOrdineDellaTabella)
{
    Form1 finestra;
    // Children of one container are listed as they were made.
    std::map<std::string, std::vector<std::string>> attesi;
    for (const auto& riga : Tabella) attesi[riga.Contenitore].push_back(riga.Nome);
    for (const auto& [contenitore, nomi] : attesi) {
        const QWidget* padre =
            contenitore == "Form1"
                ? &finestra
                : finestra.findChild<QWidget*>(QString::fromStdString(contenitore));
        std::vector<std::string> visti;
        for (const auto* figlio :
             padre->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            visti.push_back(figlio->objectName().toStdString());
        }
        EXPECT_EQ(visti, nomi) << contenitore;
    }
}

TEST(Controlli, LOrdineDiTabulazioneEQuelloDellaTabella)
{
    Form1 finestra;
    std::map<int, std::string> posti;
    for (const auto& riga : Tabella) {
        if (!Contenitore(riga)) posti[riga.Tab] = riga.Nome;
    }
    std::vector<std::string> attesi;
    for (const auto& [tab, nome] : posti) attesi.push_back(nome);
    std::vector<std::string> visti;
    const QWidget* primo = finestra.findChild<QWidget*>(QStringLiteral("numTaglie"));
    const QWidget* w = primo;
    do {
        const auto nome = w->objectName().toStdString();
        if (std::find(attesi.begin(), attesi.end(), nome) != attesi.end()) visti.push_back(nome);
        w = w->nextInFocusChain();
    } while (w != primo);
    EXPECT_EQ(visti, attesi);
}

TEST(Controlli, LaFinestraHaTitoloEMisuraFissa)
{
    const Form1 finestra;
    EXPECT_EQ(finestra.windowTitle(), QStringLiteral("Scalvino"));
    EXPECT_EQ(finestra.size(), QSize(784, 451));
    EXPECT_EQ(finestra.minimumSize(), finestra.maximumSize());
    EXPECT_FALSE(finestra.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
    EXPECT_TRUE(finestra.windowFlags().testFlag(Qt::WindowCloseButtonHint));
}

TEST(Controlli, AllInizioHtmlEScelto)
{
    Form1 finestra;
    for (int i = 0; i < 4; ++i) {
        const auto* opzione =
            finestra.findChild<QRadioButton*>(QStringLiteral("optStampa%1").arg(i));
        EXPECT_EQ(opzione->isChecked(), i == 0);
        // Tab finds the selected option only, wherever it is.
        EXPECT_EQ(opzione->focusPolicy(), i == 0 ? Qt::StrongFocus : Qt::ClickFocus);
    }
    EXPECT_FALSE(finestra.findChild<QCheckBox*>(QStringLiteral("chkStat"))->isChecked());
    EXPECT_FALSE(finestra.findChild<QCheckBox*>(QStringLiteral("chkStat"))->isTristate());
}

// The widths that a style leaves for text are its own; those of the controls are fixed. All faces
// that may draw them are measured with the one that does here.
TEST_F(Finestra, NessunaDidascaliaETagliata)
{
    for (const auto& riga : Tabella) {
        auto* widget = Trova(riga.Nome);
        SCOPED_TRACE(riga.Nome);
        const int serve = widget->fontMetrics().horizontalAdvance(QString::fromUtf8(riga.Testo));
        const std::string genere = riga.Genere;
        int resta = widget->width();
        QStyleOptionButton opzione;
        opzione.initFrom(widget);
        opzione.text = QString::fromUtf8(riga.Testo);
        if (genere == "QRadioButton" || genere == "QCheckBox") {
            const auto parte = genere == "QCheckBox" ? QStyle::SE_CheckBoxContents
                                                     : QStyle::SE_RadioButtonContents;
            resta = widget->style()->subElementRect(parte, &opzione, widget).width();
        } else if (genere == "QPushButton") {
            resta = widget->style()
                        ->subElementRect(QStyle::SE_PushButtonContents, &opzione, widget)
                        .width();
        } else if (genere == "QGroupBox") {
            resta -= 2 * 9;
        } else if (riga.Testo[0] == '\0') {
            continue;
        }
        EXPECT_LE(serve, resta);
        EXPECT_LE(widget->fontMetrics().ascent(), widget->height());
        EXPECT_EQ(QFontInfo(widget->font()).pixelSize(), 11);
    }
    for (const char* testo : {"Simula taglie"}) {
        EXPECT_LT(Pulsante("cmdTaglie")->fontMetrics().horizontalAdvance(testo), 180);
    }
}

TEST_F(Finestra, ChiLeggeLoSchermoTrovaINomi)
{
    EXPECT_EQ(Trova<QLabel>("Label1")->buddy(), Numero());
    auto* tavolo = Trova("picCard");
    EXPECT_EQ(tavolo->accessibleName(), QStringLiteral("Tavolo da gioco"));
    EXPECT_EQ(tavolo->focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(tavolo->accessibleDescription().toStdString(),
              "SCALVINO; Simulazione gioco e statistiche del Scalvino; Versione 1.0.0; "
              "Realizzato da Vellarmo");
    Clicca("cmdMescola");
    EXPECT_EQ(tavolo->accessibleDescription().toStdString(),
              "Nuova taglia; 5 carte annullate; "
              "Premi 'Colpo successivo --->' per iniziare la partita");
    Colpi({"0", "1,R,I,33,32,KC#KQ#KF#3P,KC#KQ#KF#2P", "2,,,0,0,,"});
    Clicca("cmdColpo");
    EXPECT_EQ(tavolo->accessibleDescription().toStdString(),
              "Colpo della taglia: 1; "
              "NERO: re di cuori, re di quadri, re di fiori, tre di picche, totale 33; "
              "ROSSO: re di cuori, re di quadri, re di fiori, due di picche, totale 32; "
              "Vincono ROSSO e INVERSO; "
              "Premi 'Colpo successivo --->' per proseguire nella partita");
}

TEST_F(Finestra, TabSaltaCioCheNonPrendeIlFuoco)
{
    std::vector<std::string> visti;
    Numero()->setFocus();
    for (int i = 0; i < 8; ++i) {
        visti.push_back(finestra->focusWidget()->objectName().toStdString());
        QTest::keyClick(finestra->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visti, (std::vector<std::string>{"numTaglie", "cmdTaglie", "optStampa0", "chkStat",
                                               "cmdMescola", "cmdHelp", "cmdExit", "numTaglie"}));
    Scegli(FormaVideo, true);
    Numero()->setFocus();
    visti.clear();
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(finestra->focusWidget(), Qt::Key_Tab);
        visti.push_back(finestra->focusWidget()->objectName().toStdString());
    }
    EXPECT_EQ(visti, (std::vector<std::string>{"cmdTaglie", "chkStat", "optStampa3", "cmdMescola",
                                               "cmdHelp", "cmdExit"}));
}

TEST_F(Finestra, LeFrecceScelgonoLaForma)
{
    const auto premi = [this](Qt::Key tasto) { QTest::keyClick(finestra->focusWidget(), tasto); };
    Opzione(FormaHtml)->setFocus();
    for (const std::size_t forma : {FormaPdf, FormaTxt}) {
        premi(Qt::Key_Down);
        EXPECT_EQ(finestra->focusWidget(), Opzione(forma));
        EXPECT_TRUE(Opzione(forma)->isChecked());
    }
    premi(Qt::Key_Down); // the report on screen is not offered yet
    EXPECT_FALSE(Opzione(FormaVideo)->isChecked());
    Scegli(FormaTxt, true);
    Opzione(FormaTxt)->setFocus();
    premi(Qt::Key_Down);
    EXPECT_EQ(finestra->focusWidget(), Opzione(FormaVideo));
    EXPECT_TRUE(Opzione(FormaVideo)->isChecked());
    premi(Qt::Key_Up);
    EXPECT_TRUE(Opzione(FormaTxt)->isChecked());
}
