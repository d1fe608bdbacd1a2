// Files of unknown origin, line by line.

#include "prova_LetturaFile.h"

#include "Aiuti.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

using aiuti::CartellaDiProva;
using aiuti::ErroreDi;
using namespace lettura;

namespace {

// The lines of a file that holds exactly these bytes.
Testi RigheDi(const std::string& byte, std::size_t massimo = 1000)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("f"), std::ios::binary) << byte;
    return Righe(cartella.Nome() + "f", massimo);
}

} // namespace

TEST(LeggiRighe, FineRigaDiDueForme)
{
    EXPECT_EQ(RigheDi("uno\ndue\n"), (Testi{"uno", "due"}));
    EXPECT_EQ(RigheDi("uno\r\ndue\r\n"), (Testi{"uno", "due"}));
    EXPECT_EQ(RigheDi("uno\r\ndue\ntre\r\n"), (Testi{"uno", "due", "tre"}));
}

TEST(LeggiRighe, LUltimaSenzaFineRigaConta)
{
    EXPECT_EQ(RigheDi("uno\ndue"), (Testi{"uno", "due"}));
    EXPECT_EQ(RigheDi("uno\r\ndue\r"), (Testi{"uno", "due"}));
    EXPECT_EQ(RigheDi("uno"), (Testi{"uno"}));
}

TEST(LeggiRighe, UnFileVuotoNonHaRighe)
{
    EXPECT_EQ(RigheDi(""), Testi{});
}

TEST(LeggiRighe, LeRigheVuoteContano)
{
    EXPECT_EQ(RigheDi("\n\r\n\nx\n"), (Testi{"", "", "", "x"}));
}

TEST(LeggiRighe, UnRitornoCheNonEInFondoResta)
{
    EXPECT_EQ(RigheDi("a\rb\n\rc\r\r\n"), (Testi{"a\rb", "\rc\r"}));
}

TEST(LeggiRighe, QualunqueByteEPermesso)
{
    const std::string strana("a\0\xFF\xC3\x1A", 5);
    EXPECT_EQ(RigheDi(strana + "\n" + strana), (Testi{strana, strana}));
    EXPECT_EQ(RigheDi("\xEF\xBB\xBFx"), (Testi{"\xEF\xBB\xBFx"}));
}

TEST(LeggiRighe, UnFilePiuGrandeDellaMemoriaDiLettura)
{
    // Lines of 9 bytes with their ends fall across every boundary of the blocks read.
    std::string byte;
    Testi attese;
    for (int i = 0; i < 40000; ++i) {
        attese.push_back(std::to_string(10000000 + i));
        byte += attese.back() + "\n";
    }
    EXPECT_TRUE(RigheDi(byte) == attese);
    std::string lunga(200000, 'x');
    EXPECT_TRUE(RigheDi("a\n" + lunga + "\nb", 200000) == (Testi{"a", lunga, "b"}));
}

TEST(LeggiRighe, UnaRigaTroppoLungaERifiutataConIlSuoNumero)
{
    EXPECT_EQ(RigheDi("12345\n12345", 5), (Testi{"12345", "12345"}));
    EXPECT_EQ(RigheDi("12345\r\n12345\r\n", 5), (Testi{"12345", "12345"})); // the end is no text
    for (const char* byte : {"1\n12\n123456\n1", "1\n12\n123456", "1\r\n12\r\n123456789\r\n"}) {
        const CartellaDiProva cartella;
        std::ofstream(cartella.File("f"), std::ios::binary) << byte;
        Testi righe;
        const auto errore = ErroreDi([&] {
            LeggiRighe(
                cartella.Nome() + "f", 5,
                [&](std::size_t, std::string_view riga) { righe.emplace_back(riga); }, Mai);
        });
        ASSERT_TRUE(errore) << byte;
        EXPECT_EQ(errore->Numero(), NumeroErrore::ChiamataNonValida);
        EXPECT_EQ(errore->Motivo(), "riga 3: troppo lunga");
        EXPECT_EQ(errore->File(), cartella.Nome() + "f");
        EXPECT_EQ(righe, (Testi{"1", "12"}));
    }
}

TEST(LeggiRighe, UnFileCheMancaEUnaCartellaSonoErrori)
{
    const CartellaDiProva cartella;
    const auto manca = ErroreLeggendo(cartella.Nome() + "assente");
    ASSERT_TRUE(manca);
    EXPECT_EQ(manca->File(), cartella.Nome() + "assente");
    EXPECT_EQ(manca->Motivo(), "file o cartella inesistente");
    const auto folder = ErroreLeggendo(cartella.Nome());
    ASSERT_TRUE(folder);
    EXPECT_EQ(folder->File(), cartella.Nome());
    EXPECT_EQ(folder->Motivo(), "è una cartella");
}

TEST(LeggiRighe, FermarePrimaDiOgniRiga)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("f")) << "uno\ndue\ntre\nquattro";
    for (const int dopo : {0, 1, 2, 3, 4}) {
        Testi righe;
        const bool finito = LeggiRighe(
            cartella.Nome() + "f", 1000,
            [&](std::size_t, std::string_view riga) { righe.emplace_back(riga); },
            [&] { return righe.size() == static_cast<std::size_t>(dopo); });
        EXPECT_EQ(righe.size(), static_cast<std::size_t>(dopo));
        EXPECT_EQ(finito, dopo == 4);
    }
}

TEST(LeggiRighe, UnErroreDellaRigaArrivaAChiChiama)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("f")) << "uno\ndue\n";
    const auto errore = ErroreDi([&] {
        LeggiRighe(
            cartella.Nome() + "f", 1000,
            [](std::size_t, std::string_view) {
                throw ErroreRuntime(NumeroErrore::ChiamataNonValida, "mio");
            },
            Mai);
    });
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Motivo(), "mio");
}

TEST(FileRighe, OgniRigaSiRileggeDalSuoInizio)
{
    const CartellaDiProva cartella;
    const std::string lunga(5000, 'l');
    std::ofstream(cartella.File("f"), std::ios::binary) << "uno\r\n\n"
                                                        << lunga << "\nquattro\r\n"
                                                        << std::string(1999, 'x') << "\r\nfine";
    FileRighe file(cartella.Nome() + "f", 5000);
    ASSERT_TRUE(file.Rileggibile());
    std::vector<std::uint64_t> inizi;
    Testi testi;
    ASSERT_TRUE(file.Leggi(
        [&](std::size_t, std::uint64_t inizio, std::string_view testo) {
            inizi.push_back(inizio);
            testi.emplace_back(testo);
        },
        Mai));
    EXPECT_EQ(inizi, (std::vector<std::uint64_t>{0, 5, 6, 5007, 5016, 7017}));
    ASSERT_EQ(testi.size(), inizi.size());
    for (std::size_t i = inizi.size(); i-- > 0;) EXPECT_EQ(file.RigaA(inizi[i]), testi[i]) << i;
    EXPECT_EQ(file.RigaA(1'000'000), "");
}

TEST(FileRighe, DiUnaRigaDivenutaTroppoLungaSiLeggePoco)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("f")) << "uno\n";
    FileRighe file(cartella.Nome() + "f", 10);
    std::ofstream(cartella.File("f")) << std::string(1'000'000, 'x');
    const std::string riga = file.RigaA(0);
    EXPECT_GT(riga.size(), 10U);
    EXPECT_LT(riga.size(), 10'000U);
}

TEST(FileRighe, SiVedeCheCambia)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("f")) << "uno\n";
    const FileRighe file(cartella.Nome() + "f", 10);
    EXPECT_FALSE(file.Cambiato());
    std::ofstream(cartella.File("f"), std::ios::app) << "due\n";
    EXPECT_TRUE(file.Cambiato());
    const FileRighe ancora(cartella.Nome() + "f", 10);
    EXPECT_FALSE(ancora.Cambiato());
    // The same length: the time tells.
    const auto prima = std::filesystem::last_write_time(cartella.File("f"));
    std::filesystem::last_write_time(cartella.File("f"), prima + std::chrono::seconds(2));
    EXPECT_TRUE(ancora.Cambiato());
}

TEST(LeggiFile, DaTuttiIByte)
{
    const aiuti::CartellaDiProva cartella;
    const std::string byte = std::string("a\0\r\n\xE8", 5) + std::string(200000, 'z');
    std::ofstream(cartella.File("f"), std::ios::binary) << byte;
    EXPECT_TRUE(LeggiFile(cartella.Nome() + "f", byte.size()) == byte);
    std::ofstream(cartella.File("vuoto"));
    EXPECT_EQ(LeggiFile(cartella.Nome() + "vuoto", 0), "");
}

TEST(LeggiFile, RifiutaChiNonEUnFileEChiETroppoGrande)
{
    const aiuti::CartellaDiProva cartella;
    std::ofstream(cartella.File("f")) << "abc";
    const auto numero = [&](const char* nome, std::size_t massimo) {
        return NumeroLeggendo(cartella.Nome() + nome, massimo);
    };
    EXPECT_EQ(numero("f", 3), 0);
    EXPECT_EQ(numero("f", 2), static_cast<int>(NumeroErrore::Overflow));
    EXPECT_EQ(numero("manca", 3), static_cast<int>(NumeroErrore::PercorsoNonTrovato));
    EXPECT_EQ(numero(".", 3), static_cast<int>(NumeroErrore::AccessoAlFile));
}
