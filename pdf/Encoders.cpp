// The four stream encoders, one after the other; clsPDFCreator_Images.cpp puts them in a row.

#include "Encoders.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace pdf {

namespace {

std::uint32_t Byte(char c)
{
    return static_cast<unsigned char>(c);
}

// --- Run-length ---------------------------------------------------------------------------------

constexpr std::size_t LongestRun = 128;
constexpr std::size_t ShortestRun = 3; // a run of two would save nothing and split a copy
constexpr char RunLengthEnd = '\x80';

// Eight bytes as one number, the first of them lowest. Compilers make one load of it.
std::uint64_t Word(const char* bytes)
{
    std::uint64_t word = 0;
    for (unsigned i = 0; i < 8; ++i) word |= std::uint64_t{Byte(bytes[i])} << (8 * i);
    return word;
}

// Index (0 to 7) of the first zero byte of a word, 8 when there is none. A borrow can mark bytes
// behind a zero byte wrongly, never the first one.
std::size_t FirstZero(std::uint64_t word)
{
    const std::uint64_t marks = (word - 0x0101010101010101U) & ~word & 0x8080808080808080U;
    return static_cast<std::size_t>(std::countr_zero(marks)) / 8;
}

// Where the next run of three begins, at or after position; the end when there is none.
std::size_t NextRun(std::string_view bytes, std::size_t position)
{
    for (; position + 8 + ShortestRun <= bytes.size(); position += 8) {
        const char* at = bytes.data() + position;
        const std::uint64_t second = Word(at + 1);
        const std::size_t found = FirstZero((Word(at) ^ second) | (second ^ Word(at + 2)));
        if (found < 8) return position + found;
    }
    for (; position + ShortestRun <= bytes.size(); ++position) {
        if (bytes[position] == bytes[position + 1] && bytes[position] == bytes[position + 2]) {
            return position;
        }
    }
    return bytes.size();
}

// How many bytes from position on equal the one there.
std::size_t RunLength(std::string_view bytes, std::size_t position)
{
    const std::uint64_t pattern = 0x0101010101010101U * Byte(bytes[position]);
    std::size_t end = position + 1;
    for (; end + 8 <= bytes.size(); end += 8) {
        const std::uint64_t different = Word(bytes.data() + end) ^ pattern;
        if (different == 0) continue;
        return end - position + static_cast<std::size_t>(std::countr_zero(different)) / 8;
    }
    while (end < bytes.size() && bytes[end] == bytes[position]) ++end;
    return end - position;
}

void AppendCopies(std::string& result, std::string_view bytes)
{
    while (!bytes.empty()) {
        const std::string_view block = bytes.substr(0, LongestRun);
        result.push_back(static_cast<char>(block.size() - 1));
        result.append(block);
        bytes.remove_prefix(block.size());
    }
}

// Appends as much of a run as pays; returns the bytes left over (none or one).
std::size_t AppendRun(std::string& result, char value, std::size_t length)
{
    while (length >= 2) {
        const std::size_t block = length < LongestRun ? length : LongestRun;
        result.push_back(static_cast<char>(257 - block));
        result.push_back(value);
        length -= block;
    }
    return length;
}

// --- LZW ----------------------------------------------------------------------------------------

constexpr std::uint16_t ClearCode = 256;
constexpr std::uint16_t EndOfData = 257;
constexpr std::uint16_t FirstFree = 258;
constexpr std::uint16_t LastEntry = 4094;
constexpr unsigned NarrowestCode = 9;

// A dictionary gains one entry with each code, so that the codes since the clear tell everything:
// the width grows once entry 511, 1023 and 2047 is assigned, which is after so many codes.
constexpr std::array<std::size_t, 3> CodesPerWidth{512 - FirstFree, 1024 - FirstFree,
                                                   2048 - FirstFree};
constexpr std::size_t CodesPerDictionary = LastEntry - FirstFree + 1;

// Cuts bytes into codes, the life of one dictionary at a time.
//
// A table with a place for every pair of prefix and byte needs no search; only the places that
// one dictionary used are emptied for the next.
class LzwMatcher
{
public:
    explicit LzwMatcher(std::string_view bytes)
        : m_bytes(bytes)
        , m_entries((std::size_t{LastEntry} + 1) << 8)
    {
    }

    // The codes from a clear to the next or to the end; empty when all bytes are used up. Valid
    // until the next call.
    std::span<const std::uint16_t> NextDictionary()
    {
        Forget();
        if (m_position == m_bytes.size()) return {};
        const std::uint32_t prefix = Match();
        // The byte that did not fit any more begins the next dictionary.
        if (m_count == CodesPerDictionary) --m_position;
        else m_codes[m_count++] = static_cast<std::uint16_t>(prefix);
        return {m_codes.data(), m_count};
    }

private:
    void Forget()
    {
        for (std::size_t i = 0; i < m_count; ++i) m_entries[m_places[i]] = 0;
        m_count = 0;
    }

    // Takes bytes until the dictionary is full or they end; returns the string begun last.
    //
    // Without a branch on hit or miss, which no processor can predict: each byte writes down the
    // code that a miss would send, and only a miss moves on.
    std::uint32_t Match()
    {
        std::uint32_t prefix = Byte(m_bytes[m_position++]);
        std::size_t count = 0;
        std::size_t position = m_position;
        while (count < CodesPerDictionary && position < m_bytes.size()) {
            const std::uint32_t next = Byte(m_bytes[position++]);
            const std::uint32_t place = prefix << 8 | next;
            const std::uint16_t entry = m_entries[place];
            const bool miss = entry == 0;
            m_codes[count] = static_cast<std::uint16_t>(prefix);
            m_places[count] = place;
            m_entries[place] = miss ? static_cast<std::uint16_t>(FirstFree + count) : entry;
            prefix = miss ? next : entry;
            count += miss ? 1 : 0;
        }
        m_position = position;
        m_count = count;
        return prefix;
    }

    std::string_view m_bytes;
    std::size_t m_position = 0;
    std::vector<std::uint16_t> m_entries; // code of the string prefix + byte; 0: none yet
    std::array<std::uint32_t, CodesPerDictionary> m_places{};
    std::array<std::uint16_t, CodesPerDictionary + 1> m_codes{};
    std::size_t m_count = 0;
};

// Packs codes into bytes, the most significant bit first.
class BitPacker
{
public:
    explicit BitPacker(std::string& result)
        : m_result(result)
    {
    }

    void Put(std::uint32_t code, unsigned width)
    {
        m_bits = m_bits << width | code;
        m_waiting += width;
        if (m_waiting < 32) return;
        m_waiting -= 32;
        const auto word = static_cast<std::uint32_t>(m_bits >> m_waiting);
        const std::array<char, 4> four{static_cast<char>(word >> 24), static_cast<char>(word >> 16),
                                       static_cast<char>(word >> 8), static_cast<char>(word)};
        m_result.append(four.data(), four.size());
    }

    void Finish()
    {
        for (; m_waiting >= 8; m_waiting -= 8) {
            m_result.push_back(static_cast<char>(m_bits >> (m_waiting - 8)));
        }
        if (m_waiting > 0) m_result.push_back(static_cast<char>(m_bits << (8 - m_waiting)));
        m_waiting = 0;
    }

private:
    std::string& m_result;
    std::uint64_t m_bits = 0;
    unsigned m_waiting = 0; // low bits of m_bits not yet written, below 32 between calls
};

// Writes the codes that follow a clear, and the next clear when they fill the dictionary. Returns
// the width of the code to come.
unsigned PutDictionary(BitPacker& packer, std::span<const std::uint16_t> codes)
{
    unsigned width = NarrowestCode;
    std::size_t done = 0;
    for (const std::size_t limit : CodesPerWidth) {
        for (; done < codes.size() && done < limit; ++done) packer.Put(codes[done], width);
        if (done < limit) return width;
        ++width;
    }
    for (; done < codes.size(); ++done) packer.Put(codes[done], width);
    if (done < CodesPerDictionary) return width;
    packer.Put(ClearCode, width);
    return NarrowestCode;
}

// --- ASCII base-85 and hexadecimal --------------------------------------------------------------

// The five digits of a group, each 0 to 84.
std::array<char, 5> FiveDigits(std::uint32_t group)
{
    std::array<char, 5> digits{};
    for (std::size_t i = digits.size(); i-- > 0; group /= 85) {
        digits[i] = static_cast<char>('!' + group % 85);
    }
    return digits;
}

std::uint32_t Group(const char* bytes)
{
    return Byte(bytes[0]) << 24 | Byte(bytes[1]) << 16 | Byte(bytes[2]) << 8 | Byte(bytes[3]);
}

} // namespace

std::string prRunLengthEncode(std::string_view bytes)
{
    std::string result;
    result.reserve(bytes.size() / 2 + 2);
    std::size_t position = 0;
    while (position < bytes.size()) {
        const std::size_t run = NextRun(bytes, position);
        AppendCopies(result, bytes.substr(position, run - position));
        position = run;
        if (run == bytes.size()) break;
        const std::size_t length = RunLength(bytes, run);
        position += length - AppendRun(result, bytes[run], length);
    }
    result.push_back(RunLengthEnd);
    return result;
}

std::string prLZWEncode(std::string_view bytes)
{
    std::string result;
    result.reserve(bytes.size() + 4);
    BitPacker packer(result);
    LzwMatcher matcher(bytes);
    unsigned width = NarrowestCode;
    packer.Put(ClearCode, width);
    for (auto codes = matcher.NextDictionary(); !codes.empty(); codes = matcher.NextDictionary()) {
        width = PutDictionary(packer, codes);
    }
    packer.Put(EndOfData, width);
    packer.Finish();
    return result;
}

std::string prToASCII85(std::string_view bytes)
{
    std::string result;
    result.reserve(bytes.size() + bytes.size() / 4 + 7);
    for (; bytes.size() >= 4; bytes.remove_prefix(4)) {
        const std::uint32_t group = Group(bytes.data());
        if (group == 0) {
            result.push_back('z');
            continue;
        }
        const auto digits = FiveDigits(group);
        result.append(digits.data(), digits.size());
    }
    if (!bytes.empty()) {
        std::array<char, 4> last{};
        bytes.copy(last.data(), last.size());
        const auto digits = FiveDigits(Group(last.data()));
        result.append(digits.data(), bytes.size() + 1);
    }
    return result.append("~>");
}

std::string prToASCIIHex(std::string_view bytes)
{
    static constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result(2 * bytes.size() + 1, '>');
    char* to = result.data();
    for (const char c : bytes) {
        *to++ = digits[Byte(c) >> 4];
        *to++ = digits[Byte(c) & 15];
    }
    return result;
}

} // namespace pdf
