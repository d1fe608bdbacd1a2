// Asks whether another program holds a file; whether it is there at all says FileSulDisco.h.
#pragma once

#include <string>

// True when somebody else holds the file. Never waits, never follows a link, and leaves no trace on
// the file. Windows: an opening that shares nothing fails.
// Linux: a write lease on a read-only descriptor, which the kernel grants only while nobody else
// has the file open (fcntl(2), F_SETLEASE). What cannot be asked (a link, no right to read, another
// owner, a file system without leases) counts as free: whoever replaces it then finds out.
bool FileOccupato(const std::string& percorso);
