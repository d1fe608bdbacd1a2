// A digest that tells contents apart without keeping them: clsPDFCreator_Images.cpp knows by it the
// pictures that it has taken in already.
#pragma once

#include <string>
#include <string_view>

namespace pdf {

// The BLAKE2b digest of any bytes (RFC 7693, without a key), 32 bytes long. Nobody knows how to
// find two contents with the same one.
std::string prDigest(std::string_view bytes);

} // namespace pdf
