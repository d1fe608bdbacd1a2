// Reads within a file and refusals outside.

#include "ByteReader.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

using namespace pdf;
using namespace std::string_literals;

namespace {

const std::string nomeFile = "prova.bin";

} // namespace

TEST(ByteReader, BytePiuBassoPrimaOUltimo)
{
    const std::string byte = "\x01\x02\x83\xF4"s;
    const ByteReader file(byte, nomeFile);
    EXPECT_EQ(file.U8(2), 0x83);
    EXPECT_EQ(file.Little16(1), 0x8302);
    EXPECT_EQ(file.Little32(0), 0xF4830201);
    EXPECT_EQ(file.Big16(1), 0x0283);
    EXPECT_EQ(file.Big32(0), 0x010283F4U);
    EXPECT_EQ(file.BigSigned16(2), -31756);
}

TEST(ByteReader, FuoriDalFileDiceIlFile)
{
    const std::string byte = "abcd";
    const ByteReader file(byte, nomeFile);
    try {
        file.Big16(3);
        FAIL() << "no error";
    } catch (const ErroreRuntime& errore) {
        EXPECT_EQ(errore.Numero(), NumeroErrore::ErroreInputOutput);
        EXPECT_STREQ(errore.what(), "prova.bin: il file finisce prima del previsto");
    }
}

TEST(ByteReader, GliEstremi)
{
    constexpr std::uint64_t enorme = std::numeric_limits<std::uint64_t>::max();
    const std::string byte = "abcd";
    const ByteReader file(byte, nomeFile);
    EXPECT_EQ(file.Slice(0, 4), "abcd");
    EXPECT_EQ(file.Slice(4, 0), "");
    EXPECT_THROW(file.Slice(5, 0), ErroreRuntime);
    EXPECT_THROW(file.Slice(1, enorme), ErroreRuntime);
    EXPECT_THROW(file.Slice(enorme, 2), ErroreRuntime);
}

TEST(ByteReader, UnaParteContaDaZero)
{
    const std::string byte = "abcd";
    const ByteReader file(byte, nomeFile);
    const ByteReader parte = file.Part(1, 2);
    EXPECT_EQ(parte.Size(), 2U);
    EXPECT_EQ(parte.U8(1), 'c');
    EXPECT_THROW(parte.U8(2), ErroreRuntime);
}
