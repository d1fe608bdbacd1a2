// What lies on the disk under a name: questions that touch nothing. Whether another
// program holds a file is asked in FileConteso.h.
#pragma once

#include <string>

// True when there is any directory entry of this name (a link counts itself).
bool VoceTrovata(const std::string& percorso);

// True when percorso names an ordinary file: no folder, device, hidden or system entry. A link
// counts as what it leads to. False on any error.
bool FileOrdinario(const std::string& percorso);

// True when both names lead to the same existing file. False on any error.
bool StessoFile(const std::string& percorso, const std::string& altro);

// An error when percorso is a link that leads to a device, a pipe or a socket, or to whatever this
// process has open (/dev/stdout): for names that come from outside, where such a link is meant and
// not planted, and replacing it would take it away from everybody. Any other entry, or none, is no
// error; nothing is opened.
void PretendiNonSpeciale(const std::string& percorso);
