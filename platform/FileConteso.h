// Asks whether a path exists at all and whether another program holds it.
#pragma once

#include <string>

// True when there is any directory entry of this name (a link counts itself).
bool VoceTrovata(const std::string& percorso);

// True when the file cannot be had for this program alone: opening it for reading fails, or
// somebody else has it open. Never waits, and leaves no trace on the file. Windows: an opening
// that shares nothing. Linux: a write lease on a read-only descriptor, which the kernel grants
// only while nobody else has the file open (fcntl(2), F_SETLEASE); where leases cannot be had
// (another owner, a file system without them) the file counts as free.
bool FileOccupato(const std::string& percorso);
