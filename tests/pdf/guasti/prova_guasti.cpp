// Every seed file cut at every length and with every single bit of its first KiB turned: the
// readers answer with something sound or with one clear error, soon and in little memory.

#include "Lettori.h"
#include "Memoria.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

constexpr std::size_t MemoriaMassima = std::size_t{64} << 20;
constexpr std::chrono::seconds TempoMassimo{1};
constexpr std::size_t ByteGuastati = 1024;

std::vector<std::string> Semi()
{
    std::vector<std::string> nomi;
    for (const auto& voce : std::filesystem::recursive_directory_iterator(SCALVINO_SEMI)) {
        const std::string tipo = voce.path().extension().string();
        if (voce.is_regular_file() && tipo != ".py") nomi.push_back(voce.path().string());
    }
    std::sort(nomi.begin(), nomi.end());
    return nomi;
}

std::string Byte(const std::string& nome)
{
    std::ifstream file(nome, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

struct Conto
{
    int Accettati = 0;
    int Rifiutati = 0;
};

// One reading within its limits.
void Prova(const std::string& byte, const std::string& nome, const std::string& guasto,
           Conto& conto)
{
    bool accettato = false;
    memoria::Azzera();
    const auto inizio = std::chrono::steady_clock::now();
    const std::string difetto = aiuti::DifettoDiLettura(byte, nome, accettato);
    const auto tempo = std::chrono::steady_clock::now() - inizio;
    ASSERT_EQ(difetto, "") << guasto;
    ASSERT_LT(tempo, TempoMassimo) << guasto;
    ASSERT_LT(memoria::Massimo(), MemoriaMassima) << guasto;
    ++(accettato ? conto.Accettati : conto.Rifiutati);
}

class Guasti : public testing::TestWithParam<std::string>
{
};

std::string NomeDiProva(const testing::TestParamInfo<std::string>& info)
{
    std::string nome = std::filesystem::path(info.param).filename().string();
    std::replace_if(
        nome.begin(), nome.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return nome;
}

} // namespace

TEST_P(Guasti, IlSemeIntatto)
{
    Conto conto;
    Prova(Byte(GetParam()), GetParam(), "whole", conto);
    EXPECT_EQ(conto.Accettati, 1);
}

TEST_P(Guasti, TroncatoAOgniLunghezza)
{
    const std::string byte = Byte(GetParam());
    Conto conto;
    for (std::size_t quanti = 0; quanti < byte.size(); ++quanti) {
        Prova(byte.substr(0, quanti), GetParam(), "cut at " + std::to_string(quanti), conto);
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(conto.Rifiutati, 10);
}

TEST_P(Guasti, OgniBitDelPrimoKiBGirato)
{
    std::string byte = Byte(GetParam());
    Conto conto;
    for (std::size_t bit = 0; bit < 8 * std::min(byte.size(), ByteGuastati); ++bit) {
        const auto girato = static_cast<char>(1 << bit % 8);
        byte[bit / 8] = static_cast<char>(byte[bit / 8] ^ girato);
        Prova(byte, GetParam(), "bit " + std::to_string(bit), conto);
        if (HasFatalFailure()) return;
        byte[bit / 8] = static_cast<char>(byte[bit / 8] ^ girato);
    }
    EXPECT_GT(conto.Accettati, 10);
    EXPECT_GT(conto.Rifiutati, 10);
}

INSTANTIATE_TEST_SUITE_P(Semi, Guasti, testing::ValuesIn(Semi()), NomeDiProva);

TEST(Guasti, ISemiCiSono)
{
    EXPECT_GE(Semi().size(), 60U);
}

TEST(Memoria, SiConta)
{
    memoria::Azzera();
    {
        const std::vector<char> grande(1 << 20);
        EXPECT_GE(memoria::Massimo(), 1U << 20);
    }
    memoria::Azzera();
    EXPECT_LT(memoria::Massimo(), 1U << 20);
}
