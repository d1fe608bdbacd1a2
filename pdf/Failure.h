// The errors that the writer finds itself: they name it where others name a file.
#pragma once

#include "ErroreRuntime.h"

#include <string>

namespace pdf {

[[noreturn]] void prFail(NumeroErrore number, std::string reason);

// Error 5: what was called does not fit the document as it is, or the values given.
[[noreturn]] void prInvalidCall(std::string reason);

// Error 6: more than there is room for.
[[noreturn]] void prOverflow(std::string reason);

// Error 6 for a number that is not finite.
[[noreturn]] void prNotFinite();

} // namespace pdf
