// Whether a full PDF report fits into one document, told before anything is touched. What its pages
// hold is the business of Stampe_Pdf.cpp: whoever changes that counts again here.
#pragma once

#include "CorsaTaglie.h"

namespace Stampe {

// The refusal: error 6 about "taglie.pdf", naming about how many shoes fit with and without
// AmbienteInUso.CaratteriUnici.
[[noreturn]] void TroppePerUnPdf();

// TroppePerUnPdf when a full report of so many shoes fits with no cards whatever.
void PretendiPdfPossibile(const NumeroTaglie& chieste);

// TroppePerUnPdf when the full report of the coming shoes does not fit. Where that depends on their
// cards they are played already now, in their order and at most 94 of them: from then on
// AmbienteInUso.PreparaTaglia deals the very same shoes.
void PretendiSpazioPdf(const NumeroTaglie& chieste);

} // namespace Stampe
