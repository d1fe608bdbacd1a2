// Writing bytes to an open descriptor to the last one; LetturaFile.h is the way back.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// The two system calls that can fail late, replaceable by tests that make the k-th one fail.
// They follow write(2) and close(2): a negative result sets errno.
struct ChiamateFile
{
    std::ptrdiff_t (*Scrivi)(int descrittore, const void* byte, std::size_t quanti);
    int (*Chiudi)(int descrittore);
};

extern constinit ChiamateFile ChiamateInUso;

// The calls of the system itself.
ChiamateFile ChiamateDelSistema();

// Writes all the bytes to an open descriptor, going on after short and interrupted writes.
// nome: what the error is about.
void ScriviSuDescrittore(int descrittore, std::string_view byte, const std::string& nome);
