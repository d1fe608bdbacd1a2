// Small documents for one test each: drawn, read by our own reader, kept for the foreign ones.
#pragma once

#include "StrutturaPdf.h"
#include "clsPDFCreator.h"

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace aiuti {

using Disegno = std::function<void(clsPDFCreator&)>;

// 2 January 2026, 03:04:05, and the digit 7.
clsPDFCreator::Clock OrologioFermo();

// The file of a document under OrologioFermo: prima before BeginDoc, poi between it and EndDoc.
std::string ByteDocumento(const Disegno& prima, const Disegno& poi);

// Reads a file. Its faults fail the test. A sound one with pages and without missing names is kept
// (PdfProdotti.h) under the test's name; testi as there.
PdfLetto Esamina(const std::string& byte, std::initializer_list<std::string_view> testi = {});

// Both of them.
PdfLetto Documento(const Disegno& prima, const Disegno& poi,
                   std::initializer_list<std::string_view> testi = {});

// The lines that disegno writes into a new page, after the three that every page begins with.
// In points on A4, or as prima sets the document.
std::vector<std::string> Scrive(const Disegno& disegno,
                                std::initializer_list<std::string_view> testi = {});
std::vector<std::string> ScriveCon(const Disegno& prima, const Disegno& disegno,
                                   std::initializer_list<std::string_view> testi = {});
std::vector<std::string> ScriveInCentimetri(const Disegno& disegno,
                                            std::initializer_list<std::string_view> testi = {});

} // namespace aiuti
