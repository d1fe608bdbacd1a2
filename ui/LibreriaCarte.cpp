// Cards out of resources/carte.svg, drawn once for each density and kept. Quadro.cpp lays them
// down.

#include "LibreriaCarte.h"

#include "ErroreRuntime.h"
#include "LetturaFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>

#include <cmath>
#include <map>
#include <memory>
#include <tuple>

namespace {

constexpr int NumeroFacce = 52;

struct Libreria
{
    QSvgRenderer Figure;
    // Finished cards by number, pixel ratio and colour of the corners: drawing one from its
    // curves takes a hundred times as long.
    std::map<std::tuple<std::int32_t, qreal, QRgb>, QImage> Pronte;
};

std::unique_ptr<Libreria> InUso;
std::string FileImposto;

QString FileCarte()
{
    if (!FileImposto.empty()) return QFile::decodeName(FileImposto.c_str());
    const QString programma = QCoreApplication::applicationDirPath();
    const QString nome = QStringLiteral("/carte.svg");
    const QString accanto = programma + nome;
    const QString installato = programma + QStringLiteral("/../share/scalvino") + nome;
    return QFileInfo::exists(accanto) ? accanto : installato;
}

[[noreturn]] void Manca(const QString& percorso, const std::string& motivo)
{
    throw ErroreRuntime(NumeroErrore::FileNonTrovato, motivo,
                        QFile::encodeName(percorso).toStdString());
}

QByteArray Leggi(const QString& percorso)
{
    constexpr qint64 massimo = 8 * 1024 * 1024; // thirty times the file as it is
    QFile file(percorso);
    if (!QFileInfo(percorso).isFile() || !file.open(QIODevice::ReadOnly)) {
        Manca(percorso, "non si può leggere");
    }
    if (file.size() > massimo) Manca(percorso, std::string(TroppoGrande));
    return file.readAll();
}

// The renderer draws what comes before a mistake and says nothing.
bool BenFormato(const QByteArray& byte)
{
    QXmlStreamReader lettore(byte);
    while (!lettore.atEnd()) lettore.readNext();
    return !lettore.hasError();
}

QString Elemento(std::int32_t carta)
{
    return (carta == DorsoCarta ? QStringLiteral("dorso") : QStringLiteral("carta")) +
           QString::number(carta);
}

// A picture of another size would be stretched.
bool Intera(const QSvgRenderer& figure, std::int32_t carta)
{
    constexpr double tolleranza = 0.01;
    const QString elemento = Elemento(carta);
    if (!figure.elementExists(elemento)) return false;
    const QRectF riquadro = figure.boundsOnElement(elemento);
    return std::abs(riquadro.width() - LarghezzaDiCarta) < tolleranza &&
           std::abs(riquadro.height() - AltezzaDiCarta) < tolleranza;
}

bool Complete(const QSvgRenderer& figure)
{
    for (std::int32_t carta = 0; carta < NumeroFacce; ++carta) {
        if (!Intera(figure, carta)) return false;
    }
    return Intera(figure, DorsoCarta);
}

// Of whole device pixels at every ratio, so that no edge is half a pixel.
QImage Disegna(QSvgRenderer& figure, std::int32_t carta, qreal rapporto, QRgb angoli)
{
    const QSize misura(qRound(LarghezzaDiCarta * rapporto), qRound(AltezzaDiCarta * rapporto));
    QImage immagine(misura, QImage::Format_RGB32);
    immagine.fill(QColor(angoli));
    QPainter pennello(&immagine);
    pennello.setRenderHint(QPainter::Antialiasing);
    figure.render(&pennello, Elemento(carta), QRectF(QPointF(0, 0), QSizeF(misura)));
    return immagine;
}

const QImage& Pronta(std::int32_t carta, qreal rapporto, QRgb angoli)
{
    const auto chiave = std::tuple(carta, rapporto, angoli);
    auto posto = InUso->Pronte.find(chiave);
    if (posto == InUso->Pronte.end()) {
        QImage immagine = Disegna(InUso->Figure, carta, rapporto, angoli);
        posto = InUso->Pronte.emplace(chiave, std::move(immagine)).first;
    }
    return posto->second;
}

bool Esiste(std::int32_t carta, std::int32_t modo)
{
    if (modo == ModoDorso) return carta == DorsoCarta;
    return modo == ModoFaccia && carta >= 0 && carta < NumeroFacce;
}

} // namespace

void cdtInit(std::int32_t& larghezza, std::int32_t& altezza)
{
    const QString percorso = FileCarte();
    const QByteArray byte = Leggi(percorso);
    auto libreria = std::make_unique<Libreria>();
    if (!BenFormato(byte) || !libreria->Figure.load(byte)) Manca(percorso, "è danneggiato");
    if (!Complete(libreria->Figure)) Manca(percorso, "manca qualche carta");
    InUso = std::move(libreria);
    larghezza = LarghezzaDiCarta;
    altezza = AltezzaDiCarta;
}

void cdtDraw(Tela& dc, std::int32_t x, std::int32_t y, std::int32_t carta, std::int32_t modo,
             Colore angoli)
{
    if (!InUso || !Esiste(carta, modo)) return;
    const QImage& immagine =
        Pronta(carta, dc.Rapporto, qRgb(angoli.Rosso, angoli.Verde, angoli.Blu));
    QPainter pennello(&dc.Immagine);
    pennello.drawImage(QPoint(qRound(x * dc.Rapporto), qRound(y * dc.Rapporto)), immagine);
}

void cdtTerm()
{
    InUso.reset();
}

void ImpostaFileCarte(const std::string& percorso)
{
    FileImposto = percorso;
}
