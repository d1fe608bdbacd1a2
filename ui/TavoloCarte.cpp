// Steps of drawing go on to Quadro.h, captions by way of Generale.h; what stays here is what makes
// them a widget.

#include "TavoloCarte.h"

#include "Caratteri.h"
#include "Generale.h"
#include "Racconto.h"
#include "Scritte.h"
#include "Testi.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>

namespace {

constexpr std::int32_t PuntiIniziali = 8;
constexpr int PesoGrassetto = 700;

QAccessibleInterface* Accessibile(const QString& /*classe*/, QObject* oggetto)
{
    auto* tavolo = qobject_cast<TavoloCarte*>(oggetto);
    if (tavolo == nullptr) return nullptr;
    return new QAccessibleWidget(tavolo, QAccessible::Notification);
}

} // namespace

TavoloCarte::TavoloCarte(QWidget* padre)
    : QWidget(padre)
{
    QAccessible::installFactory(Accessibile); // the same one more than once counts once
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(QStringLiteral("Tavolo da gioco"));
    TavoloCarte::ImpostaFont(scritte::Arial, PuntiIniziali, Falso);
}

void TavoloCarte::Pulisci()
{
    m_quadro.Pulisci(MisuraTela(), devicePixelRatioF());
}

void TavoloCarte::ImpostaSfondo(Colore colore)
{
    m_quadro.ImpostaSfondo(colore);
    Pulisci();
}

void TavoloCarte::ImpostaColoreTesto(Colore colore)
{
    m_quadro.ImpostaColoreTesto(colore);
}

void TavoloCarte::ImpostaFont(std::string_view nome, std::int32_t punti, Flag grassetto)
{
    m_propria.Faccia = nome;
    m_propria.Corpo = caratteri::PixelPerPunti(punti);
    m_propria.Peso = grassetto != Falso ? PesoGrassetto : PesoNormale;
}

void TavoloCarte::ImpostaPosizione(float x, float y)
{
    m_propria.X = x;
    m_propria.Y = y;
}

void TavoloCarte::Stampa(std::string_view testo)
{
    m_propria.Testo = testo;
    m_propria.Ripetuta = m_quadro.UltimoTesto() == testo;
    m_quadro.Scrivi(m_propria);
}

void TavoloCarte::PrintText(std::string_view testo, float x, float y, std::string_view nomeFont,
                            std::int32_t altezza, std::int32_t peso, std::int32_t angolo,
                            Flag corsivo, Flag sottolineato, Flag barrato)
{
    Generale::PrintText(testo, x, y, nomeFont, altezza, peso, angolo, corsivo, sottolineato,
                        barrato, m_quadro);
}

void TavoloCarte::cdtDraw(std::int32_t x, std::int32_t y, std::int32_t carta, std::int32_t modo,
                          Colore angoli)
{
    m_quadro.Posa({x, y, carta, modo, angoli});
}

void TavoloCarte::Aggiorna()
{
    m_quadro.Completa();
    repaint();
    Annuncia();
}

// The description changes and the table "appears" once: a reader takes the second as the moment to
// read a notification aloud.
void TavoloCarte::Annuncia()
{
    setAccessibleDescription(InQt(racconto::Racconta(m_quadro.Elementi())));
    QAccessibleEvent mostrato(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&mostrato);
}

QSize TavoloCarte::MisuraTela() const
{
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

void TavoloCarte::paintEvent(QPaintEvent* /*evento*/)
{
    QImage& immagine = m_quadro.Disegno().Immagine;
    if (immagine.size() != MisuraTela()) m_quadro.Ridisegna(MisuraTela(), devicePixelRatioF());
    QPainter pennello(this);
    // In device pixels: at 150% the table begins at half a pixel, and the picture must not be
    // drawn between two.
    const QTransform dispositivo = pennello.deviceTransform();
    pennello.setWorldTransform(pennello.worldTransform() * dispositivo.inverted(), false);
    const QPointF origine = dispositivo.map(QPointF(0, 0));
    pennello.drawImage(origine.toPoint(), immagine);
}
