// A file held open by a descriptor of this process; LettoreDiFile_windows.cpp is its sibling.
#include "LettoreDiFile.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

namespace aiuti {

LettoreDiFile::LettoreDiFile(const std::filesystem::path& percorso)
    : m_maniglia(::open(percorso.c_str(), O_RDONLY | O_CLOEXEC))
{
    EXPECT_GE(m_maniglia, 0) << percorso;
}

LettoreDiFile::~LettoreDiFile()
{
    ::close(static_cast<int>(m_maniglia));
}

bool SiSaChiTiene(const std::filesystem::path& percorso)
{
    const int descrittore = ::open(percorso.c_str(), O_RDONLY | O_CLOEXEC);
    const bool preso = ::fcntl(descrittore, F_SETLEASE, F_WRLCK) == 0;
    ::close(descrittore);
    return preso;
}

} // namespace aiuti
