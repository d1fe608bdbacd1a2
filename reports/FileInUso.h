// Is a file there, and does another program hold it? The PDF report asks before it writes:
// Stampe_Pdf.cpp.
#pragma once

#include "Flag.h"

#include <cstdint>
#include <string>

namespace FileInUso {

// Vero when the path names any directory entry.
Flag FileTrovato(const std::string& percorso);

inline constexpr std::int16_t FileAssente = -999;
inline constexpr std::int16_t FileTenuto = -1;
inline constexpr std::int16_t FileLibero = 0;

// FileAssente when there is no such entry, FileTenuto when somebody holds the file (Windows: when
// it cannot be opened for this program alone), FileLibero otherwise, also for a link or a file that
// may not be read: whether these can be replaced is the writer's question.
std::int16_t FileAperto(const std::string& percorso);

// When the file is held by another program shows the warning and returns Vero; Falso otherwise.
Flag AvvisoFileInUso(const std::string& percorso);

} // namespace FileInUso
