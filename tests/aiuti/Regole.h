// Matchers with the regular expressions of the C++ library: those of the test library know no sets
// of characters on some systems.
#pragma once

#include <gmock/gmock.h>

#include <regex>
#include <string>

namespace aiuti {

// The whole text, or some part of it, follows the rule (ECMAScript).
MATCHER_P(Segue, regola, "")
{
    return std::regex_match(std::string(arg), std::regex(regola));
}
MATCHER_P(HaUnaParteCheSegue, regola, "")
{
    return std::regex_search(std::string(arg), std::regex(regola));
}

} // namespace aiuti
