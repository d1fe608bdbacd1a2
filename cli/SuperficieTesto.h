// A picture made of lines of text: the statistics of the card table, on a terminal. What it
// stands in for: reports/Superficie.h.
#pragma once

#include "Superficie.h"

#include <string>
#include <vector>

namespace cli {

// Keeps the captions drawn on it and lays them out as lines; fonts, colours and cards are nothing
// to a terminal. A text printed twice a little apart (a shadow and its title) is shown once.
class SuperficieTesto : public Superficie
{
public:
    // The picture as lines ended by LF: one for each height, top to bottom, with a free line where
    // the picture leaves a gap. Empty for an empty picture.
    std::string Testo() const;

    void Pulisci() override { m_didascalie.clear(); }
    void ImpostaSfondo(Colore /*colore*/) override {}
    void ImpostaColoreTesto(Colore /*colore*/) override {}
    void ImpostaFont(std::string_view /*nome*/, std::int32_t /*punti*/, Flag /*grassetto*/) override
    {
    }
    void ImpostaPosizione(float x, float y) override;
    void Stampa(std::string_view testo) override;
    void PrintText(std::string_view testo, float x, float y, std::string_view nomeFont,
                   std::int32_t altezza, std::int32_t peso, std::int32_t angolo, Flag corsivo,
                   Flag sottolineato, Flag barrato) override;
    void cdtDraw(std::int32_t /*x*/, std::int32_t /*y*/, std::int32_t /*carta*/,
                 std::int32_t /*modo*/, Colore /*angoli*/) override
    {
    }
    void Aggiorna() override {}

private:
    struct Didascalia
    {
        float X;
        float Y;
        std::string Testo;
    };

    std::vector<Didascalia> m_didascalie;
    float m_x = 0;
    float m_y = 0;
};

} // namespace cli
