// The picture of the card table: its pixels, and the list of what was drawn since the last clear.
// No widget is known here; TavoloCarte.h shows it in the window.
#pragma once

#include "Elementi.h"
#include "Tela.h"

#include <QSize>

#include <string_view>
#include <vector>

// White and empty at first, its text black. Nothing here fails.
class Quadro
{
public:
    // Of every clear from now on.
    void ImpostaSfondo(Colore colore) { m_sfondo = colore; }

    // Of every caption from now on.
    void ImpostaColoreTesto(Colore colore) { m_coloreTesto = colore; }
    Colore ColoreTesto() const { return m_coloreTesto; }

    // Leaves only the background, in a picture of so many device pixels.
    void Pulisci(QSize misura, qreal rapporto);

    // Draw at once, over what is there, and keep what was drawn. A caption takes the text colour.
    void Scrivi(Didascalia didascalia);
    void Posa(const CartaPosata& carta);

    // Draws once more where a caption came after the neighbour that has to give way to it.
    void Completa();

    // Draws everything anew, in a picture of so many device pixels.
    void Ridisegna(QSize misura, qreal rapporto);

    // The text of the caption drawn last; empty when there is none.
    std::string_view UltimoTesto() const;

    // In drawing order.
    const std::vector<Elemento>& Elementi() const { return m_elementi; }
    Tela& Disegno() { return m_tela; }

private:
    void Prepara(QSize misura, qreal rapporto);
    void Disegna(const Didascalia& didascalia);
    void Disegna(const CartaPosata& carta);
    double Spazio(const Didascalia& didascalia) const;

    Tela m_tela;
    Colore m_sfondo{255, 255, 255};
    Colore m_coloreTesto{};
    std::vector<Elemento> m_elementi;
    bool m_daStringere = false; // a caption shares its line with one that was drawn before it
};
