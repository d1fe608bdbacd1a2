// Two threads write documents at the same time, each with a writer of its own: the same bytes come
// out as when one alone writes them.

#include "Deflate.h"
#include "clsPDFCreator.h"

#include <array>
#include <barrier>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>
#include <thread>

namespace {

constexpr int Modi = 4; // conforming or not, compressed or not
constexpr int Giri = 10;
constexpr int Pagine = 5;

std::string Byte(const std::string& nome)
{
    std::ifstream file(SCALVINO_SEMI + nome, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void Prepara(clsPDFCreator& pdf, int modo)
{
    pdf.SetClock({[] { return clsPDFCreator::DateTime{2026, 1, 2, 3, 4, 5}; }, [] { return 7; }});
    pdf.SetDocProperty("Documento n. " + std::to_string(modo));
    pdf.ShareFonts(modo == 1);
    pdf.Conforming(modo >= 2);
    if (pdf::prCanDeflate()) pdf.Compress(modo % 2 == 0 ? 0 : 6);
    pdf.SetScale(modo);
}

void Pagina(clsPDFCreator& pdf, int modo)
{
    pdf.BeginPage();
    pdf.SetFont("Times New Roman", 12, modo);
    pdf.DrawTextBox(1, 1, 10, 10, "Città, più, così: due fili e nessuno che si confonda.");
    pdf.SetFont("Mio", 10);
    pdf.DrawText(1, 5, "Rosso 31");
    pdf.DrawEAN13("400638133393", 1, 8);
    pdf.SetLinearFill({"#102030", "Red"}, 0, 0, 5, 5);
    pdf.DrawRect(1, 10, 5, 5, 4);
    pdf.DrawImage(SCALVINO_SEMI "/gif/4bit.gif", 1, 15, 2, 2);
    pdf.AddBookmark("Pagina " + std::to_string(pdf.Pages()));
    pdf.AddNoteBox("Una nota", 7, 1, 3, 3);
    pdf.EndPage();
}

std::string Documento(int modo)
{
    std::string byte;
    clsPDFCreator pdf;
    Prepara(pdf, modo);
    pdf.AddFontData(Byte("/ttf/unicode.ttf"), "Mio");
    pdf.BeginDocTo([&byte](std::string_view pezzo) { byte.append(pezzo); });
    for (int pagina = 0; pagina < Pagine; ++pagina) Pagina(pdf, modo);
    pdf.EndDoc();
    return byte;
}

using Scritti = std::array<std::string, Giri>;

// Each thread takes another mode at each moment, and all of them in the end.
int Modo(int giro, int filo)
{
    return (giro + filo) % Modi;
}

void Scrivi(Scritti& scritti, int filo, std::barrier<>& insieme)
{
    for (int giro = 0; giro < Giri; ++giro) {
        insieme.arrive_and_wait();
        scritti.at(static_cast<std::size_t>(giro)) = Documento(Modo(giro, filo));
    }
}

bool Giusti(const Scritti& scritti, int filo)
{
    for (int giro = 0; giro < Giri; ++giro) {
        const std::string& byte = scritti.at(static_cast<std::size_t>(giro));
        if (byte.empty() || byte != Documento(Modo(giro, filo))) return false;
    }
    return true;
}

} // namespace

int main()
{
    std::array<Scritti, 2> scritti;
    std::barrier<> insieme(2);
    // Nothing has been written before, so that what is made at its first use is made by both.
    std::jthread altro([&] { Scrivi(scritti[1], 1, insieme); });
    Scrivi(scritti[0], 0, insieme);
    altro.join();
    if (Giusti(scritti[0], 0) && Giusti(scritti[1], 1)) return 0;
    std::cerr << "i documenti di due fili non sono quelli di uno solo\n";
    return 1;
}
