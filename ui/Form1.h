// The window: batch simulation, report options, one shoe played coup by coup, help.
//
// Its members stand in these files, each of which calls only files further down the list:
// Form1.cpp             start, and what the window is joined to
// Form1_Controlli.cpp   which controls there are and where they stand
// Form1_Gioco.cpp       one shoe played coup by coup
// Form1_Taglie.cpp      the batch run
// Form1_Chiusura.cpp    closing
// Form1_Titolo.cpp      title screen, help, exit
// Form1_Numero.cpp      the field with the number of shoes
// Form1_Stato.cpp       what is chosen, locked and said in the status line
#pragma once

#include "ApriConShell.h"
#include "Flag.h"
#include "MenuSistema.h"
#include "Stampe.h"
#include "TavoloCarte.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

class QInputMethodEvent;
class QKeyEvent;

// The forms of a report stand in optStampa by their numbers; all before FormaNessuna are offered.
using enum Stampe::Forma;

// There is one window, on the thread of the user interface, which also owns the state of modCarte.
// Every control carries its name as objectName (optStampa with its index: "optStampa0").
class Form1 : public QWidget
{
    Q_OBJECT
public:
    // Makes all controls in their initial state.
    Form1();

    // Start-up before the window shows: system menu, card library, title screen. False when the
    // card pictures are missing: the message has been shown and the program must end at once. Any
    // other failure is swallowed on purpose: the window opens and can be used without its title.
    bool Carica();

    // Makes this window the surroundings of the reports: folder, the user's marks in numbers, the
    // question "stop?", the event loop, the message boxes. Without a temporary folder the window
    // works as far as it needs none.
    void ImpostaAmbiente();

    // Draws on another surface than picCard from now on. For tests; it must outlive the window.
    void DisegnaSu(Superficie& superficie) { m_tavolo = &superficie; }

    // True once the window has been closed, whichever way.
    bool Chiusa() const { return m_chiusa; }

protected:
    void closeEvent(QCloseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    // Shows the final record of the shoe and ends the game.
    void UltimoColpo();

    // The title screen; leaves a green background and black text to every later screen.
    void MostraTitolo();

    // Vero when the run must not start: too many shoes for a full report, or a long run that the
    // user does not want after all.
    Flag ControllaLimiti();

    // ---- Construction ----
    struct Controllo;
    void CreaControlli();
    void OrdinaFuoco();
    void CollegaComandi();

    // ---- Clicks ----
    void cmdMescola_Click();
    void cmdColpo_Click();
    void cmdCancel_Click();
    void cmdTaglie_Click();
    void cmdHelp_Click();
    void cmdExit_Click();

    // ---- numTaglie; the filters return true for what must not reach the field ----
    void numTaglie_Change();
    bool FiltraNumero(QEvent* evento);
    bool numTaglie_KeyPress(QKeyEvent* evento);
    bool FiltraScrittura(QInputMethodEvent* evento);
    void numTaglie_GotFocus(Qt::FocusReason motivo);
    void numTaglie_LostFocus(Qt::FocusReason motivo);
    void SelezionaNumero();
    double NumeroTaglie() const;

    // ---- The state of the controls ----
    // Whether only statistics are wanted: 0 unchecked, 1 checked, 2 neither; Qt numbers them
    // otherwise.
    int ValoreStat() const;

    // The chosen form of report; FormaNessuna when none is.
    Stampe::Forma FormaScelta() const;

    // On every click on chkStat, and whatever else changes the box: the report on screen can be
    // chosen only while it is checked.
    void chkStat_Click();

    // Locks (Falso) or unlocks (Vero) all commands, then lets pending events run once. Unlocking
    // leaves the game idle, whatever it was before.
    void AbilitaComandi(const Flag& abilita);

    // Puts a text (UTF-8) into the status line, which takes the width that it needs.
    void MostraStato(std::string_view testo);

    // ---- The batch run ----
    void ApriReport(const std::string& percorso, StileFinestra stile);
    std::string EseguiReport();
    void ChiamaReport();
    void MostraAvanzamento(std::string_view testo);
    bool OrologioFermo(double adesso);
    void Cedi();
    void Restituisci(QWidget* fuoco);

    // ---- Closing ----
    void Chiudi();

    Superficie* m_tavolo = nullptr;

    ManigliaMenu SistemaMenu = 0;
    std::int32_t LarghezzaCarta = 0;
    std::int32_t AltezzaCarta = 0;

    // Index in Colpi of the record that the next press of cmdColpo shows; n + 1 after the last.
    std::int16_t colpoCorrente = 0;

    bool m_inCorso = false;       // a batch run is under way
    bool m_fermata = false;       // the user wants it to end
    bool m_chiusa = false;        // closed; during a run the closing steps wait for its end
    bool m_chiusuraFatta = false; // the closing steps have run
    bool m_fuocoSospeso = false;  // numTaglie lost the focus with the window or to a menu
    bool m_clicDaFinire = false;  // the click that brought the focus is still down
    bool m_ritoccato = false;     // painted in a run and perhaps not yet on the display
    double m_ultimoRitocco = 0;   // when lblStatus was last painted in a run
    int m_nonRitoccate = 0;       // captions since then, counted while the clock stands

    QPushButton* cmdExit = nullptr;
    QPushButton* cmdHelp = nullptr;
    TavoloCarte* picCard = nullptr;
    QGroupBox* Frame3 = nullptr;
    QWidget* Picture2 = nullptr;
    QPushButton* cmdMescola = nullptr;
    QPushButton* cmdColpo = nullptr;
    QPushButton* cmdCancel = nullptr;
    QGroupBox* Frame2 = nullptr;
    QCheckBox* chkStat = nullptr;
    QWidget* Picture1 = nullptr;
    std::array<QRadioButton*, FormaNessuna> optStampa{};
    QPushButton* cmdTaglie = nullptr;
    QGroupBox* Frame1 = nullptr;
    QLineEdit* numTaglie = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* lblStatus = nullptr;
};
