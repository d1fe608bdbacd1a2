// In place of Deflate.cpp in a library that is built without zlib: nobody comes further than the
// constructor.

#include "Deflate.h"
#include "Failure.h"

#include "ErroreRuntime.h"

namespace pdf {

bool prCanDeflate()
{
    return false;
}

Deflate::Deflate(std::int32_t)
{
    prInvalidCall("la libreria è senza zlib");
}

void Deflate::Closer::operator()(z_stream_s*) const noexcept {}

void Deflate::Add(std::string_view, const Sink&) {}

void Deflate::End(const Sink&) {}

std::string Deflate::Whole(std::string_view)
{
    return {};
}

} // namespace pdf
