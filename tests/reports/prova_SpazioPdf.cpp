// Whether a full PDF report fits is told as the document itself turns out.

#include "prova_Stampe_Pdf.h"

#include "ErroreRuntime.h"
#include "Scritture.h"
#include "SpazioPdf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <optional>
#include <string>
#include <vector>

using namespace Stampe;
using namespace stampepdf;
using aiuti::ErroreDi;
using testing::HasSubstr;

namespace {

using Mazzo = std::vector<std::int16_t>;

// The objects that the shoe adds to a document: its page, with three fonts, the three numbers of
// each coup and its cards.
int Peso(const Mazzo& mazzo)
{
    modCarte::ImpostaMazzo(mazzo);
    modCarte::GiocaTaglia();
    const auto colpi = DerivaCifre().ColpiPagina;
    int peso = 4 + 3;
    for (std::int64_t j = 1; j <= colpi; ++j) {
        const auto& testo = modCarte::Colpi[static_cast<std::size_t>(j)];
        peso += 3 + modCarte::RecordColpo(testo).NumeroCarte();
    }
    return peso;
}

Mazzo Mescolato(std::uint64_t seme)
{
    modCarte::AvviaSeme(seme, 1);
    modCarte::MescolaMazzo();
    return {modCarte::Mazzo.begin(), modCarte::Mazzo.end()};
}

// Shoes that weigh so much together, each near the middle.
std::vector<Mazzo> Pesano(int quante, int totale)
{
    std::map<int, Mazzo> scorta;
    for (std::uint64_t seme = 1; seme <= 400; ++seme) {
        Mazzo mazzo = Mescolato(seme);
        const int peso = Peso(mazzo);
        scorta.emplace(peso, std::move(mazzo));
    }
    std::vector<Mazzo> scelti;
    for (; quante > 0; --quante) {
        auto vicino = scorta.lower_bound(totale / quante);
        if (vicino == scorta.end()) --vicino;
        scelti.push_back(vicino->second);
        totale -= vicino->first;
    }
    EXPECT_EQ(totale, 0) << "no shoe weighs what is left";
    return scelti;
}

// A document's objects besides those of its shoes: ten, a last page and two fonts.
constexpr int Restanti = 10 + 7 + 2;
constexpr int Massimo = 32767;

std::optional<ErroreRuntime> Scrivendo(Prova& prova, const std::vector<Mazzo>& mazzi)
{
    prova.Distribuisci(mazzi);
    return ErroreDi([&] { StampaPdf(static_cast<double>(mazzi.size())); });
}

std::optional<ErroreRuntime> Contando(Prova& prova, const std::vector<Mazzo>& mazzi)
{
    prova.Distribuisci(mazzi);
    return ErroreDi([&] { PretendiSpazioPdf(NumeroTaglie(static_cast<double>(mazzi.size()))); });
}

void Troppe(const std::optional<ErroreRuntime>& errore, const Prova& prova)
{
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Numero(), NumeroErrore::Overflow);
    EXPECT_EQ(errore->File(), prova.Cartella.Nome() + "taglie.pdf");
    EXPECT_EQ(errore->Motivo(), "le taglie sono troppe per un PDF con tutti i colpi: ne entrano "
                                "circa 82, con --caratteri-unici 8187, con --compatto 32766");
}

// The shoe with its cards in the order of their value, lowest or highest first.
Mazzo PerValore(bool crescente)
{
    Mazzo mazzo = Mescolato(1);
    const auto punti = [](std::int16_t codice) { return modCarte::ValoreCarta(codice); };
    std::sort(mazzo.begin(), mazzo.end(), [&](auto a, auto b) {
        return crescente ? punti(a) < punti(b) : punti(b) < punti(a);
    });
    return mazzo;
}

} // namespace

TEST(SpazioPdf, FinoAllUltimoOggettoEntraNonUnoDiPiu)
{
    Prova prova("tre");
    const auto giuste = Pesano(83, Massimo - Restanti);
    EXPECT_FALSE(Contando(prova, giuste));
    EXPECT_FALSE(Scrivendo(prova, giuste));
    EXPECT_THAT(prova.Pdf(), HasSubstr("/Size 32767 "));
    const auto unaDiPiu = Pesano(83, Massimo - Restanti + 1);
    Troppe(Contando(prova, unaDiPiu), prova);
    EXPECT_THAT(prova.Pdf(), HasSubstr("/Size 32767 ")); // the old one is still there
    Troppe(Scrivendo(prova, unaDiPiu), prova);
}

TEST(SpazioPdf, OgniTagliaPesaTraICasiEstremi)
{
    std::vector<Mazzo> mazzi = {PerValore(true), PerValore(false)};
    for (std::uint64_t seme = 1; seme <= 2000; ++seme) mazzi.push_back(Mescolato(seme));
    for (const auto& mazzo : mazzi) {
        const int peso = Peso(mazzo);
        EXPECT_GE(peso * 95, Massimo - Restanti); // so that 95 are refused whatever their cards
        EXPECT_LE(peso * 79, Massimo - Restanti); // and 79 are not
    }
}

TEST(SpazioPdf, DoveECertoNonSiGioca)
{
    Prova prova("tre");
    std::ofstream(prova.Cartella.File("taglie.pdf")) << "vecchio";
    AmbienteInUso.PreparaTaglia = [](std::int64_t) { ADD_FAILURE() << "a shoe was dealt"; };
    EXPECT_FALSE(ErroreDi([] { PretendiSpazioPdf(NumeroTaglie(79)); }));
    for (const double taglie : {95.0, 1000.0, 32768.0, 9007199254740992.0}) {
        Troppe(ErroreDi([&] { PretendiSpazioPdf(NumeroTaglie(taglie)); }), prova);
        Troppe(ErroreDi([&] { StampaPdf(taglie); }), prova);
    }
    AmbienteInUso.CaratteriUnici = true;
    EXPECT_FALSE(ErroreDi([] { PretendiSpazioPdf(NumeroTaglie(8187)); }));
    for (const double taglie : {8188.0, 9007199254740992.0}) {
        Troppe(ErroreDi([&] { PretendiSpazioPdf(NumeroTaglie(taglie)); }), prova);
        Troppe(ErroreDi([&] { StampaPdf(taglie); }), prova);
    }
    EXPECT_EQ(prova.Pdf(), "vecchio");
}

TEST(SpazioPdf, CompattoEntranoTanteTagliePerQuantePagine)
{
    const Prova prova("tre");
    AmbienteInUso.PreparaTaglia = [](std::int64_t) { ADD_FAILURE() << "a shoe was dealt"; };
    AmbienteInUso.Compatto = true;
    EXPECT_FALSE(ErroreDi([] { PretendiSpazioPdf(NumeroTaglie(32766)); }));
    for (const double taglie : {32767.0, 32768.0, 9007199254740992.0}) {
        const auto errore = ErroreDi([&] { StampaPdf(taglie); });
        ASSERT_TRUE(errore);
        EXPECT_EQ(errore->Numero(), NumeroErrore::Overflow);
        EXPECT_EQ(errore->Motivo(),
                  "le taglie sono troppe per un PDF con tutti i colpi: ne entrano 32766");
    }
}

TEST(SpazioPdf, DoveDipendeDalleCarteSiGioca)
{
    const Prova prova("tre");
    for (const int taglie : {80, 94}) {
        int giocate = 0;
        AmbienteInUso.PreparaTaglia = [&giocate](std::int64_t) {
            modCarte::MescolaMazzo();
            ++giocate;
        };
        ErroreDi([&] { PretendiSpazioPdf(NumeroTaglie(taglie)); });
        EXPECT_EQ(giocate, taglie);
    }
}

TEST(SpazioPdf, LeTaglieGiocateTornanoUguali)
{
    const Prova prova("tre");
    std::vector<Mazzo> giocati;
    AmbienteInUso.PreparaTaglia = [&giocati](std::int64_t) {
        modCarte::MescolaMazzo();
        giocati.emplace_back(modCarte::Mazzo.begin(), modCarte::Mazzo.end());
    };
    PretendiSpazioPdf(NumeroTaglie(80));
    ASSERT_EQ(giocati.size(), 80U);
    for (std::int64_t taglia = 1; taglia <= 80; ++taglia) {
        AmbienteInUso.PreparaTaglia(taglia);
        EXPECT_EQ(Mazzo(modCarte::Mazzo.begin(), modCarte::Mazzo.end()),
                  giocati[static_cast<std::size_t>(taglia) - 1]);
    }
    EXPECT_EQ(giocati.size(), 80U); // shuffled no more
}

TEST(SpazioPdf, NumeriSbagliatiComeNeiReport)
{
    const Prova prova("tre");
    for (const double taglie : {0.0, -1.0, 1e16}) {
        EXPECT_EQ(ErroreDi([&] { PretendiSpazioPdf(NumeroTaglie(taglie)); })->File(),
                  "numero di taglie");
    }
}
