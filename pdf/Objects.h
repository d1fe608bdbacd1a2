// The indirect objects of the file being written: numbers, positions, lines and bytes. All that the
// clsPDFCreator_*.cpp write goes through here.
#pragma once

#include "CrossReferences.h"
#include "Deflate.h"
#include "ErroreRuntime.h"
#include "Name.h"
#include "Number.h"
#include "ObjectStream.h"
#include "Output.h"
#include "Template.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <exception>
#include <memory>
#include <string>
#include <string_view>

namespace pdf {

// Counts and object numbers are 16-bit integers: a document holds no more of anything. Of a
// conforming one that limits the pages alone.
inline constexpr std::int32_t LargestCount = 32767;

// The highest number that every reader knows an object by (ISO 32000-1, annex C).
inline constexpr std::int32_t LargestNumber = 8388607;

// Raises error 6 (Overflow) when one more than count would pass largest. what: in the plural, for
// the message.
[[noreturn]] void prNoRoom(std::string_view what, std::int32_t largest);
inline void prRequireRoom(std::int32_t count, std::string_view what,
                          std::int32_t largest = LargestCount)
{
    if (count >= largest) prNoRoom(what, largest);
}

// How a document is laid out.
struct Format
{
    bool Conforming = false;
    std::int32_t CompressLevel = 0; // 0, off, to 9

    // Whether objects without a stream of their own share streams (ISO 32000-1, 7.5.7).
    bool PacksObjects() const { return Conforming && CompressLevel > 0; }

    // The highest number that an object may have. Object streams need one for each 200 objects or
    // 32 KB, also for those that come when all others are given out.
    std::int32_t Largest() const
    {
        constexpr std::int32_t forStreams = 65536;
        if (PacksObjects()) return LargestNumber - forStreams;
        return Conforming ? LargestNumber : LargestCount;
    }
};

// Pieces of a line that are no text as it stands.
struct Escaped
{
    std::string_view Text; // as the inside of a literal string
};
struct Name
{
    std::string_view Bytes; // after a "/"
};

struct TenDigits
{
    std::uint64_t Number; // with zeros at its front
};

// How data stand in a stream: one run, or a line for each letter of an ASCII encoding. Of base-85
// data the two letters of the end, "~>", share a line, because not every decoder knows them apart.
enum class ByteRows : std::uint8_t
{
    None,
    Letters,
    LettersAndPair,
};

// Writes one document from front to back. After a failed write every further one to this document
// fails with the same error, so that nothing is ever left out.
class Objects
{
public:
    Objects() = default;
    Objects(const Objects&) = delete; // m_at points into its own
    Objects& operator=(const Objects&) = delete;

    // Starts a new document that goes to output. A file is removed by Discard, and when this object
    // ends, until Keep is called.
    void prOpen(std::unique_ptr<Output> output, const Format& format = {});

    // What has been written stays from now on, whatever happens: only the caller knows whether half
    // a document is worth keeping.
    void prKeep();

    // Closes the output opened last; a file is removed unless Keep was called.
    void prDiscard();

    // Writes what is still held back and closes. Closed already: no effect.
    void prClose();

    bool prIsOpen() const { return m_at->Room != 0; }

    // Error 5 when no document is open; the error of the write that failed when one did; that of
    // prRequireIdle.
    void prRequireOpen() const
    {
        if (m_at->Room == 0) NotOpen();
    }

    // Error 5 while the receiver of the document has a piece of it in hand: what it calls must not
    // change what is being written.
    void prRequireIdle() const
    {
        if (m_handing) Busy();
    }

    // To be called where an exception is handled, which it throws again: from now on it is the
    // error of every operation, as if a write had failed. Operations that would be left half done
    // do so when memory runs out, so that no half of them stands in a document that seems whole.
    [[noreturn]] void prGiveUp();

    // Bytes written so far: where the next one will stand. Not within prBeginContent.
    std::uint64_t prPosition() const { return m_file.Gone + m_file.Used; }

    // Highest object number given out so far.
    std::int32_t prCounter() const { return m_counter; }
    void prSetCounter(std::int32_t counter) { m_counter = counter; }

    // The highest number that an object of this document may have.
    std::int32_t prLargestNumber() const { return m_format.Largest(); }

    // Gives out so many numbers in a row, for objects that are begun later, and returns the first.
    // Error 6 when the last one would pass prLargestNumber; none is given out then. Where objects
    // are packed this is the only way to two numbers in a row: the end of any object may take one
    // for the stream that it goes into.
    std::int32_t prReserve(std::int32_t count = 1);

    // Begins the object of that number, or of the next free one for 0; returns the number. Error 6
    // when it would pass prLargestNumber. Where objects are packed it waits with others, unless a
    // stream is begun in it.
    std::int32_t prInitObj(std::int32_t number);
    void prEndObj();

    // Begins the data of a stream and ends it; the length counts the end of its last line.
    void prBeginStream();
    void prEndStream();

    // The same where the document is compressed if it is compressed at all: what is written until
    // prEndStream is deflated, and the length is that of what comes out. prContentFilter goes into
    // the stream's dictionary; it is empty where nothing is compressed.
    void prBeginContent();
    std::string_view prContentFilter() const
    {
        return m_deflate ? "/Filter /FlateDecode " : std::string_view();
    }

    // The same for data whose length has to be known before: they come back as they will stand
    // there. Not within prBeginContent.
    std::string prDeflated(std::string bytes);

    // Writes the object of that number, or the next one for 0: nothing but the length of the stream
    // ended last.
    void prWriteStreamLength(std::int32_t number = 0);

    // Writes text and CR LF.
    void prWriteRaw(std::string_view text) { prPrint(text); }
    template <std::size_t Size>
    void prWriteRaw(const char (&text)[Size])
    {
        prPrint(text);
    }

    // Writes the pieces one after the other, numbers in thousandths; prPrint and CR LF.
    template <typename... Pieces>
    void prPart(const Pieces&... pieces)
    {
        char* at = Room((Bound(pieces) + ... + 0));
        ((at = Put(at, pieces)), ...);
        m_at->Used = static_cast<std::size_t>(at - m_at->Bytes.get());
    }
    template <typename... Pieces>
    void prPrint(const Pieces&... pieces)
    {
        prPart(pieces..., "\r\n");
    }

    // Writes known; where it is empty, lets write do so and keeps in known what it wrote. What has
    // left the buffer meanwhile is not kept, so that the next call writes it again.
    template <typename Write>
    void prRepeat(std::string& known, const Write& write)
    {
        if (!known.empty()) return prPart(known);
        const std::size_t start = m_at->Used;
        const std::uint64_t gone = m_at->Gone;
        write();
        if (m_at->Gone == gone) known.assign(m_at->Bytes.get() + start, m_at->Used - start);
    }

    // Writes data as what stands between "stream" and "endstream"; the length that they take there.
    // Where that is deflated, rows are of no use and the data stand alone.
    void prWriteBytes(std::string_view bytes, ByteRows rows = ByteRows::None);
    static std::size_t prLengthOfBytes(std::string_view bytes, ByteRows rows);

    // The same for data that are deflated already: exactly they count as the stream.
    void prWriteDeflated(std::string_view data);

    // The cross-reference table of all objects (ISO 32000-1, 7.5.4). Numbers that were given out
    // for nothing are free entries.
    void prWriteCrossReferences();

    // Ends a conforming document: table, trailer (7.5.5) and end mark. entries: those of the
    // trailer besides /Size, on one line.
    void prWriteTrailer(std::string_view entries);

private:
    // How much room a piece takes at most, and the piece itself; texts written in the source have
    // a length that the compiler knows.
    template <std::size_t Size>
    static constexpr std::size_t Bound(const char (&)[Size])
    {
        return Size - 1;
    }
    static std::size_t Bound(std::string_view text) { return text.size(); }
    static std::size_t Bound(const Escaped& text) { return 2 * text.Text.size(); }
    static std::size_t Bound(const Name& name) { return 3 * name.Bytes.size(); }
    static constexpr std::size_t Bound(const TenDigits&) { return LongestNumber; }
    static constexpr std::size_t Bound(double) { return LongestNumber; }
    static constexpr std::size_t Bound(std::int32_t) { return LongestNumber; }

    template <std::size_t Size>
    static char* Put(char* at, const char (&text)[Size])
    {
        std::memcpy(at, text, Size - 1);
        return at + Size - 1;
    }
    static char* Put(char* at, std::string_view text)
    {
        return std::copy(text.begin(), text.end(), at);
    }
    static char* Put(char* at, const Escaped& text) { return prPutPDFString(at, text.Text); }
    static char* Put(char* at, const Name& name) { return prPutName(at, name.Bytes); }
    static char* Put(char* at, const TenDigits& digits)
    {
        return prPutTenDigits(at, digits.Number);
    }
    static char* Put(char* at, double number) { return prPutNumber(at, number); }
    static char* Put(char* at, std::int32_t number) { return prPutInteger(at, number); }

    // What was written and has not left yet.
    struct Buffer
    {
        std::unique_ptr<char[]> Bytes;
        std::size_t Used = 0;
        std::size_t Room = 0;   // for so many bytes in all; 0 while nothing may be written
        std::size_t Size = 0;   // of Bytes
        std::uint64_t Gone = 0; // bytes that have left

        void Resize(std::size_t size);
        void Begin();
        std::string_view Held() const { return {Bytes.get(), Used}; }
        void Leave()
        {
            Gone += Used;
            Used = 0;
        }
    };

    // The end of the buffer, with room for so many bytes more.
    char* Room(std::size_t bytes)
    {
        if (m_at->Used + bytes > m_at->Room) MakeRoom(bytes);
        return m_at->Bytes.get() + m_at->Used;
    }
    void MakeRoom(std::size_t bytes);
    void WriteLong(std::string_view bytes);
    void Flush();
    void ToFile(std::string_view bytes);
    Deflate::Sink FileSink();
    void FlushContent();
    void EndContent();
    void Shut();
    [[noreturn]] void NotOpen() const;
    [[noreturn]] static void Busy();
    std::array<Buffer*, 3> Buffers() { return {&m_file, &m_content, &m_packed}; }
    void BeginByItself(std::int32_t number);
    void Unpack();
    void Pack();
    void WritePacked();
    void WriteReferenceStream(std::string_view entries);
    std::string DeflatedRows(int width);
    void WriteEnd(std::uint64_t references);
    void WriteWhole(std::string_view dictionary, std::string_view data);

    std::unique_ptr<Output> m_output;
    Format m_format;
    std::exception_ptr m_failure;       // of the write that failed, or of prGiveUp
    bool m_handing = false;             // the receiver has a piece of the document in hand
    Buffer m_file;                      // on its way to the output
    Buffer m_content;                   // on its way to m_deflate, whose output goes into m_file
    Buffer m_packed;                    // objects that wait for their stream
    Buffer m_nothing;                   // has never any room
    Buffer* m_at = &m_file;             // what is being written
    std::unique_ptr<Deflate> m_deflate; // of a document that is compressed
    std::uint64_t m_streamStart = 0;
    std::uint64_t m_streamLength = 0;
    std::int32_t m_counter = 0;
    std::int32_t m_begun = 0; // number of the object that waits in m_packed
    ObjectStream m_waiting;   // what m_packed holds besides
    CrossReferences m_references;
};

} // namespace pdf
