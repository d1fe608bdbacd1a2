// The run that all reports share and what it derives from a shoe.

#include "AmbienteDiProva.h"
#include "ErroreRuntime.h"
#include "Stampe.h"
#include "modCarte.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <limits>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>
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

TEST(NumeroTaglie, ArrotondaLeMetaAlPari)
{
    EXPECT_EQ(NumeroTaglie(1).DaFare(), 1);
    EXPECT_EQ(NumeroTaglie(1.5).DaFare(), 2);
    EXPECT_EQ(NumeroTaglie(2.5).DaFare(), 2);
    EXPECT_EQ(NumeroTaglie(3.5).DaFare(), 4);
    EXPECT_EQ(NumeroTaglie(40000).DaFare(), 40000); // 16 bits are no limit
    EXPECT_EQ(NumeroTaglie(9007199254740992.0).DaFare(), std::int64_t{1} << 53);
}

TEST(NumeroTaglie, LeMetaSiMostranoPerEccesso)
{
    EXPECT_EQ(NumeroTaglie(2.5).Mostrate(), 3);
    EXPECT_EQ(NumeroTaglie(2.5).Chieste(), 2.5);
    EXPECT_EQ(NumeroTaglie(2.4).Mostrate(), 2);
}

TEST(NumeroTaglie, PocoPiuDiUnaESempreUnReportDiTante)
{
    EXPECT_FALSE(NumeroTaglie(1).PiuDiUna());
    EXPECT_TRUE(NumeroTaglie(1.2).PiuDiUna());
    EXPECT_EQ(NumeroTaglie(1.2).DaFare(), 1);
}

TEST(NumeroTaglie, RifiutaSottoUnoEOltreDuePerCinquantatre)
{
    const auto numero = [](double taglie) {
        try {
            const NumeroTaglie chieste(taglie);
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
