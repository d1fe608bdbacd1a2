// What a screen reader is told of the table.

#include "Finestra.h"

#include "Ambiente.h"
#include "Racconto.h"

#include <QAccessible>

using namespace aiuti;

namespace {

std::string Tavolo(QWidget& finestra)
{
    auto* tavolo = finestra.findChild<QWidget*>(QStringLiteral("picCard"));
    auto* visto = QAccessible::queryAccessibleInterface(tavolo);
    EXPECT_EQ(visto->role(), QAccessible::Notification);
    return visto->text(QAccessible::Description).toStdString();
}

} // namespace

TEST(Racconto, LeCarteHannoIlLoroNome)
{
    EXPECT_EQ(racconto::NomeCarta(0), "asso di fiori");
    EXPECT_EQ(racconto::NomeCarta(2), "asso di cuori");
    EXPECT_EQ(racconto::NomeCarta(21), "sei di quadri");
    EXPECT_EQ(racconto::NomeCarta(39), "dieci di picche");
    EXPECT_EQ(racconto::NomeCarta(42), "fante di cuori");
    EXPECT_EQ(racconto::NomeCarta(44), "donna di fiori");
    EXPECT_EQ(racconto::NomeCarta(51), "re di picche");
    EXPECT_EQ(racconto::NomeCarta(-1), "");
    EXPECT_EQ(racconto::NomeCarta(52), "");
}

TEST_F(Finestra, UnColpoSiRaccontaCartaPerCarta)
{
    Clicca("cmdMescola");
    Colpi({"0,,,,,,", "1,N,C,34,36,6Q#AC#JP#KC#7F,QF#KQ#10P#6C",
           "2,E,E,31,31,KC#KQ#KF#AP,KC#KQ#KF#AP", "3,,,0,0,,"});
    Clicca("cmdColpo");
    EXPECT_EQ(Tavolo(*finestra),
              "Colpo della taglia: 1; "
              "NERO: sei di quadri, asso di cuori, fante di picche, re di cuori, sette di fiori, "
              "totale 34; "
              "ROSSO: donna di fiori, re di quadri, dieci di picche, sei di cuori, totale 36; "
              "Vincono NERO e COLORE; "
              "Premi 'Colpo successivo --->' per proseguire nella partita");
    Clicca("cmdColpo");
    EXPECT_NE(Tavolo(*finestra).find("asso di picche, totale 31; 31 APRES; "), std::string::npos);
}

// Eight cards and more overlap; a row that was never begun has none.
TEST_F(Finestra, LUltimaSchermataSiRaccontaComeUnColpo)
{
    Clicca("cmdMescola");
    Colpi({"0,,,,,,", "1,,,15,0,AF#2F#AQ#2Q#AC#2C#AP#2P#3P,"});
    Clicca("cmdColpo");
    EXPECT_EQ(Tavolo(*finestra).substr(0, 221),
              "Fine taglia; NERO: asso di fiori, due di fiori, asso di quadri, due di quadri, "
              "asso di cuori, due di cuori, asso di picche, due di picche, tre di picche, "
              "totale 15; ROSSO: nessuna carta, totale 0; Restano 9 carte; Carte u");
}

// The table takes no focus, and in a run the window itself has it: Escape must reach it.
TEST_F(Finestra, DuranteUnaCorsaIlFuocoEDellaFinestra)
{
    EXPECT_EQ(Trova("picCard")->focusPolicy(), Qt::NoFocus);
    Scegli(FormaTxt, true);
    Pulsante("cmdTaglie")->setFocus();
    int volte = 0;
    Stampe::AmbienteInUso.Cedi = [&] {
        ++volte;
        EXPECT_EQ(finestra->focusWidget(), finestra.get());
        EXPECT_EQ(QApplication::focusWidget(), finestra.get());
    };
    Clicca("cmdTaglie");
    EXPECT_GT(volte, 0);
    EXPECT_EQ(finestra->focusWidget(), Pulsante("cmdTaglie"));
}
