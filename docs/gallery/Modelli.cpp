// What all pages of the gallery share: title bar, footer, captions, emblem. The tilings that fill
// areas stand in Motivi.cpp.

#include "Galleria.h"

namespace galleria {

namespace {

void Fascia(clsPDFCreator& pdf)
{
    pdf.BeginObject("Fascia"); // played by each page that wants it
    pdf.SetColorFill(Panno);
    pdf.DrawRect(0, 0, LarghezzaFoglio, 25, 4);
    pdf.SetColorFill(Oro);
    pdf.DrawRect(0, 25, LarghezzaFoglio, 1.2F, 4);
    pdf.EndObject();
}

// At the outer edge, as in a book: the left one of even pages, the right one of odd ones.
void Costola(clsPDFCreator& pdf, std::string_view nome, int pagine, float x)
{
    pdf.BeginObject(nome, pagine);
    pdf.SetColorFill(Oro);
    pdf.DrawRect(x, 120, 5, 60, 4);
    pdf.SetColorFill("White");
    pdf.SetFont("Arial", 8, 1);
    // Options move a text along x, whatever its angle.
    pdf.DrawText(x + 3.6F, 150 + pdf.TextLength("galleria") / 2, "galleria", 1, 90);
    pdf.EndObject();
}

// An object is cut at the edges of the page in its own coordinates, hence the centre inside.
void DisegnaStemma(clsPDFCreator& pdf)
{
    pdf.BeginObject("Stemma");
    pdf.SetColorFill(Oro);
    pdf.DrawCircle(12, 12, 12, 4);
    pdf.SetColorFill("White");
    pdf.DrawCircle(12, 12, 10.8F, 4);
    pdf.SetColorFill(Panno);
    pdf.DrawCircle(12, 12, 10, 4);
    pdf.SetColorFill(Oro);
    pdf.SetFont("Symbol", 42);
    pdf.DrawText(12, 17, "ª", Centro);
    pdf.EndObject();
}

} // namespace

void Modelli(clsPDFCreator& pdf)
{
    constexpr int pari = 2;
    constexpr int dispariDopoLaPrima = 12;
    constexpr int sopra = 16;
    Fascia(pdf);
    Costola(pdf, "CostolaPari", pari + sopra, 0);
    Costola(pdf, "CostolaDispari", dispariDopoLaPrima + sopra, LarghezzaFoglio - 5);
    DisegnaStemma(pdf);
}

void Piede(clsPDFCreator& pdf)
{
    pdf.BeginObject("Piede"); // the pages play it already
    pdf.SetColorLine(Oro);
    pdf.SetLineStyle(0.2F);
    pdf.DrawLine(Sinistra, 283, Destra, 283);
    pdf.SetColorFill(Tenue);
    pdf.SetFont("Arial", 8);
    pdf.DrawText(Sinistra, 288, "clsPDFCreator " + clsPDFCreator::Version());
    pdf.DrawText(Destra, 288, "di " + std::to_string(pdf.Pages() - 1), ADestra);
    pdf.EndObject();
}

void ApriPagina(clsPDFCreator& pdf, std::string_view titolo, std::string_view sottotitolo)
{
    constexpr int decimale = 0;
    constexpr int avanti = 255; // goes on counting
    constexpr float spazioTotale = 7.4F;
    pdf.BeginPage(0, pdf.Pages() == 1 ? decimale : avanti);
    pdf.PlayObject("Fascia");
    Stemma(pdf, 182, 12.5F, 0.75F);
    pdf.SetColorFill("White");
    pdf.SetFont("Times New Roman", 24, 1);
    pdf.DrawText(Sinistra, 13, titolo);
    pdf.SetFont("Times New Roman", 11, 2);
    pdf.DrawText(Sinistra, 20, sottotitolo);
    pdf.SetColorFill(Tenue);
    pdf.SetFont("Arial", 8);
    pdf.DrawText(Destra - spazioTotale, 288, "pag. " + std::to_string(pdf.Pages() - 1), ADestra);
    pdf.PlayObject("Piede");
    pdf.AddBookmark(titolo, 1, 4, 0, 0);
}

void ChiudiPagina(clsPDFCreator& pdf)
{
    pdf.EndPage();
}

void Sezione(clsPDFCreator& pdf, float y, std::string_view titolo)
{
    constexpr int inLarghezza = 2;
    pdf.SetColorFill(Panno);
    pdf.SetFont("Arial", 12, 1);
    pdf.DrawText(Sinistra, y, titolo);
    pdf.SetColorLine(Oro);
    pdf.SetLineStyle(0.4F, 0, 0);
    pdf.DrawLine(Sinistra, y + 1.8F, Destra, y + 1.8F);
    pdf.AddBookmark(titolo, 2, inLarghezza, 0, y - 6);
    pdf.SetColorFill(Inchiostro);
    pdf.SetColorLine(Inchiostro);
}

void Didascalia(clsPDFCreator& pdf, float x, float y, std::string_view testo)
{
    pdf.SetFont("Arial", 8, 2);
    pdf.SetColorFill(Tenue);
    pdf.DrawText(x, y, testo, Centro);
    pdf.SetColorFill(Inchiostro);
}

void Stemma(clsPDFCreator& pdf, float x, float y, float scala)
{
    constexpr float mezzo = 12;
    pdf.BeginGraphicSpace(x - mezzo * scala, y - mezzo * scala, scala, scala);
    pdf.PlayObject("Stemma");
    pdf.EndGraphicSpace();
}

void CartaDaGioco(clsPDFCreator& pdf, std::string_view seme)
{
    const bool rossa = seme == "©" || seme == "¨";
    pdf.SetLineStyle(0.25F);
    pdf.SetColorLine("Gray");
    pdf.SetColorFill("White");
    pdf.DrawRect(0, 0, 18, 26, 5, 2);
    pdf.SetColorFill(rossa ? Rosso : Inchiostro);
    pdf.SetFont("Symbol", 40);
    pdf.DrawText(9, 18, seme, Centro);
    pdf.SetFontSize(9);
    pdf.DrawText(3, 5, seme, Centro);
}

void Poligono(clsPDFCreator& pdf, std::initializer_list<Punto> punti, int opzioni)
{
    std::size_t fatti = 0;
    for (const auto& [x, y] : punti) {
        ++fatti;
        if (fatti == 1) {
            pdf.MoveTo(x, y);
        } else {
            pdf.DrawLineTo(x, y, fatti == punti.size() ? opzioni : 0);
        }
    }
}

} // namespace galleria
