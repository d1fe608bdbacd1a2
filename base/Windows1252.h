// The single-byte code page of every file the program writes.
#pragma once

#include <string>
#include <string_view>

// Turns UTF-8 into Windows-1252 bytes. A character outside the code page, and each byte that is
// no valid UTF-8, becomes "?". The five undefined codes (81, 8D, 8F, 90, 9D) map to themselves.
std::string InWindows1252(std::string_view utf8);

// The same without a copy where there is nothing to turn: then the result is utf8 itself, else what
// byte holds from now on.
std::string_view InWindows1252(std::string_view utf8, std::string& byte);

// Whether the whole text has a place in Windows-1252.
bool EntraInWindows1252(std::string_view utf8);

// The code point that a Windows-1252 byte stands for; the undefined codes stand for themselves.
char32_t DaWindows1252(unsigned char codice);

// What PrendiCarattere gives for bytes that are no character at all.
inline constexpr char32_t NonValido = 0xFFFFFFFF;

// Takes one character off the front of a text that is not empty. A malformed sequence takes one
// byte only, because the bytes after it may begin a good character, and is NonValido.
char32_t PrendiCarattere(std::string_view& utf8);

// Appends the UTF-8 form of a Unicode code point; surrogates and values above 10FFFF append "?".
void AggiungiUtf8(std::string& testo, char32_t carattere);
