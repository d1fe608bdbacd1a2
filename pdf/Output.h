// Where the bytes of a document go: into a file, to a function, into a stream. Objects.cpp hands
// them over in their order, each once.
#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

namespace pdf {

// Failures of all of them are of type ErroreRuntime; std::bad_alloc where there is no memory for
// it.
class Output
{
public:
    Output() = default;
    virtual ~Output() = default;
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;
    Output(Output&&) = delete;
    Output& operator=(Output&&) = delete;

    // Takes the bytes that come next.
    virtual void Write(std::string_view bytes) = 0;

    // Nothing comes any more, and all that came has arrived.
    virtual void Close() = 0;

    // What has been written stays from now on; before, a file goes with this object.
    virtual void Keep() {}
};

// A new file in place of what stands under that name (FileNuovo says what may).
std::unique_ptr<Output> prToFile(const std::string& fileName);

// Each piece of the document as one call. Whatever the function throws fails the write, with its
// reason; error 7 where it was std::bad_alloc.
std::unique_ptr<Output> prToSink(std::function<void(std::string_view)> sink);

// The stream, which lives as long. Error 57 for one that is not good (std::ios::good), now and at
// each write.
std::unique_ptr<Output> prToStream(std::ostream& stream);

} // namespace pdf
