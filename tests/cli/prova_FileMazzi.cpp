// Shoe files: what a line may hold, and what is refused with which reason.

#include "Aiuti.h"
#include "ErroreRuntime.h"
#include "FileMazzi.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>

using namespace cli;

namespace {

// A line of 312 words made from their index.
std::string Riga(const std::function<std::string(int)>& parola, const std::string& separatore = ",")
{
    std::string riga;
    for (int i = 0; i < 312; ++i) riga += (i > 0 ? separatore : "") + parola(i);
    return riga;
}

std::string Codice(int i)
{
    return std::to_string(i + 1);
}

std::string Testo(int i)
{
    return modCarte::TestoCarta(static_cast<std::int16_t>(i % 52 + 1));
}

std::string Motivo(const std::string& riga)
{
    try {
        LeggiTaglia(riga);
    } catch (const ErroreRuntime& errore) {
        return errore.Motivo();
    }
    return "accettata";
}

} // namespace

TEST(LeggiTaglia, CodiciConVirgoleOBianchi)
{
    for (const auto* separatore : {",", " ", ", ", "\t", " ,\t "}) {
        const auto taglia = LeggiTaglia(Riga(Codice, separatore));
        ASSERT_TRUE(taglia) << separatore;
        EXPECT_EQ(taglia->front(), 1);
        EXPECT_EQ(taglia->back(), 312);
    }
}

TEST(LeggiTaglia, TestiNellOrdineDeiMazzetti)
{
    const auto taglia = LeggiTaglia(Riga(Testo, " "));
    ASSERT_TRUE(taglia);
    for (int i = 0; i < 312; ++i) EXPECT_EQ((*taglia)[static_cast<std::size_t>(i)], i + 1);
}

TEST(LeggiTaglia, BianchiECommentiNonSonoTaglie)
{
    EXPECT_EQ(LeggiTaglia(""), std::nullopt);
    EXPECT_EQ(LeggiTaglia("  \t "), std::nullopt);
    EXPECT_EQ(LeggiTaglia("# 1,2,3"), std::nullopt);
    EXPECT_TRUE(LeggiTaglia("  " + Riga(Codice) + " # la prima"));
}

TEST(LeggiTaglia, OgniRifiutoDiceIlMotivo)
{
    EXPECT_EQ(Motivo("1,2,3"), "le carte sono 3 invece di 312");
    EXPECT_EQ(Motivo(Riga(Codice) + ",1"), "le carte sono 313 invece di 312");
    EXPECT_EQ(Motivo(Riga([](int i) { return std::to_string(i); })),
              "\"0\" non è un codice da 1 a 312");
    EXPECT_EQ(Motivo(Riga([](int i) { return i == 311 ? "313" : Codice(i); })),
              "\"313\" non è un codice da 1 a 312");
    EXPECT_EQ(Motivo(Riga([](int i) { return i == 9 ? "-5" : Codice(i); })),
              "\"-5\" non è un codice da 1 a 312");
    EXPECT_EQ(Motivo(Riga([](int i) { return i == 9 ? "1e2" : Codice(i); })),
              "\"1e2\" non è un codice da 1 a 312");
    EXPECT_EQ(Motivo(Riga([](int i) { return i == 9 ? "18446744073709551617" : Codice(i); })),
              "\"18446744073709551617\" non è un codice da 1 a 312");
    EXPECT_EQ(Motivo(Riga([](int i) { return i == 311 ? "7" : Codice(i); })),
              "la carta 7 si ripete");
    EXPECT_EQ(Motivo(Riga([](int i) { return i == 311 ? "AC" : Testo(i); })),
              "la carta AC compare più di 6 volte");
    EXPECT_EQ(Motivo(Riga([](int i) { return i == 9 ? "10" : Testo(i); })),
              "\"10\" non è una carta");
    EXPECT_EQ(Motivo(Riga([](int i) { return i == 9 ? "AC" : Codice(i); })),
              "\"AC\" non è un codice da 1 a 312");
    EXPECT_EQ(Motivo(Riga([](int i) { return i == 9 ? "ac" : Testo(i); })),
              "\"ac\" non è una carta");
}

TEST(LeggiTaglia, UnaParolaOstileECitataSenzaCaratteriDiControllo)
{
    const std::string ostile = "\x1b[31m" + std::string(100, 'x');
    EXPECT_EQ(Motivo(Riga([&](int i) { return i == 0 ? ostile : Codice(i); })),
              "\"?[31mxxxxxxxxxxxxxxx...\" non è un codice da 1 a 312");
}

TEST(RigaTaglia, SiRileggeUguale)
{
    modCarte::AvviaSeme(1, 1);
    modCarte::MescolaMazzo();
    const Taglia taglia = modCarte::Mazzo;
    const std::string riga = RigaTaglia(taglia);
    EXPECT_EQ(riga.back(), '\n');
    EXPECT_EQ(LeggiTaglia(riga.substr(0, riga.size() - 1)), taglia);
}

TEST(LeggiMazzi, ErroriConFileERiga)
{
    const aiuti::CartellaDiProva cartella;
    const std::string nome = cartella.File("mazzi").string();
    std::ofstream(nome) << "# prima riga\n\n" << Riga(Codice) << "\r\n1,2\n";
    const auto mai = [] { return false; };
    try {
        LeggiMazzi(nome, std::nullopt, mai);
        FAIL() << "no error";
    } catch (const ErroreRuntime& errore) {
        EXPECT_EQ(errore.File(), nome);
        EXPECT_EQ(errore.Motivo(), "riga 4: le carte sono 2 invece di 312");
    }
    // A wrong line is an error even behind the last shoe wanted.
    EXPECT_THROW(LeggiMazzi(nome, 1, mai), ErroreRuntime);
}

TEST(LeggiMazzi, IPrimiNeNonDiPiu)
{
    const aiuti::CartellaDiProva cartella;
    const std::string nome = cartella.File("mazzi").string();
    std::ofstream(nome) << Riga(Codice) << "\n" << Riga(Testo) << "\n" << Riga(Codice);
    const auto mai = [] { return false; };
    EXPECT_EQ(LeggiMazzi(nome, std::nullopt, mai)->size(), 3U);
    EXPECT_EQ(LeggiMazzi(nome, 2, mai)->size(), 2U);
    EXPECT_EQ(LeggiMazzi(nome, 5, mai)->size(), 3U);
    EXPECT_EQ(LeggiMazzi(nome, 5, [] { return true; }), std::nullopt);
    std::ofstream(nome).flush(); // empty: even at the end of the file the request to stop counts
    EXPECT_EQ(LeggiMazzi(nome, 5, [] { return true; }), std::nullopt);
    std::ofstream(nome) << "# niente\n";
    EXPECT_THROW(LeggiMazzi(nome, std::nullopt, mai), ErroreRuntime);
}
