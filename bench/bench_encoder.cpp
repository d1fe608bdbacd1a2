// How fast the PDF writer's encoders are, in megabytes of input per second.
//
//   bench_encoder [FOLDER]   FOLDER: where the .ttf files are (default /usr/share/fonts/truetype)
//
// Ten megabytes of fonts and ten of a made picture like a photograph. LZW runs in turn with a
// widely used TIFF library, which writes the same kind of codes and has to read ours back.

#include "Encoders.h"

#include <tiffio.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr std::size_t Quanti = 10'000'000;
constexpr int Volte = 9;

// --- What is encoded ----------------------------------------------------------------------------

std::string Font(const std::filesystem::path& cartella)
{
    std::vector<std::filesystem::path> file;
    for (const auto& voce : std::filesystem::recursive_directory_iterator(cartella)) {
        if (voce.path().extension() == ".ttf") file.push_back(voce.path());
    }
    std::sort(file.begin(), file.end());
    std::string byte;
    for (const auto& percorso : file) {
        std::ifstream flusso(percorso, std::ios::binary);
        byte.append(std::istreambuf_iterator<char>(flusso), {});
    }
    byte.resize(std::min(byte.size(), Quanti));
    return byte;
}

// Slow waves with a little noise, in red, green and blue.
std::string Foto()
{
    std::mt19937 caso(1);
    std::string byte;
    for (int y = 0; byte.size() < Quanti; ++y) {
        for (int x = 0; x < 1826; ++x) {
            for (int c = 0; c < 3; ++c) {
                const double onde = 60 * std::sin(x * 0.01 + c) + 50 * std::cos(y * 0.013 - c);
                const auto rumore = static_cast<long>(caso() % 7) - 3;
                byte.push_back(static_cast<char>(128 + std::lround(onde) + rumore));
            }
        }
    }
    byte.resize(Quanti);
    return byte;
}

// --- The TIFF library, on a file in memory ------------------------------------------------------

struct FileInMemoria
{
    std::string Byte;
    std::size_t Posto = 0;
};

tmsize_t Leggi(thandle_t maniglia, void* dove, tmsize_t quanti)
{
    auto& file = *static_cast<FileInMemoria*>(maniglia);
    const std::size_t resto = file.Byte.size() - std::min(file.Posto, file.Byte.size());
    const std::size_t letti = std::min(static_cast<std::size_t>(quanti), resto);
    std::memcpy(dove, file.Byte.data() + file.Posto, letti);
    file.Posto += letti;
    return static_cast<tmsize_t>(letti);
}

tmsize_t Scrivi(thandle_t maniglia, void* dati, tmsize_t quanti)
{
    auto& file = *static_cast<FileInMemoria*>(maniglia);
    const std::size_t fine = file.Posto + static_cast<std::size_t>(quanti);
    if (fine > file.Byte.size()) file.Byte.resize(fine);
    std::memcpy(file.Byte.data() + file.Posto, dati, static_cast<std::size_t>(quanti));
    file.Posto = fine;
    return quanti;
}

toff_t Sposta(thandle_t maniglia, toff_t quanto, int da)
{
    auto& file = *static_cast<FileInMemoria*>(maniglia);
    const std::size_t inizio = da == SEEK_SET ? 0 : da == SEEK_CUR ? file.Posto : file.Byte.size();
    file.Posto = inizio + quanto;
    return file.Posto;
}

toff_t Lunghezza(thandle_t maniglia)
{
    return static_cast<FileInMemoria*>(maniglia)->Byte.size();
}

int Chiudi(thandle_t)
{
    return 0;
}

TIFF* Apri(FileInMemoria& file, const char* modo)
{
    return TIFFClientOpen("memoria", modo, &file, Leggi, Scrivi, Sposta, Chiudi, Lunghezza, nullptr,
                          nullptr);
}

// One strip of one row of grey pixels: the codes are not interrupted.
TIFF* ApriStriscia(FileInMemoria& file, std::size_t quanti)
{
    TIFF* tiff = Apri(file, "w");
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, static_cast<std::uint32_t>(quanti));
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, 1U);
    TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, 1U);
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, 1);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISBLACK);
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_LZW);
    return tiff;
}

std::size_t ConLibreria(const std::string& byte)
{
    FileInMemoria file;
    file.Byte.reserve(2 * byte.size()); // as kind to it as to ours
    TIFF* tiff = ApriStriscia(file, byte.size());
    TIFFWriteEncodedStrip(tiff, 0, const_cast<char*>(byte.data()),
                          static_cast<tmsize_t>(byte.size()));
    TIFFClose(tiff);
    return file.Byte.size();
}

bool LibreriaLegge(std::string codici, const std::string& byte)
{
    FileInMemoria file;
    TIFF* tiff = ApriStriscia(file, byte.size());
    TIFFWriteRawStrip(tiff, 0, codici.data(), static_cast<tmsize_t>(codici.size()));
    TIFFClose(tiff);
    file.Posto = 0;
    tiff = Apri(file, "r");
    std::string letti(byte.size(), '\0');
    const tmsize_t quanti =
        TIFFReadEncodedStrip(tiff, 0, letti.data(), static_cast<tmsize_t>(letti.size()));
    TIFFClose(tiff);
    return quanti == static_cast<tmsize_t>(byte.size()) && letti == byte;
}

// --- Measures -----------------------------------------------------------------------------------

template <typename Funzione>
double MegabyteAlSecondo(const std::string& byte, const Funzione& funzione)
{
    using namespace std::chrono;
    const auto inizio = steady_clock::now();
    volatile std::size_t uscita = funzione(byte); // so that the work is done
    static_cast<void>(uscita);
    const double secondi = duration<double>(steady_clock::now() - inizio).count();
    return static_cast<double>(byte.size()) / secondi / 1e6;
}

double Mediana(std::vector<double> valori)
{
    std::sort(valori.begin(), valori.end());
    return valori[valori.size() / 2];
}

// In turn, so that a slower moment of the machine hits both.
void MisuraLzw(const char* nome, const std::string& byte, double meta)
{
    const auto nostra = [](const std::string& dati) { return pdf::prLZWEncode(dati).size(); };
    std::vector<double> noi;
    std::vector<double> loro;
    for (int i = 0; i < Volte; ++i) {
        loro.push_back(MegabyteAlSecondo(byte, ConLibreria));
        noi.push_back(MegabyteAlSecondo(byte, nostra));
    }
    std::printf("LZW        %s %8.0f MB/s   meta %4.0f   libtiff %5.0f MB/s, quota %.2f\n", nome,
                Mediana(noi), meta, Mediana(loro), Mediana(noi) / Mediana(loro));
}

void Misura(const char* cosa, const char* nome, const std::string& byte, double meta,
            std::string (*codifica)(std::string_view))
{
    std::vector<double> noi;
    for (int i = 0; i < Volte; ++i) {
        noi.push_back(MegabyteAlSecondo(
            byte, [&](const std::string& dati) { return codifica(dati).size(); }));
    }
    std::printf("%-10s %s %8.0f MB/s   meta %4.0f\n", cosa, nome, Mediana(noi), meta);
}

} // namespace

int main(int argc, char** argv)
{
    const std::string font = Font(argc > 1 ? argv[1] : "/usr/share/fonts/truetype");
    if (font.size() < Quanti / 2) {
        std::fprintf(stderr, "Troppo pochi file .ttf: servono 5 MB di font.\n");
        return 1;
    }
    const std::string foto = Foto();
    for (const std::string* byte : {&font, &foto}) {
        if (LibreriaLegge(pdf::prLZWEncode(*byte), *byte)) continue;
        std::fprintf(stderr, "La libreria non rilegge i nostri codici.\n");
        return 1;
    }
    MisuraLzw("font", font, 126);
    MisuraLzw("foto", foto, 165);
    for (const auto& [nome, byte] : {std::pair("font", &font), std::pair("foto", &foto)}) {
        Misura("ASCII85", nome, *byte, 500, pdf::prToASCII85);
        Misura("ASCIIHex", nome, *byte, 500, pdf::prToASCIIHex);
        Misura("RunLength", nome, *byte, 800, pdf::prRunLengthEncode);
    }
    return 0;
}
