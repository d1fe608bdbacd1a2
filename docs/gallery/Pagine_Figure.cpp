// Pages of the gallery: pictures, fonts of one's own, barcodes, patterns. Next: Pagine_Note.cpp.

#include "Galleria.h"

namespace galleria {

namespace {

// ---- Pictures ----------------------------------------------------------------------------------

void Formati(clsPDFCreator& pdf, const std::string& cartella)
{
    pdf.DrawImage(cartella + "/tramonto.jpg", Sinistra, 46, 80, 50);
    Didascalia(pdf, 58, 101, "JPEG: i byte del file, così come sono");
    pdf.DrawImage(cartella + "/mano.gif", 108, 46, 76.9F, 50);
    Didascalia(pdf, 146.5F, 101, "GIF: il primo quadro");
    pdf.DrawImage(cartella + "/semi.bmp", 45, 108, 120, 30);
    Didascalia(pdf, 105, 143, "BMP: una tavolozza e i suoi indici");
}

void Misure(clsPDFCreator& pdf, const std::string& cartella)
{
    float x = Sinistra;
    for (const float larghezza : {6.0F, 12.0F, 20.0F, 32.0F}) {
        pdf.DrawImage(cartella + "/tramonto.jpg", x, 162, larghezza, 36);
        x += larghezza + 5;
    }
    for (int posto = 0; posto < 4; ++posto) {
        pdf.BeginGraphicSpace(124 + 11 * static_cast<float>(posto), 165);
        pdf.MakeAxisRotation(8 * static_cast<float>(posto) - 4);
        pdf.DrawImage(cartella + "/mano.gif", 0, 0, 32, 20.8F);
        pdf.EndGraphicSpace();
    }
    Didascalia(pdf, 62, 204, "la figura riempie il suo rettangolo, una sola copia nel file");
    Didascalia(pdf, 158, 204, "e gira con gli assi");
}

// A second key makes a second picture of the same file.
void Filtri(clsPDFCreator& pdf, const std::string& cartella, int filtri)
{
    constexpr const char* nomi[] = {"1 RunLength", "2 LZW", "4 ASCII85", "8 ASCIIHex"};
    pdf.DrawImage(cartella + "/semi.bmp", Sinistra, 228, 60, 15, "seconda copia");
    Didascalia(pdf, 48, 248, "lo stesso file con un'altra chiave");
    for (int bit = 0; bit < 4; ++bit) {
        const float y = 226 + 7 * static_cast<float>(bit);
        const bool acceso = (filtri >> bit) % 2 != 0;
        pdf.SetColorLine(Panno);
        pdf.SetLineStyle(0.3F);
        pdf.SetColorFill(acceso ? Panno : "White");
        pdf.DrawRect(92, y, 5, 5, 5, 1);
        pdf.SetColorFill(Inchiostro);
        pdf.SetFont("Courier New", 11);
        pdf.DrawText(100, y + 4, nomi[bit]);
    }
    pdf.SetFont("Courier New", 9);
    pdf.DrawTextBox(140, 226, 52, 26,
                    "In base 85 \"trentuno\" si scrive " + clsPDFCreator::prToASCII85("trentuno"),
                    1.3F, 0, 1);
    Didascalia(pdf, LarghezzaFoglio / 2, 264,
               "FilterDecode " + std::to_string(filtri) +
                   ": come stanno nel file i dati delle figure");
}

// ---- Fonts of one's own ------------------------------------------------------------------------

void Alfabeto(clsPDFCreator& pdf, const char* nome, float y)
{
    pdf.SetFont(nome, 22);
    pdf.SetColorFill(Panno);
    pdf.DrawText(LarghezzaFoglio / 2, y, nome, Centro);
    pdf.SetColorFill(Inchiostro);
    pdf.SetFontSize(14);
    pdf.DrawText(LarghezzaFoglio / 2, y + 11, "ABCDEFGHIJKLMNOPQRSTUVWXYZ", Centro);
    pdf.DrawText(LarghezzaFoglio / 2, y + 19, "abcdefghijklmnopqrstuvwxyz", Centro);
    pdf.DrawText(LarghezzaFoglio / 2, y + 27, "0123456789 àèéìòù «così» – € % & ? !", Centro);
}

void ProsaPropria(clsPDFCreator& pdf)
{
    pdf.SetFont("Carattere di casa", 13);
    pdf.DrawTextBox(
        Sinistra, 165, 80, 60,
        "Un carattere incorporato si vede uguale dovunque, si copia e si cerca. Le sue "
        "larghezze vengono dal file: perciò anche qui le righe si misurano, si spezzano "
        "e si allargano.",
        1.3F, 5, 64);
    pdf.SetFont("Macchina da scrivere", 10);
    pdf.DrawTextBox(112, 165, 80, 60,
                    "Nero  32  QC KP 7F 5Q\r\nRosso 31  AC 9P 8F KQ 3P\r\n\r\nvince Rosso", 1.4F, 0,
                    1);
    pdf.SetFont("Carattere di casa", 26, 4);
    pdf.SetColorLine(Oro);
    pdf.SetColorFill(Rosso);
    pdf.DrawText(LarghezzaFoglio / 2, 245, "anche sottolineato, se occorre", Centro);
}

// ---- Barcodes ----------------------------------------------------------------------------------

void Ean(clsPDFCreator& pdf)
{
    pdf.DrawEAN13("400638133393", 26, 50, true, 30, 1.4F);
    Didascalia(pdf, 50, 92, "modulo di 1,4 punti");
    pdf.DrawEAN13("978014300723", 96, 50, true, 22);
    Didascalia(pdf, 109.5F, 92, "0,8 punti, il solito");
    pdf.DrawEAN13("801234567890", 148, 50, false, 15, 1);
    Didascalia(pdf, 165, 92, "senza cifre");
}

void Code39(clsPDFCreator& pdf)
{
    pdf.DrawCODE39("TAGLIA 31", 26, 116, 18, true, 1.3F);
    Didascalia(pdf, 65, 147, "lettere, cifre e - . $ / + % e spazio");
    pdf.DrawCODE39("Nero Rosso", 26, 158, 14, true, 1);
    Didascalia(pdf, 79, 184, "le minuscole costano due caratteri");
    pdf.SetColorFill(Rosso);
    pdf.DrawCODE39("ROSSO", 128, 116, 18, true, 1.2F, 3);
    Didascalia(pdf, 156, 147, "rapporto 3, nel colore che c'è");
}

void Etichetta(clsPDFCreator& pdf)
{
    pdf.SetColorFill("White");
    pdf.SetColorLine(Panno);
    pdf.SetLineStyle(0.6F);
    pdf.DrawRect(45, 206, 120, 60, 5, 5);
    Stemma(pdf, 66, 226, 1.2F);
    pdf.SetColorFill(Panno);
    pdf.SetFont("Times New Roman", 20, 1);
    pdf.DrawText(86, 222, "Mazzo da Scalvino");
    pdf.SetFont("Times New Roman", 12, 2);
    pdf.DrawText(86, 231, "sei mazzi, trecentododici carte");
    pdf.SetColorFill(Inchiostro);
    pdf.DrawEAN13("801234531312", 96, 237, true, 16, 1);
    pdf.SetFont("Arial", 10);
    pdf.DrawText(52, 252, "prezzo a parte");
}

// ---- Patterns ----------------------------------------------------------------------------------

void Tasselli(clsPDFCreator& pdf)
{
    constexpr const char* nomi[] = {"Losanghe", "Squame", "Mattoni"};
    pdf.SetLineStyle(0.3F);
    float x = Sinistra;
    for (const char* nome : nomi) {
        pdf.SetColorLine(Inchiostro);
        pdf.SetColorFill(nome);
        pdf.DrawRect(x, 46, 52, 36, 5, 4);
        Didascalia(pdf, x + 26, 87, nome);
        x += 61;
    }
}

void TasselliNudi(clsPDFCreator& pdf)
{
    constexpr const char* colori[] = {Panno, Rosso, Oro, "#3A4E8C"};
    pdf.SetLineStyle(2.5F);
    float x = 37;
    for (const char* colore : colori) {
        pdf.SetColorFill("Punti", colore);
        pdf.SetColorLine("Punti", colore);
        pdf.DrawCircle(x, 124, 17, 4);
        pdf.SetLineStyle(2.5F);
        pdf.DrawCircle(x, 124, 19.5F, 1);
        Didascalia(pdf, x, 150, colore);
        x += 45.3F;
    }
}

void Lineari(clsPDFCreator& pdf)
{
    pdf.SetColorLine(Inchiostro);
    pdf.SetLineStyle(0.3F);
    pdf.SetLinearFill({Panno, Oro}, Sinistra, 0, 96, 0);
    pdf.DrawRect(Sinistra, 168, 78, 18, 5, 3);
    Didascalia(pdf, 57, 191, "da sinistra a destra");
    pdf.SetLinearFill({Rosso, "White"}, 130, 0, 168, 0, true, false);
    pdf.DrawRect(114, 168, 78, 18, 5, 3);
    Didascalia(pdf, 153, 191, "prolungata da una parte sola");
    pdf.SetLinearFill({Rosso, "#2B2D6E"}, 0, 198, 0, 216);
    pdf.SetFont("Times New Roman", 62, 1);
    pdf.DrawText(LarghezzaFoglio / 2, 215, "Scalvino", Centro);
}

void Radiali(clsPDFCreator& pdf)
{
    constexpr const char* colori[] = {Rosso, Panno, Oro, "#3A4E8C", Inchiostro};
    float x = 36;
    for (const char* colore : colori) {
        pdf.SetRadialFill({"White", colore}, x - 4, 241, 0.5F, x, 247, 15);
        pdf.DrawCircle(x, 247, 15, 4);
        x += 34.5F;
    }
    Didascalia(pdf, LarghezzaFoglio / 2, 269, "SetRadialFill: dal lume al bordo");
}

} // namespace

void PaginaFigure(clsPDFCreator& pdf, const std::string& cartella, int filtri)
{
    ApriPagina(pdf, "Figure", "DrawImage, FilterDecode, prToASCII85");
    Sezione(pdf, 38, "Tre formati");
    Formati(pdf, cartella);
    Sezione(pdf, 154, "Rettangoli e angoli");
    Misure(pdf, cartella);
    Sezione(pdf, 219, "Filtri");
    Filtri(pdf, cartella, filtri);
    ChiudiPagina(pdf);
}

void PaginaFont(clsPDFCreator& pdf)
{
    ApriPagina(pdf, "Caratteri propri", "AddFont");
    Sezione(pdf, 38, "Due caratteri incorporati");
    Alfabeto(pdf, "Carattere di casa", 56);
    Alfabeto(pdf, "Macchina da scrivere", 106);
    Sezione(pdf, 154, "In uso");
    ProsaPropria(pdf);
    ChiudiPagina(pdf);
}

void PaginaCodici(clsPDFCreator& pdf)
{
    ApriPagina(pdf, "Codici a barre", "DrawEAN13, DrawCODE39");
    Sezione(pdf, 38, "EAN-13");
    Ean(pdf);
    Sezione(pdf, 104, "Code 39");
    Code39(pdf);
    Sezione(pdf, 196, "Un'etichetta");
    Etichetta(pdf);
    ChiudiPagina(pdf);
}

void PaginaMotivi(clsPDFCreator& pdf)
{
    ApriPagina(pdf, "Motivi e sfumature", "BeginTiling, SetLinearFill, SetRadialFill");
    Sezione(pdf, 38, "Tasselli colorati");
    Tasselli(pdf);
    Sezione(pdf, 98, "Tasselli senza colore: lo prendono da chi li sceglie");
    TasselliNudi(pdf);
    Sezione(pdf, 161, "Sfumature");
    Lineari(pdf);
    Radiali(pdf);
    ChiudiPagina(pdf);
}

} // namespace galleria
