// A file that somebody holds.
#pragma once

#include <cstdint>
#include <filesystem>

namespace aiuti {

// Keeps a file open for reading, as a program that shows it does, while this lives.
class LettoreDiFile
{
public:
    explicit LettoreDiFile(const std::filesystem::path& percorso);
    ~LettoreDiFile();
    LettoreDiFile(const LettoreDiFile&) = delete;
    LettoreDiFile& operator=(const LettoreDiFile&) = delete;

private:
    std::intptr_t m_maniglia;
};

// Whether this file system can tell at all who has the file open; nobody may have it open now.
bool SiSaChiTiene(const std::filesystem::path& percorso);

} // namespace aiuti
