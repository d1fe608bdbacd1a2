// The only source of the library that makes the bytes of a document go out; Objects.h says how
// others call it, Output.cpp where they go.

#include "Objects.h"
#include "Failure.h"

#include <algorithm>
#include <utility>

namespace pdf {

namespace {

constexpr std::size_t BufferSize = 64 * 1024;

// What the deflater gets at once: fed line by line it would take a third longer.
constexpr std::size_t ContentBufferSize = 4 * 1024;

// A position has ten digits in the table (ISO 32000-1, 7.5.4).
constexpr std::uint64_t LargestPosition = 9999999999;

// True for as long as it lives.
class Handing
{
public:
    explicit Handing(bool& flag)
        : m_flag(flag)
    {
        m_flag = true;
    }
    ~Handing() { m_flag = false; }
    Handing(const Handing&) = delete;
    Handing& operator=(const Handing&) = delete;
    Handing(Handing&&) = delete;
    Handing& operator=(Handing&&) = delete;

private:
    bool& m_flag;
};

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
    prOverflow("un documento può avere al massimo " + std::to_string(largest) + " " +
               std::string(what));
}

// What the operations need in memory is taken here, where a document can still be given up.
void Objects::prOpen(std::unique_ptr<Output> output, const Format& format)
{
    auto deflate =
        format.CompressLevel == 0 ? nullptr : std::make_unique<Deflate>(format.CompressLevel);
    if (!m_file.Bytes) m_file.Resize(BufferSize);
    if (deflate && !m_content.Bytes) m_content.Resize(ContentBufferSize);
    if (format.PacksObjects() && !m_packed.Bytes) m_packed.Resize(BufferSize);
    m_deflate = std::move(deflate);
    m_failure = nullptr;
    m_format = format;
    m_counter = 0;
    m_references.Clear();
    m_waiting.Clear();
    for (Buffer* buffer : Buffers()) buffer->Begin();
    m_at = &m_file;
    m_output = std::move(output);
}

void Objects::prKeep()
{
    m_output->Keep();
}

void Objects::Shut()
{
    for (Buffer* buffer : Buffers()) buffer->Room = 0;
    m_at = &m_file;
    m_deflate.reset();
}

void Objects::prDiscard()
{
    m_output.reset();
    m_failure = nullptr;
    Shut();
}

void Objects::prClose()
{
    prRequireIdle();
    if (!m_output) return;
    if (!m_failure) {
        if (m_at == &m_content) EndContent(); // what was drawn on a page left open
        Flush();
    }
    const auto output = std::move(m_output);
    Shut();
    if (std::exchange(m_failure, nullptr)) return; // reported when it happened
    const Handing handing(m_handing);
    output->Close();
}

void Objects::NotOpen() const
{
    prRequireIdle();
    if (m_failure) std::rethrow_exception(m_failure);
    prInvalidCall("nessun documento è aperto: manca BeginDoc");
}

void Objects::Busy()
{
    prInvalidCall("chi riceve il documento non può usare chi lo scrive");
}

// The error is kept as it was thrown, which takes no memory: there may be none left for another.
void Objects::prGiveUp()
{
    if (m_output && !m_handing) {
        m_failure = std::current_exception();
        m_at = &m_nothing;
    }
    throw;
}

void Objects::Buffer::Resize(std::size_t size)
{
    auto bytes = std::make_unique<char[]>(size);
    std::copy_n(Bytes.get(), Used, bytes.get());
    Bytes = std::move(bytes);
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
    if (m_file.Used == 0) return;
    Buffer* const at = std::exchange(m_at, &m_nothing); // refuses what the receiver calls
    try {
        const Handing handing(m_handing);
        m_output->Write(m_file.Held());
    } catch (...) {
        prGiveUp();
    }
    m_at = at;
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

// A write comes here when the buffer has no room for it. While no document is open, while a piece
// of it is handed over, and after that failed, it never has any: that is how every write then ends
// in the error of prRequireOpen, and all others need not ask.
void Objects::MakeRoom(std::size_t bytes)
{
    prRequireOpen();
    if (m_at == &m_file) Flush();
    if (m_at == &m_content) FlushContent();
    const std::size_t wanted = m_at->Used + bytes;
    if (wanted > m_at->Room) m_at->Resize(std::max(wanted, 2 * m_at->Used));
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
    m_counter = std::max(m_counter, number);
    if (!m_format.PacksObjects()) {
        BeginByItself(number);
        return number;
    }
    m_packed.Used = m_waiting.End(); // without what is left of one that was given up
    m_begun = number;
    m_at = &m_packed;
    return number;
}

void Objects::BeginByItself(std::int32_t number)
{
    if (prPosition() > LargestPosition) prOverflow("il file supera i 10 GB");
    m_references.StandAt(number, prPosition());
    prPrint(number, " 0 obj");
}

void Objects::prEndObj()
{
    if (m_at == &m_packed) return Pack();
    prWriteRaw("endobj");
}

void Objects::Pack()
{
    m_at = &m_file;
    m_waiting.Add(m_begun, m_packed.Used);
    if (m_waiting.IsFull()) WritePacked();
}

void Objects::Unpack()
{
    m_at = &m_file;
    BeginByItself(m_begun);
    prPart(m_packed.Held().substr(m_waiting.End()));
}

// The stream of the objects that wait. Its length stands in itself: a reader may need the objects
// before it can look up a number.
void Objects::WritePacked()
{
    const auto& objects = m_waiting.Objects();
    if (objects.empty()) return;
    const std::string front = m_waiting.Index();
    const std::string data =
        m_deflate->Whole(front + std::string(m_packed.Held().substr(0, m_waiting.End())));
    const std::int32_t stream = ++m_counter;
    std::size_t index = 0;
    for (const auto& object : objects) m_references.StandIn(object.Number, stream, index++);
    BeginByItself(stream);
    WriteWhole("/Type /ObjStm /N " + std::to_string(objects.size()) + " /First " +
                   std::to_string(front.size()),
               data);
    m_waiting.Clear();
}

// Ends an object that is a stream of so many bytes, deflated already.
void Objects::WriteWhole(std::string_view dictionary, std::string_view data)
{
    prPrint("<< ", dictionary, " ", prContentFilter(), "/Length ",
            static_cast<std::int32_t>(data.size()), " >>");
    prWriteRaw("stream");
    prPrint(data);
    prWriteRaw("endstream");
    prWriteRaw("endobj");
}

void Objects::prBeginStream()
{
    if (m_at == &m_packed) Unpack(); // no stream stands in a stream
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
    if (rows == ByteRows::None) {
        WriteLong(bytes);
        return prPart(EndOfRun);
    }
    WriteLong(InRows(bytes, rows));
}

void Objects::prWriteDeflated(std::string_view data)
{
    WriteLong(data);
    prPart("\r\n");
}

// In pieces that fit the buffer, so that it need not become as large as a picture.
void Objects::WriteLong(std::string_view bytes)
{
    for (; bytes.size() > BufferSize; bytes.remove_prefix(BufferSize)) {
        prPart(bytes.substr(0, BufferSize));
    }
    prPart(bytes);
}

std::size_t Objects::prLengthOfBytes(std::string_view bytes, ByteRows rows)
{
    if (rows == ByteRows::None) return bytes.size() + EndOfRun.size();
    return InRows(bytes, rows).size();
}

void Objects::prWriteCrossReferences()
{
    prWriteRaw("xref");
    prPrint("0 ", m_counter + 1);
    prWriteRaw("0000000000 65535 f");
    // With the CR LF exactly 20 bytes: readers find an entry by multiplication.
    for (std::int32_t number = 1; number <= m_counter; ++number) {
        const std::uint64_t position = m_references.PositionOf(number);
        prPrint(TenDigits{position}, position == 0 ? " 65535 f" : " 00000 n");
    }
}

void Objects::prWriteTrailer(std::string_view entries)
{
    if (m_format.PacksObjects()) return WriteReferenceStream(entries);
    const std::uint64_t references = prPosition();
    prWriteCrossReferences();
    prWriteRaw("trailer");
    prPrint("<< /Size ", m_counter + 1, " ", entries, " >>");
    WriteEnd(references);
}

void Objects::WriteEnd(std::uint64_t references)
{
    prWriteRaw("startxref");
    prWriteRaw(std::to_string(references));
    prWriteRaw("%%EOF");
}

// The last object; it stands in its own rows.
void Objects::WriteReferenceStream(std::string_view entries)
{
    WritePacked();
    const std::uint64_t references = prPosition();
    const std::int32_t last = ++m_counter;
    BeginByItself(last);
    const int width = CrossReferences::WidthFor(references);
    const std::string data = DeflatedRows(width);
    WriteWhole("/Type /XRef /Size " + std::to_string(last + 1) + " /W [1 " + std::to_string(width) +
                   " 2] " + std::string(entries),
               data);
    WriteEnd(references);
}

std::string Objects::DeflatedRows(int width)
{
    std::string data;
    const Deflate::Sink sink = [&data](std::string_view piece) { data.append(piece); };
    std::string rows;
    for (std::int32_t number = 0; number <= m_counter; ++number) {
        rows.append(m_references.Row(number, width));
        if (rows.size() < ContentBufferSize && number < m_counter) continue;
        m_deflate->Add(rows, sink);
        rows.clear();
    }
    m_deflate->End(sink);
    return data;
}

} // namespace pdf
