// Numbers as the user writes them, in the field of Form1_Numero.cpp.
#pragma once

#include "Separatori.h"

#include <string_view>

// The number that the whole text is: sign, digits with the user's marks and an exponent are
// understood, blanks around it are not looked at. Marks of thousands may stand between any two
// digits before the decimal mark. One too large for a double is infinite. Error 13 when it is no
// number.
double NumeroUtente(std::string_view testo, const Separatori& separatori);
