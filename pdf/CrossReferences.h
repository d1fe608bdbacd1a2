// Where the objects of a document are found, as its table or its stream of cross-references tells
// readers (ISO 32000-1, 7.5.4 and 7.5.8). Objects.cpp keeps and writes them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace pdf {

// Eight bytes an object. An object of which nothing is known is free.
class CrossReferences
{
public:
    // The object stands at that position, which is not 0.
    void StandAt(std::int32_t number, std::uint64_t position);

    // The object stands in the object stream of that number, as number index of it, from 0 to
    // 65535.
    void StandIn(std::int32_t number, std::int32_t stream, std::size_t index);

    // The position of an object that stands by itself; 0 for any other.
    std::uint64_t PositionOf(std::int32_t number) const;

    // How many bytes a position, or a number, up to largest takes in a row.
    static int WidthFor(std::uint64_t largest);

    // The row of an object, or for 0 of the head of the free ones: one byte for its kind, width for
    // where it is and two for its generation or its index.
    std::string Row(std::int32_t number, int width) const;

    void Clear() { m_places.clear(); }

private:
    void Place(std::int32_t number, std::uint64_t place);
    std::uint64_t PlaceOf(std::int32_t number) const;

    std::vector<std::uint64_t> m_places; // from number 1
};

} // namespace pdf
