// The marks that the user's regional settings put into numbers; reports/FormatiNumero.h puts them
// in.
#pragma once

#include <string>

// UTF-8 texts. An empty Migliaia means that digits are not grouped.
struct Separatori
{
    std::string Decimali = ".";
    std::string Migliaia;

    bool operator==(const Separatori&) const = default;
};

// The marks of the user's regional settings; those of "C" where the settings name a locale that
// the system does not have. The process's own locale is neither used nor changed.
Separatori SeparatoriUtente();
