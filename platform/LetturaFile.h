// Reading files of unknown origin.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

// Calls riga with the number (from 1) and the text of every line of a file, without its line end
// (LF or CR LF); a last line without one counts too. "-" reads standard input. A line longer than
// massimo bytes is an error naming its number, so that a hostile file cannot fill the memory.
// Whenever a read is interrupted and before every line, fermare is asked; true ends the reading
// and returns false. Failures to open or read are ErroreRuntime with file and reason.
bool LeggiRighe(const std::string& percorso, std::size_t massimo,
                const std::function<void(std::size_t, std::string_view)>& riga,
                const std::function<bool()>& fermare);

// The bytes of a whole regular file of at most massimo bytes. Anything else under that name, a
// larger file and failures to open or read are ErroreRuntime with file and reason; opening never
// waits.
std::string LeggiFile(const std::string& percorso, std::size_t massimo);
