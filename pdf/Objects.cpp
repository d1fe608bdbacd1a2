// The only source of the library that makes the bytes of a document go out; Objects.h says how
// others call it, Output.cpp where they go.

#include "Objects.h"

#include <algorithm>
#include <utility>

namespace pdf {

namespace {

constexpr std::size_t BufferSize = 64 * 1024;

// What the deflater gets at once: fed line by line it would take a third longer.
constexpr std::size_t ContentBufferSize = 4 * 1024;

// A position has ten digits in the table (ISO 32000-1, 7.5.4).
constexpr std::uint64_t LargestPosition = 9999999999;

[[noreturn]] void Overflow(std::string reason)
{
    throw ErroreRuntime(NumeroErrore::Overflow, std::move(reason), "clsPDFCreator");
}

// Ends data that are written as one run.
constexpr std::string_view EndOfRun = "\r\r\n";

// A line for each letter and an empty one after every 80, which decoders skip as white space. Three
// times the room on purpose: the same pictures make the same bytes in every version of the writer.
std::string InRows(std::string_view bytes, ByteRows kind)
{
    constexpr std::size_t rowsApart = 80;
    std::string rows;
    rows.reserve(3 * bytes.size() + 3 * (bytes.size() / rowsApart) + 3);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        rows.push_back(bytes[i]);
        const bool pair = kind == ByteRows::LettersAndPair && i + 2 == bytes.size();
        if (pair) rows.push_back(bytes[++i]);
        rows.append("\r\n");
        const bool full = (i + 1) % rowsApart == 0 || (pair && i % rowsApart == 0);
        if (full) rows.append("\r\r\n");
    }
    return rows;
}

} // namespace

void prNoRoom(std::string_view what, std::int32_t largest)
{
    Overflow("un documento può avere al massimo " + std::to_string(largest) + " " +
             std::string(what));
}

// What the operations need in memory is taken here, where a document can still be given up.
void Objects::prOpen(std::unique_ptr<Output> output, const Format& format)
{
    auto deflate =
        format.CompressLevel == 0 ? nullptr : std::make_unique<Deflate>(format.CompressLevel);
    if (!m_file.Bytes) m_file.Resize(BufferSize);
    if (deflate && !m_content.Bytes) m_content.Resize(ContentBufferSize);
    m_deflate = std::move(deflate);
    m_failure.reset();
    m_format = format;
    m_counter = 0;
    m_positions.clear();
    for (Buffer* buffer : {&m_file, &m_content}) buffer->Begin();
    m_at = &m_file;
    m_output = std::move(output);
}

void Objects::prKeep()
{
    m_output->Keep();
}

void Objects::Shut()
{
    for (Buffer* buffer : {&m_file, &m_content}) buffer->Room = 0;
    m_at = &m_file;
    m_deflate.reset();
}

void Objects::prDiscard()
{
    m_output.reset();
    Shut();
}

void Objects::prClose()
{
    if (!m_output) return;
    if (!m_failure) {
        if (m_at == &m_content) EndContent(); // what was drawn on a page left open
        if (m_file.Used > 0) Flush();
    }
    const auto output = std::move(m_output);
    Shut();
    if (std::exchange(m_failure, std::nullopt)) return; // reported when it happened
    output->Close();
}

void Objects::NotOpen() const
{
    if (m_failure) throw ErroreRuntime(*m_failure);
    throw ErroreRuntime(NumeroErrore::ChiamataNonValida,
                        "nessun documento è aperto: manca BeginDoc", "clsPDFCreator");
}

void Objects::Buffer::Resize(std::size_t size)
{
    Bytes = std::make_unique<char[]>(size);
    Size = size;
    Room = size;
}

void Objects::Buffer::Begin()
{
    Used = 0;
    Gone = 0;
    Room = Size;
}

void Objects::Flush()
{
    try {
        m_output->Write(m_file.Held());
    } catch (const ErroreRuntime& error) {
        m_failure = error;
        m_file.Room = 0;
        m_content.Room = 0;
        throw;
    }
    m_file.Leave();
}

void Objects::ToFile(std::string_view bytes)
{
    if (m_file.Used + bytes.size() > m_file.Room) Flush();
    std::copy(bytes.begin(), bytes.end(), m_file.Bytes.get() + m_file.Used);
    m_file.Used += bytes.size();
}

// The deflater's pieces are smaller than the file's buffer.
Deflate::Sink Objects::FileSink()
{
    return [this](std::string_view piece) { ToFile(piece); };
}

void Objects::FlushContent()
{
    m_deflate->Add(m_content.Held(), FileSink());
    m_content.Leave();
}

void Objects::EndContent()
{
    FlushContent();
    m_deflate->End(FileSink());
    m_at = &m_file;
}

// A write comes here when the buffer has no room for it. While no file is open, and after a write
// that failed, it never has any: that is how every write then ends in the error of prRequireOpen,
// and all others need not ask.
void Objects::MakeRoom(std::size_t bytes)
{
    prRequireOpen();
    if (m_at == &m_file) Flush();
    else FlushContent();
    if (bytes > m_at->Room) m_at->Resize(bytes);
}

std::int32_t Objects::prReserve(std::int32_t count)
{
    prRequireOpen();
    prRequireRoom(m_counter + count - 1, "oggetti", prLargestNumber());
    m_counter += count;
    return m_counter - count + 1;
}

std::int32_t Objects::prInitObj(std::int32_t number)
{
    prRequireOpen();
    if (number == 0) number = m_counter + 1;
    prRequireRoom(number - 1, "oggetti", prLargestNumber());
    if (prPosition() > LargestPosition) Overflow("il file supera i 10 GB");
    m_counter = std::max(m_counter, number);
    if (m_positions.size() < static_cast<std::size_t>(m_counter)) {
        m_positions.resize(static_cast<std::size_t>(m_counter));
    }
    m_positions[static_cast<std::size_t>(number) - 1] = prPosition();
    prPrint(number, " 0 obj");
    return number;
}

void Objects::prEndObj()
{
    prWriteRaw("endobj");
}

void Objects::prBeginStream()
{
    prWriteRaw("stream");
    m_streamStart = prPosition();
}

void Objects::prBeginContent()
{
    prBeginStream();
    if (m_deflate) m_at = &m_content;
}

std::string Objects::prDeflated(std::string bytes)
{
    return m_deflate ? m_deflate->Whole(bytes) : std::move(bytes);
}

void Objects::prEndStream()
{
    prRequireOpen();
    const bool deflated = m_at == &m_content;
    if (deflated) EndContent();
    m_streamLength = prPosition() - m_streamStart;
    if (deflated) prWriteRaw(""); // the data end no line themselves
    prWriteRaw("endstream");
    prEndObj();
}

void Objects::prWriteStreamLength(std::int32_t number)
{
    prInitObj(number);
    prWriteRaw(std::to_string(m_streamLength));
    prEndObj();
}

void Objects::prWriteBytes(std::string_view bytes, ByteRows rows)
{
    if (m_at == &m_content) {
        FlushContent();
        return m_deflate->Add(bytes, FileSink());
    }
    if (rows == ByteRows::None) return prPart(bytes, EndOfRun);
    prPart(InRows(bytes, rows));
}

std::size_t Objects::prLengthOfBytes(std::string_view bytes, ByteRows rows)
{
    if (rows == ByteRows::None) return bytes.size() + EndOfRun.size();
    return InRows(bytes, rows).size();
}

std::uint64_t Objects::PositionOf(std::int32_t number) const
{
    const auto index = static_cast<std::size_t>(number) - 1;
    return index < m_positions.size() ? m_positions[index] : 0;
}

void Objects::prWriteCrossReferences()
{
    prWriteRaw("xref");
    prPrint("0 ", m_counter + 1);
    prWriteRaw("0000000000 65535 f");
    // With the CR LF exactly 20 bytes: readers find an entry by multiplication.
    for (std::int32_t number = 1; number <= m_counter; ++number) {
        const std::uint64_t position = PositionOf(number);
        prPrint(TenDigits{position}, position == 0 ? " 65535 f" : " 00000 n");
    }
}

void Objects::prWriteTrailer(std::string_view entries)
{
    const std::uint64_t references = prPosition();
    prWriteCrossReferences();
    prWriteRaw("trailer");
    prPrint("<< /Size ", m_counter + 1, " ", entries, " >>");
    prWriteRaw("startxref");
    prWriteRaw(std::to_string(references));
    prWriteRaw("%%EOF");
}

} // namespace pdf
