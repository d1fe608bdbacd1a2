// The controls of the window: what they are, where they stand, how they begin.

#include "Caratteri.h"
#include "Form1.h"
#include "Misure.h"
#include "Testi.h"

#include <QStyle>

#include <algorithm>
#include <string>
#include <vector>

namespace {

enum class Tipo : std::uint8_t
{
    Pulsante,
    Tavolo,
    Cornice,
    Contenitore,
    Casella,
    Opzione,
    Campo,
    Etichetta,
    EtichettaStato,
};

enum class Inizio : std::uint8_t
{
    Abilitato,
    Disabilitato,
};

// Left, Top, Width, Height in twips relative to the container; empty container: the window.
struct Controllo
{
    const char* Nome;
    Tipo Genere;
    const char* Testo;
    const char* Contenitore;
    int Left, Top, Width, Height;
    int Tab;
    Inizio Stato = Inizio::Abilitato;
};

// In creation order: a container stands before what it contains.
constexpr std::array<Controllo, 20> Controlli = {{
    {"cmdExit", Tipo::Pulsante, "Esci", "", 10455, 6210, 1185, 465, 18},
    {"cmdHelp", Tipo::Pulsante, "Guida e regole", "", 420, 6180, 2760, 465, 17},
    {"picCard", Tipo::Tavolo, "", "", 3375, 315, 8250, 5820, 11},
    {"Frame3", Tipo::Cornice, "Simula partita", "", 420, 3960, 2760, 2130, 10},
    {"Picture2", Tipo::Contenitore, "", "Frame3", 75, 225, 2625, 1845, 13},
    {"cmdMescola", Tipo::Pulsante, "Mescola nuova taglia", "Picture2", 270, 165, 2025, 405, 16},
    {"cmdColpo", Tipo::Pulsante, "Colpo successivo --->", "Picture2", 270, 720, 2025, 405, 15,
     Inizio::Disabilitato},
    {"cmdCancel", Tipo::Pulsante, "Annulla taglia", "Picture2", 270, 1290, 2025, 405, 14,
     Inizio::Disabilitato},
    {"Frame2", Tipo::Cornice, "Opzioni di visualizzazione", "", 420, 1110, 2760, 2160, 4},
    {"chkStat", Tipo::Casella, "Visualizza solo statistiche", "Frame2", 285, 1755, 2130, 270, 9},
    {"Picture1", Tipo::Contenitore, "", "Frame2", 45, 210, 2655, 1440, 5},
    {"optStampa3", Tipo::Opzione, "Crea report a VIDEO", "Picture1", 225, 1170, 2250, 270, 12,
     Inizio::Disabilitato},
    {"optStampa2", Tipo::Opzione, "Crea report in TXT", "Picture1", 225, 825, 2250, 270, 8},
    {"optStampa1", Tipo::Opzione, "Crea report in PDF", "Picture1", 225, 465, 2250, 270, 7},
    {"optStampa0", Tipo::Opzione, "Crea report in HTML", "Picture1", 225, 105, 2250, 270, 6},
    {"cmdTaglie", Tipo::Pulsante, "Simula taglia", "", 420, 3360, 2760, 525, 3},
    {"Frame1", Tipo::Cornice, "Taglie da simulare", "", 420, 225, 2760, 855, 0},
    {"numTaglie", Tipo::Campo, "1", "Frame1", 1530, 300, 840, 315, 1},
    {"Label1", Tipo::Etichetta, "Numero taglie:", "Frame1", 300, 360, 1020, 195, 2},
    {"lblStatus", Tipo::EtichettaStato, "", "", 3420, 6315, 45, 195, 19},
}};

// The title stands in the frame's upper line, as the fixed positions inside the frames expect. The
// line is seen on light and dark desktops alike, which no colour of the palette promises.
constexpr const char* StileCornice =
    "QGroupBox { border: 1px solid #8c8c8c; border-radius: 3px; margin-top: 7px; }"
    "QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 7px;"
    " padding: 0 2px; }";

// The captions were measured in this size; the desktop's own font would cut them.
constexpr int PixelControlli = 11;

QPushButton* CreaPulsante(const QString& testo, QWidget* padre)
{
    auto* pulsante = new QPushButton(testo, padre);
    pulsante->setAutoDefault(true); // Enter presses the button that has the focus
    return pulsante;
}

QGroupBox* CreaCornice(const QString& testo, QWidget* padre)
{
    auto* cornice = new QGroupBox(testo, padre);
    cornice->setStyleSheet(QString::fromUtf8(StileCornice));
    return cornice;
}

QLineEdit* CreaCampo(const QString& testo, QWidget* padre)
{
    auto* campo = new QLineEdit(testo, padre);
    campo->setInputMethodHints(Qt::ImhDigitsOnly);
    campo->setAcceptDrops(false); // only keys and the clipboard fill the field
    return campo;
}

QWidget* Crea(Tipo tipo, const QString& testo, QWidget* padre)
{
    switch (tipo) {
    case Tipo::Pulsante:
        return CreaPulsante(testo, padre);
    case Tipo::Tavolo:
        return new TavoloCarte(padre);
    case Tipo::Cornice:
        return CreaCornice(testo, padre);
    case Tipo::Contenitore:
        return new QWidget(padre);
    case Tipo::Casella:
        return new QCheckBox(testo, padre);
    case Tipo::Opzione:
        return new QRadioButton(testo, padre);
    case Tipo::Campo:
        return CreaCampo(testo, padre);
    default:
        return new QLabel(testo, padre);
    }
}

// Edges are rounded, not widths, so that neighbours meet.
QRect Posto(const Controllo& controllo)
{
    const int sinistra = Pixel(controllo.Left);
    const int cima = Pixel(controllo.Top);
    return {sinistra, cima, Pixel(controllo.Left + controllo.Width) - sinistra,
            Pixel(controllo.Top + controllo.Height) - cima};
}

QFont Allungato(QFont font, int percento)
{
    font.setStretch(percento);
    return font;
}

} // namespace

void Form1::CreaControlli()
{
    setFont(caratteri::Font("Arial", PesoNormale, PixelControlli));
    for (const auto& controllo : Controlli) {
        QWidget* padre = *controllo.Contenitore == '\0'
                             ? this
                             : findChild<QWidget*>(QString::fromLatin1(controllo.Contenitore));
        QWidget* widget = Crea(controllo.Genere, QString::fromUtf8(controllo.Testo), padre);
        widget->setObjectName(QString::fromLatin1(controllo.Nome));
        widget->setGeometry(Posto(controllo));
        widget->setFont(font()); // a frame with a style sheet passes none on
        widget->setEnabled(controllo.Stato == Inizio::Abilitato);
    }
    const auto prendi = [this](auto*& membro, const char* nome) {
        membro = findChild<std::remove_reference_t<decltype(membro)>>(QString::fromLatin1(nome));
    };
    prendi(cmdExit, "cmdExit");
    prendi(cmdHelp, "cmdHelp");
    prendi(picCard, "picCard");
    prendi(Frame3, "Frame3");
    prendi(cmdMescola, "cmdMescola");
    prendi(cmdColpo, "cmdColpo");
    prendi(cmdCancel, "cmdCancel");
    prendi(Frame2, "Frame2");
    prendi(chkStat, "chkStat");
    for (std::size_t i = 0; i < NumeroForme; ++i) {
        prendi(optStampa[i], ("optStampa" + std::to_string(i)).c_str());
    }
    prendi(cmdTaglie, "cmdTaglie");
    prendi(Frame1, "Frame1");
    prendi(numTaglie, "numTaglie");
    prendi(Label1, "Label1");
    prendi(lblStatus, "lblStatus");

    // These two captions alone are a little wider than their places.
    constexpr int strettaEtichetta = 95;
    constexpr int strettaCasella = 94;
    Label1->setFont(Allungato(font(), strettaEtichetta));
    chkStat->setFont(Allungato(font(), strettaCasella));
    Label1->setBuddy(numTaglie); // a screen reader reads the label with the field
    lblStatus->setTextFormat(Qt::PlainText);
}

void Form1::OrdinaFuoco()
{
    auto ordinati = Controlli;
    std::sort(ordinati.begin(), ordinati.end(),
              [](const Controllo& uno, const Controllo& altro) { return uno.Tab < altro.Tab; });
    std::vector<std::pair<QWidget*, Qt::FocusPolicy>> catena;
    for (const auto& controllo : ordinati) {
        // Qt moves a container with all that is in it, and it takes no focus anyway.
        if (controllo.Genere == Tipo::Cornice || controllo.Genere == Tipo::Contenitore) continue;
        auto* widget = findChild<QWidget*>(QString::fromLatin1(controllo.Nome));
        catena.emplace_back(widget, widget->focusPolicy());
        // Qt orders only what takes the focus; labels and table have their places, too.
        widget->setFocusPolicy(Qt::StrongFocus);
    }
    for (std::size_t i = 1; i < catena.size(); ++i) {
        setTabOrder(catena[i - 1].first, catena[i].first);
    }
    for (const auto& [widget, politica] : catena) widget->setFocusPolicy(politica);
    // Tab enters the group at the selected option, not at the first one.
    for (auto* opzione : optStampa) {
        const auto segui = [opzione](bool scelta) {
            opzione->setFocusPolicy(scelta ? Qt::StrongFocus : Qt::ClickFocus);
        };
        connect(opzione, &QRadioButton::toggled, this, segui);
        segui(false);
    }
    optStampa[FormaHtml]->setChecked(true);
}
