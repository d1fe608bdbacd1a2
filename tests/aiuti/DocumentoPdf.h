// What the objects of a PDF must mean to one another once their syntax has been read.
#pragma once

#include "SintassiPdf.h"
#include "StrutturaPdf.h"

#include <vector>

namespace aiuti {

// valori[n] is the value of object n, valori[0] is nothing; pdf holds the streams. Fills in the
// pages and the missing names and adds the faults of references, lengths, page tree and contents.
void ControllaDocumento(const std::vector<ValorePdf>& valori, PdfLetto& pdf);

} // namespace aiuti
