// Pages of the gallery: cover, axes, tables. Next: Pagine_Figure.cpp.

#include "Galleria.h"

namespace galleria {

namespace {

// ---- Cover -------------------------------------------------------------------------------------

void Ventaglio(clsPDFCreator& pdf, float x, float y, float scala)
{
    constexpr const char* semi[] = {"ª", "©", "§", "¨", "ª", "©", "§"};
    float angolo = -54;
    for (const char* seme : semi) {
        pdf.BeginGraphicSpace(x, y, scala, scala);
        pdf.MakeAxisRotation(angolo);
        pdf.MakeAxisTranslation(-9, -44);
        CartaDaGioco(pdf, seme);
        pdf.EndGraphicSpace();
        angolo += 18;
    }
}

void Indice(clsPDFCreator& pdf)
{
    constexpr const char* voci[] = {"1 Caratteri",
                                    "2 Righe di testo",
                                    "3 Riquadri di testo",
                                    "4 Colori e linee",
                                    "5 Percorsi",
                                    "6 Curve",
                                    "7 Assi",
                                    "8 Tabelle e modelli",
                                    "9 Figure",
                                    "10 Caratteri propri",
                                    "11 Codici a barre",
                                    "12 Motivi e sfumature",
                                    "13 Note e rimandi",
                                    "A-1 Tutte le operazioni"};
    pdf.SetColorFill(Carta);
    pdf.SetFont("Times New Roman", 13);
    int posto = 0;
    for (const char* voce : voci) {
        pdf.DrawText(posto < 7 ? 46.0F : 114.0F, 218 + 8 * static_cast<float>(posto % 7), voce);
        ++posto;
    }
}

// ---- Axes --------------------------------------------------------------------------------------

void Croce(clsPDFCreator& pdf)
{
    pdf.SetColorLine(Oro);
    pdf.SetLineStyle(0.3F, 0, 0, 0, 1, 1);
    pdf.DrawLine(-4, 0, 34, 0);
    pdf.DrawLine(0, -4, 0, 34);
}

void Quattro(clsPDFCreator& pdf)
{
    constexpr const char* nomi[] = {"MakeAxisTranslation", "MakeAxisScaling", "MakeAxisRotation",
                                    "MakeAxisSkewing"};
    for (int quale = 0; quale < 4; ++quale) {
        const float x = 24 + 46 * static_cast<float>(quale);
        pdf.BeginGraphicSpace(x, 54);
        Croce(pdf);
        if (quale == 0) pdf.MakeAxisTranslation(8, 6);
        if (quale == 1) pdf.MakeAxisScaling(1.6F, 0.8F);
        if (quale == 2) pdf.MakeAxisRotation(-25);
        if (quale == 3) pdf.MakeAxisSkewing(20, 10);
        CartaDaGioco(pdf, quale % 2 == 0 ? "©" : "ª");
        pdf.EndGraphicSpace();
        Didascalia(pdf, x + 14, 95, nomi[quale]);
    }
}

// Each space lies in the one before: smaller, moved and turned.
void Nidi(clsPDFCreator& pdf)
{
    constexpr int profondi = 16;
    pdf.BeginGraphicSpace(62, 158);
    for (int livello = 0; livello < profondi; ++livello) {
        pdf.SetLineStyle(0.4F);
        pdf.SetColorLine(Panno);
        pdf.SetColorFill(livello % 2 == 0 ? Oro : Carta);
        pdf.DrawRect(-38, -38, 76, 76, 5);
        pdf.BeginGraphicSpace(0, 0, 0.8F, 0.8F);
        pdf.MakeAxisRotation(16);
    }
    for (int livello = 0; livello <= profondi; ++livello) pdf.EndGraphicSpace();
    Didascalia(pdf, 62, 211, "spazi dentro spazi");
}

void Rosone(clsPDFCreator& pdf)
{
    for (int petalo = 0; petalo < 18; ++petalo) {
        pdf.BeginGraphicSpace(150, 158);
        pdf.MakeAxisRotation(20 * static_cast<float>(petalo));
        pdf.SetLineStyle(0.4F);
        pdf.SetColorLine(petalo % 2 == 0 ? Rosso : Panno);
        pdf.DrawEllipse(24, 0, 17, 7);
        pdf.EndGraphicSpace();
    }
    Stemma(pdf, 150, 158, 0.5F);
    Didascalia(pdf, 150, 211, "un'ellisse e diciotto giri");
}

void Scala(clsPDFCreator& pdf)
{
    float x = 36;
    for (float scala = 0.35F; scala < 1.5F; scala *= 1.25F) {
        pdf.BeginGraphicSpace(x, 270 - 26 * scala, scala, scala);
        CartaDaGioco(pdf, "¨");
        pdf.EndGraphicSpace();
        x += 18 * scala + 7;
    }
}

// ---- Tables and forms --------------------------------------------------------------------------

struct Riga
{
    const char* Nome;
    const char* Contati;
    const char* Attesi;
    const char* Quota;
};

constexpr float Altezza = 9;

void Celle(clsPDFCreator& pdf, const Riga& riga)
{
    constexpr float larghezze[] = {62, 38, 38, 36};
    const char* testi[] = {riga.Nome, riga.Contati, riga.Attesi, riga.Quota};
    for (int i = 0; i < 4; ++i) {
        const float larghezza = larghezze[i];
        pdf.BeginColumn(larghezza);
        pdf.DrawTextBox(3, 0, larghezza - 6, Altezza, testi[i], 1, 0, i == 0 ? 33 : 34);
        pdf.EndColumn();
    }
}

void Quote(clsPDFCreator& pdf)
{
    constexpr Riga righe[] = {{"Vince Nero", "402.117", "401.980", "44,52 %"},
                              {"Vince Rosso", "401.655", "401.980", "44,52 %"},
                              {"Pari", "99.254", "98.962", "10,96 %"},
                              {"Pari a trentuno", "19.802", "19.766", "2,19 %"}};
    pdf.BeginTable(Sinistra, 48, "White", 0.2F, "#B9A97D");
    pdf.SetFont("Arial", 11, 1);
    pdf.SetColorFill("White");
    pdf.BeginRow(Altezza, Panno);
    Celle(pdf, {"Primo colpo della taglia", "Contati", "Attesi", "Quota"});
    pdf.EndRow();
    pdf.SetFont("Arial", 11);
    pdf.SetColorFill(Inchiostro);
    bool scura = false;
    for (const Riga& riga : righe) {
        pdf.BeginRow(Altezza, scura ? Carta : "");
        Celle(pdf, riga);
        pdf.EndRow();
        scura = !scura;
    }
    pdf.EndTable();
    Didascalia(pdf, LarghezzaFoglio / 2, 99,
               "la riga dà il fondo alle celle, la tabella la cornice");
}

// Every cell its own fill, in rows of growing height.
void Mosaico(clsPDFCreator& pdf)
{
    pdf.BeginTable(Sinistra, 118, "White", 1.2F, "White");
    for (int riga = 0; riga < 6; ++riga) {
        pdf.BeginRow(5 + 2 * static_cast<float>(riga));
        for (int cella = 0; cella < 12; ++cella) {
            pdf.BeginColumn(14.5F, clsPDFCreator::ToColor(30 + 18 * cella, 78 + 20 * riga, 61));
            pdf.EndColumn();
        }
        pdf.EndRow();
    }
    pdf.EndTable();
    const float sotto = pdf.GetY() + 60 + 6;
    Didascalia(pdf, pdf.GetX() + 87, sotto, "settantadue celle, ognuna col suo fondo");
}

void Timbri(clsPDFCreator& pdf)
{
    float x = 30;
    for (const float scala : {0.5F, 0.8F, 1.1F, 1.4F, 1.7F}) {
        Stemma(pdf, x, 226, scala);
        x += 22 + 13 * scala;
    }
    Didascalia(pdf, LarghezzaFoglio / 2, 256,
               "uno stesso modello, disegnato una volta e suonato cinque con PlayObject");
    Didascalia(pdf, LarghezzaFoglio / 2, 262,
               "il piè di pagina è fatto dopo l'ultimo foglio, quando se ne conosce il numero");
}

} // namespace

void Copertina(clsPDFCreator& pdf)
{
    constexpr int senzaNumero = 255;
    pdf.BeginPage(0, senzaNumero, "Copertina");
    pdf.SetLinearFill({"#2F7A5F", "#0E2A20"}, 0, 0, 0, AltezzaFoglio);
    pdf.DrawRect(0, 0, LarghezzaFoglio, AltezzaFoglio, 4);
    pdf.SetColorLine(Oro);
    pdf.SetLineStyle(0.8F);
    pdf.DrawRect(9, 9, LarghezzaFoglio - 18, AltezzaFoglio - 18, 1, 6);
    pdf.SetLineStyle(0.3F);
    pdf.DrawRect(11.5F, 11.5F, LarghezzaFoglio - 23, AltezzaFoglio - 23, 1, 4.5F);
    Ventaglio(pdf, LarghezzaFoglio / 2, 118, 1.6F);
    Stemma(pdf, LarghezzaFoglio / 2, 114, 1);
    pdf.SetColorFill(Oro);
    pdf.SetFont("Times New Roman", 64, 1);
    pdf.DrawText(LarghezzaFoglio / 2, 164, "Galleria", Centro);
    pdf.SetColorFill(Carta);
    pdf.SetFont("Times New Roman", 17, 2);
    pdf.DrawText(LarghezzaFoglio / 2, 178, "tutte le operazioni di clsPDFCreator", Centro);
    pdf.SetColorLine(Oro);
    pdf.DrawLine(46, 205, 164, 205);
    Indice(pdf);
    pdf.EndPage();
}

void PaginaAssi(clsPDFCreator& pdf)
{
    ApriPagina(pdf, "Assi", "MakeAxis... e gli spazi grafici");
    Sezione(pdf, 38, "Quattro modi di muovere gli assi");
    Quattro(pdf);
    Sezione(pdf, 106, "BeginGraphicSpace, EndGraphicSpace");
    Nidi(pdf);
    Rosone(pdf);
    Sezione(pdf, 222, "In scala");
    Scala(pdf);
    ChiudiPagina(pdf);
}

void PaginaTabelle(clsPDFCreator& pdf)
{
    ApriPagina(pdf, "Tabelle e modelli",
               "BeginTable, BeginRow, BeginColumn; BeginObject, PlayObject");
    Sezione(pdf, 38, "Una tabella");
    Quote(pdf);
    Sezione(pdf, 110, "Celle di colore");
    Mosaico(pdf);
    Sezione(pdf, 195, "Modelli");
    Timbri(pdf);
    ChiudiPagina(pdf);
}

} // namespace galleria
