// A variable of this process's environment, for systems on which tests cannot run in a child.
#pragma once

#include <string>

namespace aiuti {

// Sets the variable (an empty value removes it) and puts it back at its end.
class Variabile
{
public:
    Variabile(const char* nome, const std::string& valore);
    ~Variabile();
    Variabile(const Variabile&) = delete;
    Variabile& operator=(const Variabile&) = delete;

private:
    const char* m_nome;
    std::string m_prima;
};

} // namespace aiuti
