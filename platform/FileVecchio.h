// What stands where a file of the program's own shall go: whether it may be replaced, and its
// removal. Safe in a folder that others can write to; FileNuovo.h creates the file.
#pragma once

#include <string>

// Removes what stands under percorso so that it can be created anew. Nothing there: no effect.
// Only a regular file or a symbolic link (the link itself, never its target) of this user is
// removed; a folder, a FIFO, a device or anything of another user is an error and stays.
void TogliFile(const std::string& percorso);

// TogliFile for a symbolic link; anything else that stands there stays.
void TogliCollegamento(const std::string& percorso);

// The error that TogliFile would raise about percorso, without touching anything.
void PretendiSostituibile(const std::string& percorso);

// The error that creating percorso anew would raise, as far as it shows without touching anything:
// that of TogliFile, or of a folder that takes no new entry.
void PretendiCreabile(const std::string& percorso);
