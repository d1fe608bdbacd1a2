// Texts at random for documents at random.
#pragma once

#include "Caso.h"

#include <string>
#include <string_view>

namespace resistenza {

// Up to quante words of Latin, Greek, Cyrillic and other letters, signs of Windows-1252, figures
// and what PDF escapes; UTF-8, one blank between two.
std::string Frase(Caso& caso, int quante);

// The same without signs that Windows-1252 has below A0: in what a reader sets in type itself it
// takes them for others (ISO 32000-1, D.2), and some of these are in no face.
std::string FraseComune(Caso& caso, int quante);

// A word of plain letters.
std::string ParolaSemplice(Caso& caso);

// A name for a reusable object or a tiling, another one for each numero: plain, or full of what
// could leave its place in the document. Never one that reads as a colour. At most 126 bytes in
// Windows-1252: one reader remarks on a name of 127, which is the most that there may be.
std::string Nome(Caso& caso, int numero);

// Anything that could leave its place in the document: operators, delimiters, control characters,
// bytes that are no UTF-8. Never at its front "#" or "%", never a byte 0.
std::string TestoOstile(Caso& caso, int pezzi);

// A text as only a conforming document keeps it outside its pages: of any script, of bytes that
// read as the mark of another encoding, or one of those that leave their place.
std::string TestoDiFuori(Caso& caso);

// What a page shows of a text: each character outside Windows-1252 is "?".
std::string ComeSiVede(std::string_view testo);

} // namespace resistenza
