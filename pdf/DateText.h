// Moments as a conforming document tells them: in its properties and in its metadata.
#pragma once

#include "clsPDFCreator.h"

#include <string>

namespace pdf {

// "D:20260102030405+01'00'" (ISO 32000-1, 7.9.4). Neither form has a leap second: 60 counts as 59.
// Any other part outside its range stands there by its last digits, below 0 as 0.
std::string prDateWithOffset(const clsPDFCreator::DateTime& date);

// "2026-01-02T03:04:05+01:00" (ISO 8601).
std::string prIsoDate(const clsPDFCreator::DateTime& date);

} // namespace pdf
