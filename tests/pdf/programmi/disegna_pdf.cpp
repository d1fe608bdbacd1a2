// Makes a PDF file from orders on standard input, for readers that look at it from outside.
//
//   disegna_pdf FILE.pdf
//
// One order a line, its fields separated by tabs. The first page is open from the start; lengths
// are points:
//
//   filtri N                   how the pictures are encoded
//   pagina
//   figura X Y W H FILE
//   font FILE NAME             embedded
//   testo X Y SIZE FONT HEX    the text's UTF-8 bytes in hexadecimal digits
//   ean X Y MODULE CODE        with the text under it
//   code39 X Y MODULE HEX

#include "ErroreRuntime.h"
#include "clsPDFCreator.h"

#include <functional>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

using Campi = std::vector<std::string>;
using Ordine = std::function<void(clsPDFCreator&, const Campi&)>;

Campi Dividi(const std::string& riga)
{
    Campi campi;
    std::istringstream parti(riga);
    for (std::string campo; std::getline(parti, campo, '\t');) campi.push_back(campo);
    return campi;
}

std::string DaEsadecimale(const std::string& cifre)
{
    std::string byte;
    for (std::size_t i = 0; i + 1 < cifre.size(); i += 2) {
        byte += static_cast<char>(std::stoi(cifre.substr(i, 2), nullptr, 16));
    }
    return byte;
}

float F(const Campi& campi, std::size_t i)
{
    return std::stof(campi.at(i));
}

const std::map<std::string, Ordine>& Ordini()
{
    static const std::map<std::string, Ordine> ordini{
        {"filtri", [](auto& pdf, auto& c) { pdf.FilterDecode(std::stoi(c.at(1))); }},
        {"pagina",
         [](auto& pdf, auto&) {
             pdf.EndPage();
             pdf.BeginPage();
         }},
        {"figura",
         [](auto& pdf, auto& c) { pdf.DrawImage(c.at(5), F(c, 1), F(c, 2), F(c, 3), F(c, 4)); }},
        {"font", [](auto& pdf, auto& c) { pdf.AddFont(c.at(1), c.at(2)); }},
        {"testo",
         [](auto& pdf, auto& c) {
             pdf.SetFont(c.at(4), F(c, 3));
             pdf.DrawText(F(c, 1), F(c, 2), DaEsadecimale(c.at(5)));
         }},
        {"ean",
         [](auto& pdf, auto& c) { pdf.DrawEAN13(c.at(4), F(c, 1), F(c, 2), true, 0, F(c, 3)); }},
        {"code39",
         [](auto& pdf, auto& c) {
             pdf.DrawCODE39(DaEsadecimale(c.at(4)), F(c, 1), F(c, 2), 0, true, F(c, 3));
         }},
    };
    return ordini;
}

void Esegui(clsPDFCreator& pdf)
{
    for (std::string riga; std::getline(std::cin, riga);) {
        const Campi campi = Dividi(riga);
        Ordini().at(campi.at(0))(pdf, campi);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    try {
        clsPDFCreator pdf;
        pdf.ShareFonts(true);
        pdf.BeginDoc(argv[1]);
        pdf.BeginPage();
        Esegui(pdf);
        pdf.EndPage();
        pdf.EndDoc();
    } catch (const std::exception& errore) {
        std::cerr << errore.what() << '\n';
        return 1;
    }
    return 0;
}
