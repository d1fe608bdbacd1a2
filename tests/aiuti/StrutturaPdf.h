// A reader of our own for the PDF files that the tests make: it believes nothing and looks at every
// promise of our writer, also where common readers forgive.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace aiuti {

// What was read. With faults in Difetti it may be incomplete.
struct PdfLetto
{
    std::string Versione;                         // of the header, "1.3"
    std::vector<std::string> Oggetti;             // object n at n - 1, see Oggetto
    std::vector<std::optional<std::string>> Dati; // stream of object n at n - 1, where it has one
    std::vector<int> NumeriPagina;                // the page objects in their order
    std::vector<int> NumeriContenuto;             // of each page its content stream, 0 for none

    std::set<int> Liberi; // numbers that belong to no object; of a conforming document only

    // Names that a content stream uses and its resources do not have, as "XObject /Nome", each
    // once, sorted. No fault of the file: a document may play a form that nobody ever defines.
    std::vector<std::string> NomiMancanti;

    // In Italian, in the order found; empty when the file is sound.
    std::vector<std::string> Difetti;

    int Pagine() const { return static_cast<int>(NumeriPagina.size()); }

    // The text of object n (from 1): what stands between the lines "n 0 obj" and "stream" or
    // "endobj", without the last CR LF. std::out_of_range when there is no such object.
    const std::string& Oggetto(int n) const;

    // The bytes of the stream of object n as they stand in the file, no filter undone but
    // FlateDecode.
    // std::out_of_range when object n has none.
    const std::string& Flusso(int n) const;

    // The content stream of a page (from 1). std::out_of_range when there is no such page.
    const std::string& Contenuto(int pagina) const;
};

// Reads a whole file and looks for faults:
// - header, comment line, objects, table, trailer and end follow one another without a stray byte;
//   lines end in CR LF, inside a dictionary in CR;
// - the table has entries of exactly 20 bytes (ISO 32000-1, 7.5.4), each at the place of its
// object;
//   the objects 1 to n are there once each; /Size is n, one short of the entries; /Info is object
//   1, /Root object 2;
// - a conforming document, known by its binary comment, may have free entries, its /Size is n + 1;
//   or a stream of cross-references stands for the table (see RimandiPdf.h), and then objects may
//   stand in streams;
// - every object is one value of sound syntax (see SintassiPdf.h), every reference names an object;
// - /Length of a stream, given or referred to, is the number of bytes between the lines "stream"
//   and "endstream", the line end of the last operator counted, that after encoded bytes not;
// - deflated bytes are a whole zlib stream and nothing else (see Inflato.h);
// - the page tree holds every page once and /Count is their number; annotations are annotations;
// - pages, forms and tiles draw as ContenutoPdf.h says, unless a filter hides them, and the names
//   they use belong to objects of that kind.
PdfLetto LeggiPdf(const std::string& byte);

} // namespace aiuti
