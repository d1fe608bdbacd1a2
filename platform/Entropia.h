// Unpredictable numbers from the operating system, for engine/Casuale.cpp.
#pragma once

#include <cstdint>

// 64 bits of the system's entropy.
std::uint64_t Entropia64();
