// Shoe files: what a line may hold, and what is refused with which reason.

#include "Aiuti.h"
#include "ErroreRuntime.h"
#include "FileMazzi.h"
#include "MazziDiProva.h"
#include "Scritture.h"

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
    for (const auto* separatore : {",", " ", ", ", "\t", " ,\t ", ";", "; ", ";\t,"}) {
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

TEST(LeggiTaglia, IlSegnoDiUtf8DavantiNonConta)
{
    EXPECT_EQ(LeggiTaglia("\xEF\xBB\xBF" + Riga(Codice)), LeggiTaglia(Riga(Codice)));
    EXPECT_EQ(LeggiTaglia("\xEF\xBB\xBF# titolo"), std::nullopt);
    EXPECT_EQ(Motivo("\xEF\xBB" + Riga(Codice)), "\"??1\" non è un codice da 1 a 312");
    EXPECT_EQ(Motivo(Riga([](int i) {
                  return i == 5 ? "\xEF\xBB\xBF"
                                  "6"
                                : Codice(i);
              })),
              "\"???6\" non è un codice da 1 a 312");
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

namespace {

constexpr auto Mai = [] { return false; };

// A file of these lines in a folder of its own, and the shoes that are read from it.
struct Archivio
{
    explicit Archivio(const std::string& byte)
        : Nome(Cartella.File("mazzi").string())
    {
        Scrivi(byte);
    }
    void Scrivi(const std::string& byte) const { std::ofstream(Nome, std::ios::binary) << byte; }

    aiuti::CartellaDiProva Cartella;
    std::string Nome;
};

// How many shoes are read of a file of which massimo are wanted; nothing when stopped.
std::optional<std::int64_t> Lette(const Archivio& archivio, std::optional<std::int64_t> massimo,
                                  const std::function<bool()>& fermare = Mai)
{
    FileMazzi mazzi(archivio.Nome);
    if (!mazzi.Leggi(massimo, fermare)) return std::nullopt;
    return mazzi.Quante();
}

// Codes with two cards of different value in each other's place, another two for each i.
std::string Scambiata(int quale)
{
    return Riga([quale](int i) {
        if (i == quale) return Codice(quale + 1);
        if (i == quale + 1) return Codice(quale);
        return Codice(i);
    });
}

} // namespace

TEST(FileMazzi, ErroriConFileERiga)
{
    const Archivio archivio("# prima riga\n\n" + Riga(Codice) + "\r\n1,2\n");
    const auto errore = aiuti::ErroreDi([&] { Lette(archivio, std::nullopt); });
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->File(), archivio.Nome);
    EXPECT_EQ(errore->Motivo(), "riga 4: le carte sono 2 invece di 312");
    // A wrong line is an error even behind the last shoe wanted.
    EXPECT_THROW(Lette(archivio, 1), ErroreRuntime);
}

TEST(FileMazzi, UnaRigaHaAlMassimo64Kib)
{
    const std::string riga = Riga(Codice) + std::string(64 * 1024 - Riga(Codice).size(), ' ');
    for (const char* fine : {"\n", "\r\n", ""}) {
        EXPECT_TRUE(Lette(Archivio(riga + fine), std::nullopt)) << fine;
        const Archivio lungo(riga + " " + fine);
        const auto errore = aiuti::ErroreDi([&] { Lette(lungo, std::nullopt); });
        ASSERT_TRUE(errore) << fine;
        EXPECT_EQ(errore->Motivo(), "riga 1: troppo lunga");
    }
}

TEST(FileMazzi, LePrimeENonDiPiu)
{
    const Archivio archivio(Riga(Codice) + "\n" + Riga(Testo) + "\n" + Riga(Codice));
    EXPECT_EQ(Lette(archivio, std::nullopt), 3);
    EXPECT_EQ(Lette(archivio, 2), 2);
    EXPECT_EQ(Lette(archivio, 5), 3);
    const auto subito = [] { return true; };
    EXPECT_EQ(Lette(archivio, 5, subito), std::nullopt);
    archivio.Scrivi(""); // even at the end of the file the request to stop counts
    EXPECT_EQ(Lette(archivio, 5, subito), std::nullopt);
    archivio.Scrivi("# niente\n");
    EXPECT_THROW(Lette(archivio, std::nullopt), ErroreRuntime);
}

TEST(FileMazzi, OgniTagliaSiRileggeInQualunqueOrdine)
{
    std::string byte = "\xEF\xBB\xBF# in testa\r\n";
    for (std::size_t i = 0; i < 20; ++i)
        byte += Scambiata(static_cast<int>(i)) + "   # " + std::string(i * 300, '.') + "\r\n\n";
    const Archivio archivio(byte + Riga(Testo, " ; "));
    FileMazzi mazzi(archivio.Nome);
    ASSERT_TRUE(mazzi.Leggi(std::nullopt, Mai));
    ASSERT_EQ(mazzi.Quante(), 21);
    for (const int i : {19, 0, 7, 7, 18, 1}) {
        EXPECT_EQ(mazzi.Mazzo(static_cast<std::size_t>(i)), LeggiTaglia(Scambiata(i))) << i;
    }
    EXPECT_EQ(mazzi.Mazzo(20), LeggiTaglia(Riga(Testo)));
    EXPECT_FALSE(mazzi.Cambiato());
}

TEST(FileMazzi, LaTagliaCambiataDopoIlControlloEUnErrore)
{
    const Archivio archivio(Scambiata(0) + "\n" + Scambiata(1) + "\n");
    const auto motivo = [](const FileMazzi& mazzi, std::size_t indice) {
        const auto errore = aiuti::ErroreDi([&] { mazzi.Mazzo(indice); });
        return errore ? errore->File() + ": " + errore->Motivo() : "";
    };
    const auto dopo = Scambiata(0) + "\n";
    for (const std::string& altra : {Scambiata(2), std::string("1,2"), std::string("# nulla"),
                                     std::string(), std::string(200'000, ' ')}) {
        archivio.Scrivi(Scambiata(0) + "\n" + Scambiata(1) + "\n");
        FileMazzi mazzi(archivio.Nome);
        ASSERT_TRUE(mazzi.Leggi(std::nullopt, Mai));
        archivio.Scrivi(dopo + altra);
        EXPECT_EQ(motivo(mazzi, 0), "");
        EXPECT_EQ(motivo(mazzi, 1),
                  archivio.Nome + ": la taglia 2 è cambiata da quando è stata controllata");
        EXPECT_TRUE(mazzi.Cambiato());
    }
}

TEST(FileMazzi, LeTaglieUgualiSiContanoQualunqueMazzettoDicano)
{
    // The first shoe again, as texts; the same card of another pack is the same card.
    const std::string altroMazzetto = Riga([](int i) {
        return i == 0 ? Codice(52) : i == 52 ? Codice(0) : Codice(i);
    });
    const Archivio archivio(Riga(Codice) + "\n" + Scambiata(3) + "\n" + Riga(Testo) + "\n" +
                            Scambiata(9) + "\n" + altroMazzetto + "\n" + Scambiata(3));
    FileMazzi mazzi(archivio.Nome);
    ASSERT_TRUE(mazzi.Leggi(std::nullopt, Mai));
    const auto ripetute = mazzi.Ripetizioni(Mai);
    ASSERT_TRUE(ripetute);
    EXPECT_EQ(ripetute->Quante, 3U);
    EXPECT_EQ(ripetute->Prima, 2U);
    EXPECT_EQ(ripetute->Come, 0U);
    EXPECT_EQ(mazzi.Mazzo(3), LeggiTaglia(Scambiata(9))); // in the file's order as before

    FileMazzi diverse(archivio.Nome);
    ASSERT_TRUE(diverse.Leggi(2, Mai));
    EXPECT_FALSE(diverse.Ripetizioni(Mai));
}
