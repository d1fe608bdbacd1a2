// Writes a conforming document from texts on standard input, for readers that give them back.
//
//   scrivi_testi FILE.pdf [LEVEL]
//
// One text a line, its kind and its bytes in hexadecimal digits, as tests/lettori/fuori.py
// describes them: properties, bookmarks, prefixes of page labels (each begins a page), notes with
// their titles. LEVEL compresses. The notes are icons, boxes and stamps in turn.

#include "ErroreRuntime.h"
#include "clsPDFCreator.h"

#include <iostream>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

using Righe = std::vector<std::pair<std::string, std::string>>;

std::string DaEsadecimale(const std::string& cifre)
{
    std::string byte;
    for (std::size_t i = 0; i + 1 < cifre.size(); i += 2) {
        byte += static_cast<char>(std::stoi(cifre.substr(i, 2), nullptr, 16));
    }
    return byte;
}

Righe Leggi()
{
    Righe righe;
    for (std::string riga; std::getline(std::cin, riga);) {
        const auto bianco = riga.find(' ');
        const bool vuota = bianco == std::string::npos;
        righe.emplace_back(riga.substr(0, bianco),
                           vuota ? std::string() : DaEsadecimale(riga.substr(bianco + 1)));
    }
    return righe;
}

void Nota(clsPDFCreator& pdf, int numero, const std::string& testo, const std::string& titolo)
{
    const float y = 30 + 40 * static_cast<float>(numero % 18);
    switch (numero % 3) {
    case 0:
        return pdf.AddNoteIcon(testo, 0, 40, y, false, "Yellow", titolo);
    case 1:
        return pdf.AddNoteBox(testo, 80, y, 200, 30, 9, "Black", 0, 1, 0, "White", titolo);
    default:
        return pdf.AddNoteStamp(testo, 300, y, 80, 30, 4, titolo, "Red");
    }
}

void Scrivi(clsPDFCreator& pdf, const Righe& righe)
{
    int note = 0;
    std::string nota;
    for (const auto& [genere, testo] : righe) {
        if (genere == "segnalibro") pdf.AddBookmark(testo);
        if (genere == "nota") nota = testo;
        if (genere == "chi") Nota(pdf, note++, nota, testo);
        if (genere == "etichetta") {
            pdf.EndPage();
            pdf.BeginPage(0, 0, testo, 1);
        }
    }
}

void Documento(const std::string& nome, int livello)
{
    const Righe righe = Leggi();
    std::map<std::string, std::string> proprie(righe.begin(), righe.end());
    clsPDFCreator pdf;
    pdf.Conforming();
    if (livello > 0) pdf.Compress(livello);
    pdf.SetDocProperty(proprie["Title"], proprie["Subject"], proprie["Author"], proprie["Creator"],
                       proprie["Producer"], proprie["Keywords"]);
    pdf.BeginDoc(nome);
    pdf.BeginPage();
    Scrivi(pdf, righe);
    pdf.EndPage();
    pdf.EndDoc();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2 && argc != 3) return 2;
    try {
        Documento(argv[1], argc == 3 ? std::stoi(argv[2]) : 0);
    } catch (const std::exception& errore) {
        std::cerr << errore.what() << '\n';
        return 1;
    }
    return 0;
}
