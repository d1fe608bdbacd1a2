// The indirect objects of the file being written: numbers, positions, lines and bytes.
#pragma once

#include "ErroreRuntime.h"
#include "FileNuovo.h"
#include "Number.h"
#include "Template.h"

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pdf {

// Counts and object numbers are 16-bit integers: a document holds no more of anything.
inline constexpr std::int32_t LargestCount = 32767;

// Raises error 6 (Overflow) when one more than count would pass LargestCount. what: in the
// plural, for the message.
void prRequireRoom(std::int32_t count, std::string_view what);

// Writes one file from front to back. Every failed write is an ErroreRuntime; after one, every
// further write to this file fails with the same error, so that nothing is ever left out.
class Objects
{
public:
    // Starts a new file in place of what stands under that name (FileNuovo says what may).
    void Open(const std::string& fileName);

    // Writes what is still held back and closes. Closed already: no effect.
    void Close();

    // Error 5 when no file is open; the error of the write that failed when one did.
    void RequireOpen() const;

    // Bytes written so far: where the next one will stand.
    std::uint64_t Position() const { return m_flushed + m_buffer.size(); }

    // Highest object number given out so far.
    std::int32_t Counter() const { return m_counter; }
    void SetCounter(std::int32_t counter) { m_counter = counter; }

    // Begins the object of that number, or of the next free one for 0, at the present position;
    // returns the number. Error 6 when it would pass LargestCount.
    std::int32_t prInitObj(std::int32_t number);
    void prEndObj();

    // Begins the data of a stream and ends it; the length counts the end of its last line.
    void BeginStream();
    void EndStream();
    std::uint64_t StreamLength() const { return m_streamLength; }

    // Writes the next object: nothing but the length of the stream ended last.
    void WriteStreamLength();

    // Writes text and CR LF.
    void prWriteRaw(std::string_view text);

    // Writes the filled template and CR LF; nothing when it has fewer placeholders than arguments.
    void prPrint(std::string_view pattern, std::initializer_list<Argument> arguments);

    // Writes the pieces one after the other, numbers in thousandths, and CR LF.
    template <typename... Pieces>
    void prLine(const Pieces&... pieces)
    {
        m_line.clear();
        (Append(pieces), ...);
        prWriteRaw(m_line);
    }

    // The cross-reference table of all objects (ISO 32000-1, 7.5.4).
    void WriteCrossReferences();

private:
    void Append(std::string_view text) { m_line.append(text); }
    void Append(double number) { prAppendNumber(m_line, number); }
    void Append(std::int32_t number) { prAppendInteger(m_line, number); }
    void Flush();

    std::unique_ptr<FileNuovo> m_file;
    std::optional<ErroreRuntime> m_failure;
    std::string m_buffer; // what the file does not hold yet
    std::string m_line;   // the line being put together
    std::uint64_t m_flushed = 0;
    std::uint64_t m_streamStart = 0;
    std::uint64_t m_streamLength = 0;
    std::int32_t m_counter = 0;
    std::vector<std::uint64_t> m_positions; // of the objects, from number 1
};

} // namespace pdf
