// The only source of the library that writes bytes.

#include "clsPDFCreator_Objects.h"

#include <algorithm>

namespace pdf {

namespace {

constexpr std::size_t BufferSize = 64 * 1024;
constexpr std::string_view LineEnd = "\r\n";

// A position has ten digits in the table (ISO 32000-1, 7.5.4).
constexpr std::size_t PositionDigits = 10;
constexpr std::uint64_t LargestPosition = 9999999999;

[[noreturn]] void Overflow(std::string reason)
{
    throw ErroreRuntime(NumeroErrore::Overflow, std::move(reason), "clsPDFCreator");
}

} // namespace

void prRequireRoom(std::int32_t count, std::string_view what)
{
    if (count < LargestCount) return;
    Overflow("un documento può avere al massimo 32767 " + std::string(what));
}

void Objects::Open(const std::string& fileName)
{
    m_failure.reset();
    m_buffer.clear();
    m_buffer.reserve(BufferSize);
    m_flushed = 0;
    m_file = std::make_unique<FileNuovo>(fileName);
    // What has been written stays whatever happens next: only the caller knows whether half a
    // document is worth keeping.
    m_file->Conserva();
}

void Objects::Close()
{
    if (!m_file) return;
    const auto file = std::move(m_file);
    if (m_failure) return; // reported when it happened
    if (!m_buffer.empty()) file->Scrivi(m_buffer);
    m_buffer.clear();
    file->Chiudi();
}

void Objects::RequireOpen() const
{
    if (!m_file) {
        throw ErroreRuntime(NumeroErrore::ChiamataNonValida,
                            "nessun documento è aperto: manca BeginDoc", "clsPDFCreator");
    }
    if (m_failure) throw ErroreRuntime(*m_failure);
}

void Objects::Flush()
{
    try {
        m_file->Scrivi(m_buffer);
    } catch (const ErroreRuntime& error) {
        m_failure = error;
        throw;
    }
    m_flushed += m_buffer.size();
    m_buffer.clear();
}

void Objects::prWriteRaw(std::string_view text)
{
    RequireOpen();
    if (m_buffer.size() + text.size() + LineEnd.size() > BufferSize && !m_buffer.empty()) Flush();
    m_buffer.append(text).append(LineEnd);
}

void Objects::prPrint(std::string_view pattern, std::initializer_list<Argument> arguments)
{
    const auto line = prExpand(pattern, {arguments.begin(), arguments.size()});
    if (line) prWriteRaw(*line);
}

std::int32_t Objects::prInitObj(std::int32_t number)
{
    RequireOpen();
    if (number == 0) number = m_counter + 1;
    prRequireRoom(number - 1, "oggetti");
    if (Position() > LargestPosition) Overflow("il file supera i 10 GB");
    m_counter = std::max(m_counter, number);
    if (m_positions.size() < static_cast<std::size_t>(m_counter)) {
        m_positions.resize(static_cast<std::size_t>(m_counter));
    }
    m_positions[static_cast<std::size_t>(number) - 1] = Position();
    prLine(number, " 0 obj");
    return number;
}

void Objects::prEndObj()
{
    prWriteRaw("endobj");
}

void Objects::BeginStream()
{
    prWriteRaw("stream");
    m_streamStart = Position();
}

void Objects::EndStream()
{
    m_streamLength = Position() - m_streamStart;
    prWriteRaw("endstream");
    prEndObj();
}

void Objects::WriteStreamLength()
{
    prInitObj(0);
    prWriteRaw(std::to_string(m_streamLength));
    prEndObj();
}

void Objects::WriteCrossReferences()
{
    prWriteRaw("xref");
    prLine("0 ", m_counter + 1);
    prWriteRaw("0000000000 65535 f");
    std::string entry;
    for (std::int32_t i = 0; i < m_counter; ++i) {
        const std::uint64_t position = m_positions[static_cast<std::size_t>(i)];
        entry.assign(PositionDigits, '0').append(std::to_string(position));
        entry.erase(0, entry.size() - PositionDigits);
        // With the CR LF exactly 20 bytes: readers find an entry by multiplication.
        prWriteRaw(entry.append(" 00000 n"));
    }
}

} // namespace pdf
