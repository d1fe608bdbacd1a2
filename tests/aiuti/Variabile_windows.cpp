// Sets a variable of the environment and puts it back at the end of a test.
#include "Variabile.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace aiuti {

Variabile::Variabile(const char* nome, const std::string& valore)
    : m_nome(nome)
{
    if (const char* prima = std::getenv(nome)) m_prima = prima;
    EXPECT_EQ(::_putenv_s(nome, valore.c_str()), 0);
}

Variabile::~Variabile()
{
    ::_putenv_s(m_nome, m_prima.c_str());
}

} // namespace aiuti
