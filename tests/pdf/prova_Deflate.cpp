// Deflated bytes come back, by a reader of our own; how they are fed changes nothing.

#include "Deflate.h"
#include "ErroreRuntime.h"
#include "Inflato.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

using aiuti::Inflato;

namespace {

constexpr const char* SenzaZlib = "la libreria è senza zlib";

// Not to be compressed: what comes out is a little more than what goes in.
std::string Disordine(std::size_t quanti)
{
    std::string byte;
    std::uint32_t stato = 1;
    while (byte.size() < quanti) {
        stato = stato * 1664525 + 1013904223;
        byte += static_cast<char>(static_cast<unsigned char>(stato >> 24));
    }
    return byte;
}

std::string Righe(int quante)
{
    std::string byte;
    for (int i = 0; i < quante; ++i) {
        byte += std::to_string(i % 97) + " " + std::to_string(i % 31) + " m 0 0 l S\r\n";
    }
    return byte;
}

std::vector<std::string> Testi()
{
    return {"",           "a",          std::string(1, '\0'), std::string(100000, 'x'),
            Righe(30000), Disordine(5), Disordine(4096),      Disordine(70000)};
}

std::string APezzi(pdf::Deflate& deflate, std::string_view byte, std::size_t pezzo)
{
    std::string uscita;
    const pdf::Deflate::Sink raccogli = [&uscita](std::string_view parte) {
        EXPECT_FALSE(parte.empty());
        EXPECT_LE(parte.size(), 4096U);
        uscita += parte;
    };
    for (; !byte.empty(); byte.remove_prefix(std::min(pezzo, byte.size()))) {
        deflate.Add(byte.substr(0, pezzo), raccogli);
    }
    deflate.Add({}, raccogli);
    deflate.End(raccogli);
    return uscita;
}

} // namespace

TEST(Deflate, OgniLivelloRendeIByteCheHaPreso)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    for (int livello = 1; livello <= 9; ++livello) {
        pdf::Deflate deflate(livello);
        for (const std::string& testo : Testi()) {
            EXPECT_TRUE(Inflato(deflate.Whole(testo)) == testo) << livello << " " << testo.size();
        }
    }
}

TEST(Deflate, APezziEsceLoStesso)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    for (const int livello : {1, 6, 9}) {
        pdf::Deflate deflate(livello);
        for (const std::string& testo : Testi()) {
            for (const std::size_t pezzo : {1U, 100U, 4096U, 1000000U}) {
                EXPECT_TRUE(Inflato(APezzi(deflate, testo, pezzo)) == testo) << testo.size();
            }
        }
    }
}

TEST(Deflate, UnLivelloPiuAltoEPiuPiccolo)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    const std::string testo = Righe(30000);
    const std::size_t uno = pdf::Deflate(1).Whole(testo).size();
    const std::size_t nove = pdf::Deflate(9).Whole(testo).size();
    EXPECT_LT(nove, uno);
    EXPECT_LT(uno, testo.size() / 3);
}

TEST(Deflate, CioCheLanciaChiRiceveArrivaAChiChiama)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    pdf::Deflate deflate(6);
    const pdf::Deflate::Sink rifiuta = [](std::string_view) { throw std::out_of_range("pieno"); };
    const std::string testo = Disordine(100000);
    EXPECT_THROW(deflate.Add(testo, rifiuta), std::out_of_range);
    EXPECT_TRUE(Inflato(deflate.Whole(testo)) == testo); // the next one is whole again
}

TEST(Deflate, SenzaZlibNonSiFa)
{
    if (pdf::prCanDeflate()) GTEST_SKIP() << "la libreria ha zlib";
    EXPECT_THROW(pdf::Deflate(6), ErroreRuntime);
}
