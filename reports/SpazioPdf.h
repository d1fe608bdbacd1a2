// Whether a full PDF report fits into one document, told before anything is touched. What its pages
// hold is the business of Stampe_Pdf.cpp: whoever changes that counts again here.
#pragma once

#include "CorsaTaglie.h"

namespace Stampe {

// Error 5 where this program was built without what AmbienteInUso.Compatto needs.
void PretendiCompatto();

// The refusal: error 6 about "taglie.pdf", naming about how many shoes fit with
// AmbienteInUso.Compatto, with CaratteriUnici, and without them.
[[noreturn]] void TroppePerUnPdf();

// TroppePerUnPdf when a full report of so many shoes fits with no cards whatever.
void PretendiPdfPossibile(const NumeroTaglie& chieste);

// TroppePerUnPdf when the full report of the coming shoes does not fit. Where that depends on their
// cards they are played already now, in their order and at most 94 of them: from then on
// AmbienteInUso.PreparaTaglia deals the very same shoes.
void PretendiSpazioPdf(const NumeroTaglie& chieste);

} // namespace Stampe
