// Annotations of conforming documents, and the pictures that they bring along, as they stand in the
// file.
#pragma once

#include "PaginaDiProva.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace apparenze {

// A conforming document that disegno draws, as bytes.
inline std::string Conforme(const aiuti::Disegno& disegno)
{
    return aiuti::ByteDocumento([](clsPDFCreator& pdf) { pdf.Conforming(); }, disegno);
}

// The same with one page.
inline std::string PaginaConforme(const aiuti::Disegno& disegno)
{
    return Conforme([&disegno](clsPDFCreator& pdf) {
        pdf.BeginPage();
        disegno(pdf);
        pdf.EndPage();
    });
}

// The first text between two others, from a place on; fails the test where there is none.
inline std::string Fra(const std::string& testo, std::string_view prima, std::string_view dopo,
                       std::size_t da = 0)
{
    const auto inizio = testo.find(prima, da);
    const auto fine = testo.find(dopo, inizio + prima.size());
    if (inizio == std::string::npos || fine == std::string::npos) {
        ADD_FAILURE() << "manca " << prima << " ... " << dopo;
        return "";
    }
    return testo.substr(inizio + prima.size(), fine - inizio - prima.size());
}

inline std::string Oggetto(const std::string& byte, int numero)
{
    return Fra(byte, "\r\n" + std::to_string(numero) + " 0 obj\r\n", "\r\nendobj\r\n");
}

// All annotations of a document, in its order.
inline std::vector<std::string> Note(const std::string& byte)
{
    constexpr std::string_view inizio = "<< /Type /Annot\r";
    std::vector<std::string> note;
    for (auto at = byte.find(inizio); at != std::string::npos; at = byte.find(inizio, at + 1)) {
        note.push_back(byte.substr(at, byte.find("\r\nendobj", at) - at));
    }
    return note;
}

// The number of the object that an entry names; 0 where it is missing.
inline int Numero(const std::string& nota, std::string_view voce)
{
    const auto at = nota.find(voce);
    return at == std::string::npos ? 0 : std::atoi(nota.c_str() + at + voce.size());
}

// The object of its picture, dictionary and content; empty without one.
inline std::string Figura(const std::string& byte, const std::string& nota)
{
    const int numero = Numero(nota, "/AP << /N ");
    return numero == 0 ? "" : Oggetto(byte, numero);
}

// What the picture of the first annotation of a page draws.
inline std::string Contenuto(const aiuti::Disegno& disegno)
{
    const std::string byte = PaginaConforme(disegno);
    return Fra(Figura(byte, Note(byte).at(0)), "\r\nstream\r\n", "endstream");
}

// The last annotation of a page.
inline std::string Nota(const aiuti::Disegno& disegno)
{
    const auto note = Note(PaginaConforme(disegno));
    return note.empty() ? "" : note.back();
}

} // namespace apparenze
