// Captions and cards become pixels here; their fonts come from Caratteri.h, the cards from
// LibreriaCarte.h.

#include "Quadro.h"

#include "Caratteri.h"
#include "LibreriaCarte.h"
#include "Misure.h"
#include "Testi.h"

#include <QColor>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr double DecimiPerGrado = 10;

QColor ColoreQt(Colore colore)
{
    return {colore.Rosso, colore.Verde, colore.Blu};
}

QFont Font(const Didascalia& didascalia)
{
    QFont font = caratteri::Font(didascalia.Faccia, didascalia.Peso, didascalia.Corpo);
    font.setItalic(didascalia.Corsivo);
    font.setUnderline(didascalia.Sottolineato);
    font.setStrikeOut(didascalia.Barrato);
    return font;
}

// How much narrower a caption is drawn so that a blank stays before the next one; 1: not at all.
double Stretta(const QString& testo, const QFont& font, double spazio)
{
    const QFontMetricsF metrica(font);
    const double larghezza = metrica.horizontalAdvance(testo);
    const double libero = spazio - metrica.horizontalAdvance(QLatin1Char(' '));
    // Where there is no room at all, nothing helps.
    return libero > 0 && larghezza > libero ? libero / larghezza : 1;
}

bool SullaStessaRiga(const Elemento& elemento, const Didascalia& didascalia)
{
    const auto* altra = std::get_if<Didascalia>(&elemento);
    return altra != nullptr && altra->Cede && didascalia.Cede && altra->Y == didascalia.Y;
}

} // namespace

void Quadro::Pulisci(QSize misura, qreal rapporto)
{
    m_elementi.clear();
    m_daStringere = false;
    Prepara(misura, rapporto);
}

void Quadro::Prepara(QSize misura, qreal rapporto)
{
    m_tela.Rapporto = rapporto;
    if (m_tela.Immagine.size() != misura) m_tela.Immagine = QImage(misura, QImage::Format_RGB32);
    m_tela.Immagine.fill(ColoreQt(m_sfondo));
}

void Quadro::Scrivi(Didascalia didascalia)
{
    didascalia.Inchiostro = m_coloreTesto;
    m_daStringere =
        m_daStringere || std::any_of(m_elementi.begin(), m_elementi.end(), [&](const auto& altro) {
            return SullaStessaRiga(altro, didascalia);
        });
    Disegna(didascalia);
    m_elementi.emplace_back(std::move(didascalia));
}

void Quadro::Posa(const CartaPosata& carta)
{
    Disegna(carta);
    m_elementi.emplace_back(carta);
}

void Quadro::Completa()
{
    if (m_daStringere) Ridisegna(m_tela.Immagine.size(), m_tela.Rapporto);
}

void Quadro::Ridisegna(QSize misura, qreal rapporto)
{
    m_daStringere = false;
    Prepara(misura, rapporto);
    for (const auto& elemento : m_elementi) {
        std::visit([this](const auto& quale) { Disegna(quale); }, elemento);
    }
}

std::string_view Quadro::UltimoTesto() const
{
    const auto ultima = std::find_if(m_elementi.rbegin(), m_elementi.rend(), [](const auto& quale) {
        return std::holds_alternative<Didascalia>(quale);
    });
    return ultima == m_elementi.rend() ? std::string_view() : std::get<Didascalia>(*ultima).Testo;
}

void Quadro::Disegna(const Didascalia& didascalia)
{
    const QFont font = Font(didascalia);
    const QString testo = InQt(didascalia.Testo);
    QPainter pennello(&m_tela.Immagine);
    pennello.scale(m_tela.Rapporto, m_tela.Rapporto);
    pennello.translate(Pixel(didascalia.X), Pixel(didascalia.Y));
    pennello.rotate(-didascalia.Angolo / DecimiPerGrado);
    pennello.setPen(ColoreQt(didascalia.Inchiostro));
    pennello.setFont(font);
    pennello.scale(Stretta(testo, font, Spazio(didascalia)), 1);
    pennello.drawText(0, caratteri::Ascendente(didascalia.Faccia, didascalia.Corpo), testo);
}

void Quadro::Disegna(const CartaPosata& carta)
{
    cdtDraw(m_tela, carta.X, carta.Y, carta.Carta, carta.Modo, carta.Angoli);
}

// Pixels of the layout up to the next caption on its line, infinite where there is none.
double Quadro::Spazio(const Didascalia& didascalia) const
{
    double spazio = std::numeric_limits<double>::infinity();
    for (const auto& elemento : m_elementi) {
        if (!SullaStessaRiga(elemento, didascalia)) continue;
        const float altraX = std::get<Didascalia>(elemento).X;
        if (altraX <= didascalia.X) continue;
        spazio = std::min(spazio, static_cast<double>(Pixel(altraX) - Pixel(didascalia.X)));
    }
    return spazio;
}
