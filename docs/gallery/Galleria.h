// The gallery's pages and what they share; galleria.cpp writes them in order. Lengths in
// millimetres on A4, 210.3 by 297.
#pragma once

#include "clsPDFCreator.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace galleria {

constexpr const char* Panno = "#1F4E3D"; // the green of the table's cloth
constexpr const char* Oro = "#D9A441";
constexpr const char* Rosso = "#B3261E";
constexpr const char* Carta = "#F7F1E1";
constexpr const char* Inchiostro = "#222222";
constexpr const char* Tenue = "#6B6B6B";

constexpr float LarghezzaFoglio = 210.3F;
constexpr float AltezzaFoglio = 297.1F;
constexpr float Sinistra = 18;
constexpr float Destra = 192;

// Alignment, as the writer knows it.
constexpr int Centro = 4;
constexpr int ADestra = 2;

// Forms and tilings that pages use; before the first page. The footer is made after the last one.
void Modelli(clsPDFCreator& pdf);
void Motivi(clsPDFCreator& pdf);
void Piede(clsPDFCreator& pdf);

// Begins a page with the title bar and a bookmark; ends it with the footer.
void ApriPagina(clsPDFCreator& pdf, std::string_view titolo, std::string_view sottotitolo);
void ChiudiPagina(clsPDFCreator& pdf);

// A heading over a row of specimens, its baseline at y, with a line under it and a bookmark.
void Sezione(clsPDFCreator& pdf, float y, std::string_view titolo);

// A caption centred on x. Leaves the caption's font and ink.
void Didascalia(clsPDFCreator& pdf, float x, float y, std::string_view testo);

// The emblem of the house, 24 by 24 at its usual size, centred on (x, y).
void Stemma(clsPDFCreator& pdf, float x, float y, float scala);

// A playing card, 18 by 26, its corner at the origin. Seme: a suit of the Symbol font.
void CartaDaGioco(clsPDFCreator& pdf, std::string_view seme);

// A polygon through (x, y) pairs, painted as opzioni say.
struct Punto
{
    float X, Y;
};
void Poligono(clsPDFCreator& pdf, std::initializer_list<Punto> punti, int opzioni);

// ---- Pages, each one sheet ---------------------------------------------------------------------

void Copertina(clsPDFCreator& pdf);
void PaginaCaratteri(clsPDFCreator& pdf);
void PaginaRighe(clsPDFCreator& pdf);
void PaginaRiquadri(clsPDFCreator& pdf);
void PaginaColori(clsPDFCreator& pdf);
void PaginaPercorsi(clsPDFCreator& pdf);
void PaginaCurve(clsPDFCreator& pdf);
void PaginaAssi(clsPDFCreator& pdf);
void PaginaTabelle(clsPDFCreator& pdf);
void PaginaFigure(clsPDFCreator& pdf, const std::string& cartella, int filtri);
void PaginaFont(clsPDFCreator& pdf);
void PaginaCodici(clsPDFCreator& pdf);
void PaginaMotivi(clsPDFCreator& pdf);
void PaginaNote(clsPDFCreator& pdf);
void FoglioGirato(clsPDFCreator& pdf);

} // namespace galleria
