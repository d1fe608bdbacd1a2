// What counts is the number of objects, of which a document holds 32,767: a page is four of them
// and a font is one. A conforming one holds as many pages, whatever is on them.

#include "SpazioPdf.h"

#include "Ambiente.h"
#include "ErroreRuntime.h"
#include "Stampe.h"
#include "modCarte.h"

#include <array>
#include <cstdint>
#include <utility>
#include <vector>

namespace Stampe {

namespace {

constexpr std::int64_t MassimoOggetti = 32767;
constexpr std::int64_t MassimoPagine = 32767;

// The fixed ones at the start of each document, the footer and the metadata, each with its length.
constexpr std::int64_t OggettiFissi = 10;
constexpr std::int64_t OggettiPagina = 4;

// Of the one page and of the others, and of the footer; Symbol, which is found again by its name.
constexpr std::int64_t CaratteriPagina = 3;
constexpr std::int64_t CaratteriFissi = 2;
constexpr std::int64_t CaratteriUnici = 4;

// Of the number and the two totals; each card has one for its value.
constexpr std::int64_t CaratteriColpo = 3;

// No shoe shows less. Its 307 cards after the cancelled ones have 1990 points at least (all 312
// have 2040), and in the coup that ran out lie at most 61 points in 42 cards (24 aces and 18 twos).
// A coup takes 80 points at most, so that the others are 25 or more.
constexpr std::int64_t MinimoCaratteriTaglia = 25 * CaratteriColpo + 307 - 42;

// No shoe shows more: a coup takes 62 points or more, of 2035 at most.
constexpr std::int64_t MassimoCaratteriTaglia = 32 * CaratteriColpo + 307;

// Of the shoe just played. CarteUsate counts the card after the last one, too.
std::int64_t CaratteriTaglia()
{
    const CifreTaglia cifre = DerivaCifre();
    return cifre.ColpiPagina * CaratteriColpo + cifre.CarteUsate - 1;
}

// Whether a report fits whose shoes show so many fonts in all, not counting those of the pages.
bool Entra(const NumeroTaglie& chieste, std::int64_t caratteriTaglie)
{
    // The page of general statistics follows the number as it was given.
    const std::int64_t pagine = chieste.DaFare() + (chieste.PiuDiUna() ? 1 : 0);
    if (AmbienteInUso.Compatto) return pagine <= MassimoPagine;
    const std::int64_t caratteri =
        AmbienteInUso.CaratteriUnici ? CaratteriUnici
                                     : CaratteriFissi + pagine * CaratteriPagina + caratteriTaglie;
    return OggettiFissi + pagine * OggettiPagina + caratteri <= MassimoOggetti;
}

using Carte = std::array<std::int16_t, modCarte::CarteTaglia>;

// Plays the shoes of the run and keeps them; adds up their fonts.
std::vector<Carte> GiocaTutte(std::int64_t taglie, std::int64_t& caratteri)
{
    std::vector<Carte> mazzi;
    for (std::int64_t taglia = 1; taglia <= taglie; ++taglia) {
        AmbienteInUso.PreparaTaglia(taglia);
        mazzi.push_back(modCarte::Mazzo);
        modCarte::GiocaTaglia();
        caratteri += CaratteriTaglia();
    }
    return mazzi;
}

} // namespace

void TroppePerUnPdf()
{
    throw ErroreRuntime(NumeroErrore::Overflow,
                        AmbienteInUso.Compatto
                            ? "le taglie sono troppe per un PDF con tutti i colpi: ne entrano 32766"
                            : "le taglie sono troppe per un PDF con tutti i colpi: ne entrano "
                              "circa 82, con --caratteri-unici 8187, con --compatto 32766",
                        PercorsoForma(NomePdf));
}

void PretendiPdfPossibile(const NumeroTaglie& chieste)
{
    const std::int64_t taglie = chieste.DaFare();
    // Beyond this many no product of theirs is asked for, which could leave 64 bits.
    if (taglie > MassimoOggetti || !Entra(chieste, taglie * MinimoCaratteriTaglia)) {
        TroppePerUnPdf();
    }
}

void PretendiSpazioPdf(const NumeroTaglie& chieste)
{
    PretendiPdfPossibile(chieste);
    const std::int64_t taglie = chieste.DaFare();
    if (Entra(chieste, taglie * MassimoCaratteriTaglia)) return;
    std::int64_t caratteri = 0;
    auto mazzi = GiocaTutte(taglie, caratteri);
    if (!Entra(chieste, caratteri)) TroppePerUnPdf();
    AmbienteInUso.PreparaTaglia = [mazzi = std::move(mazzi)](std::int64_t taglia) {
        modCarte::ImpostaMazzo(mazzi.at(static_cast<std::size_t>(taglia) - 1));
    };
}

} // namespace Stampe
