// Makes a conforming PDF file of one page with annotations of each kind, and writes where they
// stand, in points:
//
//   disegna_note FILE.pdf      lines "NAME LEFT TOP WIDTH HEIGHT" on standard output

#include "clsPDFCreator.h"

#include <iostream>
#include <string>

namespace {

void Posto(const std::string& nome, float x, float y, float larga, float alta)
{
    std::cout << nome << ' ' << x << ' ' << y << ' ' << larga << ' ' << alta << '\n';
}

// In each colour that the writer knows by name or by itself, and in none.
void Icone(clsPDFCreator& pdf)
{
    const char* colori[] = {"", "Black", "White", "Blue", "#B3261E", "%50", "Yellow"};
    float y = 20;
    for (const char* colore : colori) {
        for (int segno = 0; segno < 7; ++segno) {
            const float x = 20 + 30 * static_cast<float>(segno);
            pdf.AddNoteIcon("nota", segno, x, y, false, colore);
            Posto("icona" + std::to_string(segno) + colore, x, y, 20, 20);
        }
        y += 30;
    }
}

void Riquadri(clsPDFCreator& pdf)
{
    for (int bordo = 0; bordo < 5; ++bordo) {
        for (int lato = 0; lato < 3; ++lato) {
            const float x = 20 + 110 * static_cast<float>(bordo);
            const float y = 250 + 60 * static_cast<float>(lato);
            pdf.AddNoteBox("L'età - 10 € “x” (tre righe di testo)", x, y, 100, 50, 11, "#204080",
                           lato, static_cast<float>(lato) + 1, bordo, lato == 0 ? "" : "#F7F1E1");
            Posto("riquadro" + std::to_string(bordo) + std::to_string(lato), x, y, 100, 50);
        }
    }
}

void Timbri(clsPDFCreator& pdf)
{
    for (int timbro = 0; timbro < 14; ++timbro) {
        const float x = 20 + 140 * static_cast<float>(timbro % 4);
        const float y = 450 + 50 * static_cast<float>(timbro / 4);
        pdf.AddNoteStamp("timbro", x, y, 130, 40, timbro, "", timbro % 2 == 0 ? "" : "#1F4E3D");
        Posto("timbro" + std::to_string(timbro), x, y, 130, 40);
    }
}

void Rimandi(clsPDFCreator& pdf)
{
    for (int bordo = 1; bordo < 5; ++bordo) {
        const float x = 20 + 110 * static_cast<float>(bordo - 1);
        pdf.AddWebLink("https://example.org/", x, 700, 100, 30, 1, static_cast<float>(bordo));
        Posto("rimando" + std::to_string(bordo), x, 700, 100, 30);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    try {
        clsPDFCreator pdf;
        pdf.Conforming();
        pdf.BeginDoc(argv[1]);
        pdf.BeginPage();
        Icone(pdf);
        Riquadri(pdf);
        Timbri(pdf);
        Rimandi(pdf);
        pdf.EndPage();
        pdf.EndDoc();
    } catch (const std::exception& errore) {
        std::cerr << errore.what() << '\n';
        return 1;
    }
    return 0;
}
