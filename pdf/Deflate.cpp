// Deflates with zlib; Objects.cpp is who asks.

#include "Deflate.h"
#include "Failure.h"

#include "ErroreRuntime.h"

#include <algorithm>
#include <array>
#include <new>

#include <zlib.h>

namespace pdf {

namespace {

// zlib counts what it gets at once in 32 bits.
constexpr std::size_t MostAtOnce = std::size_t{1} << 30;

// Memory from where all other memory of the program comes, so that one that counts or limits it
// knows of this, too.
void* Allocate(void*, unsigned items, unsigned size)
{
    return ::operator new (std::size_t{items} * size, std::nothrow);
}

void Release(void*, void* memory)
{
    ::operator delete(memory);
}

} // namespace

bool prCanDeflate()
{
    return true;
}

void Deflate::Closer::operator()(z_stream_s* stream) const noexcept
{
    deflateEnd(stream); // without effect where deflateInit has failed
    delete stream;
}

Deflate::Deflate(std::int32_t level)
    : m_stream(new z_stream{})
{
    m_stream->zalloc = Allocate;
    m_stream->zfree = Release;
    const int result = deflateInit(m_stream.get(), level);
    if (result == Z_MEM_ERROR) throw std::bad_alloc();
    if (result != Z_OK) {
        prInvalidCall("la versione di zlib è un'altra");
    }
}

void Deflate::Add(std::string_view bytes, const Sink& sink)
{
    while (!bytes.empty()) {
        const std::size_t piece = std::min(bytes.size(), MostAtOnce);
        // zlib only reads there; its type is older than the word for that.
        m_stream->next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
        m_stream->avail_in = static_cast<uInt>(piece);
        Run(Z_NO_FLUSH, sink);
        bytes.remove_prefix(piece);
    }
}

void Deflate::End(const Sink& sink)
{
    Run(Z_FINISH, sink);
    Restart();
}

void Deflate::Restart()
{
    deflateReset(m_stream.get());
}

std::string Deflate::Whole(std::string_view bytes)
{
    std::string whole;
    Restart(); // nothing is left of one for which there was no memory
    const Sink sink = [&whole](std::string_view piece) { whole.append(piece); };
    Add(bytes, sink);
    End(sink);
    return whole;
}

// Until there is room left for what comes out: then zlib has taken all.
void Deflate::Run(int flush, const Sink& sink)
{
    std::array<char, 4096> out;
    do {
        m_stream->next_out = reinterpret_cast<Bytef*>(out.data());
        m_stream->avail_out = static_cast<uInt>(out.size());
        deflate(m_stream.get(), flush);
        const std::size_t made = out.size() - m_stream->avail_out;
        if (made > 0) sink({out.data(), made});
    } while (m_stream->avail_out == 0);
}

} // namespace pdf
