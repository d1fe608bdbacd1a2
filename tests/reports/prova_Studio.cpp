// Figures for estimates of error: sums and products by hand, intervals, the gathering over threads.

#include "AmbienteDiProva.h"
#include "Stampe.h"
#include "Studio.h"
#include "modCarte.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>
#include <vector>

using namespace Stampe;
using aiuti::AmbienteDiProva;

TEST(Studio, SommeEStimaPerMano)
{
    // Three shoes of 2, 2 and 4 coups with 1, 0 and 3 wins of Nero: rate 4/8.
    Studio studio;
    const auto taglia = [&studio](double nero, double rosso, const char* primo) {
        modCarte::Statistiche = {};
        modCarte::Statistiche.VinceNero = nero;
        modCarte::Statistiche.VinceRosso = rosso;
        modCarte::Colpi = {"0", primo};
        studio.AggiungiTaglia();
    };
    taglia(1, 1, "1,N,C,32,33,,");
    taglia(0, 2, "1,R,I,33,32,,");
    taglia(3, 1, "1,E,E,31,31,,");
    EXPECT_EQ(studio.Taglie(), 3);
    EXPECT_EQ(studio.ColpiCompleti(), 8);
    const auto stima = StimaTasso(studio, 0);
    EXPECT_DOUBLE_EQ(stima.Tasso, 0.5);
    // Residuals x - c/2: 0, -1, 1; squares 2; sqrt(2 * 3/2) / 8.
    EXPECT_DOUBLE_EQ(stima.ErroreStandard, std::sqrt(3.0) / 8);
    EXPECT_EQ(studio.Esito(0).PrimoColpo, 1);
    EXPECT_EQ(studio.Esito(1).PrimoColpo, 1);
    EXPECT_EQ(studio.Esito(2).PrimoColpo, 1); // Colore
    EXPECT_EQ(studio.Esito(3).PrimoColpo, 1); // Inverso
    EXPECT_EQ(studio.Esito(4).PrimoColpo, 1); // Pari
    EXPECT_EQ(studio.Esito(5).PrimoColpo, 1); // 31 après
    EXPECT_EQ(studio.Esito(6).PrimoColpo, 1); // Nero-Colore
    EXPECT_EQ(studio.Esito(7).PrimoColpo, 0);
    EXPECT_EQ(studio.Esito(8).PrimoColpo, 0);
    EXPECT_EQ(studio.Esito(9).PrimoColpo, 1); // Rosso-Inverso
    // 1 of 3 where 1/4 is expected: 0.25 / sqrt(3 * 3/16).
    EXPECT_DOUBLE_EQ(ScartoPrimoColpo(studio, 0, 0.25), 0.25 / 0.75);
}

TEST(Studio, UnaSolaTagliaNonHaErroreStandard)
{
    modCarte::AvviaSeme(1, 1);
    modCarte::SimulaTaglia();
    Studio studio;
    studio.AggiungiTaglia();
    EXPECT_TRUE(std::isnan(StimaTasso(studio, 0).ErroreStandard));
}

namespace {

// The study of shoes told as wins of Nero and of Rosso.
Studio StudioDi(const std::vector<std::pair<double, double>>& taglie)
{
    Studio studio;
    modCarte::Colpi = {"0", "1,N,C,32,33,,"};
    for (const auto& [nero, rosso] : taglie) {
        modCarte::Statistiche = {};
        modCarte::Statistiche.VinceNero = nero;
        modCarte::Statistiche.VinceRosso = rosso;
        studio.AggiungiTaglia();
    }
    return studio;
}

} // namespace

TEST(Studio, LErroreEZeroSoloDoveIlTassoELoStessoInOgniTaglia)
{
    // 8 of 29 twice, thirds of coups of different number, never, always.
    const std::vector<std::vector<std::pair<double, double>>> uguali = {
        {{8, 21}, {8, 21}}, {{9, 18}, {10, 20}, {8, 16}}, {{0, 28}, {0, 31}}, {{28, 0}, {31, 0}}};
    for (const auto& taglie : uguali) {
        const auto stima = StimaTasso(StudioDi(taglie), 0);
        EXPECT_EQ(stima.ErroreStandard, 0);
        EXPECT_FALSE(Intervallo95(stima, static_cast<std::int64_t>(taglie.size())));
    }
    EXPECT_GT(StimaTasso(StudioDi({{8, 21}, {8, 22}}), 0).ErroreStandard, 0);
}

TEST(Studio, UnaTagliaDiversaFraMoltissimeSiVede)
{
    auto studio = StudioDi({{8, 21}});
    constexpr int raddoppi = 40; // 2^40 shoes alike
    for (int i = 0; i < raddoppi; ++i) studio.Aggiungi(Studio(studio));
    EXPECT_EQ(StimaTasso(studio, 0).ErroreStandard, 0);
    studio.Aggiungi(StudioDi({{9, 20}}));
    // One residual of 1: the error is 1 / all coups, but for the 40th binary digit.
    const auto stima = StimaTasso(studio, 0);
    EXPECT_NEAR(stima.ErroreStandard * 29 * std::ldexp(1.0, raddoppi), 1, 1e-9);
}

TEST(Studio, LIntervalloDiDueTaglieESecondoStudentEResta0E1)
{
    // Rates 1/4 and 3/4: residuals 1 and -1, error sqrt(2 * 2) / 8, 12.7 times that to each side.
    const auto larga = StimaTasso(StudioDi({{1, 3}, {3, 1}}), 0);
    EXPECT_DOUBLE_EQ(larga.ErroreStandard, 0.25);
    const auto tutto = Intervallo95(larga, 2);
    ASSERT_TRUE(tutto);
    EXPECT_EQ(tutto->Minimo, 0);
    EXPECT_EQ(tutto->Massimo, 1);
    const auto stretto = Intervallo95({0.5, 0.01}, 2);
    ASSERT_TRUE(stretto);
    EXPECT_NEAR(stretto->Minimo, 0.5 - 0.12706204736174694, 1e-15);
    EXPECT_NEAR(stretto->Massimo, 0.5 + 0.12706204736174694, 1e-15);
    EXPECT_FALSE(Intervallo95(StimaTasso(StudioDi({{1, 3}}), 0), 1));
}

TEST(Studio, UnPariOltreTrentunoNonETrentuno)
{
    modCarte::Statistiche = {};
    modCarte::Colpi = {"0", "1,E,E,35,35,,"};
    Studio studio;
    studio.AggiungiTaglia();
    EXPECT_EQ(studio.Esito(4).PrimoColpo, 1);
    EXPECT_EQ(studio.Esito(5).PrimoColpo, 0);
}

TEST(Studio, LaRaccoltaNonDipendeDaiFili)
{
    AmbienteDiProva prova;
    AmbienteInUso.PreparaTaglia = [](std::int64_t taglia) {
        modCarte::AvviaSeme(5, static_cast<std::uint64_t>(taglia));
        modCarte::MescolaMazzo();
    };
    Studio uno;
    AmbienteInUso.Raccolta = &uno;
    SoloTotali(500, {});
    Studio due;
    AmbienteInUso.Raccolta = &due;
    AmbienteInUso.Fili = 2;
    const auto totali = SoloTotali(500, {});
    ASSERT_TRUE(totali);
    EXPECT_EQ(uno.Taglie(), 500);
    EXPECT_EQ(due.Taglie(), 500);
    EXPECT_EQ(uno.QuadratiColpi(), due.QuadratiColpi());
    EXPECT_EQ(due.ColpiCompleti(), totali->VinceNero + totali->VinceRosso + totali->Pari);
    for (std::size_t i = 0; i < modCarte::NumeroEsiti; ++i) {
        EXPECT_EQ(uno.Esito(i).Totale, due.Esito(i).Totale);
        EXPECT_EQ(uno.Esito(i).Quadrati, due.Esito(i).Quadrati);
        EXPECT_EQ(uno.Esito(i).Prodotti, due.Esito(i).Prodotti);
        EXPECT_EQ(uno.Esito(i).PrimoColpo, due.Esito(i).PrimoColpo);
    }
    EXPECT_EQ(uno.Esito(0).Totale, totali->VinceNero);
    EXPECT_EQ(uno.Esito(5).Totale, totali->TrentunoApres);
    EXPECT_EQ(uno.Esito(9).Totale, totali->RossoInverso);
}
