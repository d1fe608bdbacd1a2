// The card table of the window: the picture box picCard. What is drawn on it is kept by Quadro.h.
#pragma once

#include "Quadro.h"
#include "Superficie.h"

#include <QWidget>

// A surface with a persistent picture of the widget's size. What is drawn shows at Aggiorna().
//
// A level caption of PrintText that would run into another one further right on its line is drawn
// narrower, as much as it takes to leave a blank between the two.
//
// All that was drawn since the last clear is drawn anew when the window moves to a screen of
// another pixel density. Screen readers get the picture in words as the accessible description,
// announced once when it is shown, and the role of a notification, which they read without its
// having the focus.
class TavoloCarte : public QWidget, public Superficie
{
    Q_OBJECT
public:
    explicit TavoloCarte(QWidget* padre);

    void Pulisci() override;
    void ImpostaSfondo(Colore colore) override;
    void ImpostaColoreTesto(Colore colore) override;
    void ImpostaFont(std::string_view nome, std::int32_t punti, Flag grassetto) override;
    void ImpostaPosizione(float x, float y) override;
    void Stampa(std::string_view testo) override;
    void PrintText(std::string_view testo, float x, float y, std::string_view nomeFont,
                   std::int32_t altezza, std::int32_t peso, std::int32_t angolo, Flag corsivo,
                   Flag sottolineato, Flag barrato) override;
    void cdtDraw(std::int32_t x, std::int32_t y, std::int32_t carta, std::int32_t modo,
                 Colore angoli) override;
    void Aggiorna() override;

    // The picture and the text colour as they are now.
    Tela& Disegno() { return m_quadro.Disegno(); }
    Colore ColoreTesto() const { return m_quadro.ColoreTesto(); }

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    QSize MisuraTela() const;
    void Annuncia();

    Quadro m_quadro;
    Didascalia m_propria; // the table's own font, and where the next Stampa begins
};
