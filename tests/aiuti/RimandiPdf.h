// Streams of cross-references and of objects (ISO 32000-1, 7.5.8 and 7.5.7), read as strictly as
// StrutturaPdf.cpp reads the rest of a file.
#pragma once

#include "SintassiPdf.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace aiuti {

// Where an object is.
struct PostoPdf
{
    enum class Genere
    {
        Libero,
        PerConto, // Dove: its byte in the file
        InFlusso, // Dove: the number of the object stream, Indice: its place there, from 0
    };
    Genere Tipo = Genere::Libero;
    std::size_t Dove = 0;
    std::size_t Indice = 0;
};

// The deflated data of a stream, inflated. testo begins behind the line "stream" of an object whose
// dictionary this is and goes on to at least "endobj". Nothing where /Filter, /Length, the data or
// the lines behind them are not what they must be.
std::optional<std::string> DatiDelFlusso(const ValorePdf& dizionario, std::string_view testo);

// The rows of a cross-reference stream, from object 0 on; none where they are not sound: /Size
// tells their number, /W the bytes of three columns, the first row is the free one.
std::vector<PostoPdf> PostiDegliOggetti(const ValorePdf& dizionario, std::string_view righe);

// An object of an object stream, as text.
struct OggettoImpacchettato
{
    int Numero;
    std::string Testo;
};

// The objects of an object stream, in their order; none where its index is not sound: pairs of
// numbers, each followed by a blank, the first object at 0, one behind the other.
std::vector<OggettoImpacchettato> OggettiImpacchettati(const ValorePdf& dizionario,
                                                       const std::string& dati);

} // namespace aiuti
