// The PDF files that the tests make, kept so that foreign readers can look at them.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace aiuti {

// Keeps a file as nome + ".pdf" (folder of the environment's SCALVINO_PDF_PRODOTTI; without it this
// does nothing) for tests/lettori. Testi are UTF-8 texts of one line each that the text drawn in
// the document must hold. A name that is kept already fails the test: two tests would share it.
void ConservaPdf(std::string_view nome, const std::string& byte,
                 std::initializer_list<std::string_view> testi = {});

} // namespace aiuti
