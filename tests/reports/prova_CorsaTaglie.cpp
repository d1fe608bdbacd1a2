// The run that all reports share and what it derives from a shoe.

#include "Aiuti.h"
#include "ErroreRuntime.h"
#include "Stampe.h"
#include "Studio.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <limits>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

using namespace Stampe;
using aiuti::AmbienteDiProva;

namespace {

// A shoe of k records of which the last one is given; Posizione as at the end of a shoe.
CifreTaglia CifreCon(std::size_t k, const std::string& ultimo)
{
    modCarte::Colpi.Lista().assign(k + 1, "1,N,C,32,33,KP#9C#5F#8Q,10F#QC#7P#6Q");
    modCarte::Colpi.Lista().back() = ultimo;
    modCarte::Posizione = 313;
    return DerivaCifre();
}

void DalSeme(std::uint64_t seme)
{
    AmbienteInUso.PreparaTaglia = [seme](std::int64_t taglia) {
        modCarte::AvviaSeme(seme, static_cast<std::uint64_t>(taglia));
        modCarte::MescolaMazzo();
    };
}

} // namespace

TEST(CifreTaglia, UltimoRecordBreveASessantuno)
{
    const auto cifre = CifreCon(30, "30,,,34,27,KP#9C#5F#10Q,10F#QC#7P");
    EXPECT_TRUE(cifre.UltimoBreve);
    EXPECT_EQ(cifre.ColpiTesto, 28);
    EXPECT_EQ(cifre.ColpiPagina, 29);
    EXPECT_EQ(cifre.ColpiTotali, 29);
    EXPECT_EQ(cifre.CarteUsate, 308 - 7);
}

TEST(CifreTaglia, UltimoRecordLungoASessantadue)
{
    const auto cifre = CifreCon(30, "30,,,35,27,KP#9C#6F#10Q,10F#QC#7P");
    EXPECT_FALSE(cifre.UltimoBreve);
    EXPECT_EQ(cifre.ColpiTesto, 29);
    EXPECT_EQ(cifre.ColpiPagina, 30);
    EXPECT_EQ(cifre.ColpiTotali, 30);
    EXPECT_EQ(cifre.CarteUsate, 308);
}

TEST(CifreTaglia, RecordFinaleVuotoNonHaCarte)
{
    const auto cifre = CifreCon(30, "30,,,0,0,,");
    EXPECT_TRUE(cifre.UltimoBreve);
    EXPECT_EQ(cifre.CarteUsate, 308); // from 313, one more than there are, on purpose
}

TEST(CifreTaglia, SoloLaManoNeroNelRecordBreve)
{
    EXPECT_EQ(CifreCon(30, "30,,,24,0,KP#9C#5F,").CarteUsate, 305);
}

TEST(CifreTaglia, TotaliCheNonSonoNumeriSonoUnErrore)
{
    EXPECT_THROW(CifreCon(30, "30,,,x,0,,"), ErroreRuntime);
    EXPECT_THROW(CifreCon(30, "30,,"), ErroreRuntime);
    EXPECT_THROW(CifreCon(30, "30,,,32768,0,,"), ErroreRuntime);
    modCarte::Colpi.Lista().clear();
    EXPECT_THROW(DerivaCifre(), ErroreRuntime);
}

TEST(TaglieDaFare, ArrotondaLeMetaAlPari)
{
    EXPECT_EQ(TaglieDaFare(1), 1);
    EXPECT_EQ(TaglieDaFare(1.5), 2);
    EXPECT_EQ(TaglieDaFare(2.5), 2);
    EXPECT_EQ(TaglieDaFare(3.5), 4);
    EXPECT_EQ(TaglieDaFare(40000), 40000); // 16 bits are no limit
    EXPECT_EQ(TaglieDaFare(9007199254740992.0), std::int64_t{1} << 53);
}

TEST(TaglieDaFare, RifiutaSottoUnoEOltreDuePerCinquantatre)
{
    const auto numero = [](double taglie) {
        try {
            TaglieDaFare(taglie);
        } catch (const ErroreRuntime& errore) {
            return static_cast<int>(errore.Numero());
        }
        return 0;
    };
    EXPECT_EQ(numero(0), 5);
    EXPECT_EQ(numero(0.99), 5);
    EXPECT_EQ(numero(-1), 5);
    EXPECT_EQ(numero(std::nan("")), 5);
    EXPECT_EQ(numero(9007199254740994.0), 6);
    EXPECT_EQ(numero(std::numeric_limits<double>::infinity()), 6);
}

TEST(CorsaTaglie, ITotaliSonoLaSommaDelleTaglie)
{
    const AmbienteDiProva prova;
    DalSeme(3);
    TotaliReport attesi;
    for (std::uint64_t i = 1; i <= 25; ++i) {
        modCarte::AvviaSeme(3, i);
        modCarte::SimulaTaglia();
        const auto cifre = DerivaCifre();
        attesi.Colpi += cifre.ColpiTotali;
        attesi.CarteUsate += cifre.CarteUsate;
        attesi.VinceNero += static_cast<std::int64_t>(modCarte::Statistiche.VinceNero);
        attesi.VinceRosso += static_cast<std::int64_t>(modCarte::Statistiche.VinceRosso);
        attesi.Colore += static_cast<std::int64_t>(modCarte::Statistiche.Colore);
        attesi.Inverso += static_cast<std::int64_t>(modCarte::Statistiche.Inverso);
        attesi.Pari += static_cast<std::int64_t>(modCarte::Statistiche.Pari);
        attesi.TrentunoApres += static_cast<std::int64_t>(modCarte::Statistiche.TrentunoApres);
        attesi.NeroColore += static_cast<std::int64_t>(modCarte::Statistiche.NeroColore);
        attesi.NeroInverso += static_cast<std::int64_t>(modCarte::Statistiche.NeroInverso);
        attesi.RossoColore += static_cast<std::int64_t>(modCarte::Statistiche.RossoColore);
        attesi.RossoInverso += static_cast<std::int64_t>(modCarte::Statistiche.RossoInverso);
    }
    EXPECT_EQ(SoloTotali(25, {}), attesi);
}

TEST(CorsaTaglie, IFiliNonCambianoITotali)
{
    AmbienteDiProva prova;
    DalSeme(11);
    const auto uno = SoloTotali(1001, {});
    for (const int fili : {2, 3, 8}) {
        AmbienteInUso.Fili = fili;
        EXPECT_EQ(SoloTotali(1001, {}), uno) << fili;
    }
    AmbienteInUso.Fili = 64;
    EXPECT_TRUE(SoloTotali(3, {})); // more threads than shoes
}

TEST(CorsaTaglie, OgniTagliaUnaVoltaAncheConPiuFili)
{
    AmbienteDiProva prova;
    std::mutex chiave;
    std::multiset<std::int64_t> viste;
    std::set<std::thread::id> fili;
    AmbienteInUso.PreparaTaglia = [&](std::int64_t taglia) {
        modCarte::AvviaSeme(1, static_cast<std::uint64_t>(taglia));
        modCarte::MescolaMazzo();
        const std::lock_guard guardia(chiave);
        viste.insert(taglia);
        fili.insert(std::this_thread::get_id());
    };
    AmbienteInUso.Fili = 2;
    ASSERT_TRUE(SoloTotali(2000, {}));
    EXPECT_EQ(viste.size(), 2000U);
    EXPECT_EQ(*viste.begin(), 1);
    EXPECT_EQ(*viste.rbegin(), 2000);
    EXPECT_EQ(std::set<std::int64_t>(viste.begin(), viste.end()).size(), 2000U);
    EXPECT_LE(fili.size(), 2U);
}

TEST(CorsaTaglie, UnErroreInUnFiloArrivaAChiChiama)
{
    AmbienteDiProva prova;
    const auto chiamante = std::this_thread::get_id();
    AmbienteInUso.PreparaTaglia = [chiamante](std::int64_t taglia) {
        modCarte::AvviaSeme(1, static_cast<std::uint64_t>(taglia));
        modCarte::MescolaMazzo();
        if (std::this_thread::get_id() != chiamante) {
            throw ErroreRuntime(NumeroErrore::TipoNonCorrispondente, "nel filo");
        }
    };
    AmbienteInUso.Fili = 2;
    try {
        // Without an end of its own: only the other thread's failure can end this run.
        SoloTotali(1e12, {});
        FAIL() << "no error";
    } catch (const ErroreRuntime& errore) {
        EXPECT_EQ(errore.Motivo(), "nel filo");
    }
}

TEST(CorsaTaglie, FermareVieneChiestoDopoOgniTaglia)
{
    AmbienteDiProva prova;
    DalSeme(1);
    int domande = 0;
    std::vector<std::int64_t> fatte;
    AmbienteInUso.Fermare = [&] { return ++domande == 4; };
    AmbienteInUso.TagliaFatta = [&](std::int64_t numero) { fatte.push_back(numero); };
    EXPECT_EQ(SoloTotali(10, {}), std::nullopt);
    EXPECT_EQ(domande, 4);
    EXPECT_EQ(fatte, (std::vector<std::int64_t>{1, 2, 3, 4}));
    for (const bool html : {false, true}) {
        domande = 0;
        EXPECT_EQ(html ? StampaHtml(10) : StampaTxt(10), std::nullopt);
        EXPECT_EQ(domande, 4);
    }
}

TEST(CorsaTaglie, FermareVaAncheConPiuFili)
{
    AmbienteDiProva prova;
    DalSeme(1);
    std::atomic<int> domande = 0;
    AmbienteInUso.Fili = 2;
    AmbienteInUso.Fermare = [&] { return ++domande >= 100; };
    EXPECT_EQ(SoloTotali(1e12, {}), std::nullopt);
}

TEST(Avanzamento, DidascaliaEUnaCessionePerTaglia)
{
    AmbienteDiProva prova;
    DalSeme(1);
    std::vector<std::string> didascalie;
    int cessioni = 0;
    AmbienteInUso.Cedi = [&] { ++cessioni; };
    const EtichettaStato etichetta = [&](std::string_view testo) {
        didascalie.emplace_back(testo);
    };
    ASSERT_TRUE(SoloTotali(12, etichetta));
    ASSERT_EQ(didascalie.size(), 12U);
    EXPECT_EQ(didascalie.front(), "Elaborazione in corso. Attendere... Taglia 1 di 12");
    EXPECT_EQ(didascalie.back(), "Elaborazione in corso. Attendere... Taglia 12 di 12");
    EXPECT_EQ(cessioni, 12);
}

TEST(Avanzamento, IlNumeroChiestoRestaComeE)
{
    AmbienteDiProva prova;
    DalSeme(1);
    std::vector<std::string> didascalie;
    ASSERT_TRUE(SoloTotali(2.5, [&](std::string_view testo) { didascalie.emplace_back(testo); }));
    EXPECT_EQ(didascalie,
              (std::vector<std::string>{"Elaborazione in corso. Attendere... Taglia 1 di 2.5",
                                        "Elaborazione in corso. Attendere... Taglia 2 di 2.5"}));
    didascalie.clear();
    AmbienteInUso.Fermare = [] { return true; };
    SoloTotali(1e15, [&](std::string_view testo) { didascalie.emplace_back(testo); });
    EXPECT_EQ(didascalie.back(),
              "Elaborazione in corso. Attendere... Taglia 1 di 1000000000000000");
}

TEST(Avanzamento, IReportPieniNonCedono)
{
    AmbienteDiProva prova;
    DalSeme(1);
    int cessioni = 0;
    AmbienteInUso.Cedi = [&] { ++cessioni; };
    StampaTxt(3);
    StampaHtml(3);
    EXPECT_EQ(cessioni, 0);
    StatisticheTxt(3, {});
    EXPECT_EQ(cessioni, 3);
    StatisticheHtml(3, {});
    EXPECT_EQ(cessioni, 6);
}

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
    DalSeme(5);
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
