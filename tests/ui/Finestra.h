// The window under test, with hands and eyes.
#pragma once

#include "AmbienteDiProva.h"
#include "Form1.h"
#include "Registratore.h"

#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace aiuti {

// What a message box showed.
struct Riquadro
{
    std::string Titolo;
    std::string Testo;
    QMessageBox::Icon Icona;
    std::vector<std::string> Pulsanti; // captions, left to right, without the mark of the key
    std::string Predefinito;
    bool operator==(const Riquadro&) const = default;
};

// Answers every modal box while it lives, and keeps what they showed. A box that nobody answers
// would hold a test for ever.
class Risponditore
{
public:
    explicit Risponditore(QMessageBox::StandardButton risposta = QMessageBox::Ok);

    std::vector<Riquadro> Visti;

    // Called with each box before it is answered.
    std::function<void(QMessageBox&)> Guarda;

private:
    void Rispondi();

    QTimer m_orologio;
    QMessageBox::StandardButton m_risposta;
};

// Counts how often a widget is painted.
class ContaDipinti : public QObject
{
public:
    explicit ContaDipinti(QWidget* widget) { widget->installEventFilter(this); }
    int Dipinti = 0;

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
};

// The text of a box as a test names it.
Riquadro Esclamazione(const std::string& testo);

// A window that is loaded and shown, with its reports in a folder of its own, marks "," and ".",
// every opened file noted down and everything drawn recorded (and drawn, too).
class Finestra : public testing::Test
{
protected:
    Finestra();
    ~Finestra() override;

    template <typename Tipo = QWidget>
    Tipo* Trova(const char* nome)
    {
        auto* widget = finestra->findChild<Tipo*>(QString::fromLatin1(nome));
        EXPECT_NE(widget, nullptr) << nome;
        return widget;
    }
    QPushButton* Pulsante(const char* nome) { return Trova<QPushButton>(nome); }
    QRadioButton* Opzione(std::size_t indice);
    QCheckBox* Statistiche() { return Trova<QCheckBox>("chkStat"); }
    QLineEdit* Numero() { return Trova<QLineEdit>("numTaglie"); }
    std::string Stato() { return Trova<QLabel>("lblStatus")->text().toStdString(); }

    // A real click in the middle of the control.
    void Clicca(const char* nome);

    // Puts a number into the field as if typed.
    void Scrivi(const std::string& testo);

    // Chooses form and extent with clicks.
    void Scegli(std::size_t forma, bool soloStatistiche);

    // Enabled states of cmdMescola, cmdColpo and cmdCancel: "101" is on, off, on.
    std::string Gioco();

    // Plays these records instead of the shoe that was shuffled.
    void Colpi(std::vector<std::string> record);

    AmbienteDiProva ambiente;
    std::unique_ptr<Form1> finestra;
    std::unique_ptr<Registratore> registro;
};

// The title screen, step by step.
std::vector<std::string> SchermataTitolo();

} // namespace aiuti
