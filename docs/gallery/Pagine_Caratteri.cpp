// Page of the gallery: fonts and their measures. Next: Pagine_Testo.cpp.

#include "Galleria.h"

namespace galleria {

namespace {

void Famiglia(clsPDFCreator& pdf, const char* nome, float y)
{
    struct Stile
    {
        int Codice;
        const char* Nome;
    };
    constexpr Stile stili[] = {{0, "normale"}, {1, "grassetto"}, {2, "corsivo"}, {3, "entrambi"}};
    float x = Sinistra;
    for (const auto& [codice, stile] : stili) {
        pdf.SetFont(nome, 17, codice);
        pdf.DrawText(x, y, "Rosso 31");
        Didascalia(pdf, x + 18, y + 5.5F, std::string(nome) + ", " + stile);
        x += 45;
    }
}

void Simboli(clsPDFCreator& pdf)
{
    pdf.SetFont("Symbol", 20);
    pdf.DrawText(Sinistra, 110, "abgdezqlmpsfw  SDWF  ©¨§ª");
    Didascalia(pdf, 54, 117, "Symbol: l'alfabeto greco, i semi delle carte");
    pdf.SetFont("ZapfDingbats", 20);
    pdf.DrawText(124, 110, "!$)46@FHKV¬­");
    Didascalia(pdf, 155, 117, "ZapfDingbats: segni e ornamenti");
}

void Quota(clsPDFCreator& pdf, float x1, float y1, float x2, float y2)
{
    const bool orizzontale = y1 == y2;
    const float dx = orizzontale ? 0 : 1.5F;
    const float dy = orizzontale ? 1.5F : 0;
    pdf.DrawLine(x1, y1, x2, y2);
    pdf.DrawLine(x1 - dx, y1 - dy, x1 + dx, y1 + dy);
    pdf.DrawLine(x2 - dx, y2 - dy, x2 + dx, y2 + dy);
}

std::string Millimetri(float lunghezza)
{
    return std::to_string(static_cast<int>(lunghezza + 0.5F)) + " mm";
}

void Misure(clsPDFCreator& pdf)
{
    const std::string parola = "Trentuno";
    constexpr float base = 168;
    pdf.SetFont("Times New Roman", 88, 1);
    const float larghezza = pdf.TextLength(parola);
    const float altezza = pdf.TextHeight();
    const float x = (LarghezzaFoglio - larghezza) / 2 - 6;
    pdf.SetColorFill(Carta);
    pdf.DrawRect(x, base - altezza, larghezza, altezza, 4);
    pdf.SetColorFill(Panno);
    pdf.DrawText(x, base, parola);
    pdf.SetColorLine(Rosso);
    pdf.SetLineStyle(0.3F);
    Quota(pdf, x, base + 5, x + larghezza, base + 5);
    Quota(pdf, x + larghezza + 5, base - altezza, x + larghezza + 5, base);
    Didascalia(pdf, x + larghezza / 2, base + 9.5F, "TextLength: " + Millimetri(larghezza));
    Didascalia(pdf, x + larghezza + 17, base - altezza / 2, "TextHeight:");
    Didascalia(pdf, x + larghezza + 17, base - altezza / 2 + 4, Millimetri(altezza));
}

void Corpi(clsPDFCreator& pdf)
{
    float x = Sinistra;
    pdf.SetFont("Times New Roman", 0, 2);
    for (const float corpo : {6.0F, 8.0F, 10.0F, 12.0F, 16.0F, 20.0F, 26.0F, 34.0F, 44.0F}) {
        pdf.SetFontSize(corpo);
        pdf.DrawText(x, 212, "Nero");
        x += pdf.TextLength("Nero") + 4;
    }
    Didascalia(pdf, LarghezzaFoglio / 2, 221, "SetFontSize: da 6 a 44 punti");
}

void Sconosciuto(clsPDFCreator& pdf)
{
    pdf.SetFont("Un nome qualunque", 18);
    pdf.DrawText(Sinistra, 248, "Un nome che nessuno conosce diventa Arial.");
    pdf.SetFont("Times New Roman", 18);
    pdf.DrawText(Sinistra, 260, "àèéìòù ç ñ ü ß € « » – — … ‰ ½ © ® ™");
    Didascalia(pdf, LarghezzaFoglio / 2, 268,
               "i testi sono UTF-8, il file ha i segni di Windows-1252");
}

} // namespace

void PaginaCaratteri(clsPDFCreator& pdf)
{
    ApriPagina(pdf, "Caratteri", "SetFont, SetFontSize, TextLength, TextHeight");
    Sezione(pdf, 38, "Le famiglie che ogni lettore ha");
    Famiglia(pdf, "Times New Roman", 53);
    Famiglia(pdf, "Arial", 71);
    Famiglia(pdf, "Courier New", 89);
    Simboli(pdf);
    Sezione(pdf, 130, "Misure");
    Misure(pdf);
    Sezione(pdf, 190, "Corpi");
    Corpi(pdf);
    Sezione(pdf, 234, "Segni");
    Sconosciuto(pdf);
    ChiudiPagina(pdf);
}

} // namespace galleria
