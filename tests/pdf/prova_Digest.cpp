// The digest against values of another program (b2sum -l 256), around the ends of its blocks.

#include "Digest.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace {

std::string Esadecimale(const std::string& byte)
{
    constexpr const char* cifre = "0123456789abcdef";
    std::string testo;
    for (const char c : byte) {
        const auto valore = static_cast<unsigned char>(c);
        testo.append({cifre[valore / 16], cifre[valore % 16]});
    }
    return testo;
}

} // namespace

TEST(Digest, QuelloDiAltriProgrammi)
{
    std::string tutti;
    for (std::size_t i = 0; i < 1024; ++i) tutti.push_back(static_cast<char>(i % 256));
    const std::pair<std::string, const char*> noti[] = {
        {"", "0e5751c026e543b2e8ab2eb06099daa1d1e5df47778f7787faab45cdf12fe3a8"},
        {"abc", "bddd813c634239723171ef3fee98579b94964e3bb1cb3e427262c8c068d52319"},
        {std::string(128, 'x'), "164ffb7089bae6f5a62fb0795e751dc9e88eac92e1a5b2fafe93a25abf2d9c3b"},
        {std::string(129, 'x'), "03b0758fa71d249c846c2304a2b9996e6ae66ffa7e5528f9e612e089a360fc8d"},
        {tutti, "f1551feeb252c7e60bb362205bd1ac2f70b145260a91d41e8c5d0a187549a5f2"},
    };
    for (const auto& [byte, atteso] : noti) EXPECT_EQ(Esadecimale(pdf::prDigest(byte)), atteso);
}
