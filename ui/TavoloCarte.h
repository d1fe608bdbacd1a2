// The card table of the window: the picture box picCard.
#pragma once

#include "Racconto.h"
#include "Superficie.h"
#include "Tela.h"

#include <QColor>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

// A surface with a persistent picture of the widget's size. What is drawn shows at Aggiorna().
//
// A level caption of PrintText that would run into another one further right on its line is drawn
// narrower, as much as it takes to leave a blank between the two.
//
// The steps since the last clear are kept and drawn anew when the window moves to a screen of
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

    // The picture and the text colour as they are now, for whoever draws on it.
    Tela& Disegno() { return m_tela; }
    QColor ColoreTesto() const { return m_stato.Testo; }

    // The room of a level caption at x, y (twips): pixels of the layout up to the next caption on
    // its line, infinite where there is none.
    double Spazio(float x, float y) const;

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    // The properties that every later step inherits.
    struct Stato
    {
        QColor Sfondo = Qt::white;
        QColor Testo = Qt::black;
        std::string NomeFont = "Arial";
        std::int32_t Punti = 8;
        bool Grassetto = false;
        float X = 0;
        float Y = 0;
    };

    struct Didascalia
    {
        float X;
        float Y;
        std::string Testo;
        bool Piana; // a level one of PrintText
    };

    void Annota(const Didascalia& didascalia);
    void Fai(std::function<void()> passo);
    void Ricomincia();
    QSize MisuraTela() const;
    void PreparaTela();
    void Ridisegna();
    void StampaOra(const std::string& testo);
    void Annuncia();

    Tela m_tela;
    Stato m_stato;
    Stato m_statoIniziale; // as it was before the first of the steps
    std::vector<std::function<void()>> m_passi;
    std::vector<Didascalia> m_didascalie;
    std::vector<racconto::Scritta> m_scritte; // the captions as they are told
    std::vector<racconto::Carta> m_carte;     // face up
    bool m_daStringere = false; // a caption came after a neighbour on its line had been drawn
};
