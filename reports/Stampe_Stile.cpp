// The style sheets as a table of rules, in the order in which they are written. Stampe_Html.cpp
// puts them into the page.
#include "Stampe_Stile.h"

#include "Stampe_Comune.h"

#include <string_view>
#include <vector>

namespace Stampe {

namespace {

// A rule as it is written: every line ends a declaration. The rule .face, which no element uses,
// and the picture "cardback.gif", which is no file, are kept on purpose: the sheet, too, is
// promised byte for byte.
struct Regola
{
    std::string_view Selettore; // with its "{"; a rule on one line has no declarations
    int Rientro;
    std::vector<std::string_view> Dichiarazioni;
    bool VuotaDopo;
    bool AncheStatistiche;
};

constexpr std::string_view BordoChiaro =
    "border-color: rgb(212, 212, 212) rgb(212, 212, 212) rgb(212, 212, 212) rgb(212, 212, 212);";

// Heading and data cells of a table look the same: the rule stands twice in the sheet.
const std::vector<std::string_view> CellaSample = {
    "border-width: 1px 1px 1px 1px;",
    "padding: 2px 2px 2px 2px;",
    "border-style: solid solid solid solid;",
    BordoChiaro,
    "background-color: white;",
    "-moz-border-radius: 0px 0px 0px 0px;",
};

const std::vector<std::string_view> CellaNorm = {
    "border-width: 0px 0px 0px 0px;",
    "padding: 2px 2px 2px 2px;",
    "border-style: solid solid solid solid;",
    "border-color: gray gray gray gray;",
    "background-color: white;",
    "-moz-border-radius: 0px 0px 0px 0px;",
};

const std::vector<Regola> Regole = {
    {"body {",
     4,
     {"font-family: tahoma, arial;", "font-weight: normal;", "font-size: 10pt;"},
     false,
     true},
    {".card {",
     2,
     {"background-image: url(\"cardback.gif\");", "border-color: #808080 #000000 #000000 #808080;",
      "border-width: 1px;", "border-style: solid;", "font-size: 20pt;", "position: relative;",
      "width:  0.80em;", "height: 1.25em;"},
     true,
     false},
    {".front {",
     2,
     {"background-color: #ffffff;", "color: #000000;", "position: relative;", "width: 100%;",
      "height: 100%;"},
     true,
     false},
    {".red { color: #ff0000; }", 0, {}, true, false},
    {".face {",
     2,
     {"border: 1px solid #000000;", "position: absolute;", "left: 0.50em;", "top:  0.45em;",
      "width:  2.6em;", "height: 4.0em;"},
     true,
     false},
    {".num {",
     2,
     {"position: absolute;", "font-size: 10pt;", "left: 0.30em;", "top: 0.02em;"},
     true,
     false},
    {".spot {",
     2,
     {"position: absolute;", "font-size: 14pt;", "left: 0.15em;", "top: 0.60em;"},
     true,
     false},
    {"table.sample {",
     4,
     {"border-width: 1px 1px 1px 1px;", "border-spacing: 1px;",
      "border-style: solid solid solid solid;", BordoChiaro, "border-collapse: collapse;",
      "background-color: white;", "font-family: tahoma, arial;", "font-weight: normal;",
      "font-size: 10pt;"},
     false,
     true},
    {"table.sample th {", 4, CellaSample, false, true},
    {"table.sample td {", 4, CellaSample, true, true},
    {"table.norm {",
     4,
     {"border-width: 0px 0px 0px 0px;", "border-spacing: 3px;",
      "border-style: none none none none;", "border-color: gray gray gray gray;",
      "border-collapse: separate;", "background-color: white;", "font-family: tahoma, arial;",
      "font-weight: normal;", "font-size: 10pt;"},
     false,
     false},
    {"table.norm th {", 4, CellaNorm, false, false},
    {"table.norm td {", 4, CellaNorm, true, false},
    {"#su {",
     4,
     {"text-align: right;", "font-family : Verdana, Arial, Helvetica, sans-serif;",
      "font-size: 10px;"},
     true,
     false},
    {"a:link, a:visited {",
     4,
     {"color: navy;", "font-weight: bold;", "text-decoration: none;"},
     false,
     true},
    {"a:hover {",
     4,
     {"color: #FF0000;", "font-weight: bold;", "text-decoration: underline;"},
     false,
     true},
};

void AggiungiRegola(std::string& testo, const Regola& regola)
{
    Riga(testo, regola.Selettore);
    const std::string rientro(static_cast<std::size_t>(regola.Rientro), ' ');
    for (const auto dichiarazione : regola.Dichiarazioni) Riga(testo, rientro, dichiarazione);
    if (!regola.Dichiarazioni.empty()) Riga(testo, "}");
    if (regola.VuotaDopo) Riga(testo);
}

} // namespace

void AggiungiStile(std::string& testo, FoglioStile foglio)
{
    for (const auto& regola : Regole) {
        if (foglio == FoglioStile::Completo || regola.AncheStatistiche) {
            AggiungiRegola(testo, regola);
        }
    }
}

} // namespace Stampe
