// Standard output as the place of something whole: results, or a report of any form.
#pragma once

#include <string>
#include <string_view>

// What errors call it.
inline constexpr const char* NomeUscita = "uscita standard";

// From now on bytes go out as they are, line ends included. An error when nothing can be written
// there at all because the caller has closed it.
void PreparaUscita();

// Whether it goes into the regular file of that name: whoever replaces this one loses what was
// written.
bool UscitaNelFile(const std::string& percorso);

// Writes all the bytes at once; an error with the reason when not all of them could be written.
void ScriviInUscita(std::string_view byte);

// An error when what was written has not arrived, as some disks tell at a close only. The output
// stays open.
void PretendiUscitaArrivata();
