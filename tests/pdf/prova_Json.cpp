// The reader of scripts reads what JSON is, and refuses the rest.

#include "Json.h"

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

using aiuti::Json;

TEST(Json, LeggeOgniGenereDiValore)
{
    const Json letto = Json::parse(" [ \"a\", -1.5e1, true, false, null, [], [[2]] ]\n");
    ASSERT_EQ(letto.size(), 7U);
    EXPECT_EQ(letto[0], "a");
    EXPECT_EQ(letto[1].get<float>(), -15.0F);
    EXPECT_TRUE(letto[2].get<bool>());
    EXPECT_FALSE(letto[3].get<bool>());
    EXPECT_EQ(letto[4], Json());
    EXPECT_EQ(letto[5].size(), 0U);
    EXPECT_EQ(letto.back()[0][0].get<int>(), 2);
    EXPECT_EQ(letto.dump(), R"(["a",-15,true,false,null,[],[[2]]])");
}

TEST(Json, LeggeOgniModoDiScrivereUnCarattere)
{
    EXPECT_EQ(Json::parse(R"("\"\\\/\b\f\n\r\t")").get<std::string>(), "\"\\/\b\f\n\r\t");
    EXPECT_EQ(Json::parse(R"("\u0041\u00e8\u20AC\ud83d\ude00 è")").get<std::string>(),
              "A\xC3\xA8\xE2\x82\xAC\xF0\x9F\x98\x80 \xC3\xA8");
    EXPECT_EQ(Json::parse(R"("\u0000")").get<std::string>(), std::string(1, '\0'));
}

TEST(Json, RifiutaCioCheNonE)
{
    for (const char* testo :
         {"", "[", "[1", "[1,]", "\"a", "\"\\x\"", "\"\\u12\"", "tru", "1 2", "[1]]", "{}"}) {
        EXPECT_THROW(Json::parse(testo), std::invalid_argument) << testo;
    }
}

TEST(Json, UnValoreNonEUnAltro)
{
    const Json letto = Json::parse(R"(["a", 1])");
    EXPECT_THROW(letto[0].get<int>(), std::bad_variant_access);
    EXPECT_THROW(letto[1].get<bool>(), std::bad_variant_access);
    EXPECT_THROW(letto[1].size(), std::bad_variant_access);
    EXPECT_THROW(letto[2], std::out_of_range);
    EXPECT_EQ(Json::parse(R"(["a", "b"])").get<std::vector<std::string>>(),
              (std::vector<std::string>{"a", "b"}));
}
