// Games in the window, one after the other in one process, by its real controls.
//
//     partite FOLDER HOW-MANY
//
// Plays HOW-MANY shoes from shuffle to the final screen (some cancelled half way), with help and a
// report now and then, its files in FOLDER, which must be empty and is left so. Prints the memory
// held after a tenth of the games and after all. Exit code 0; 1 when memory grew, a file stayed
// behind or anything failed; 2 for wrong arguments.

#include "Ambiente.h"
#include "Applicazione.h"
#include "Form1.h"
#include "LibreriaCarte.h"
#include "Memoria.h"
#include "modCarte.h"

#include <QLoggingCategory>
#include <QTest>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace {

constexpr int Guasto = 1;
constexpr int Uso = 2;

// More coups than any shoe has.
constexpr int ColpiMassimi = 100;

class Giocatore
{
public:
    explicit Giocatore(Form1& finestra)
        : m_finestra(finestra)
    {
    }

    // One game: by the mouse, or by the space bar alone, which the focus makes play.
    void Gioca(int numero)
    {
        Clicca("cmdMescola");
        const bool barra = numero % 2 == 0;
        const int finoA = numero % 5 == 0 ? 7 : ColpiMassimi;
        int colpi = 0;
        while (Attivo("cmdColpo") && colpi < finoA) {
            if (barra) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
            else Clicca("cmdColpo");
            ++colpi;
        }
        if (finoA == ColpiMassimi) Pretendi(colpi == QuantiColpi(), "i colpi della taglia");
        Clicca("cmdCancel");
        Pretendi(Attivo("cmdMescola") && !Attivo("cmdColpo"), "la fine della partita");
    }

    void Guida() { Clicca("cmdHelp"); }

    // A report of three shoes; the form changes with the number.
    void Report(int numero)
    {
        const QString nome = QStringLiteral("optStampa%1").arg(numero % 3);
        QTest::mouseClick(Trova<QRadioButton>(nome), Qt::LeftButton, {}, QPoint(8, 9));
        auto* campo = Trova<QLineEdit>(QStringLiteral("numTaglie"));
        campo->setFocus();
        campo->selectAll();
        QTest::keyClicks(campo, QStringLiteral("3"));
        Clicca("cmdTaglie");
        Pretendi(Attivo("cmdTaglie"), "la fine del report");
    }

private:
    template <typename Tipo>
    Tipo* Trova(const QString& nome)
    {
        auto* widget = m_finestra.findChild<Tipo*>(nome);
        if (widget == nullptr) throw std::runtime_error("manca " + nome.toStdString());
        return widget;
    }
    bool Attivo(const char* nome)
    {
        return Trova<QPushButton>(QString::fromLatin1(nome))->isEnabled();
    }
    void Clicca(const char* nome)
    {
        auto* pulsante = Trova<QPushButton>(QString::fromLatin1(nome));
        Pretendi(pulsante->isEnabled(), nome);
        QTest::mouseClick(pulsante, Qt::LeftButton);
    }

    // Presses until the shoe's last record has been shown: all but the first one.
    static int QuantiColpi() { return static_cast<int>(modCarte::Colpi.size()) - 1; }

    static void Pretendi(bool condizione, const char* cosa)
    {
        if (!condizione) throw std::runtime_error(std::string("non è andata: ") + cosa);
    }

    Form1& m_finestra;
};

// The window's own surroundings, but the files in this folder and nothing opened.
void Prepara(Form1& finestra, const std::string& cartella)
{
    finestra.ImpostaAmbiente();
    Stampe::AmbienteInUso.Cartella = cartella + "/";
    Stampe::AmbienteInUso.Apri = [](const std::string&, StileFinestra) {};
    if (!finestra.Carica()) throw std::runtime_error("la finestra non parte");
    finestra.show();
    finestra.activateWindow();
    if (!QTest::qWaitForWindowActive(&finestra)) throw std::runtime_error("finestra non attiva");
}

void Partite(const std::string& cartella, int quante)
{
    Form1 finestra;
    Prepara(finestra, cartella);
    Giocatore giocatore(finestra);
    resistenza::Memoria memoria(quante);
    for (int i = 1; i <= quante; ++i) {
        giocatore.Gioca(i);
        if (i % 4 == 0) giocatore.Report(i / 4);
        if (i % 3 == 0) giocatore.Guida();
        memoria.Guarda(i);
    }
    finestra.close();
    QApplication::processEvents();
    Stampe::AmbienteInUso = {};
    memoria.Racconta("partite");
    resistenza::PretendiVuota(cartella);
}

} // namespace

int main(int argc, char** argv)
{
    const int quante = argc == 3 ? std::atoi(argv[2]) : 0;
    if (quante < 1) {
        std::fputs("partite CARTELLA QUANTE\n", stderr);
        return Uso;
    }
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    Applicazione applicazione(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false"));
    ImpostaFileCarte(SCALVINO_RISORSE "/carte.svg");
    int esito = 0;
    try {
        Partite(argv[1], quante);
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        esito = Guasto;
    }
    cdtTerm();
    return applicazione.CodiceUscita() != 0 ? applicazione.CodiceUscita() : esito;
}
