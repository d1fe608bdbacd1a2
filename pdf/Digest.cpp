// BLAKE2b in blocks of 128 bytes, which are 16 words of 64 bits (RFC 7693, section 3). Names of one
// letter are those of the RFC.

#include "Digest.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace pdf {

namespace {

constexpr std::size_t DigestSize = 32;
constexpr std::size_t BlockSize = 128;

using Chain = std::array<std::uint64_t, 8>;
using Words = std::array<std::uint64_t, 16>;

constexpr Chain IV = {0x6A09E667F3BCC908, 0xBB67AE8584CAA73B, 0x3C6EF372FE94F82B,
                      0xA54FF53A5F1D36F1, 0x510E527FADE682D1, 0x9B05688C2B3E6C1F,
                      0x1F83D9ABFB41BD6B, 0x5BE0CD19137E2179};

// In which order each round takes the words; the last two rounds are like the first two.
constexpr std::array<std::array<std::uint8_t, 16>, 10> Sigma = {{
    {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15},
    {14, 10, 4, 8, 9, 15, 13, 6, 1, 12, 0, 2, 11, 7, 5, 3},
    {11, 8, 12, 0, 5, 2, 15, 13, 10, 14, 3, 6, 7, 1, 9, 4},
    {7, 9, 3, 1, 13, 12, 11, 14, 2, 6, 5, 10, 4, 0, 15, 8},
    {9, 0, 5, 7, 2, 4, 10, 15, 14, 1, 11, 12, 6, 8, 3, 13},
    {2, 12, 6, 10, 0, 11, 8, 3, 4, 13, 7, 5, 15, 14, 1, 9},
    {12, 5, 1, 15, 14, 13, 4, 10, 0, 7, 6, 3, 9, 2, 8, 11},
    {13, 11, 7, 14, 12, 1, 3, 9, 5, 0, 15, 4, 8, 6, 2, 10},
    {6, 15, 14, 9, 11, 3, 0, 8, 12, 2, 13, 7, 1, 4, 10, 5},
    {10, 2, 8, 4, 7, 6, 1, 5, 15, 11, 9, 14, 3, 12, 13, 0},
}};
constexpr std::size_t Rounds = 12;

// The lowest byte first; what is missing at the end of the last block is 0.
Words WordsOf(std::string_view block)
{
    Words words = {};
    for (std::size_t i = 0; i < block.size(); ++i) {
        words[i / 8] |= std::uint64_t{static_cast<unsigned char>(block[i])} << 8 * (i % 8);
    }
    return words;
}

void Mix(Words& v, std::size_t a, std::size_t b, std::size_t c, std::size_t d, std::uint64_t x,
         std::uint64_t y)
{
    v[a] = v[a] + v[b] + x;
    v[d] = std::rotr(v[d] ^ v[a], 32);
    v[c] = v[c] + v[d];
    v[b] = std::rotr(v[b] ^ v[c], 24);
    v[a] = v[a] + v[b] + y;
    v[d] = std::rotr(v[d] ^ v[a], 16);
    v[c] = v[c] + v[d];
    v[b] = std::rotr(v[b] ^ v[c], 63);
}

// taken: how many bytes there are up to the end of this block.
void Compress(Chain& h, const Words& m, std::uint64_t taken, bool last)
{
    Words v = {};
    std::copy(h.begin(), h.end(), v.begin());
    std::copy(IV.begin(), IV.end(), v.begin() + 8);
    v[12] ^= taken;
    if (last) v[14] = ~v[14];
    for (std::size_t round = 0; round < Rounds; ++round) {
        const auto& s = Sigma[round % Sigma.size()];
        Mix(v, 0, 4, 8, 12, m[s[0]], m[s[1]]);
        Mix(v, 1, 5, 9, 13, m[s[2]], m[s[3]]);
        Mix(v, 2, 6, 10, 14, m[s[4]], m[s[5]]);
        Mix(v, 3, 7, 11, 15, m[s[6]], m[s[7]]);
        Mix(v, 0, 5, 10, 15, m[s[8]], m[s[9]]);
        Mix(v, 1, 6, 11, 12, m[s[10]], m[s[11]]);
        Mix(v, 2, 7, 8, 13, m[s[12]], m[s[13]]);
        Mix(v, 3, 4, 9, 14, m[s[14]], m[s[15]]);
    }
    for (std::size_t i = 0; i < h.size(); ++i) h[i] ^= v[i] ^ v[i + 8];
}

} // namespace

std::string prDigest(std::string_view bytes)
{
    Chain h = IV;
    h[0] ^= 0x01010000U ^ DigestSize;
    std::uint64_t taken = 0;
    for (; bytes.size() > BlockSize; bytes.remove_prefix(BlockSize)) {
        taken += BlockSize;
        Compress(h, WordsOf(bytes.substr(0, BlockSize)), taken, false);
    }
    Compress(h, WordsOf(bytes), taken + bytes.size(), true);
    std::string digest;
    for (std::size_t i = 0; i < DigestSize; ++i) {
        digest.push_back(static_cast<char>(h[i / 8] >> 8 * (i % 8)));
    }
    return digest;
}

} // namespace pdf
