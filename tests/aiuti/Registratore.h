// A picture surface that writes down what is drawn on it.
#pragma once

#include "Superficie.h"

#include <cmath>
#include <string>
#include <vector>

namespace aiuti {

// Every step as one line, numbers as whole ones:
//   pulisci                                aggiorna
//   sfondo R,G,B                           colore R,G,B
//   font FACE POINTS grassetto|normale     posto X Y
//   stampa TEXT
//   testo TEXT | X Y | FACE | HEIGHT WEIGHT ANGLE | ITALIC UNDERLINE STRIKEOUT
//   carta X Y NUMBER MODE R,G,B
// Steps may be passed on to another surface, which then shows the same.
class Registratore : public Superficie
{
public:
    explicit Registratore(Superficie* oltre = nullptr)
        : m_oltre(oltre)
    {
    }

    std::vector<std::string> Passi;

    // Everything since the last clear, clear included.
    std::vector<std::string> UltimaSchermata() const
    {
        std::size_t inizio = 0;
        for (std::size_t i = 0; i < Passi.size(); ++i) {
            if (Passi[i] == "pulisci") inizio = i;
        }
        return {Passi.begin() + static_cast<std::ptrdiff_t>(inizio), Passi.end()};
    }

    // The texts of the last screen, in drawing order.
    std::vector<std::string> Testi() const
    {
        std::vector<std::string> testi;
        for (const auto& passo : UltimaSchermata()) {
            if (passo.starts_with("testo "))
                testi.push_back(passo.substr(6, passo.find(" | ") - 6));
        }
        return testi;
    }

    void Pulisci() override
    {
        Passi.emplace_back("pulisci");
        if (m_oltre) m_oltre->Pulisci();
    }
    void ImpostaSfondo(Colore colore) override
    {
        Passi.push_back("sfondo " + In(colore));
        if (m_oltre) m_oltre->ImpostaSfondo(colore);
    }
    void ImpostaColoreTesto(Colore colore) override
    {
        Passi.push_back("colore " + In(colore));
        if (m_oltre) m_oltre->ImpostaColoreTesto(colore);
    }
    void ImpostaFont(std::string_view nome, std::int32_t punti, Flag grassetto) override
    {
        Passi.push_back("font " + std::string(nome) + " " + std::to_string(punti) +
                        (grassetto != Falso ? " grassetto" : " normale"));
        if (m_oltre) m_oltre->ImpostaFont(nome, punti, grassetto);
    }
    void ImpostaPosizione(float x, float y) override
    {
        Passi.push_back("posto " + In(x) + " " + In(y));
        if (m_oltre) m_oltre->ImpostaPosizione(x, y);
    }
    void Stampa(std::string_view testo) override
    {
        Passi.push_back("stampa " + std::string(testo));
        if (m_oltre) m_oltre->Stampa(testo);
    }
    void PrintText(std::string_view testo, float x, float y, std::string_view nomeFont,
                   std::int32_t altezza, std::int32_t peso, std::int32_t angolo, Flag corsivo,
                   Flag sottolineato, Flag barrato) override
    {
        Passi.push_back("testo " + std::string(testo) + " | " + In(x) + " " + In(y) + " | " +
                        std::string(nomeFont) + " | " + std::to_string(altezza) + " " +
                        std::to_string(peso) + " " + std::to_string(angolo) + " | " +
                        std::to_string(corsivo) + " " + std::to_string(sottolineato) + " " +
                        std::to_string(barrato));
        if (m_oltre) {
            m_oltre->PrintText(testo, x, y, nomeFont, altezza, peso, angolo, corsivo, sottolineato,
                               barrato);
        }
    }
    void cdtDraw(std::int32_t x, std::int32_t y, std::int32_t carta, std::int32_t modo,
                 Colore angoli) override
    {
        Passi.push_back("carta " + std::to_string(x) + " " + std::to_string(y) + " " +
                        std::to_string(carta) + " " + std::to_string(modo) + " " + In(angoli));
        if (m_oltre) m_oltre->cdtDraw(x, y, carta, modo, angoli);
    }
    void Aggiorna() override
    {
        Passi.emplace_back("aggiorna");
        if (m_oltre) m_oltre->Aggiorna();
    }

    // The lines that a plain caption and a face-up card leave.
    static std::string Testo(const std::string& testo, int x, int y, const std::string& faccia,
                             int altezza, int angolo = 0)
    {
        return "testo " + testo + " | " + std::to_string(x) + " " + std::to_string(y) + " | " +
               faccia + " | " + std::to_string(altezza) + " 400 " + std::to_string(angolo) +
               " | 0 0 0";
    }
    static std::string Carta(int x, int y, int numero, int modo = 0)
    {
        return "carta " + std::to_string(x) + " " + std::to_string(y) + " " +
               std::to_string(numero) + " " + std::to_string(modo) + " 127,127,127";
    }

private:
    static std::string In(Colore colore)
    {
        return std::to_string(colore.Rosso) + "," + std::to_string(colore.Verde) + "," +
               std::to_string(colore.Blu);
    }
    static std::string In(float posto) { return std::to_string(std::lround(posto)); }

    Superficie* m_oltre;
};

} // namespace aiuti
