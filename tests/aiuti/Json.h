// The JSON of the scripts of calls, in the few operations that playing them takes. It needs no
// other library, so that the PDF writer built alone has these tests, too.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace aiuti {

// A value: nothing, true or false, a number, a text in UTF-8 or a list; no object.
class Json
{
public:
    Json() = default;
    Json(const char* testo)
        : m_valore(std::string(testo))
    {
    }
    Json(std::string testo)
        : m_valore(std::move(testo))
    {
    }
    Json(std::vector<Json> elenco)
        : m_valore(std::move(elenco))
    {
    }
    template <typename Numero, typename = std::enable_if_t<std::is_arithmetic_v<Numero>>>
    Json(Numero numero)
    {
        if constexpr (std::is_same_v<Numero, bool>) m_valore = numero;
        else m_valore = static_cast<double>(numero);
    }

    // The value that a text stands for; std::invalid_argument for anything that is none.
    static Json parse(std::string_view testo);

    // Back as text, on one line.
    std::string dump() const;

    bool is_number() const { return std::holds_alternative<double>(m_valore); }

    // The value as a number of any kind, a bool, a std::string or a std::vector<std::string>;
    // std::bad_variant_access where it is none.
    template <typename Tipo>
    Tipo get() const
    {
        if constexpr (std::is_same_v<Tipo, bool> || std::is_same_v<Tipo, std::string>) {
            return std::get<Tipo>(m_valore);
        } else if constexpr (std::is_arithmetic_v<Tipo>) {
            return static_cast<Tipo>(std::get<double>(m_valore));
        } else {
            Tipo testi;
            for (const Json& voce : Elenco()) testi.push_back(voce.get<std::string>());
            return testi;
        }
    }

    // What follows is for lists; std::bad_variant_access for all else.
    std::size_t size() const { return Elenco().size(); }
    const Json& operator[](std::size_t i) const { return Elenco().at(i); }
    const Json& back() const { return Elenco().back(); }
    void erase(std::size_t i);
    auto begin() const { return Elenco().begin(); }
    auto end() const { return Elenco().end(); }

    friend bool operator==(const Json& a, const Json& b) { return a.m_valore == b.m_valore; }

private:
    const std::vector<Json>& Elenco() const { return std::get<std::vector<Json>>(m_valore); }

    std::variant<std::nullptr_t, bool, double, std::string, std::vector<Json>> m_valore = nullptr;
};

} // namespace aiuti
