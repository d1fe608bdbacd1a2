// A file held open so that others may read but not replace it; LettoreDiFile_posix.cpp is its
// sibling.
#include "LettoreDiFile.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace aiuti {

LettoreDiFile::LettoreDiFile(const std::filesystem::path& percorso)
    : m_maniglia(reinterpret_cast<std::intptr_t>(
          CreateFileW(percorso.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                      FILE_ATTRIBUTE_NORMAL, nullptr)))
{
    EXPECT_NE(reinterpret_cast<HANDLE>(m_maniglia), INVALID_HANDLE_VALUE) << percorso;
}

LettoreDiFile::~LettoreDiFile()
{
    CloseHandle(reinterpret_cast<HANDLE>(m_maniglia));
}

bool SiSaChiTiene(const std::filesystem::path& /*percorso*/)
{
    return true;
}

} // namespace aiuti
