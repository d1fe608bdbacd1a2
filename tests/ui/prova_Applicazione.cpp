// The application object: what Qt does to the whole program when it is made.

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <string>

// Qt takes the user's locale for all of the C library; numbers keep their point.
TEST(Applicazione, INumeriNonSeguonoLaLinguaDellUtente)
{
    const char* lingua = std::getenv("LC_ALL");
    if (lingua != nullptr && std::string(lingua) != "C") {
        EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), lingua); // it was really taken
    }
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
    EXPECT_STREQ(std::localeconv()->decimal_point, ".");
}
