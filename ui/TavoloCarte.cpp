#include "TavoloCarte.h"

#include "Caratteri.h"
#include "Generale.h"
#include "LibreriaCarte.h"
#include "Misure.h"
#include "Testi.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

QColor ColoreQt(Colore colore)
{
    return {colore.Rosso, colore.Verde, colore.Blu};
}

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
}

void TavoloCarte::Fai(std::function<void()> passo)
{
    passo();
    m_passi.push_back(std::move(passo));
}

void TavoloCarte::Ricomincia()
{
    m_passi.clear();
    m_didascalie.clear();
    m_scritte.clear();
    m_carte.clear();
    m_daStringere = false;
    m_statoIniziale = m_stato;
    PreparaTela();
}

void TavoloCarte::Pulisci()
{
    Ricomincia();
}

void TavoloCarte::ImpostaSfondo(Colore colore)
{
    m_stato.Sfondo = ColoreQt(colore);
    Ricomincia();
}

void TavoloCarte::ImpostaColoreTesto(Colore colore)
{
    Fai([this, colore] { m_stato.Testo = ColoreQt(colore); });
}

void TavoloCarte::ImpostaFont(std::string_view nome, std::int32_t punti, Flag grassetto)
{
    Fai([this, nome = std::string(nome), punti, grassetto] {
        m_stato.NomeFont = nome;
        m_stato.Punti = punti;
        m_stato.Grassetto = grassetto != Falso;
    });
}

void TavoloCarte::ImpostaPosizione(float x, float y)
{
    Fai([this, x, y] {
        m_stato.X = x;
        m_stato.Y = y;
    });
}

void TavoloCarte::Stampa(std::string_view testo)
{
    // A shadow and its title are one caption.
    const bool ombra = !m_didascalie.empty() && m_didascalie.back().Testo == testo;
    if (!ombra) {
        Annota({m_stato.X, m_stato.Y, std::string(testo), false});
        m_scritte.push_back({m_stato.X, m_stato.Y, std::string(testo)});
    }
    Fai([this, testo = std::string(testo)] { StampaOra(testo); });
}

void TavoloCarte::StampaOra(const std::string& testo)
{
    const int pixel = caratteri::PixelPerPunti(m_stato.Punti);
    const int peso = m_stato.Grassetto ? QFont::Bold : QFont::Normal;
    QPainter pennello(&m_tela.Immagine);
    pennello.scale(m_tela.Rapporto, m_tela.Rapporto);
    pennello.setPen(m_stato.Testo);
    pennello.setFont(caratteri::Font(m_stato.NomeFont, peso, pixel));
    // Placed by the top of its cell like every other caption.
    pennello.drawText(Pixel(m_stato.X),
                      Pixel(m_stato.Y) + caratteri::Ascendente(m_stato.NomeFont, pixel),
                      InQt(testo));
}

void TavoloCarte::PrintText(std::string_view testo, float x, float y, std::string_view nomeFont,
                            std::int32_t altezza, std::int32_t peso, std::int32_t angolo,
                            Flag corsivo, Flag sottolineato, Flag barrato)
{
    constexpr std::int32_t versoLAlto = 900;
    Annota({x, y, std::string(testo), angolo == 0});
    m_scritte.push_back({x, y, std::string(testo), angolo == versoLAlto});
    Fai([=, this, testo = std::string(testo), nomeFont = std::string(nomeFont)] {
        Generale::PrintText(testo, x, y, nomeFont, altezza, peso, angolo, corsivo, sottolineato,
                            barrato, *this);
    });
}

void TavoloCarte::cdtDraw(std::int32_t x, std::int32_t y, std::int32_t carta, std::int32_t modo,
                          Colore angoli)
{
    if (modo == ModoFaccia) m_carte.push_back({x, y, carta});
    Fai([=, this] { ::cdtDraw(m_tela, x, y, carta, modo, angoli); });
}

void TavoloCarte::Aggiorna()
{
    if (m_daStringere) Ridisegna();
    repaint();
    Annuncia();
}

void TavoloCarte::Annota(const Didascalia& didascalia)
{
    const bool vicina =
        std::any_of(m_didascalie.begin(), m_didascalie.end(), [&](const Didascalia& altra) {
            return altra.Piana && didascalia.Piana && altra.Y == didascalia.Y;
        });
    m_daStringere = m_daStringere || vicina;
    m_didascalie.push_back(didascalia);
}

double TavoloCarte::Spazio(float x, float y) const
{
    double spazio = std::numeric_limits<double>::infinity();
    for (const auto& altra : m_didascalie) {
        if (!altra.Piana || altra.Y != y || altra.X <= x) continue;
        spazio = std::min(spazio, static_cast<double>(Pixel(altra.X) - Pixel(x)));
    }
    return spazio;
}

// The description changes and the table "appears" once: a reader takes the second as the moment to
// read a notification aloud.
void TavoloCarte::Annuncia()
{
    setAccessibleDescription(InQt(racconto::Racconta(m_scritte, m_carte)));
    QAccessibleEvent mostrato(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&mostrato);
}

QSize TavoloCarte::MisuraTela() const
{
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

void TavoloCarte::PreparaTela()
{
    m_tela.Rapporto = devicePixelRatioF();
    if (m_tela.Immagine.size() != MisuraTela()) {
        m_tela.Immagine = QImage(MisuraTela(), QImage::Format_RGB32);
    }
    m_tela.Immagine.fill(m_stato.Sfondo);
}

void TavoloCarte::Ridisegna()
{
    m_stato = m_statoIniziale;
    m_daStringere = false;
    PreparaTela();
    for (const auto& passo : m_passi) passo();
}

void TavoloCarte::paintEvent(QPaintEvent* /*evento*/)
{
    if (m_tela.Immagine.size() != MisuraTela()) Ridisegna();
    QPainter pennello(this);
    // In device pixels: at 150% the table begins at half a pixel, and the picture must not be
    // drawn between two.
    const QTransform dispositivo = pennello.deviceTransform();
    pennello.setWorldTransform(pennello.worldTransform() * dispositivo.inverted(), false);
    const QPointF origine = dispositivo.map(QPointF(0, 0));
    pennello.drawImage(origine.toPoint(), m_tela.Immagine);
}
