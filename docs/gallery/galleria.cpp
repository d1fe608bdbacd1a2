// Writes the gallery of the PDF writer: every operation of the class on a few pages.
//
//     galleria OUTPUT.pdf PICTURES FONT.ttf FONT.ttf [FILTERS | --apri | --conforme | --compatta]
//
// PICTURES is the folder with tramonto.jpg, mano.gif and semi.bmp; FILTERS what FilterDecode takes
// (6 when not given); --apri opens the finished document; --conforme writes one that no reader
// remarks on, --compatta a compressed one that is so, too.

#include "Galleria.h"

#include <charconv>
#include <iostream>
#include <vector>

namespace {

constexpr int FiltriUsuali = 6; // LZW, then base-85 letters

struct Scelte
{
    std::string Uscita, Figure, Font, AltroFont;
    int Filtri = FiltriUsuali;
    bool Apri = false;
    bool Conforme = false;
    bool Compatta = false;
};

// False for arguments that are none of those above.
bool Leggi(const std::vector<std::string>& argomenti, Scelte& scelte)
{
    if (argomenti.size() < 4 || argomenti.size() > 5) return false;
    scelte = {argomenti[0], argomenti[1], argomenti[2], argomenti[3]};
    if (argomenti.size() == 4) return true;
    const std::string& ultimo = argomenti[4];
    scelte.Apri = ultimo == "--apri";
    scelte.Compatta = ultimo == "--compatta";
    scelte.Conforme = ultimo == "--conforme" || scelte.Compatta;
    if (scelte.Apri || scelte.Conforme) return true;
    const char* fine = ultimo.data() + ultimo.size();
    const auto letto = std::from_chars(ultimo.data(), fine, scelte.Filtri);
    return letto.ec == std::errc() && letto.ptr == fine;
}

void Prepara(clsPDFCreator& pdf, const Scelte& scelte)
{
    constexpr int a4 = 0;
    constexpr int millimetri = 2;
    constexpr int livello = 6;
    pdf.ShareFonts(true);
    pdf.Conforming(scelte.Conforme);
    if (scelte.Compatta) pdf.Compress(livello);
    if (scelte.Conforme) pdf.SetLanguage("it");
    pdf.SetScale(millimetri);
    pdf.SetPaperSize(a4);
    pdf.Margin(0);
    pdf.Orientation(0); // upright, but for the page that asks otherwise
    pdf.PDFReader(1);
    pdf.FilterDecode(scelte.Filtri);
    pdf.SetDocProperty("Galleria", "Tutte le operazioni di clsPDFCreator", "La casa", "galleria",
                       {}, "PDF, galleria, esempi");
    pdf.BeginDoc(scelte.Uscita);
    pdf.AddFont(scelte.Font, "Carattere di casa");
    pdf.AddFont(scelte.AltroFont, "Macchina da scrivere");
}

void Pagine(clsPDFCreator& pdf, const Scelte& scelte)
{
    galleria::Modelli(pdf);
    galleria::Motivi(pdf);
    galleria::Copertina(pdf);
    for (const auto pagina :
         {galleria::PaginaCaratteri, galleria::PaginaRighe, galleria::PaginaRiquadri,
          galleria::PaginaColori, galleria::PaginaPercorsi, galleria::PaginaCurve,
          galleria::PaginaAssi, galleria::PaginaTabelle}) {
        pagina(pdf);
    }
    galleria::PaginaFigure(pdf, scelte.Figure, scelte.Filtri);
    for (const auto pagina : {galleria::PaginaFont, galleria::PaginaCodici, galleria::PaginaMotivi,
                              galleria::PaginaNote, galleria::FoglioGirato}) {
        pagina(pdf);
    }
    galleria::Piede(pdf);
}

} // namespace

int main(int argc, char** argv)
{
    Scelte scelte;
    if (!Leggi({argv + 1, argv + argc}, scelte)) {
        std::cerr << "galleria USCITA.pdf FIGURE FONT.ttf FONT.ttf "
                     "[FILTRI | --apri | --conforme | --compatta]\n";
        return 2;
    }
    try {
        clsPDFCreator pdf;
        Prepara(pdf, scelte);
        Pagine(pdf, scelte);
        pdf.EndDoc();
        if (scelte.Apri) pdf.OpenDoc();
    } catch (const ErroreRuntime& errore) {
        std::cerr << errore.what() << '\n';
        return 1;
    }
    return 0;
}
