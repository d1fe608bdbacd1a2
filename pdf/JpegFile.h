// JPEG pictures: measured, not decoded. InputFile.h chooses among the readers.
#pragma once

#include "Picture.h"

#include <string>

namespace pdf {

// Reads size and number of components from the frame header of a JPEG file. The picture keeps the
// file's bytes unchanged as its Pixels, for the DCTDecode filter. fileName: named in errors.
//
// Baseline, extended and progressive files of 8 bits per sample (ISO/IEC 10918-1, frame types 0
// to 2), the ones that DCTDecode takes (ISO 32000-1, 7.4.8), with 1, 3 or 4 components.
// InvertedCMYK is set for 4 components with an Adobe segment, whose writers store ink inverted.
//
// Error: ErroreInputOutput with reason and file for anything else, and when no scan follows the
// headers. Whether the scans are whole is not looked at.
Picture prReadJPEG(std::string bytes, const std::string& fileName);

} // namespace pdf
