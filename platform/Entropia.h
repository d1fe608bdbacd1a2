// Unpredictable numbers from the operating system.
#pragma once

#include <cstdint>

// 64 bits of the system's entropy.
std::uint64_t Entropia64();
