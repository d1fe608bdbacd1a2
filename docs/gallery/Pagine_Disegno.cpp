// Pages of the gallery: colours and lines, paths. Next: Pagine_Curve.cpp.

#include "Galleria.h"

#include <cmath>
#include <numbers>

namespace galleria {

namespace {

// ---- Colours and lines -------------------------------------------------------------------------

void Campione(clsPDFCreator& pdf, float x, float y, const std::string& colore)
{
    pdf.SetColorLine("Gray");
    pdf.SetLineStyle(0.2F);
    pdf.SetColorFill(colore);
    pdf.DrawRect(x, y, 13, 13, 5, 2.5);
}

void Nomi(clsPDFCreator& pdf)
{
    constexpr const char* nomi[] = {"Black", "Gray",   "Silver", "White", "Fuchsia", "Magenta",
                                    "Red",   "Yellow", "Green",  "Aqua",  "Cyan",    "Blue"};
    int posto = 0;
    for (const char* nome : nomi) {
        const float x = Sinistra + 29.2F * static_cast<float>(posto % 6);
        const float y = 45 + 22 * static_cast<float>(posto / 6);
        Campione(pdf, x + 7, y, nome);
        Didascalia(pdf, x + 13.5F, y + 16.5F, nome);
        ++posto;
    }
}

void Gradazioni(clsPDFCreator& pdf)
{
    for (int passo = 0; passo <= 10; ++passo) {
        const float x = Sinistra + 16.1F * static_cast<float>(passo);
        const std::string grigio = "%" + std::to_string(10 * passo);
        Campione(pdf, x, 102, grigio);
        Didascalia(pdf, x + 6.5F, 118.5F, grigio);
        Campione(pdf, x, 122, clsPDFCreator::ToColor(255 - 20 * passo, 60 + 15 * passo, 90));
        Campione(pdf, x, 142, clsPDFCreator::ToColor(10 * passo, 80, 100 - 10 * passo, 5));
    }
    Didascalia(pdf, LarghezzaFoglio / 2, 138.5F, "ToColor con rosso, verde e blu");
    Didascalia(pdf, LarghezzaFoglio / 2, 158.5F, "ToColor con ciano, magenta, giallo e nero");
}

// The line itself in white shows where the ends and the corner lie.
void Angolo(clsPDFCreator& pdf, float x, int tipo, std::string_view nome)
{
    constexpr float limite = 10;
    const auto traccia = [&] { Poligono(pdf, {{x, 207}, {x + 15, 181}, {x + 30, 207}}, 1); };
    pdf.SetLineStyle(6, tipo, tipo, limite);
    pdf.SetColorLine(Panno);
    traccia();
    pdf.SetLineStyle(0.3F, 0);
    pdf.SetColorLine("White");
    traccia();
    Didascalia(pdf, x + 15, 215, nome);
}

void Tratteggi(clsPDFCreator& pdf)
{
    pdf.SetColorLine(Rosso);
    float y = 236;
    for (const float spessore : {0.2F, 0.6F, 1.2F, 2.0F}) {
        pdf.SetLineStyle(spessore, 0);
        pdf.DrawLine(Sinistra, y, 60, y);
        pdf.SetLineStyle(spessore, 0, -1, 0, 6, 3);
        pdf.DrawLine(66, y, 126, y);
        pdf.SetLineStyle(spessore, 1, -1, 0, 0.01F, 4); // round ends make dots of almost nothing
        pdf.DrawLine(133, y, 191, y);
        y += 9;
    }
    Didascalia(pdf, 39, 272, "da 0.2 a 2 mm");
    Didascalia(pdf, 96, 272, "6 sì e 3 no");
    Didascalia(pdf, 162, 272, "punti a capo tondo");
}

// ---- Paths -------------------------------------------------------------------------------------

void Stella(clsPDFCreator& pdf, float x, float y, float raggio, int punte, int opzioni)
{
    const int salto = punte / 2;
    for (int i = 0; i < punte; ++i) {
        const double angolo = 2 * std::numbers::pi * i * salto / punte - std::numbers::pi / 2;
        const float px = x + raggio * static_cast<float>(std::cos(angolo));
        const float py = y + raggio * static_cast<float>(std::sin(angolo));
        if (i == 0) {
            pdf.MoveTo(px, py);
        } else {
            pdf.DrawLineTo(px, py, i + 1 < punte ? 0 : opzioni);
        }
    }
}

void Opzioni(clsPDFCreator& pdf)
{
    struct Modo
    {
        int Opzioni;
        const char* Nome;
    };
    constexpr Modo modi[] = {
        {1, "1: tratto"}, {3, "1 + 2: chiuso"}, {4, "4: pieno"}, {5, "1 + 4"}, {7, "1 + 2 + 4"}};
    float x = 35;
    for (const auto& [opzioni, nome] : modi) {
        pdf.SetColorLine(Panno);
        pdf.SetColorFill(Oro);
        pdf.SetLineStyle(0.8F, 1, 1);
        Stella(pdf, x, 62, 15, 5, opzioni);
        Didascalia(pdf, x, 83, nome);
        x += 35;
    }
}

void Stelle(clsPDFCreator& pdf)
{
    float x = 38;
    pdf.SetLineStyle(0.3F, 1, 1);
    for (const int punte : {7, 9, 13, 21}) {
        pdf.SetColorLine(punte % 4 == 1 ? Rosso : Panno);
        Stella(pdf, x, 123, 18, punte, 3);
        x += 45;
    }
}

void Rettangoli(clsPDFCreator& pdf)
{
    pdf.SetLineStyle(0.6F);
    float x = Sinistra;
    for (const float raggio : {0.0F, 3.0F, 8.0F, 50.0F}) {
        pdf.SetColorLine(Panno);
        pdf.SetColorFill(Carta);
        pdf.DrawRect(x, 163, 38, 26, 5, raggio);
        const int intero = static_cast<int>(raggio);
        Didascalia(pdf, x + 19, 194, "raggio " + std::to_string(intero));
        x += 45.3F;
    }
}

void Scacchi(clsPDFCreator& pdf)
{
    constexpr float lato = 8;
    for (int casa = 0; casa < 64; ++casa) {
        const int riga = casa / 8;
        pdf.SetColorFill((riga + casa) % 2 == 0 ? Carta : Panno);
        pdf.DrawRect(Sinistra + lato * static_cast<float>(casa % 8),
                     211 + lato * static_cast<float>(riga), lato, lato, 4);
    }
}

// Straight lines whose ends wander along two sides.
void Ricamo(clsPDFCreator& pdf)
{
    pdf.SetLineStyle(0.2F);
    for (float passo = 0; passo <= 64; passo += 3.2F) {
        pdf.SetColorLine(Rosso);
        pdf.DrawLine(106, 211 + passo, 106 + passo * 1.3F, 275);
        pdf.SetColorLine(Panno);
        pdf.DrawLine(190, 275 - passo, 190 - passo * 1.3F, 211);
    }
}

} // namespace

void PaginaColori(clsPDFCreator& pdf)
{
    ApriPagina(pdf, "Colori e linee", "SetColorFill, SetColorLine, ToColor, SetLineStyle");
    Sezione(pdf, 38, "Colori per nome");
    Nomi(pdf);
    Sezione(pdf, 97, "Grigi e mescole");
    Gradazioni(pdf);
    Sezione(pdf, 169, "Capi e angoli");
    Angolo(pdf, 30, 0, "0: vivi");
    Angolo(pdf, 90, 1, "1: tondi");
    Angolo(pdf, 150, 2, "2: quadri e smussi");
    Sezione(pdf, 226, "Spessori e tratteggi");
    Tratteggi(pdf);
    ChiudiPagina(pdf);
}

void PaginaPercorsi(clsPDFCreator& pdf)
{
    ApriPagina(pdf, "Percorsi", "MoveTo, DrawLineTo, DrawLine, DrawRect");
    Sezione(pdf, 38, "Opzioni");
    Opzioni(pdf);
    Sezione(pdf, 96, "Linee spezzate");
    Stelle(pdf);
    Sezione(pdf, 155, "Rettangoli");
    Rettangoli(pdf);
    Sezione(pdf, 204, "Quadri e ricami");
    Scacchi(pdf);
    Ricamo(pdf);
    ChiudiPagina(pdf);
}

} // namespace galleria
