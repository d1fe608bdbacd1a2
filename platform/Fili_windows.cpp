// The order in which a thread's own variables end.
//
// mingw-w64 keeps them in memory that one per-thread key frees at the end of a thread, and calls
// their destructors from another; keys are served in the order in which they were made. The memory
// would go first, because its key is made when the first such variable is touched. So the key of
// the destructors is made here, before any other code of the program has run.

#include <cxxabi.h>

namespace {

void NonDistruggereNulla(void* /*nulla*/) {}

} // namespace

// The first number that programs may use; ordinary constructors come later.
extern "C" __attribute__((constructor(101))) void ScalvinoOrdinaFili()
{
    abi::__cxa_thread_atexit(NonDistruggereNulla, nullptr, nullptr);
}
