// One shoe played coup by coup: states, screens, keyboard.

#include "Finestra.h"

#include "Schermate.h"
#include "modCarte.h"

#include <QApplication>

using namespace aiuti;
using R = Registratore;

namespace {

using Passi = std::vector<std::string>;

Passi SchermataNuova()
{
    return {
        "pulisci",
        R::Carta(50, 50, 53, 1),
        R::Carta(100, 80, 53, 1),
        R::Carta(150, 110, 53, 1),
        R::Carta(200, 140, 53, 1),
        R::Carta(250, 170, 53, 1),
        R::Testo("Nuova taglia", 2600, 200, "Arial", 22),
        R::Testo("5 carte annullate", 2400, 4900, "Arial", 22),
        R::Testo("Premi 'Colpo successivo --->' per iniziare la partita", 1500, 5400, "Arial", 14),
        "aggiorna"};
}

const std::string Nero = R::Testo("NERO", 150, 2450, "Arial Black", 32, 900);
const std::string Rosso = R::Testo("ROSSO", 150, 4550, "Arial Black", 32, 900);
const std::string Prosegui =
    R::Testo("Premi 'Colpo successivo --->' per proseguire nella partita", 2000, 5400, "Arial", 14);
const std::string Ricomincia =
    R::Testo("Premi 'Annulla taglia' per iniziare una nuova partita", 1500, 5410, "Arial", 14);

std::string Totale(const std::string& testo, int y)
{
    return R::Testo(testo, 7600, y, "Arial", 28);
}

constexpr const char* Versione = "Scalvino - Programma freeware - Versione 1.0.0";

} // namespace

TEST_F(Finestra, AllInizioSiPuoSoloMescolare)
{
    EXPECT_EQ(Gioco(), "100");
    EXPECT_EQ(Stato(), "");
    EXPECT_EQ(registro->Passi, SchermataTitolo());
}

TEST_F(Finestra, MescolareMostraLaNuovaTaglia)
{
    Clicca("cmdMescola");
    EXPECT_EQ(Gioco(), "011");
    EXPECT_EQ(Stato(), Versione);
    EXPECT_EQ(registro->UltimaSchermata(), SchermataNuova());
    EXPECT_GT(modCarte::Colpi.size(), 20U);
    EXPECT_EQ(modCarte::Posizione, 313);
}

TEST_F(Finestra, UnColpoSiDisegnaPassoPerPasso)
{
    Clicca("cmdMescola");
    Colpi({"0", "1,R,I,33,32,KC#AQ#QF#2P#10C,JC#KQ#9F#3P", "2,,,0,0,,"});
    Clicca("cmdColpo");
    EXPECT_EQ(
        registro->UltimaSchermata(),
        (Passi{
            "pulisci", Nero, Rosso, R::Testo("Colpo della taglia: 1", 2000, 200, "Arial", 22),
            R::Carta(60, 70, 50), R::Carta(120, 70, 1), R::Carta(180, 70, 44), R::Carta(240, 70, 7),
            R::Carta(300, 70, 38), R::Carta(60, 210, 42), R::Carta(120, 210, 49),
            R::Carta(180, 210, 32), R::Carta(240, 210, 11), Totale("33", 1650), Totale("32", 3700),
            R::Testo("Vincono ROSSO e INVERSO", 2200, 4900, "Arial", 22), Prosegui, "aggiorna"}));
    EXPECT_EQ(Gioco(), "011");
}

TEST_F(Finestra, OgniEsitoHaLaSuaDidascalia)
{
    struct Caso
    {
        const char* Campi; // outcome, colour, totals
        const char* Testo; // empty: none
        int X;
    };
    const std::vector<Caso> casi = {
        {"N,C,31,32", "Vincono NERO e COLORE", 2200},
        {"N,I,31,32", "Vincono NERO e INVERSO", 2200},
        {"N,x,31,32", "Vincono NERO e INVERSO", 2200},
        {"N,c,31,32", "Vincono NERO e INVERSO", 2200},
        {"R,C,33,32", "Vincono ROSSO e COLORE", 2200},
        {"R,I,33,32", "Vincono ROSSO e INVERSO", 2200},
        {"E,E,31,31", "31 APRES", 3000},
        {"E,E,35,35", "Colpo PARI", 2700},
        {"E,E,31,031", "Colpo PARI", 2700},
        {"n,C,31,32", "", 0},
        {",,31,32", "", 0},
    };
    Clicca("cmdMescola");
    std::vector<std::string> record = {"0"};
    for (const auto& caso : casi) record.push_back("1," + std::string(caso.Campi) + ",AC,AP");
    record.push_back("9,,,0,0,,");
    Colpi(record);
    for (const auto& caso : casi) {
        Clicca("cmdColpo");
        const auto schermata = registro->UltimaSchermata();
        const auto esito = R::Testo(caso.Testo, caso.X, 4900, "Arial", 22);
        // Between the totals and the prompt, or nothing at all.
        ASSERT_GE(schermata.size(), 9U);
        EXPECT_EQ(schermata[schermata.size() - 2], Prosegui);
        const auto& prima = schermata[schermata.size() - 3];
        if (*caso.Testo == '\0') EXPECT_EQ(prima, Totale("32", 3700));
        else EXPECT_EQ(prima, esito) << caso.Campi;
    }
}

TEST_F(Finestra, SetteEOttoCarteStannoDoveDevono)
{
    const std::string sette = "AC#AC#AC#AC#AC#AC#AC";
    const std::string otto = sette + "#AC";
    Clicca("cmdMescola");
    Colpi({"0", "1,E,E,31,31," + sette + "," + otto, "2,,,30,12," + sette + "," + otto});
    Clicca("cmdColpo");
    auto schermata = registro->UltimaSchermata();
    EXPECT_EQ(schermata[4 + 6], R::Carta(420, 70, 2));
    EXPECT_EQ(schermata[4 + 7 + 7], R::Carta(375, 210, 2));
    Clicca("cmdColpo");
    schermata = registro->UltimaSchermata();
    EXPECT_EQ(schermata[4 + 6], R::Carta(420, 70, 2));
    EXPECT_EQ(schermata[4 + 7 + 7], R::Carta(410, 210, 2));
}

TEST_F(Finestra, LaFineConCarteRimaste)
{
    Clicca("cmdMescola");
    modCarte::Statistiche = {17, 16, 18, 15, 2, 1, 9, 8, 9, 7};
    std::vector<std::string> record(70, "1,N,C,31,32,AC,AP");
    record.push_back("70,,,32,27,KP#9C#5F#8Q,10F#QC#7P");
    Colpi(record);
    for (int i = 1; i <= 69; ++i) Clicca("cmdColpo");
    EXPECT_EQ(registro->Testi()[2], "Colpo della taglia: 69");
    EXPECT_EQ(Gioco(), "011");
    Clicca("cmdColpo");
    EXPECT_EQ(
        registro->UltimaSchermata(),
        (Passi{"pulisci", Nero, Rosso, R::Testo("Fine taglia", 2600, 200, "Arial", 22),
               R::Carta(60, 70, 51), R::Carta(120, 70, 34), R::Carta(180, 70, 16),
               R::Carta(240, 70, 29), R::Carta(60, 210, 36), R::Carta(120, 210, 46),
               R::Carta(180, 210, 27), Totale("32", 1650), Totale("27", 3700),
               R::Testo("Restano 7 carte", 2400, 4800, "Arial", 22),
               R::Testo("Carte utilizzate: 300 - Colpi: 69 - Nero-Rosso: 17-16 - Colore-Inverso: "
                        "18-15 - Pari: 2 (1 31après)",
                        400, 5160, "Arial", 14),
               Ricomincia, "aggiorna"}));
    EXPECT_EQ(Gioco(), "001");
}

TEST_F(Finestra, LaFineSenzaCarte)
{
    Clicca("cmdMescola");
    modCarte::Statistiche = {};
    std::vector<std::string> record(70, "1,N,C,31,32,AC,AP");
    record.push_back("70,,,0,0,,");
    Colpi(record);
    for (int i = 1; i <= 70; ++i) Clicca("cmdColpo");
    EXPECT_EQ(
        registro->UltimaSchermata(),
        (Passi{"pulisci", Nero, Rosso, R::Testo("Fine taglia", 2600, 200, "Arial", 22),
               Totale("0", 1650), Totale("0", 3700),
               R::Testo("Restano 0 carte", 2400, 4800, "Arial", 22),
               R::Testo("Carte utilizzate: 307 - Colpi: 69 - Nero-Rosso: 0-0 - Colore-Inverso: 0-0 "
                        "- Pari: 0 (0 31après)",
                        400, 5160, "Arial", 14),
               Ricomincia, "aggiorna"}));
}

TEST_F(Finestra, LaFineLungaPassaPerUnColpo)
{
    Clicca("cmdMescola");
    Colpi({"0", "1,N,C,31,32,AC,AP", "2,,,35,29,KC#KQ#10F#5P,KC#KQ#9F"});
    Clicca("cmdColpo");
    Clicca("cmdColpo");
    EXPECT_EQ(registro->UltimaSchermata(),
              (Passi{"pulisci", Nero, Rosso,
                     R::Testo("Colpo della taglia: 2 (ultimo)", 2000, 200, "Arial", 22),
                     R::Carta(60, 70, 50), R::Carta(120, 70, 49), R::Carta(180, 70, 36),
                     R::Carta(240, 70, 19), R::Carta(60, 210, 50), R::Carta(120, 210, 49),
                     R::Carta(180, 210, 32), Totale("35", 1650), Totale("29", 3700), Ricomincia,
                     "aggiorna"}));
    EXPECT_EQ(Gioco(), "001");
}

TEST_F(Finestra, LaSogliaDellaFineE61)
{
    for (const auto& [nero, rosso, lunga] :
         {std::tuple("31", "30", false), std::tuple("31", "31", true),
          std::tuple("32", "30", true)}) {
        Clicca("cmdMescola");
        Colpi({"0", std::string("1,,,") + nero + "," + rosso + ",AC,AP"});
        Clicca("cmdColpo");
        EXPECT_EQ(registro->Testi()[2], lunga ? "Colpo della taglia: 1 (ultimo)" : "Fine taglia");
        EXPECT_EQ(registro->Testi().size(), lunga ? 6U : 8U);
        Clicca("cmdCancel");
    }
}

// The final record never carries an outcome; the caption is there for one that would.
TEST_F(Finestra, SullaFineLungaIlVerboESingolare)
{
    const std::vector<std::pair<std::string, std::string>> casi = {
        {"N,C,31,32", "Vince NERO e COLORE"},
        {"N,I,31,32", "Vince NERO e INVERSO"},
        {"R,C,33,32", "Vince ROSSO e COLORE"},
        {"R,I,33,32", "Vince ROSSO e INVERSO"},
        {"E,E,31,31", "31 APRES"},
        {"E,E,34,34", "Colpo PARI"},
    };
    for (const auto& [campi, testo] : casi) {
        Clicca("cmdMescola");
        Colpi({"0", "1," + campi + ",AC,AP"});
        Clicca("cmdColpo");
        const auto schermata = registro->UltimaSchermata();
        EXPECT_EQ(schermata[schermata.size() - 3], R::Testo(testo, 2400, 4900, "Arial", 22));
        Clicca("cmdCancel");
    }
}

TEST_F(Finestra, AnnullareRiportaAlTitoloDaOgniStato)
{
    for (int colpi = 0; colpi < 60; colpi += 7) {
        Clicca("cmdMescola");
        for (int i = 0; i < colpi && Pulsante("cmdColpo")->isEnabled(); ++i) Clicca("cmdColpo");
        Clicca("cmdCancel");
        EXPECT_EQ(Gioco(), "100");
        EXPECT_EQ(Stato(), "");
        EXPECT_EQ(registro->UltimaSchermata(), SchermataTitolo());
    }
    Clicca("cmdMescola");
    Clicca("cmdColpo");
    EXPECT_EQ(registro->Testi()[2], "Colpo della taglia: 1");
}

// A whole shoe against its records, with the space bar alone.
TEST_F(Finestra, UnaTagliaInteraSiGiocaConLaBarraSpaziatrice)
{
    for (const std::uint64_t seme : {1U, 2U, 3U, 4U, 5U}) {
        modCarte::AvviaSeme(seme, 1);
        Pulsante("cmdMescola")->setFocus();
        QTest::keyClick(finestra->focusWidget(), Qt::Key_Space);
        EXPECT_EQ(finestra->focusWidget(), Pulsante("cmdColpo"));
        const auto record = modCarte::Colpi.Lista();
        const std::size_t n = record.size() - 1;
        for (std::size_t i = 1; i < n; ++i) {
            QTest::keyClick(finestra->focusWidget(), Qt::Key_Space);
            const modCarte::RecordColpo colpo(record[i]);
            const auto testi = registro->Testi();
            ASSERT_EQ(testi.size(), 7U);
            EXPECT_EQ(testi[2], "Colpo della taglia: " + std::string(colpo.Numero()));
            EXPECT_EQ(testi[3], colpo.TotaleNero());
            EXPECT_EQ(testi[4], colpo.TotaleRosso());
            EXPECT_EQ(testi[5], schermate::DidascaliaEsito(colpo, false));
            const auto carte = static_cast<std::size_t>(colpo.NumeroCarte());
            EXPECT_EQ(registro->UltimaSchermata().size(), 9U + carte);
            EXPECT_EQ(Gioco(), "011");
        }
        QTest::keyClick(finestra->focusWidget(), Qt::Key_Space);
        EXPECT_EQ(Gioco(), "001");
        EXPECT_EQ(finestra->focusWidget(), Pulsante("cmdCancel"));
        QTest::keyClick(finestra->focusWidget(), Qt::Key_Space);
        EXPECT_EQ(Gioco(), "100");
        EXPECT_EQ(finestra->focusWidget(), Pulsante("cmdMescola"));
    }
}

// Also where a click gives a button no focus.
TEST_F(Finestra, IlFuocoSegueLaPartitaDaDovunqueSia)
{
    const auto premi = [this](const char* nome) {
        Numero()->setFocus();
        Pulsante(nome)->click();
        return finestra->focusWidget();
    };
    EXPECT_EQ(premi("cmdMescola"), Pulsante("cmdColpo"));
    Colpi({"0", "1,N,C,31,32,AC,AP", "2,,,0,0,,"});
    EXPECT_EQ(premi("cmdColpo"), Numero());
    EXPECT_EQ(premi("cmdColpo"), Pulsante("cmdCancel"));
    EXPECT_EQ(premi("cmdCancel"), Pulsante("cmdMescola"));
}

TEST_F(Finestra, InvioPremeIlPulsanteConIlFuoco)
{
    Pulsante("cmdMescola")->setFocus();
    QTest::keyClick(finestra->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Gioco(), "011");
}

TEST_F(Finestra, IPulsantiBloccatiNonFannoNulla)
{
    const auto prima = registro->Passi;
    Clicca("cmdColpo");
    Clicca("cmdCancel");
    EXPECT_EQ(registro->Passi, prima);
    Clicca("cmdMescola");
    const auto dopo = registro->Passi;
    Clicca("cmdMescola");
    EXPECT_EQ(registro->Passi, dopo);
}
