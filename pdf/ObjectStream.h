// Objects that wait until there are enough of them to share one stream (ISO 32000-1, 7.5.7). Their
// bytes are with Objects.cpp, which writes it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace pdf {

class ObjectStream
{
public:
    struct Object
    {
        std::int32_t Number;
        std::size_t End; // of its bytes, counted from the first byte of the first object
    };

    // The object of that number has come, and its bytes reach to end.
    void Add(std::int32_t number, std::size_t end) { m_objects.push_back({number, end}); }

    // In the order in which they came.
    const std::vector<Object>& Objects() const { return m_objects; }

    // Where the next object will begin.
    std::size_t End() const { return m_objects.empty() ? 0 : m_objects.back().End; }

    // Whether it shall be written: it holds 200 objects, or so many bytes that waiting for more
    // would cost memory and make nothing smaller.
    bool IsFull() const;

    // What stands in front of the objects: the number of each and where it begins.
    std::string Index() const;

    void Clear() { m_objects.clear(); }

private:
    std::vector<Object> m_objects;
};

} // namespace pdf
