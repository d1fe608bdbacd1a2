// Keeps places of objects in eight bytes each and makes the rows of a cross-reference stream.

#include "CrossReferences.h"

namespace pdf {

namespace {

// A place with this bit is no position: the number of an object stream and 16 bits of index.
constexpr std::uint64_t InStream = std::uint64_t{1} << 63;
constexpr int IndexBits = 16;
constexpr std::uint64_t IndexMask = 0xFFFF;

// Kinds of rows (ISO 32000-1, table 18).
enum : std::uint64_t
{
    Free = 0,
    ByItself = 1,
    Packed = 2,
};

// A free object is never used again and leads to no other one.
constexpr std::uint64_t LastGeneration = 65535;
constexpr int IndexWidth = 2;

// The highest byte first.
void Append(std::string& row, std::uint64_t number, int width)
{
    while (width-- > 0) row.push_back(static_cast<char>(number >> (8 * width) & 0xFF));
}

} // namespace

void CrossReferences::StandAt(std::int32_t number, std::uint64_t position)
{
    Place(number, position);
}

void CrossReferences::StandIn(std::int32_t number, std::int32_t stream, std::size_t index)
{
    Place(number, InStream | static_cast<std::uint64_t>(stream) << IndexBits | index);
}

void CrossReferences::Place(std::int32_t number, std::uint64_t place)
{
    const auto count = static_cast<std::size_t>(number);
    if (m_places.size() < count) m_places.resize(count);
    m_places[count - 1] = place;
}

std::uint64_t CrossReferences::PlaceOf(std::int32_t number) const
{
    const auto count = static_cast<std::size_t>(number);
    return count == 0 || count > m_places.size() ? 0 : m_places[count - 1];
}

std::uint64_t CrossReferences::PositionOf(std::int32_t number) const
{
    const std::uint64_t place = PlaceOf(number);
    return (place & InStream) != 0 ? 0 : place;
}

int CrossReferences::WidthFor(std::uint64_t largest)
{
    int width = 1;
    for (largest >>= 8; largest != 0; largest >>= 8) ++width;
    return width;
}

std::string CrossReferences::Row(std::int32_t number, int width) const
{
    const std::uint64_t place = PlaceOf(number);
    const bool packed = (place & InStream) != 0;
    std::string row;
    Append(row, packed ? Packed : place == 0 ? Free : ByItself, 1);
    Append(row, packed ? (place & ~InStream) >> IndexBits : place, width);
    Append(row, packed ? place & IndexMask : place == 0 ? LastGeneration : 0, IndexWidth);
    return row;
}

} // namespace pdf
