// The statistics drawn on a picture, step by step.

#include "AmbienteDiProva.h"
#include "ErroreRuntime.h"
#include "MazziDiProva.h"
#include "Registratore.h"
#include "Stampe.h"

#include <gtest/gtest.h>

#include <fstream>

using namespace aiuti;
using R = Registratore;
using Passi = std::vector<std::string>;

namespace {

std::string Titoletto(const std::string& testo, int y)
{
    return R::Testo(testo, 2500, y, "Verdana", 20);
}

std::string Riga(const std::string& testo, int x, int y)
{
    return R::Testo(testo, x, y, "Verdana", 16);
}

} // namespace

// Counted by hand for the golden text report of the same shoe: 28 coups, 301 cards.
TEST(StatisticheVideo, SiDisegnanoPassoPerPasso)
{
    AmbienteDiProva ambiente;
    ambiente.Distribuisci(MazziDorati("uno_trentuno.mazzi"));
    Registratore registro;
    const auto totali = Stampe::StatisticheVideo(1, registro, {});
    ASSERT_TRUE(totali);
    const auto quota = [&](std::int64_t conto) {
        const auto centesimi = (conto * 20000 + 28) / 56; // halves do not occur here
        auto testo = std::to_string(centesimi);
        while (testo.size() < 3) testo.insert(0, "0");
        return testo.insert(testo.size() - 2, ",") + "%";
    };
    const std::vector<std::pair<int, std::int64_t>> esiti = {
        {2400, totali->VinceNero},   {2700, totali->VinceRosso},  {3000, totali->Pari},
        {3300, totali->Colore},      {3600, totali->Inverso},     {3900, totali->TrentunoApres},
        {4300, totali->NeroColore},  {4600, totali->NeroInverso}, {4900, totali->RossoColore},
        {5200, totali->RossoInverso}};
    Passi attesi = {"pulisci",
                    "font Arial Black 20 grassetto",
                    "posto 1120 180",
                    "colore 127,127,127",
                    "stampa SCALVINO",
                    "posto 1100 160",
                    "colore 255,0,0",
                    "stampa SCALVINO",
                    "colore 0,0,0",
                    Titoletto("Simulazione taglie", 750),
                    Titoletto("Statistiche generali", 1050)};
    const char* const etichette[] = {
        "Taglie:",       "Colpi totali:",   "Carte utilizzate:", "Vincite Nero:", "Vincite Rosso:",
        "Colpi pari:",   "Vincite Colore:", "Vincite Inverso:",  "31 après:",     "Nero-Colore:",
        "Nero-Inverso:", "Rosso-Colore:",   "Rosso-Inverso:"};
    const int altezze[] = {1500, 1800, 2100, 2400, 2700, 3000, 3300,
                           3600, 3900, 4300, 4600, 4900, 5200};
    for (std::size_t i = 0; i < 13; ++i) attesi.push_back(Riga(etichette[i], 1000, altezze[i]));
    attesi.push_back(Riga("1", 3500, 1500));
    attesi.push_back(Riga("28", 3500, 1800));
    attesi.push_back(Riga("301", 3500, 2100));
    for (const auto& [y, conto] : esiti) attesi.push_back(Riga(std::to_string(conto), 3500, y));
    attesi.push_back(Riga("28,00", 4500, 1800));
    attesi.push_back(Riga("96,47%", 4500, 2100));
    for (const auto& [y, conto] : esiti) attesi.push_back(Riga(quota(conto), 4500, y));
    attesi.emplace_back("aggiorna");
    EXPECT_EQ(registro.Passi, attesi);
    EXPECT_TRUE(ambiente.Cartella.Contenuto().empty());
    EXPECT_TRUE(ambiente.Aperti.empty());
}

TEST(StatisticheVideo, LoZeroSiDisegna)
{
    AmbienteDiProva ambiente;
    ambiente.Distribuisci(MazziDorati("uno_liscio.mazzi"));
    Registratore registro;
    const auto totali = Stampe::StatisticheVideo(1, registro, {});
    ASSERT_TRUE(totali);
    ASSERT_EQ(totali->TrentunoApres, 0);
    const auto passi = registro.Passi;
    EXPECT_NE(std::find(passi.begin(), passi.end(), Riga("0", 3500, 3900)), passi.end());
    EXPECT_NE(std::find(passi.begin(), passi.end(), Riga("0,00%", 4500, 3900)), passi.end());
}

TEST(StatisticheVideo, MigliaiaEAvanzamento)
{
    AmbienteDiProva ambiente;
    Registratore registro;
    Passi stati;
    int cessioni = 0;
    Stampe::AmbienteInUso.Cedi = [&] { ++cessioni; };
    ASSERT_TRUE(Stampe::StatisticheVideo(
        1200, registro, [&](std::string_view stato) { stati.emplace_back(stato); }));
    EXPECT_EQ(cessioni, 1200);
    ASSERT_EQ(stati.size(), 1200U);
    EXPECT_EQ(stati[11], "Elaborazione in corso. Attendere... Taglia 12 di 1200");
    const auto passi = registro.Passi;
    EXPECT_NE(std::find(passi.begin(), passi.end(), Riga("1.200", 3500, 1500)), passi.end());
}

TEST(StatisticheVideo, TolgonoIlVecchioReportDiTestoEBasta)
{
    AmbienteDiProva ambiente;
    Registratore registro;
    for (const char* nome : {"taglie.txt", "taglie.htm", "taglie.pdf", "scalvino.htm"}) {
        std::ofstream(ambiente.Cartella.File(nome)) << "vecchio";
    }
    ASSERT_TRUE(Stampe::StatisticheVideo(1, registro, {}));
    EXPECT_EQ(ambiente.Cartella.Contenuto(), (Passi{"scalvino.htm", "taglie.htm", "taglie.pdf"}));
}

// The general statistics of the golden text report of the same shoes.
TEST(StatisticheVideo, LeQuoteDiDodiciTaglieSonoQuelleDelTesto)
{
    AmbienteDiProva ambiente;
    ambiente.Distribuisci(MazziDorati("dodici.mazzi"));
    Registratore registro;
    ASSERT_TRUE(Stampe::StatisticheVideo(12, registro, {}));
    const Passi testi = registro.Testi();
    ASSERT_EQ(testi.size(), 40U); // 2 titles, 13 labels, 13 totals, 12 shares
    EXPECT_EQ(Passi(testi.begin() + 15, testi.end()),
              (Passi{"12",     "342",    "3.627",  "158",    "147",    "36",     "162",
                     "143",    "7",      "84",     "74",     "78",     "69",     "28,50",
                     "96,88%", "46,20%", "42,98%", "10,53%", "47,37%", "41,81%", "2,05%",
                     "24,56%", "21,64%", "22,81%", "20,18%"}));
}

TEST(StatisticheVideo, SeIlVecchioReportNonSiToglieSiFermanoPrimaDiGiocare)
{
    AmbienteDiProva ambiente;
    Registratore registro;
    std::filesystem::create_directory(ambiente.Cartella.File("taglie.txt"));
    Stampe::AmbienteInUso.PreparaTaglia = [](std::int64_t) { ADD_FAILURE() << "a shoe was dealt"; };
    EXPECT_THROW(Stampe::StatisticheVideo(1, registro, {}), ErroreRuntime);
    EXPECT_TRUE(registro.Passi.empty());
}

TEST(StatisticheVideo, FermateORifiutateNonToccanoIlDisegno)
{
    AmbienteDiProva ambiente;
    Registratore registro;
    Stampe::AmbienteInUso.Fermare = [] { return true; };
    EXPECT_FALSE(Stampe::StatisticheVideo(5, registro, {}));
    EXPECT_TRUE(registro.Passi.empty());
    std::ofstream(ambiente.Cartella.File("taglie.txt")) << "vecchio";
    EXPECT_THROW(Stampe::StatisticheVideo(0, registro, {}), ErroreRuntime);
    EXPECT_TRUE(registro.Passi.empty());
    EXPECT_EQ(ambiente.Cartella.Contenuto(), Passi{"taglie.txt"});
}

TEST(StatisticheVideo, SenzaCartellaNonCEReportDaTogliere)
{
    AmbienteDiProva ambiente;
    Registratore registro;
    Stampe::AmbienteInUso.Cartella.clear();
    EXPECT_TRUE(Stampe::StatisticheVideo(1, registro, {}));
    EXPECT_EQ(registro.Passi.back(), "aggiorna");
}
