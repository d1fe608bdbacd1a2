// The records of the shoe that a thread plays: the type of modCarte::Colpi.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace modCarte {

// A list of texts that is made at its first use and has no destructor on purpose: for a
// thread_local object that has one the C library takes memory at its first use in each thread, and
// ends the program on the spot when there is none. A thread that plays gives the list back with
// FineFilo; the first thread's is left to the end of the program.
class Registro
{
public:
    constexpr Registro() = default;
    Registro(const Registro&) = delete;
    Registro& operator=(const Registro&) = delete;
    Registro(Registro&&) = delete;
    Registro& operator=(Registro&&) = delete;

    // The list itself, to be changed. The reference is good until Libera().
    std::vector<std::string>& Lista()
    {
        if (m_lista == nullptr) m_lista = new std::vector<std::string>();
        return *m_lista;
    }

    Registro& operator=(std::vector<std::string> testi)
    {
        Lista() = std::move(testi);
        return *this;
    }

    std::size_t size() const noexcept { return m_lista == nullptr ? 0 : m_lista->size(); }
    bool empty() const noexcept { return size() == 0; }

    // An index below size(); back() of a list that is not empty.
    const std::string& operator[](std::size_t indice) const { return (*m_lista)[indice]; }
    const std::string& back() const { return m_lista->back(); }

    const std::string* begin() const noexcept { return empty() ? nullptr : m_lista->data(); }
    const std::string* end() const noexcept { return begin() + size(); }

    // Gives the memory back; the list is empty then and may be used again.
    void Libera() noexcept { delete std::exchange(m_lista, nullptr); }

private:
    std::vector<std::string>* m_lista = nullptr;
};

} // namespace modCarte
