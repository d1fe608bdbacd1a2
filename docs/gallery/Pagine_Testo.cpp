// Pages of the gallery: lines of text, boxes of text. Next: Pagine_Disegno.cpp.

#include "Galleria.h"

namespace galleria {

namespace {

// ---- Lines of text -----------------------------------------------------------------------------

void Allineamenti(clsPDFCreator& pdf)
{
    constexpr float meta = LarghezzaFoglio / 2;
    pdf.SetColorLine(Rosso);
    pdf.SetLineStyle(0.3F, 0, 0, 0, 1.5F, 1);
    pdf.DrawLine(meta, 45, meta, 74);
    pdf.SetFont("Times New Roman", 17);
    pdf.DrawText(meta, 51, "comincia qui", 1);
    pdf.DrawText(meta, 60, "finisce qui", ADestra);
    pdf.DrawText(meta, 69, "sta in mezzo", Centro);
}

void Decorazioni(clsPDFCreator& pdf)
{
    struct Modo
    {
        int Stile;
        const char* Nome;
    };
    constexpr Modo modi[] = {
        {4, "sottolineato"}, {8, "sopralineato"}, {16, "barrato"}, {31, "tutto insieme"}};
    pdf.SetColorLine(Rosso);
    float x = 38;
    for (const auto& [stile, nome] : modi) {
        pdf.SetFont("Arial", 16, stile);
        pdf.DrawText(x, 97, nome, Centro);
        x += 45;
    }
}

void Spaziature(clsPDFCreator& pdf)
{
    pdf.SetFont("Arial", 15);
    pdf.SetCharSpacing(4);
    pdf.DrawText(Sinistra, 121, "lettere larghe");
    pdf.SetCharSpacing(0);
    pdf.SetWordSpacing(14);
    pdf.DrawText(84, 121, "parole ben lontane");
    pdf.SetWordSpacing(0);
    pdf.SetTextHorizontalScaling(50);
    pdf.DrawText(150, 121, "lettere strette");
    pdf.SetTextHorizontalScaling(150);
    pdf.DrawText(150, 129, "distese");
    pdf.SetTextHorizontalScaling(100);
    Didascalia(pdf, 42, 127, "SetCharSpacing");
    Didascalia(pdf, 110, 127, "SetWordSpacing");
    Didascalia(pdf, 165, 134, "SetTextHorizontalScaling");
}

void Resa(clsPDFCreator& pdf)
{
    constexpr const char* nomi[] = {"0 pieno", "1 contorno", "2 entrambi"};
    float x = 34;
    pdf.SetColorLine(Rosso);
    pdf.SetLineStyle(0.5F);
    for (int modo = 0; modo < 3; ++modo) {
        pdf.SetColorFill(Oro);
        pdf.SetFont("Times New Roman", 60, 1);
        pdf.SetTextRenderingMode(modo);
        pdf.DrawText(x, 170, "31", Centro);
        pdf.SetTextRenderingMode(0);
        Didascalia(pdf, x, 178, nomi[modo]);
        x += 36;
    }
}

// The letters cut what follows, until the end of the space.
void Ritaglio(clsPDFCreator& pdf)
{
    constexpr int ritaglia = 7;
    pdf.BeginGraphicSpace(130, 147);
    pdf.SetFont("Arial", 58, 1);
    pdf.SetTextRenderingMode(ritaglia);
    pdf.DrawText(0, 23, "NERO");
    pdf.SetLineStyle(1.4F);
    pdf.SetColorLine(Panno);
    for (float x = -30; x < 80; x += 2.8F) pdf.DrawLine(x, 30, x + 30, 0);
    pdf.EndGraphicSpace();
    pdf.SetTextRenderingMode(0);
    Didascalia(pdf, 160, 178, "7: le lettere ritagliano le righe");
}

void Raggiera(clsPDFCreator& pdf)
{
    constexpr float cx = LarghezzaFoglio / 2;
    constexpr float cy = 237;
    for (int raggio = 0; raggio < 24; ++raggio) {
        const float angolo = 15 * static_cast<float>(raggio);
        pdf.SetColorFill(raggio % 2 == 0 ? Panno : Rosso);
        pdf.SetFont("Times New Roman", 16, raggio % 2);
        pdf.DrawText(cx, cy, "             Scalvino", 1, angolo);
    }
    Stemma(pdf, cx, cy, 0.7F);
}

// ---- Boxes of text -----------------------------------------------------------------------------

constexpr const char* Regola = "Si scoprono le carte della prima fila finché i punti passano "
                               "trenta, poi quelle della seconda; "
                               "vince la fila che ne ha di meno.";

void QuattroModi(clsPDFCreator& pdf)
{
    struct Modo
    {
        int Opzioni;
        const char* Nome;
    };
    constexpr Modo modi[] = {{1, "1: a sinistra"},
                             {4, "4: al centro"},
                             {2, "2: a destra"},
                             {64, "64: pari ai due lati"}};
    float x = Sinistra;
    for (const auto& [opzioni, nome] : modi) {
        pdf.SetColorLine(Oro);
        pdf.SetColorFill(Carta);
        pdf.DrawRect(x, 46, 41, 38, 5, 2);
        pdf.SetColorFill(Inchiostro);
        pdf.SetFont("Times New Roman", 11);
        pdf.DrawTextBox(x + 2.5F, 48, 36, 34, Regola, 1.15F, 0, opzioni);
        Didascalia(pdf, x + 20.5F, 88.5F, nome);
        x += 44.3F;
    }
}

void TreAltezze(clsPDFCreator& pdf)
{
    constexpr const char* nomi[] = {"in alto", "16: in basso", "32: in mezzo"};
    float x = Sinistra;
    for (int posto = 0; posto < 3; ++posto) {
        pdf.SetColorFill(Carta);
        pdf.SetColorLine(Oro);
        pdf.DrawRect(x, 106, 55, 32, 5, 2);
        pdf.SetColorFill(Panno);
        pdf.SetFont("Arial", 13, 1);
        pdf.DrawTextBox(x, 107, 55, 30, "due righe\r\n" + std::string(nomi[posto]), 1.2F, 0,
                        Centro + 16 * posto);
        x += 59.5F;
    }
}

void Capoversi(clsPDFCreator& pdf)
{
    constexpr float corpo = 11.5F;
    const std::string testo =
        std::string("Il mazzo ha trecentododici carte. ") + Regola +
        "\r\nA punti uguali la mano è pari e le poste restano dove sono, salvo "
        "a trentuno.\r\n\r\nUna riga vuota separa i capoversi; due  o   tre "
        "spazi contano come uno solo, e l'ultima riga di un capoverso non si "
        "allarga.";
    pdf.SetColorLine(Oro);
    pdf.SetLineStyle(0.3F);
    pdf.DrawLine(LarghezzaFoglio / 2, 156, LarghezzaFoglio / 2, 210);
    pdf.SetFont("Times New Roman", corpo);
    const int strette = pdf.DrawParagraph(Sinistra, 155, 82, 60, testo, 1.2F, 6, 64);
    pdf.SetFont("Arial", corpo - 2);
    const int larghe = pdf.DrawTextBox(110, 155, 82, 60, testo, 1.6F, 0, 1);
    Didascalia(pdf, 59, 216, "rientro di 6 mm, righe: " + std::to_string(strette));
    Didascalia(pdf, 151, 216, "interlinea 1.6, righe: " + std::to_string(larghe));
}

void Inclinati(clsPDFCreator& pdf)
{
    float x = 30;
    for (const float angolo : {0.0F, 12.0F, -12.0F, 90.0F}) {
        pdf.SetFont("Times New Roman", 11, 2);
        pdf.SetColorFill(Rosso);
        const float y = angolo > 0 ? 248 + angolo / 5 : 240;
        pdf.DrawTextBox(x, y, 34, 20, "un riquadro intero può girare", 1.3F, 0, Centro, angolo);
        x += angolo < 0 ? 50 : 42;
    }
}

} // namespace

void PaginaRighe(clsPDFCreator& pdf)
{
    ApriPagina(pdf, "Righe di testo", "DrawText e lo stato del testo");
    Sezione(pdf, 38, "Allineamento");
    Allineamenti(pdf);
    Sezione(pdf, 84, "Decorazioni");
    Decorazioni(pdf);
    Sezione(pdf, 109, "Spazi");
    Spaziature(pdf);
    Sezione(pdf, 143, "Modi di resa");
    Resa(pdf);
    Ritaglio(pdf);
    Sezione(pdf, 190, "Angoli");
    Raggiera(pdf);
    ChiudiPagina(pdf);
}

void PaginaRiquadri(clsPDFCreator& pdf)
{
    ApriPagina(pdf, "Riquadri di testo", "DrawTextBox, DrawParagraph");
    Sezione(pdf, 38, "Allineamento delle righe");
    QuattroModi(pdf);
    Sezione(pdf, 99, "Posto nell'altezza");
    TreAltezze(pdf);
    Sezione(pdf, 149, "Capoversi");
    Capoversi(pdf);
    Sezione(pdf, 227, "Angoli");
    Inclinati(pdf);
    ChiudiPagina(pdf);
}

} // namespace galleria
