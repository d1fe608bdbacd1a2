// Presses buttons and keys of the window under test and reads its captions, for the tests beside.
#include "Finestra.h"

#include "LibreriaCarte.h"
#include "modCarte.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>

#include <algorithm>

namespace aiuti {

Risponditore::Risponditore(QMessageBox::StandardButton risposta)
    : m_risposta(risposta)
{
    constexpr int millesimi = 5;
    m_orologio.setInterval(millesimi);
    QObject::connect(&m_orologio, &QTimer::timeout, [this] { Rispondi(); });
    m_orologio.start();
}

void Risponditore::Rispondi()
{
    auto* riquadro = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    // A box that is not active yet takes no keys.
    if (riquadro == nullptr || !riquadro->isVisible() || !riquadro->isActiveWindow()) return;
    Riquadro visto{riquadro->windowTitle().toStdString(),
                   riquadro->text().toStdString(),
                   riquadro->icon(),
                   {},
                   {}};
    auto pulsanti = riquadro->buttons();
    std::sort(pulsanti.begin(), pulsanti.end(),
              [](const auto* uno, const auto* altro) { return uno->x() < altro->x(); });
    for (const auto* pulsante : pulsanti) {
        visto.Pulsanti.push_back(pulsante->text().remove(QLatin1Char('&')).toStdString());
    }
    if (const auto* predefinito = riquadro->defaultButton()) {
        visto.Predefinito = predefinito->text().remove(QLatin1Char('&')).toStdString();
    }
    Visti.push_back(visto);
    if (Guarda) Guarda(*riquadro);
    if (auto* pulsante = riquadro->button(m_risposta)) pulsante->click();
    else riquadro->close();
}

bool ContaDipinti::eventFilter(QObject* /*oggetto*/, QEvent* evento)
{
    if (evento->type() == QEvent::Paint) ++Dipinti;
    return false;
}

Riquadro Esclamazione(const std::string& testo)
{
    return {"Scalvino", testo, QMessageBox::Warning, {"OK"}, "OK"};
}

Finestra::Finestra()
    : finestra(std::make_unique<Form1>())
{
    const Stampe::Ambiente prova = Stampe::AmbienteInUso;
    finestra->ImpostaAmbiente();
    auto& inUso = Stampe::AmbienteInUso;
    inUso.Cartella = prova.Cartella;
    inUso.SeparatoriNumeri = prova.SeparatoriNumeri;
    inUso.Apri = prova.Apri;
    auto* tavolo = finestra->findChild<TavoloCarte*>(QStringLiteral("picCard"));
    registro = std::make_unique<Registratore>(tavolo);
    finestra->DisegnaSu(*registro);
    EXPECT_TRUE(finestra->Carica());
    finestra->show();
    finestra->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(finestra.get()));
}

Finestra::~Finestra()
{
    finestra.reset();
    cdtTerm();
    modCarte::AvviaEntropia();
}

QRadioButton* Finestra::Opzione(std::size_t indice)
{
    return Trova<QRadioButton>(("optStampa" + std::to_string(indice)).c_str());
}

void Finestra::Clicca(const char* nome)
{
    QTest::mouseClick(Trova(nome), Qt::LeftButton);
}

void Finestra::Scrivi(const std::string& testo)
{
    Numero()->setFocus();
    Numero()->selectAll();
    QTest::keyClicks(Numero(), QString::fromStdString(testo));
}

void Finestra::Scegli(std::size_t forma, bool soloStatistiche)
{
    // At the box itself: a click beside box and caption does nothing.
    if (Statistiche()->isChecked() != soloStatistiche) {
        QTest::mouseClick(Statistiche(), Qt::LeftButton, {}, QPoint(8, 9));
    }
    QTest::mouseClick(Opzione(forma), Qt::LeftButton, {}, QPoint(8, 9));
    ASSERT_TRUE(Opzione(forma)->isChecked());
    ASSERT_EQ(Statistiche()->isChecked(), soloStatistiche);
}

std::string Finestra::Gioco()
{
    std::string stati;
    for (const char* nome : {"cmdMescola", "cmdColpo", "cmdCancel"}) {
        stati.push_back(Pulsante(nome)->isEnabled() ? '1' : '0');
    }
    return stati;
}

void Finestra::Colpi(std::vector<std::string> record)
{
    modCarte::Colpi = std::move(record);
}

std::vector<std::string> SchermataTitolo()
{
    using R = Registratore;
    return {"pulisci",
            "sfondo 105,230,0",
            "font Arial Black 20 grassetto",
            "posto 1220 270",
            "colore 127,127,127",
            "stampa SCALVINO",
            "posto 1200 250",
            "colore 255,0,0",
            "stampa SCALVINO",
            "colore 0,0,0",
            R::Carta(90, 80, 1),
            R::Carta(110, 100, 51),
            R::Carta(130, 120, 42),
            R::Carta(150, 140, 36),
            R::Carta(300, 80, 44),
            R::Carta(320, 100, 51),
            R::Carta(340, 120, 45),
            R::Carta(360, 140, 2),
            R::Testo("Simulazione gioco e statistiche del Scalvino", 700, 4000, "Arial", 22),
            R::Testo("Versione 1.0.0", 3500, 5000, "Arial", 14),
            R::Testo("Realizzato da Vellarmo", 2700, 5300, "Arial", 14),
            "aggiorna"};
}

} // namespace aiuti
