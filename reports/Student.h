// Student's distribution: how wide an interval must be whose error is itself estimated. Studio.cpp
// asks.
#pragma once

#include <cstdint>

namespace Stampe {

// The number that the absolute value of a variable with Student's distribution stays below in 95
// cases of 100, to some 13 digits: 12.706 for one degree of freedom, 1.95996 for very many.
// gradi: degrees of freedom, from 1 on.
double Student95(std::int64_t gradi);

} // namespace Stampe
