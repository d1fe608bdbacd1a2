// Reads of a file that was read whole: no offset or length is trusted. All readers of files stand
// on it; BmpFile.cpp is the plainest.
#pragma once

#include "ErroreRuntime.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace pdf {

// The bytes of a file and its name. Refers to both: they must outlive it.
//
// Offsets count bytes from the start and may be any number. What lies outside the file, wholly or
// in part, is an error: ErroreInputOutput naming the file. A sum of two 32-bit values from a file
// cannot overflow an offset.
class ByteReader
{
public:
    ByteReader(std::string_view bytes, const std::string& fileName)
        : m_bytes(bytes)
        , m_fileName(fileName)
    {
    }

    std::uint64_t Size() const { return m_bytes.size(); }
    const std::string& FileName() const { return m_fileName; }

    // Ends the reading: ErroreInputOutput with the reason (Italian, no final stop) and the file.
    [[noreturn]] void Fail(std::string reason) const
    {
        throw ErroreRuntime(NumeroErrore::ErroreInputOutput, std::move(reason), m_fileName);
    }

    // length bytes from offset on, or the error.
    std::string_view Slice(std::uint64_t offset, std::uint64_t length) const
    {
        if (offset > Size() || length > Size() - offset) Fail("il file finisce prima del previsto");
        return m_bytes.substr(static_cast<std::size_t>(offset), static_cast<std::size_t>(length));
    }

    // A part of the file as a reader of its own, whose offsets begin at 0.
    ByteReader Part(std::uint64_t offset, std::uint64_t length) const
    {
        return {Slice(offset, length), m_fileName};
    }

    std::uint8_t U8(std::uint64_t offset) const
    {
        return static_cast<std::uint8_t>(Slice(offset, 1).front());
    }

    // Whole numbers, the lowest byte first.
    std::uint16_t Little16(std::uint64_t offset) const
    {
        return static_cast<std::uint16_t>(Little(offset, 2));
    }
    std::uint32_t Little32(std::uint64_t offset) const { return Little(offset, 4); }

    // Whole numbers, the highest byte first.
    std::uint16_t Big16(std::uint64_t offset) const
    {
        return static_cast<std::uint16_t>(Big(offset, 2));
    }
    std::uint32_t Big32(std::uint64_t offset) const { return Big(offset, 4); }
    std::int16_t BigSigned16(std::uint64_t offset) const
    {
        return static_cast<std::int16_t>(Big16(offset));
    }

private:
    std::uint32_t Little(std::uint64_t offset, unsigned length) const
    {
        const std::string_view bytes = Slice(offset, length);
        std::uint32_t value = 0;
        for (std::size_t i = length; i-- > 0;) {
            value = value << 8 | static_cast<unsigned char>(bytes[i]);
        }
        return value;
    }

    std::uint32_t Big(std::uint64_t offset, unsigned length) const
    {
        std::uint32_t value = 0;
        for (const char c : Slice(offset, length)) {
            value = value << 8 | static_cast<unsigned char>(c);
        }
        return value;
    }

    std::string_view m_bytes;
    const std::string& m_fileName;
};

} // namespace pdf
