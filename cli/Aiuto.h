// What the command tells of itself: help and version. The options it speaks of: Opzioni.h.
#pragma once

#include <string>

namespace cli {

// The text of --help and of --version, UTF-8, ending in a line end.
std::string TestoAiuto();
std::string TestoVersione();

// The program's version alone, "1.0.0".
std::string Versione();

} // namespace cli
