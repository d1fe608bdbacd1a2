// The check of drawing operators, aiuti/ContenutoPdf.h.
#include "ContenutoPdf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using aiuti::ControllaContenuto;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::vector<std::string> Difetti(const std::string& contenuto)
{
    std::vector<std::string> difetti;
    ControllaContenuto(contenuto, "foglio", difetti);
    return difetti;
}

} // namespace

TEST(ControllaContenuto, DaINomiUsatiNelLoroOrdine)
{
    std::vector<std::string> difetti;
    std::string nomi;
    for (const auto& nome : ControllaContenuto("/Testa Do\r\nBT /_FNT_2 9 Tf (/_FNT_3) Tj ET\r\n"
                                               "/xxCSxx cs 1 0 0 /P scn /Pattern CS /S SCN\r\n",
                                               "foglio", difetti))
        nomi += nome.Categoria + "/" + nome.Nome + " ";
    EXPECT_EQ(nomi, "XObject/Testa Font/_FNT_2 ColorSpace/xxCSxx Pattern/P Pattern/S ");
    EXPECT_THAT(difetti, IsEmpty());
}

TEST(ControllaContenuto, ConosceTuttoQuelloCheSiDisegna)
{
    EXPECT_THAT(Difetti(""), IsEmpty());
    EXPECT_THAT(Difetti("1 0 0 -1 0 842 cm \r\n2 w 0 J 1 j 4 M [2 1] 0 d [ ] 0 d\r\n"
                        "0 0 0 rg 0.5 1 0 RG q Q\r\n"
                        "n 1 2 m 3 4 l S 1 2 3 4 re f 1 2 m 1 2 3 4 5 6 c 3 4 5 6 v 3 4 5 6 y h B b"
                        "\r\n2 Tc 3 Tw 90 Tz 1 Tr\r\n"),
                IsEmpty());
    EXPECT_THAT(Difetti("BT\r\n/_FNT_1 12 Tf 14 TL\r\n1 0 0 -1 5 6 Tm\r\n"
                        "3.5 0 Td (\\(a\\) \\\\ b) Tj -3.5 0 Td T*\r"
                        "0.2 Tw (\r\n\x80) Tj 0 Tw T*\r\r\nET\r\n"),
                IsEmpty());
}

TEST(ControllaContenuto, TrovaSalvataggiCheNonTornano)
{
    EXPECT_THAT(Difetti("q\r\nq\r\nQ\r\n"), ElementsAre("foglio: q senza Q: 1"));
    EXPECT_THAT(Difetti("Q\r\nq\r\n"), ElementsAre("foglio: Q senza q", "foglio: q senza Q: 1"));
}

TEST(ControllaContenuto, TrovaBlocchiDiTestoCheNonTornano)
{
    EXPECT_THAT(Difetti("BT\r\n"), ElementsAre("foglio: BT senza ET"));
    EXPECT_THAT(Difetti("ET\r\n"), ElementsAre("foglio: ET fuori da BT ... ET"));
    EXPECT_THAT(Difetti("BT BT ET\r\n"), ElementsAre("foglio: BT dentro BT ... ET"));
    EXPECT_THAT(Difetti("BT q Q ET\r\n"),
                ElementsAre("foglio: q dentro BT ... ET", "foglio: Q dentro BT ... ET"));
    EXPECT_THAT(Difetti("(a) Tj\r\n"), ElementsAre("foglio: Tj fuori da BT ... ET"));
}

TEST(ControllaContenuto, TrovaOperatoriSconosciuti)
{
    EXPECT_THAT(Difetti("0 0 0 rh\r\n"), ElementsAre("foglio: operatore sconosciuto \"rh\""));
    EXPECT_THAT(Difetti("1,5 w\r\n"), Contains(HasSubstr("sconosciuto \"1,5\"")));
}

TEST(ControllaContenuto, TrovaOperandiSbagliati)
{
    for (const char* riga : {"1 2 m 3 l", "1 w w", "(1) w", "/A 1 cm", "[1 /A] 0 d", "[(1)] 0 d",
                             "1 n", "scn", "1 /A 2 scn", "/A /B scn", "/A Tf", "1 Do"})
        EXPECT_THAT(Difetti(std::string(riga) + "\r\n"),
                    ElementsAre(HasSubstr("foglio: operandi sbagliati per ")))
            << riga;
    EXPECT_THAT(Difetti("1 2\r\n"), ElementsAre("foglio: operandi senza operatore alla fine"));
}

TEST(ControllaContenuto, TrovaNumeriNonInFormaBreve)
{
    for (const char* numero : {"-0", "+1", "01", ".5", "1.", "0.50", "0.1234", "1.0", "-.5", "-00"})
        EXPECT_THAT(Difetti(std::string(numero) + " w\r\n"),
                    ElementsAre("foglio: numero " + std::string(numero) + " non in forma breve"));
    for (const char* numero : {"0", "-1", "10", "0.5", "-0.125", "841.89", "100"})
        EXPECT_THAT(Difetti(std::string(numero) + " w\r\n"), IsEmpty()) << numero;
    EXPECT_THAT(Difetti("[1.50] 0 d\r\n"), ElementsAre("foglio: numero 1.50 non in forma breve"));
}

TEST(ControllaContenuto, TrovaStringheSbagliateNelContenuto)
{
    EXPECT_THAT(Difetti("BT (a) Tj (b Tj ET\r\n"),
                ElementsAre(HasSubstr("foglio: stringa mai chiusa")));
    EXPECT_THAT(Difetti("BT (a)) Tj ET\r\n"), ElementsAre(HasSubstr("foglio: \")\" fuori posto")));
    EXPECT_THAT(Difetti("BT (a\\"), ElementsAre(HasSubstr("stringa mai chiusa")));
}
