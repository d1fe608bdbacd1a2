// Message boxes, the texts of failures, and the one line that goes to standard error. Who shows
// them: Applicazione.cpp and Form1_*.cpp.

#include "Messaggi.h"

#include "MisuraFissa.h"
#include "Numeri.h"

#include <QAbstractButton>
#include <QLabel>

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

struct TestoPulsante
{
    QMessageBox::StandardButton Pulsante;
    const char* Testo;
};

// The desktop's own theme would caption them in its language.
constexpr std::array<TestoPulsante, 3> Pulsanti = {{
    {QMessageBox::Ok, "OK"},
    {QMessageBox::Yes, "&Sì"},
    {QMessageBox::No, "&No"},
}};

QMessageBox::StandardButton Primo(QMessageBox::StandardButtons pulsanti)
{
    return (pulsanti & QMessageBox::Yes) != 0 ? QMessageBox::Yes : QMessageBox::Ok;
}

// Qt would break lines of some 500 pixels and leave a word alone on the next one. Only what would
// make an unwieldy box, such as the path of a file, is broken.
void TieniLeRighe(const QMessageBox& messaggio)
{
    constexpr int massima = 640;
    auto* etichetta = messaggio.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (etichetta == nullptr) return;
    int larghezza = 0;
    for (const auto& riga : messaggio.text().split(QLatin1Char('\n'))) {
        larghezza = std::max(larghezza, etichetta->fontMetrics().horizontalAdvance(riga));
    }
    constexpr int margine = 2;
    etichetta->setMinimumWidth(std::min(larghezza + margine, massima));
}

// The first letter apart: a reason begins with a small one.
bool Uguali(std::string_view motivo, std::string_view testo)
{
    return InQt(motivo).compare(InQt(testo), Qt::CaseInsensitive) == 0;
}

// A terminal could take these for commands, or show the text in another order.
bool Innocuo(QChar carattere)
{
    switch (carattere.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

} // namespace

QMessageBox::StandardButton MsgBox(QWidget* padre, std::string_view testo, QMessageBox::Icon icona,
                                   QMessageBox::StandardButtons pulsanti, std::string_view titolo)
{
    QMessageBox messaggio(padre);
    TieniMisuraFissa(messaggio);
    messaggio.setWindowTitle(InQt(titolo));
    messaggio.setTextFormat(Qt::PlainText);
    messaggio.setText(InQt(testo).replace(QLatin1Char('\r'), QLatin1Char('\n')));
    TieniLeRighe(messaggio);
    messaggio.setIcon(icona);
    messaggio.setStandardButtons(pulsanti);
    messaggio.setDefaultButton(Primo(pulsanti));
    for (const auto& [pulsante, didascalia] : Pulsanti) {
        if (auto* bottone = messaggio.button(pulsante)) {
            bottone->setText(QString::fromUtf8(didascalia));
        }
    }
    return static_cast<QMessageBox::StandardButton>(messaggio.exec());
}

std::string TestoMessaggio(const ErroreRuntime& errore)
{
    std::string testo = "Errore " + TestoNumero(static_cast<std::int64_t>(errore.Numero())) + ": " +
                        std::string(errore.Testo()) + ".";
    for (const auto* parte : {&errore.File(), &errore.Motivo()}) {
        if (!parte->empty() && !Uguali(*parte, errore.Testo())) testo.append("\r").append(*parte);
    }
    return testo;
}

void ScriviErrore(std::string_view testo)
{
    QString riga = InQt(NomeComando) + QStringLiteral(": ") + InQt(testo);
    for (QChar& carattere : riga) {
        if (!Innocuo(carattere)) carattere = QLatin1Char('?');
    }
    const QByteArray byte = riga.toUtf8() + '\n';
    std::fwrite(byte.constData(), 1, static_cast<std::size_t>(byte.size()), stderr);
}
