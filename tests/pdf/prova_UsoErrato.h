// The operations of the writer that draw, for the tests of bad use.
#pragma once

#include "Aiuti.h"
#include "clsPDFCreator.h"

#include <string>
#include <vector>

namespace errato {

using Numeri = std::vector<float>;

// An operation with its numbers; each of them stands for one argument.
struct Operazione
{
    const char* Nome;
    Numeri Argomenti; // sensible ones
    void (*Chiama)(clsPDFCreator& pdf, const Numeri& numeri);
};

// Those that write into a page, in the order of the header. All but the text ones need no font.
inline const std::vector<Operazione> Disegni = {
    {"SetWordSpacing", {1}, [](auto& pdf, auto& n) { pdf.SetWordSpacing(n[0]); }},
    {"SetCharSpacing", {1}, [](auto& pdf, auto& n) { pdf.SetCharSpacing(n[0]); }},
    {"SetTextHorizontalScaling",
     {90},
     [](auto& pdf, auto& n) { pdf.SetTextHorizontalScaling(n[0]); }},
    {"SetTextRenderingMode", {}, [](auto& pdf, auto&) { pdf.SetTextRenderingMode(1); }},
    {"DrawText",
     {1, 2, 30},
     [](auto& pdf, auto& n) { pdf.DrawText(n[0], n[1], "testo", 2, n[2]); }},
    {"SetLineStyle",
     {1, 2, 3, 4},
     [](auto& pdf, auto& n) { pdf.SetLineStyle(n[0], 1, 1, n[1], n[2], n[3]); }},
    {"MoveTo", {1, 2}, [](auto& pdf, auto& n) { pdf.MoveTo(n[0], n[1]); }},
    {"DrawLineTo", {1, 2}, [](auto& pdf, auto& n) { pdf.DrawLineTo(n[0], n[1]); }},
    {"DrawLine", {1, 2, 3, 4}, [](auto& pdf, auto& n) { pdf.DrawLine(n[0], n[1], n[2], n[3]); }},
    {"DrawRect",
     {1, 2, 3, 4, 5},
     [](auto& pdf, auto& n) { pdf.DrawRect(n[0], n[1], n[2], n[3], 1, n[4]); }},
    {"DrawCurveA",
     {1, 2, 3, 4, 5, 6},
     [](auto& pdf, auto& n) { pdf.DrawCurveA(n[0], n[1], n[2], n[3], n[4], n[5]); }},
    {"DrawCurveB",
     {1, 2, 3, 4},
     [](auto& pdf, auto& n) { pdf.DrawCurveB(n[0], n[1], n[2], n[3]); }},
    {"DrawCurveC",
     {1, 2, 3, 4},
     [](auto& pdf, auto& n) { pdf.DrawCurveC(n[0], n[1], n[2], n[3]); }},
    {"DrawCircle", {1, 2, 3}, [](auto& pdf, auto& n) { pdf.DrawCircle(n[0], n[1], n[2]); }},
    {"DrawEllipse",
     {1, 2, 3, 4},
     [](auto& pdf, auto& n) { pdf.DrawEllipse(n[0], n[1], n[2], n[3]); }},
    {"DrawArc",
     {1, 2, 3, 4, 5},
     [](auto& pdf, auto& n) { pdf.DrawArc(n[0], n[1], n[2], n[3], n[4]); }},
    {"PlayObject", {}, [](auto& pdf, auto&) { pdf.PlayObject("Modulo"); }},
    {"DrawParagraph",
     {1, 2, 3, 4, 5, 6, 7},
     [](auto& pdf, auto& n) {
         pdf.DrawParagraph(n[0], n[1], n[2], n[3], "due parole", n[4], n[5], 36, n[6]);
     }},
    {"MakeAxisTranslation",
     {1, 2},
     [](auto& pdf, auto& n) { pdf.MakeAxisTranslation(n[0], n[1]); }},
    {"MakeAxisScaling", {1, 2}, [](auto& pdf, auto& n) { pdf.MakeAxisScaling(n[0], n[1]); }},
    {"MakeAxisRotation", {30}, [](auto& pdf, auto& n) { pdf.MakeAxisRotation(n[0]); }},
    {"MakeAxisSkewing", {1, 2}, [](auto& pdf, auto& n) { pdf.MakeAxisSkewing(n[0], n[1]); }},
    {"BeginGraphicSpace",
     {1, 2, 3, 4},
     [](auto& pdf, auto& n) { pdf.BeginGraphicSpace(n[0], n[1], n[2], n[3]); }},
    {"EndGraphicSpace", {}, [](auto& pdf, auto&) { pdf.EndGraphicSpace(); }},
    {"BeginTable",
     {1, 2, 3},
     [](auto& pdf, auto& n) { pdf.BeginTable(n[0], n[1], "white", n[2], "gray"); }},
    {"BeginRow", {1, 2}, [](auto& pdf, auto& n) { pdf.BeginRow(n[0], "white", n[1], "gray"); }},
    {"EndRow", {}, [](auto& pdf, auto&) { pdf.EndRow(); }},
    {"BeginColumn",
     {1, 2},
     [](auto& pdf, auto& n) { pdf.BeginColumn(n[0], "white", n[1], "gray"); }},
    {"EndColumn", {}, [](auto& pdf, auto&) { pdf.EndColumn(); }},
    {"EndTable", {}, [](auto& pdf, auto&) { pdf.EndTable(); }},
    {"DrawTextBox",
     {1, 2, 3, 4, 5, 6, 7},
     [](auto& pdf, auto& n) {
         pdf.DrawTextBox(n[0], n[1], n[2], n[3], "due parole", n[4], n[5], 64, n[6]);
     }},
    {"SetColorFill", {}, [](auto& pdf, auto&) { pdf.SetColorFill("red"); }},
    {"SetColorLine", {}, [](auto& pdf, auto&) { pdf.SetColorLine("red"); }},
};

// Notes, pictures, bar codes and gradients, which write into a page, too, or belong to one.
inline const std::vector<Operazione> Aggiunte = {
    {"AddNoteIcon", {1, 2}, [](auto& pdf, auto& n) { pdf.AddNoteIcon("nota", 1, n[0], n[1]); }},
    {"AddNoteBox",
     {1, 2, 3, 4, 10, 1},
     [](auto& pdf, auto& n) {
         pdf.AddNoteBox("nota", n[0], n[1], n[2], n[3], n[4], "red", 1, n[5]);
     }},
    {"AddNoteStamp",
     {1, 2, 3, 4},
     [](auto& pdf, auto& n) { pdf.AddNoteStamp("nota", n[0], n[1], n[2], n[3]); }},
    {"AddWebLink",
     {1, 2, 3, 4, 1},
     [](auto& pdf, auto& n) { pdf.AddWebLink("http://a.b", n[0], n[1], n[2], n[3], 1, n[4]); }},
    {"DrawImage",
     {1, 2, 3, 4},
     [](auto& pdf, auto& n) {
         pdf.DrawImage(SCALVINO_SEMI "/gif/1bit.gif", n[0], n[1], n[2], n[3]);
     }},
    {"DrawImageData",
     {1, 2, 3, 4},
     [](auto& pdf, auto& n) {
         pdf.DrawImageData(aiuti::Byte(SCALVINO_SEMI "/gif/1bit.gif"), n[0], n[1], n[2], n[3]);
     }},
    {"DrawEAN13",
     {1, 2, 3, 1},
     [](auto& pdf, auto& n) { pdf.DrawEAN13("400638133393", n[0], n[1], true, n[2], n[3]); }},
    {"DrawCODE39",
     {1, 2, 3, 1, 2},
     [](auto& pdf, auto& n) { pdf.DrawCODE39("A", n[0], n[1], n[2], true, n[3], n[4]); }},
    {"SetLinearFill",
     {1, 2, 3, 4},
     [](auto& pdf, auto& n) {
         pdf.SetLinearFill({"red", "blue"}, n[0], n[1], n[2], n[3]);
     }},
    {"SetRadialFill",
     {1, 2, 3, 4, 5, 6},
     [](auto& pdf, auto& n) {
         pdf.SetRadialFill({"red", "blue"}, n[0], n[1], n[2], n[3], n[4], n[5]);
     }},
};

// Those that begin and end something in the file.
inline const std::vector<Operazione> Strutture = {
    {"EndDoc", {}, [](auto& pdf, auto&) { pdf.EndDoc(); }},
    {"BeginPage", {}, [](auto& pdf, auto&) { pdf.BeginPage(); }},
    {"EndPage", {}, [](auto& pdf, auto&) { pdf.EndPage(); }},
    {"BeginObject", {}, [](auto& pdf, auto&) { pdf.BeginObject("Modulo", 7); }},
    {"EndObject", {}, [](auto& pdf, auto&) { pdf.EndObject(); }},
    {"BeginTiling", {}, [](auto& pdf, auto&) { pdf.BeginTiling("Trama", 0, 0, 1, 1, 1, 1); }},
    {"EndTiling", {}, [](auto& pdf, auto&) { pdf.EndTiling(); }},
};

// Those that need no document, but numbers that are finite.
inline const std::vector<Operazione> Impostazioni = {
    {"Margin", {1}, [](auto& pdf, auto& n) { pdf.Margin(n[0]); }},
    {"SetScale", {1}, [](auto& pdf, auto& n) { pdf.SetScale(255, n[0]); }},
    {"SetPaperSize", {1, 2}, [](auto& pdf, auto& n) { pdf.SetPaperSize(255, n[0], n[1]); }},
    {"SetFont", {1}, [](auto& pdf, auto& n) { pdf.SetFont("Arial", n[0], 31); }},
    {"SetFontSize", {1}, [](auto& pdf, auto& n) { pdf.SetFontSize(n[0]); }},
};

// Those that need neither a document nor a number that could be infinite.
inline const std::vector<Operazione> SenzaNumeri = {
    {"SetClock",
     {},
     [](auto& pdf, auto&) {
         pdf.SetClock(
             {[] { return clsPDFCreator::DateTime{2026, 1, 2, 3, 4, 5}; }, [] { return 7; }});
     }},
    {"ShareFonts", {}, [](auto& pdf, auto&) { pdf.ShareFonts(true); }},
    {"PDFReader", {}, [](auto& pdf, auto&) { pdf.PDFReader(1); }},
    {"Orientation", {}, [](auto& pdf, auto&) { pdf.Orientation(0); }},
    {"SetDocProperty", {}, [](auto& pdf, auto&) { pdf.SetDocProperty("Titolo"); }},
    {"FilterDecode", {}, [](auto& pdf, auto&) { pdf.FilterDecode(8); }},
    {"Compress", {}, [](auto& pdf, auto&) { pdf.Compress(0); }},
    {"SetLanguage", {}, [](auto& pdf, auto&) { pdf.SetLanguage("it"); }},
    {"Conforming", {}, [](auto& pdf, auto&) { pdf.Conforming(false); }},
    {"AddFont",
     {},
     [](auto& pdf, auto&) { pdf.AddFont(SCALVINO_SEMI "/ttf/unicode.ttf", "Mio", false); }},
    {"AddFontData",
     {},
     [](auto& pdf, auto&) {
         pdf.AddFontData(aiuti::Byte(SCALVINO_SEMI "/ttf/unicode.ttf"), "Suo", false);
     }},
};

// A bookmark needs no document either, but stands in it.
inline const std::vector<Operazione> Segnalibri = {
    {"AddBookmark",
     {1, 2, 3, 4, 5},
     [](auto& pdf, auto& n) { pdf.AddBookmark("voce", 1, 3, n[0], n[1], n[2], n[3], n[4]); }},
};

} // namespace errato
