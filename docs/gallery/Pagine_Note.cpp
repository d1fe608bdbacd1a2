// Last pages of the gallery: notes, stamps and links; the turned sheet with all operations.

#include "Galleria.h"

namespace galleria {

namespace {

// ---- Notes, stamps, links ----------------------------------------------------------------------

void Icone(clsPDFCreator& pdf)
{
    constexpr const char* nomi[] = {"nota",      "commento", "chiave",    "aiuto",
                                    "capoverso", "a capo",   "inserzione"};
    for (int icona = 0; icona < 7; ++icona) {
        const float x = 26 + 25 * static_cast<float>(icona);
        pdf.AddNoteIcon("Icona " + std::to_string(icona), icona, x, 46, false, Oro, "Galleria");
        Didascalia(pdf, x + 3.5F, 59, nomi[icona]);
    }
}

void Riquadri(clsPDFCreator& pdf)
{
    constexpr const char* nomi[] = {"intero", "a tratti", "in rilievo", "incavato", "sotto"};
    for (int bordo = 0; bordo < 5; ++bordo) {
        const float x = Sinistra + 35.3F * static_cast<float>(bordo);
        pdf.AddNoteBox(nomi[bordo], x, 80, 32, 12, 12, bordo % 2 == 0 ? Rosso : Panno, bordo % 3, 2,
                       bordo, Carta, "Bordo");
    }
    Didascalia(pdf, LarghezzaFoglio / 2, 98, "AddNoteBox: cinque bordi, tre allineamenti");
}

void Timbri(clsPDFCreator& pdf)
{
    constexpr int timbri = 14;
    for (int timbro = 0; timbro < timbri; ++timbro) {
        const float x = 19 + 35.3F * static_cast<float>(timbro % 5);
        const float y = 122 + 29 * static_cast<float>(timbro / 5);
        pdf.AddNoteStamp("Timbro " + std::to_string(timbro), x, y, 31, 12, timbro, "La casa",
                         Rosso);
        Didascalia(pdf, x + 15.5F, y + 17, "timbro " + std::to_string(timbro));
    }
}

void Rimandi(clsPDFCreator& pdf)
{
    constexpr const char* nomi[] = {"nessun segno", "invertito", "contornato", "premuto"};
    for (int segno = 0; segno < 4; ++segno) {
        const float x = 20 + 44 * static_cast<float>(segno);
        const float bordo = segno % 2 == 0 ? 0.0F : 1.0F;
        pdf.SetColorFill("#1A4FA3");
        pdf.SetColorLine("#1A4FA3");
        pdf.SetFont("Arial", 11, segno % 2 == 0 ? 4 : 0);
        pdf.DrawText(x + 19, 239, nomi[segno], Centro);
        pdf.AddWebLink("https://example.org/galleria?segno=" + std::to_string(segno), x, 233, 38, 9,
                       segno, bordo);
    }
    Didascalia(pdf, LarghezzaFoglio / 2, 250, "AddWebLink: quel che si vede lo disegna la pagina");
}

void Segnalibri(clsPDFCreator& pdf)
{
    constexpr int intera = 0, inAltezza = 1, rettangolo = 3;
    pdf.AddBookmark("Tutto il disegno", 3, intera);
    pdf.AddBookmark("In altezza, da 105 mm", 3, inAltezza, 105);
    pdf.AddBookmark("I timbri da vicino", 3, rettangolo, Sinistra, 110, Destra, 210);
    pdf.SetFont("Times New Roman", 12, 2);
    pdf.DrawText(LarghezzaFoglio / 2, 274,
                 "I segnalibri stanno accanto alla pagina: uno per foglio, "
                 "uno per sezione.",
                 Centro);
}

// ---- The turned sheet --------------------------------------------------------------------------

constexpr const char* Operazioni[] = {"PDFReader",
                                      "Margin",
                                      "Pages",
                                      "GetX",
                                      "GetY",
                                      "SetScale",
                                      "SetPaperSize",
                                      "Orientation",
                                      "SetDocProperty",
                                      "BeginDoc",
                                      "EndDoc",
                                      "BeginPage",
                                      "EndPage",
                                      "SetWordSpacing",
                                      "SetCharSpacing",
                                      "SetTextHorizontalScaling",
                                      "SetTextRenderingMode",
                                      "DrawText",
                                      "SetLineStyle",
                                      "MoveTo",
                                      "DrawLineTo",
                                      "DrawLine",
                                      "DrawRect",
                                      "DrawCurveA",
                                      "DrawCurveB",
                                      "DrawCurveC",
                                      "DrawCircle",
                                      "DrawEllipse",
                                      "DrawArc",
                                      "BeginObject",
                                      "EndObject",
                                      "PlayObject",
                                      "TextLength",
                                      "TextHeight",
                                      "prToASCII85",
                                      "DrawParagraph",
                                      "AddBookmark",
                                      "AddNoteIcon",
                                      "AddNoteBox",
                                      "AddNoteStamp",
                                      "AddWebLink",
                                      "MakeAxisTranslation",
                                      "MakeAxisScaling",
                                      "MakeAxisRotation",
                                      "MakeAxisSkewing",
                                      "BeginGraphicSpace",
                                      "EndGraphicSpace",
                                      "BeginTable",
                                      "BeginRow",
                                      "EndRow",
                                      "BeginColumn",
                                      "EndColumn",
                                      "EndTable",
                                      "BeginTiling",
                                      "EndTiling",
                                      "SetRadialFill",
                                      "SetLinearFill",
                                      "Version",
                                      "DrawTextBox",
                                      "OpenDoc",
                                      "DrawEAN13",
                                      "DrawCODE39",
                                      "SetFont",
                                      "SetFontSize",
                                      "DrawImage",
                                      "SetColorFill",
                                      "SetColorLine",
                                      "AddFont",
                                      "ToColor",
                                      "FilterDecode"};

void Elenco(clsPDFCreator& pdf)
{
    constexpr int perColonna = 18;
    constexpr float passo = 7.6F;
    int posto = 0;
    for (const char* operazione : Operazioni) {
        const float x = 24 + 64 * static_cast<float>(posto / perColonna);
        const float y = 52 + passo * static_cast<float>(posto % perColonna);
        pdf.SetColorFill(Oro);
        pdf.SetFont("Times New Roman", 13, 1);
        pdf.DrawText(x + 7, y, std::to_string(posto), ADestra);
        pdf.SetColorFill(Inchiostro);
        pdf.SetFont("Courier New", 10);
        pdf.DrawText(x + 10, y, operazione);
        ++posto;
    }
}

// The current point after a text is one font size below it.
void SottoLElenco(clsPDFCreator& pdf)
{
    pdf.SetColorFill(Tenue);
    pdf.SetFont("Arial", 9, 2);
    pdf.DrawText(216, 181, "Questa pagina è girata: gli assi la");
    pdf.DrawText(pdf.GetX(), pdf.GetY() + 1, "raddrizzano per chi la legge.");
}

} // namespace

void PaginaNote(clsPDFCreator& pdf)
{
    ApriPagina(pdf, "Note e rimandi",
               "AddBookmark, AddNoteIcon, AddNoteBox, AddNoteStamp, AddWebLink");
    Sezione(pdf, 38, "Note dietro un'icona");
    Icone(pdf);
    Sezione(pdf, 72, "Note scritte sulla pagina");
    Riquadri(pdf);
    Sezione(pdf, 110, "Timbri");
    Timbri(pdf);
    Sezione(pdf, 224, "Rimandi");
    Rimandi(pdf);
    Sezione(pdf, 262, "Segnalibri");
    Segnalibri(pdf);
    ChiudiPagina(pdf);
}

void FoglioGirato(clsPDFCreator& pdf)
{
    constexpr int girato = 1;
    constexpr int decimale = 0;
    pdf.BeginPage(girato, decimale, "A-", 1);
    // What plays itself at the page's end needs its own axes back.
    pdf.BeginGraphicSpace(0, 0);
    // Seen turned clockwise: x runs up the sheet from its lower left corner, y across it.
    pdf.MakeAxisTranslation(0, AltezzaFoglio);
    pdf.MakeAxisRotation(-90);
    pdf.SetColorFill(Panno);
    pdf.DrawRect(0, 0, AltezzaFoglio, 25, 4);
    pdf.SetColorFill(Oro);
    pdf.DrawRect(0, 25, AltezzaFoglio, 1.2F, 4);
    pdf.SetColorFill("White");
    pdf.SetFont("Times New Roman", 24, 1);
    pdf.DrawText(24, 16, "Tutte le operazioni");
    Stemma(pdf, 268, 12.5F, 0.75F);
    Elenco(pdf);
    SottoLElenco(pdf);
    pdf.EndGraphicSpace();
    pdf.AddBookmark("Tutte le operazioni");
    pdf.EndPage();
}

} // namespace galleria
