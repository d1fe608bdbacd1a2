// What a program meets beside whole documents: version, errors, documents that are no files.
// Without a test framework: a line and 1 for each expectation that is not met.
#include <clsPDFCreator.h>

#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

int esito = 0;

void Attendi(bool vero, std::string_view fatto)
{
    if (vero) return;
    std::cerr << "not so: " << fatto << '\n';
    esito = 1;
}

// The number of the error that a call ends with; 0 without one.
template <typename Chiamata>
std::int32_t Errore(Chiamata chiamata)
{
    try {
        chiamata();
    } catch (const clsPDFCreator::Error& errore) {
        return errore.Number();
    }
    return 0;
}

void Pagina(clsPDFCreator& pdf)
{
    pdf.BeginPage();
    pdf.SetFont("Times New Roman", 24, clsPDFCreator::StyleBold);
    for (float y = 100; y < 800; y += 30) {
        pdf.DrawText(298, y, "Buongiorno", clsPDFCreator::AlignCenter);
    }
    pdf.EndPage();
}

void Disegna(clsPDFCreator& pdf)
{
    Pagina(pdf);
    pdf.EndDoc();
}

clsPDFCreator Scrittore()
{
    clsPDFCreator pdf;
    pdf.SetClock({[] { return clsPDFCreator::DateTime{2026, 1, 2, 3, 4, 5}; }, [] { return 7; }});
    return pdf;
}

void Versione()
{
    std::ostringstream testo;
    testo << CLSPDFCREATOR_VERSION_MAJOR << '.' << CLSPDFCREATOR_VERSION_MINOR << '.'
          << CLSPDFCREATOR_VERSION_PATCH;
    Attendi(clsPDFCreator::Version() == testo.str(), "header and library are of one version");
}

void Errori(const std::string& cartella)
{
    clsPDFCreator pdf;
    Attendi(Errore([&] { pdf.BeginPage(); }) == clsPDFCreator::ErrorInvalidCall,
            "a page needs a document");
    Attendi(Errore([&] { pdf.BeginDoc(cartella + "/no/such/folder/a.pdf"); }) ==
                clsPDFCreator::ErrorPathNotFound,
            "a document needs its folder");
    Attendi(Errore([&] { pdf.BeginDoc(cartella + "/errori.pdf"); }) == 0, "it has one");
    pdf.BeginPage();
    Attendi(Errore([&] { pdf.DrawText(1, 2, "a"); }) == clsPDFCreator::ErrorInvalidCall,
            "text needs a font");
    Attendi(Errore([&] { pdf.DrawEAN13("12", 1, 2); }) == clsPDFCreator::ErrorInvalidCall,
            "an EAN-13 needs twelve digits");
    pdf.EndPage();
    Attendi(Errore([&] { pdf.EndDoc(); }) == 0, "a refusal leaves a sound document");
}

void Uscite(const std::string& cartella)
{
    const std::string nome = cartella + "/uscite.pdf";
    clsPDFCreator suFile = Scrittore();
    suFile.BeginDoc(nome);
    Disegna(suFile);
    std::ifstream file(nome, std::ios::binary);
    const std::string atteso{std::istreambuf_iterator<char>(file), {}};
    Attendi(atteso.size() > 2000, "a file holds the document");

    std::string raccolto;
    clsPDFCreator suFunzione = Scrittore();
    suFunzione.BeginDocTo([&raccolto](std::string_view pezzo) { raccolto += pezzo; });
    Disegna(suFunzione);
    Attendi(raccolto == atteso, "a function gets the same bytes");

    std::ostringstream flusso;
    clsPDFCreator suFlusso = Scrittore();
    suFlusso.BeginDocTo(flusso);
    Disegna(suFlusso);
    Attendi(flusso.str() == atteso, "a stream gets the same bytes");
}

void FunzioneCheFallisce()
{
    clsPDFCreator pdf = Scrittore();
    pdf.BeginDocTo([](std::string_view) { throw std::runtime_error("line cut"); });
    try {
        Disegna(pdf);
        Attendi(false, "what a function throws ends the document");
    } catch (const clsPDFCreator::Error& errore) {
        Attendi(std::string_view(errore.what()).find("line cut") != std::string_view::npos,
                "its reason is told");
    }
}

void Compressione()
{
    std::string intero;
    std::string compresso;
    for (const std::int32_t livello : {0, 6}) {
        std::string& raccolto = livello == 0 ? intero : compresso;
        clsPDFCreator pdf = Scrittore();
        const std::int32_t errore = Errore([&] { pdf.Compress(livello); });
        if (livello != 0 && !CON_ZLIB) {
            return Attendi(errore == clsPDFCreator::ErrorInvalidCall, "Compress asks for zlib");
        }
        Attendi(errore == 0, "Compress has what it needs");
        pdf.BeginDocTo([&raccolto](std::string_view pezzo) { raccolto += pezzo; });
        for (int i = 0; i < 20; ++i) Pagina(pdf);
        pdf.EndDoc();
    }
    Attendi(compresso.size() < intero.size(), "a compressed document is smaller");
    Attendi(compresso.find("/FlateDecode") != std::string::npos, "and says how");
}

void Conforme()
{
    std::string raccolto;
    clsPDFCreator pdf = Scrittore();
    pdf.Conforming();
    pdf.SetLanguage("it");
    pdf.SetDocProperty("L'et\xC3\xA0 # 10");
    pdf.BeginDocTo([&raccolto](std::string_view pezzo) { raccolto += pezzo; });
    Disegna(pdf);
    Attendi(raccolto.rfind("%PDF-1.7", 0) == 0, "a conforming document is of version 1.7");
    for (const char* parte : {"/Lang (it)", "/ID [", "(L'et\xE0 # 10)"}) {
        Attendi(raccolto.find(parte) != std::string::npos, parte);
    }
}

} // namespace

// The folder for what it writes.
int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    Versione();
    Errori(argv[1]);
    Uscite(argv[1]);
    FunzioneCheFallisce();
    Compressione();
    Conforme();
    return esito;
}
