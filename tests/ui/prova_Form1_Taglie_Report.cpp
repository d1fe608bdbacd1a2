// What the batch run gives: the report of each form and extent, the figures on screen, the
// progress.

#include "Finestra.h"
#include "MazziDiProva.h"

#include "Orologio.h"
#include "Stampe.h"
#include "modCarte.h"

#include <cstdlib>

using namespace aiuti;

namespace {

// No program at all can be found while this lives.
class SenzaProgrammi
{
public:
    SenzaProgrammi() { ::setenv("PATH", "/cartella/che/non/esiste", 1); }
    ~SenzaProgrammi() { ::setenv("PATH", m_prima.c_str(), 1); }
    SenzaProgrammi(const SenzaProgrammi&) = delete;
    SenzaProgrammi& operator=(const SenzaProgrammi&) = delete;

private:
    std::string m_prima = std::getenv("PATH");
};

using Nomi = std::vector<std::string>;

const char* const NomeReport[] = {"taglie.htm", "taglie.pdf", "taglie.txt"};

} // namespace

TEST_F(Finestra, TutteLeCombinazioniDannoLaLoroUscita)
{
    const CalendarioDorato calendario; // a PDF names the moment of its making
    Risponditore mano;
    for (const bool statistiche : {false, true}) {
        for (std::size_t forma = 0; forma < 3; ++forma) {
            Scegli(forma, statistiche);
            Scrivi("3");
            modCarte::AvviaSeme(9, forma);
            Clicca("cmdTaglie");
            ASSERT_EQ(ambiente.Aperti.size(), 1U);
            const auto percorso = ambiente.Cartella.Nome() + NomeReport[forma];
            EXPECT_EQ(ambiente.Aperti[0], percorso);
            EXPECT_EQ(ambiente.Stili[0], forma == FormaTxt ? StileFinestra::NormaleConFuoco
                                                           : StileFinestra::MassimizzataConFuoco);
            const auto daFinestra = Byte(percorso);
            // The same shoes without the window.
            modCarte::AvviaSeme(9, forma);
            if (forma == FormaHtml)
                statistiche ? Stampe::StatisticheHtml(3, {}) : Stampe::StampaHtml(3);
            if (forma == FormaTxt)
                statistiche ? Stampe::StatisticheTxt(3, {}) : Stampe::StampaTxt(3);
            if (forma == FormaPdf)
                statistiche ? Stampe::StatistichePdf(3, {}) : Stampe::StampaPdf(3);
            EXPECT_TRUE(Byte(percorso) == daFinestra) << NomeReport[forma] << statistiche;
            ambiente.Aperti.clear();
            ambiente.Stili.clear();
        }
    }
    Scegli(FormaVideo, true);
    Scrivi("3");
    Clicca("cmdTaglie");
    EXPECT_TRUE(ambiente.Aperti.empty());
    EXPECT_EQ(registro->Testi()[1], "Statistiche generali");
    EXPECT_TRUE(mano.Visti.empty());
    // The text report was deleted by the one on screen.
    EXPECT_EQ(ambiente.Cartella.Contenuto(), (Nomi{"taglie.htm", "taglie.pdf"}));
}

// The report is there all the same, and whoever wants it learns where; help stays silent.
TEST_F(Finestra, UnReportCheNessunoApreVieneNominato)
{
    Risponditore mano;
    const SenzaProgrammi nessuno;
    finestra->ImpostaAmbiente();
    Stampe::AmbienteInUso.Cartella = ambiente.Cartella.Nome();
    for (const bool statistiche : {false, true}) {
        for (std::size_t forma = 0; forma < 3; ++forma) {
            Scegli(forma, statistiche);
            mano.Visti.clear();
            Clicca("cmdTaglie");
            const auto percorso = ambiente.Cartella.Nome() + NomeReport[forma];
            EXPECT_EQ(mano.Visti, std::vector{Esclamazione(
                                      "Nessun programma ha potuto aprire il report:\n" + percorso +
                                      "\nScalvino lo elimina quando si chiude.")});
            EXPECT_GT(Byte(percorso).size(), 400U);
        }
    }
    mano.Visti.clear();
    Clicca("cmdHelp");
    EXPECT_EQ(Byte(ambiente.Cartella.Nome() + "scalvino.htm").size(), 12936U);
    EXPECT_TRUE(mano.Visti.empty());
    EXPECT_EQ(Gioco(), "100");
}

// The figures of the golden text report of the same shoes: averages per shoe, cards of all shoes.
TEST_F(Finestra, LeCifreAVideoSonoQuelleDelReportDorato)
{
    ambiente.Distribuisci(MazziDorati("dodici.mazzi"));
    Scegli(FormaVideo, true);
    Scrivi("12");
    Clicca("cmdTaglie");
    const auto schermata = registro->UltimaSchermata();
    ASSERT_GT(schermata.size(), 9U);
    EXPECT_EQ(Nomi(schermata.begin(), schermata.begin() + 9),
              (Nomi{"pulisci", "font Arial Black 20 grassetto", "posto 1120 180",
                    "colore 127,127,127", "stampa SCALVINO", "posto 1100 160", "colore 255,0,0",
                    "stampa SCALVINO", "colore 0,0,0"}));
    EXPECT_EQ(schermata.back(), "aggiorna");
    EXPECT_EQ(registro->Testi(), (Nomi{"Simulazione taglie",
                                       "Statistiche generali",
                                       "Taglie:",
                                       "Colpi totali:",
                                       "Carte utilizzate:",
                                       "Vincite Nero:",
                                       "Vincite Rosso:",
                                       "Colpi pari:",
                                       "Vincite Colore:",
                                       "Vincite Inverso:",
                                       "31 après:",
                                       "Nero-Colore:",
                                       "Nero-Inverso:",
                                       "Rosso-Colore:",
                                       "Rosso-Inverso:",
                                       "12",
                                       "342",
                                       "3.627",
                                       "158",
                                       "147",
                                       "36",
                                       "162",
                                       "143",
                                       "7",
                                       "84",
                                       "74",
                                       "78",
                                       "69",
                                       "28,50",
                                       "96,88%",
                                       "46,20%",
                                       "42,98%",
                                       "10,53%",
                                       "47,37%",
                                       "41,81%",
                                       "2,05%",
                                       "24,56%",
                                       "21,64%",
                                       "22,81%",
                                       "20,18%"}));
}

// The caption is right at every shoe; the picture of it may lag by 15 ms.
TEST_F(Finestra, LoStatoNonSiDipingeAOgniTaglia)
{
    Scegli(FormaTxt, true);
    Scrivi("3000");
    const ContaDipinti contatore(Trova("lblStatus"));
    const double inizio = SecondiTrascorsi();
    Clicca("cmdTaglie");
    const double durata = SecondiTrascorsi() - inizio;
    EXPECT_GE(contatore.Dipinti, durata / 0.03 - 1);
    EXPECT_LE(contatore.Dipinti, durata / 0.015 + 4);
    EXPECT_TRUE(Trova("lblStatus")->updatesEnabled());
}

// A shoe that takes longer than that is always shown.
TEST_F(Finestra, LoStatoDiUnaTagliaLentaSiDipinge)
{
    constexpr int taglie = 10;
    constexpr int millesimi = 20;
    Scegli(FormaTxt, true);
    Scrivi(std::to_string(taglie));
    Stampe::AmbienteInUso.PreparaTaglia = [](std::int64_t) {
        QTest::qSleep(millesimi);
        modCarte::MescolaMazzo();
    };
    const ContaDipinti contatore(Trova("lblStatus"));
    Clicca("cmdTaglie");
    EXPECT_GE(contatore.Dipinti, taglie);
}
