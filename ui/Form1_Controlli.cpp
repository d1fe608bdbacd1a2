// The controls of the window: what they are, where they stand, how they begin. What becomes of them
// later stands in Form1_Stato.cpp.

#include "Caratteri.h"
#include "Form1.h"
#include "Misure.h"
#include "RigheGenerali.h"
#include "Scritte.h"
#include "Testi.h"

#include <QStyle>

#include <algorithm>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace {

enum class Inizio : std::uint8_t
{
    Abilitato,
    Disabilitato,
};

constexpr auto NellaFinestra = std::nullopt;

// Of all four; each adds its index.
constexpr const char* Opzioni = "optStampa";

} // namespace

// A row of the table of controls.
struct Form1::Controllo
{
    // One of the options, by the form of report that it stands for.
    struct Opzione
    {
        std::size_t Forma;
    };

    // The member that points to the control; its type says what kind of control it is.
    template <typename Tipo>
    using A = Tipo* Form1::*;
    using Membro = std::variant<A<QPushButton>, A<TavoloCarte>, A<QGroupBox>, A<QWidget>,
                                A<QCheckBox>, A<QLineEdit>, A<QLabel>, Opzione>;

    const char* Nome;
    Membro Dove;
    std::string_view Testo;
    std::optional<Membro> Contenitore;
    int Left, Top, Width, Height; // twips, relative to the container
    int Tab;
    Inizio Stato = Inizio::Abilitato;

    template <typename Tipo>
    static Tipo*& Puntatore(Form1& finestra, A<Tipo> membro)
    {
        return finestra.*membro;
    }
    static QRadioButton*& Puntatore(Form1& finestra, Opzione opzione)
    {
        return finestra.optStampa.at(opzione.Forma);
    }

    static QWidget* Widget(Form1& finestra, const Membro& membro)
    {
        const auto trova = [&](auto quale) -> QWidget* { return Puntatore(finestra, quale); };
        return std::visit(trova, membro);
    }

    // Qt moves a container with all that is in it, and it takes no focus anyway.
    bool Contiene() const
    {
        return std::holds_alternative<A<QGroupBox>>(Dove) ||
               std::holds_alternative<A<QWidget>>(Dove);
    }

    QString NomeOggetto() const
    {
        const auto* opzione = std::get_if<Opzione>(&Dove);
        const QString nome = QString::fromLatin1(Nome);
        return opzione == nullptr ? nome : nome + QString::number(opzione->Forma);
    }

    void CreaIn(Form1& finestra) const;

    static const std::array<Controllo, 20> Tutti;
};

// A macro, since only it makes a text of a member's name: the two cannot differ.
#define MEMBRO(nome) #nome, &Form1::nome

// In creation order: a container stands before what it contains.
constexpr std::array<Form1::Controllo, 20> Form1::Controllo::Tutti = {{
    {MEMBRO(cmdExit), "Esci", NellaFinestra, 10455, 6210, 1185, 465, 18},
    {MEMBRO(cmdHelp), "Guida e regole", NellaFinestra, 420, 6180, 2760, 465, 17},
    {MEMBRO(picCard), "", NellaFinestra, 3375, 315, 8250, 5820, 11},
    {MEMBRO(Frame3), "Simula partita", NellaFinestra, 420, 3960, 2760, 2130, 10},
    {MEMBRO(Picture2), "", &Form1::Frame3, 75, 225, 2625, 1845, 13},
    {MEMBRO(cmdMescola), "Mescola nuova taglia", &Form1::Picture2, 270, 165, 2025, 405, 16},
    {MEMBRO(cmdColpo), ColpoSuccessivo, &Form1::Picture2, 270, 720, 2025, 405, 15,
     Inizio::Disabilitato},
    {MEMBRO(cmdCancel), AnnullaTaglia, &Form1::Picture2, 270, 1290, 2025, 405, 14,
     Inizio::Disabilitato},
    {MEMBRO(Frame2), "Opzioni di visualizzazione", NellaFinestra, 420, 1110, 2760, 2160, 4},
    {MEMBRO(chkStat), "Visualizza solo statistiche", &Form1::Frame2, 285, 1755, 2130, 270, 9},
    {MEMBRO(Picture1), "", &Form1::Frame2, 45, 210, 2655, 1440, 5},
    {Opzioni, Opzione{FormaVideo}, "Crea report a VIDEO", &Form1::Picture1, 225, 1170, 2250, 270,
     12, Inizio::Disabilitato},
    {Opzioni, Opzione{FormaTxt}, "Crea report in TXT", &Form1::Picture1, 225, 825, 2250, 270, 8},
    {Opzioni, Opzione{FormaPdf}, "Crea report in PDF", &Form1::Picture1, 225, 465, 2250, 270, 7},
    {Opzioni, Opzione{FormaHtml}, "Crea report in HTML", &Form1::Picture1, 225, 105, 2250, 270, 6},
    {MEMBRO(cmdTaglie), SimulaUna, NellaFinestra, 420, 3360, 2760, 525, 3},
    {MEMBRO(Frame1), "Taglie da simulare", NellaFinestra, 420, 225, 2760, 855, 0},
    {MEMBRO(numTaglie), UnaTaglia, &Form1::Frame1, 1530, 300, 840, 315, 1},
    {MEMBRO(Label1), Stampe::EtichettaNumero, &Form1::Frame1, 300, 360, 1020, 195, 2},
    {MEMBRO(lblStatus), "", NellaFinestra, 3420, 6315, 45, 195, 19},
}};

#undef MEMBRO

namespace {

// The title stands in the frame's upper line, as the fixed positions inside the frames expect. The
// line is seen on light and dark desktops alike, which no colour of the palette promises.
constexpr const char* StileCornice =
    "QGroupBox { border: 1px solid #8c8c8c; border-radius: 3px; margin-top: 7px; }"
    "QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 7px;"
    " padding: 0 2px; }";

// The captions were measured in this size; the desktop's own font would cut them.
constexpr int PixelControlli = 11;

template <typename Tipo>
Tipo* Crea(std::string_view testo, QWidget* padre)
{
    if constexpr (std::is_constructible_v<Tipo, QString, QWidget*>) {
        return new Tipo(InQt(testo), padre);
    } else {
        return new Tipo(padre);
    }
}

void Prepara(QWidget& /*di nessun tipo qui sotto*/) {}

void Prepara(QPushButton& pulsante)
{
    pulsante.setAutoDefault(true); // Enter presses the button that has the focus
}

void Prepara(QGroupBox& cornice)
{
    cornice.setStyleSheet(QString::fromUtf8(StileCornice));
}

void Prepara(QLineEdit& campo)
{
    campo.setInputMethodHints(Qt::ImhDigitsOnly);
    campo.setAcceptDrops(false); // only keys and the clipboard fill the field
}

// Edges are rounded, not widths, so that neighbours meet.
QRect Posto(int left, int top, int width, int height)
{
    const int sinistra = Pixel(left);
    const int cima = Pixel(top);
    return {sinistra, cima, Pixel(left + width) - sinistra, Pixel(top + height) - cima};
}

QFont Stretto(QFont font, int percento)
{
    font.setStretch(percento);
    return font;
}

// Tab enters the group at the selected option, not at the first one.
void FermaTabSeScelta(QRadioButton* opzione)
{
    const auto segui = [opzione](bool scelta) {
        opzione->setFocusPolicy(scelta ? Qt::StrongFocus : Qt::ClickFocus);
    };
    QObject::connect(opzione, &QRadioButton::toggled, opzione, segui);
    segui(false);
}

} // namespace

void Form1::Controllo::CreaIn(Form1& finestra) const
{
    const auto crea = [&](auto membro) -> QWidget* {
        auto*& puntatore = Puntatore(finestra, membro);
        using Tipo = std::remove_pointer_t<std::remove_reference_t<decltype(puntatore)>>;
        puntatore = Crea<Tipo>(Testo, Contenitore ? Widget(finestra, *Contenitore) : &finestra);
        Prepara(*puntatore);
        return puntatore;
    };
    QWidget* widget = std::visit(crea, Dove);
    widget->setObjectName(NomeOggetto());
    widget->setGeometry(Posto(Left, Top, Width, Height));
    widget->setFont(finestra.font()); // a frame with a style sheet passes none on
    widget->setEnabled(Stato == Inizio::Abilitato);
}

void Form1::CreaControlli()
{
    setFont(caratteri::Font(scritte::Arial, PesoNormale, PixelControlli));
    for (const auto& controllo : Controllo::Tutti) controllo.CreaIn(*this);

    // These two captions alone are a little wider than their places.
    constexpr int strettaEtichetta = 95;
    constexpr int strettaCasella = 94;
    Label1->setFont(Stretto(font(), strettaEtichetta));
    chkStat->setFont(Stretto(font(), strettaCasella));
    Label1->setBuddy(numTaglie); // a screen reader reads the label with the field
    lblStatus->setTextFormat(Qt::PlainText);
}

void Form1::OrdinaFuoco()
{
    auto ordinati = Controllo::Tutti;
    std::sort(ordinati.begin(), ordinati.end(),
              [](const Controllo& uno, const Controllo& altro) { return uno.Tab < altro.Tab; });
    std::vector<std::pair<QWidget*, Qt::FocusPolicy>> catena;
    for (const auto& controllo : ordinati) {
        if (controllo.Contiene()) continue;
        auto* widget = Controllo::Widget(*this, controllo.Dove);
        catena.emplace_back(widget, widget->focusPolicy());
        // Qt orders only what takes the focus; labels and table have their places, too.
        widget->setFocusPolicy(Qt::StrongFocus);
    }
    for (std::size_t i = 1; i < catena.size(); ++i) {
        setTabOrder(catena[i - 1].first, catena[i].first);
    }
    for (const auto& [widget, politica] : catena) widget->setFocusPolicy(politica);
    for (auto* opzione : optStampa) FermaTabSeScelta(opzione);
    optStampa[FormaHtml]->setChecked(true);
}
