// Bytes made smaller for the filter FlateDecode (ISO 32000-1, 7.4.4). Deflate.cpp does it with
// zlib; a library built without has Deflate_none.cpp in its place.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

struct z_stream_s;

namespace pdf {

// Whether the library was built with zlib. Without it no Deflate can be made.
bool prCanDeflate();

// One stream after the other, each ended by End; all in the same memory, about 260 KB.
class Deflate
{
public:
    // Takes the bytes that come out, in pieces of some KB. What it throws goes through, and the
    // stream is lost.
    using Sink = std::function<void(std::string_view)>;

    // level: 1, quick, to 9, small. std::bad_alloc without the memory for it; later there is
    // nothing more to be missing but what sinks want.
    explicit Deflate(std::int32_t level);

    // Bytes go in. What comes out of them may come later.
    void Add(std::string_view bytes, const Sink& sink);

    // The rest comes out, and the next bytes begin another stream.
    void End(const Sink& sink);

    // All of bytes as one stream; not between Add and End.
    std::string Whole(std::string_view bytes);

private:
    struct Closer
    {
        void operator()(z_stream_s* stream) const noexcept;
    };

    void Run(int flush, const Sink& sink);
    void Restart();

    std::unique_ptr<z_stream_s, Closer> m_stream;
};

} // namespace pdf
