// What the layouts of the reports share (Stampe_Txt.cpp, Stampe_Html.cpp, Stampe_Pdf.cpp and
// Stampe_Video.cpp); nobody else needs it but their tests.
#pragma once

#include "CorsaTaglie.h"
#include "Separatori.h"
#include "Stampe.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace Stampe {

// Appends the pieces and CR LF.
template <typename... Pezzi>
void Riga(std::string& testo, const Pezzi&... pezzi)
{
    (testo.append(pezzi), ...);
    testo.append("\r\n");
}

// The two lines that sum up the shoe in modCarte on a page of its own.
std::array<std::string, 2> RigheRiassunto(const CifreTaglia& cifre, const Separatori& separatori);

// Runs the shoes of a statistics-only form: after each the progress text and one yield.
std::optional<TotaliReport> EseguiConAvanzamento(const NumeroTaglie& chieste,
                                                 const EtichettaStato& etichettaStato);

// The HTML entity of a card text's suit, from its last letter: "&hearts;" for C, "&diams;" Q,
// "&clubs;" F, "&spades;" P; empty for anything else.
std::string_view SemeHtml(std::string_view carta);

// The character that the font Symbol draws as a card text's suit, UTF-8; empty for anything else.
std::string_view SemeSymbol(std::string_view carta);

// The style class suffix of a card text: " red" for hearts and diamonds, else empty.
std::string_view ClasseRossa(std::string_view carta);

} // namespace Stampe
