// The stream encoders of PDF: bytes in, encoded bytes out, the whole stream at once.
//
// All four take any bytes, the empty string included, keep no state and fail only when memory
// runs out. What they write ends with the mark that tells a reader where the data stops.
#pragma once

#include <string>
#include <string_view>

namespace pdf {

// Run-length encoding for RunLengthDecode (ISO 32000-1, 7.4.5), ended by byte 128.
//
// Runs of three and more equal bytes are shortened, up to 128 at a time; all else is copied. Adds
// at most one byte per 128 and the end mark to what came in.
std::string prRunLengthEncode(std::string_view bytes);

// LZW for LZWDecode with /EarlyChange 1, the default (ISO 32000-1, 7.4.4).
//
// Codes of 9 to 12 bits, the most significant bit first, the last byte filled with zero bits. The
// first code is a clear; another one follows whenever entry 4094 has been assigned, so that entry
// 4095 is never used: the earliest point at which any reader's table is full. Grows what cannot
// be compressed by half at most.
std::string prLZWEncode(std::string_view bytes);

// ASCII base-85 for ASCII85Decode (ISO 32000-1, 7.4.3): four bytes become five characters "!" to
// "u", four zero bytes become "z"; ended by "~>". No line breaks.
std::string prToASCII85(std::string_view bytes);

// Two upper-case hexadecimal digits per byte for ASCIIHexDecode (ISO 32000-1, 7.4.2), ended by
// ">". No line breaks.
std::string prToASCIIHex(std::string_view bytes);

} // namespace pdf
