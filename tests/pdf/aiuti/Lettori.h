// What must hold of anything that a reader of foreign files lets through, whatever it was given.
#pragma once

#include <string>
#include <string_view>

namespace aiuti {

// Reads bytes with the reader of that file name's ending (.bmp, .gif, .jpg, .ttf). Returns what is
// wrong with the answer: empty when a sound picture or font came back, or ErroreRuntime with a
// reason and the file's name. accettato: whether it was no refusal. Lets other errors pass.
std::string DifettoDiLettura(std::string_view byte, const std::string& nome, bool& accettato);

} // namespace aiuti
