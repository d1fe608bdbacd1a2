// The drawing operators of a page, form or tile, checked for what our writer promises.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace aiuti {

// A name that an operator takes from the resources.
struct NomeUsato
{
    std::string Categoria; // the key in the resources: "Font", "XObject", "Pattern", "ColorSpace"
    std::string Nome;
};

// Reads an unfiltered content stream (ISO 32000-1, 7.8.2) and returns the names it uses, in order.
//
// Only operators that the writer has, each with its operands and at its place: q and Q, BT and ET
// balance, text is shown inside BT ... ET and nothing is drawn there but text. Numbers stand in
// their shortest form with three decimals at most. Faults are added to difetti, each beginning with
// dove.
std::vector<NomeUsato> ControllaContenuto(std::string_view contenuto, const std::string& dove,
                                          std::vector<std::string>& difetti);

} // namespace aiuti
