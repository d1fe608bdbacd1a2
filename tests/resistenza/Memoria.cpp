// Asks the system how much this process holds; giri.cpp and partite.cpp ask over and over.
#include "Memoria.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <stdexcept>

namespace resistenza {

namespace {

constexpr long CrescitaMassima = 1024; // KiB

#if defined(__SANITIZE_ADDRESS__)
constexpr bool Misurabile = false;
#else
constexpr bool Misurabile = true;
#endif

} // namespace

long MemoriaTenuta()
{
    std::ifstream stato("/proc/self/status");
    std::string campo;
    long quanta = 0;
    while (stato >> campo) {
        if (campo == "VmRSS:" && stato >> quanta) return quanta;
    }
    throw std::runtime_error("/proc/self/status: non dice VmRSS");
}

void Memoria::Guarda(int fatti)
{
    if (fatti == std::max(1, m_quanti / 10)) m_prima = MemoriaTenuta();
    if (fatti == m_quanti) m_dopo = MemoriaTenuta();
}

void Memoria::Racconta(const std::string& nome) const
{
    std::printf("%s: %d, %ld e %ld KiB\n", nome.c_str(), m_quanti, m_prima, m_dopo);
    std::fflush(stdout);
    if (Misurabile && m_dopo - m_prima > CrescitaMassima) {
        throw std::runtime_error(nome + ": la memoria cresce");
    }
}

void PretendiVuota(const std::filesystem::path& cartella)
{
    for (const auto& voce : std::filesystem::directory_iterator(cartella)) {
        throw std::runtime_error(voce.path().string() + ": rimasto");
    }
}

} // namespace resistenza
