// What a long run may not do: take more and more memory, leave files behind.
#pragma once

#include <filesystem>
#include <string>

namespace resistenza {

// Memory that this process holds now, in KiB.
long MemoriaTenuta();

// Compares the memory after a tenth of a run with that at its end.
class Memoria
{
public:
    explicit Memoria(int quanti)
        : m_quanti(quanti)
    {
    }

    // Call it after each piece of work; fatti: how many are done.
    void Guarda(int fatti);

    // Prints "name: N, KiB and KiB". Throws when there was growth by more than a mebibyte, which no
    // fluctuation explains. The sanitizers keep what is freed: in their builds it only prints.
    void Racconta(const std::string& nome) const;

private:
    int m_quanti;
    long m_prima = 0;
    long m_dopo = 0;
};

// Throws when the folder holds anything.
void PretendiVuota(const std::filesystem::path& cartella);

} // namespace resistenza
