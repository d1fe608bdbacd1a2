// What a stream of objects says in front of them, and when it is full.

#include "ObjectStream.h"

namespace pdf {

bool ObjectStream::IsFull() const
{
    constexpr std::size_t mostObjects = 200; // readers inflate them all to get at one
    constexpr std::size_t enoughBytes = std::size_t{32} * 1024;
    return m_objects.size() >= mostObjects || End() >= enoughBytes;
}

std::string ObjectStream::Index() const
{
    std::string index;
    std::size_t begin = 0;
    for (const auto& [number, end] : m_objects) {
        index.append(std::to_string(number)).append(" ");
        index.append(std::to_string(begin)).append(" ");
        begin = end;
    }
    return index;
}

} // namespace pdf
