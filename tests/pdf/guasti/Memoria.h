// Counts the memory that the program takes through new.
#pragma once

#include <cstddef>

namespace memoria {

// Begins to count: from here on the highest amount is kept beyond what is held now.
void Azzera();

// The most bytes held at one time since Azzera(), beyond what was held then.
std::size_t Massimo();

} // namespace memoria
