// Where reports go, and how a folder's name is completed, on Windows.

#include "Percorsi.h"

#include "Aiuti.h"
#include "ErroreRuntime.h"
#include "Scritture.h"
#include "Variabile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include <windows.h>

using aiuti::CartellaDiProva;
using aiuti::ErroreDi;
using aiuti::Variabile;

namespace fs = std::filesystem;

namespace {

std::string SenzaSeparatore(const std::string& cartella)
{
    return cartella.substr(0, cartella.size() - 1);
}

} // namespace

TEST(CodiceDiPagina, INomiSonoInUtf8)
{
    EXPECT_EQ(GetACP(), UINT{CP_UTF8}); // what the program's manifest asks for
}

TEST(ConSeparatore, UnoSoloInFondo)
{
    EXPECT_EQ(ConSeparatore("C:\\temp"), "C:\\temp\\");
    EXPECT_EQ(ConSeparatore("C:\\temp\\"), "C:\\temp\\");
    EXPECT_EQ(ConSeparatore("C:/temp/"), "C:/temp/");
    EXPECT_EQ(ConSeparatore("a b\xE8"), "a b\xE8\\");
}

TEST(PercorsoTemp, LaCartellaDelSistemaConUnSeparatore)
{
    const CartellaDiProva cartella;
    const std::string con = cartella.Nome();
    for (const std::string& scelta : {con, SenzaSeparatore(con)}) {
        const Variabile tmp("TMP", scelta);
        EXPECT_EQ(PercorsoTemp(), con);
    }
}

TEST(PercorsoTemp, AncheConAccentiESpazi)
{
    const CartellaDiProva cartella;
    const std::string nome = cartella.Nome() + "Niccolò e l'Été";
    fs::create_directory(percorsi::Cammino(nome));
    const Variabile tmp("TMP", nome);
    EXPECT_EQ(PercorsoTemp(), nome + "\\");
}

TEST(PercorsoTemp, UnaCartellaCheNonEsisteEErrore76ConIlSuoNome)
{
    const CartellaDiProva cartella;
    const std::string assente = cartella.Nome() + "assente";
    const Variabile tmp("TMP", assente);
    const auto errore = ErroreDi([] { PercorsoTemp(); });
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Numero(), NumeroErrore::PercorsoNonTrovato);
    EXPECT_EQ(errore->File(), assente + "\\"); // as the system tells it
    EXPECT_EQ(errore->Motivo(), "la cartella non esiste");
}

TEST(CartellaCompleta, UnaRelativaDiventaAssoluta)
{
    const CartellaDiProva cartella;
    const std::string base = cartella.Nome();
    fs::create_directory(cartella.File("sotto"));
    const fs::path prima = fs::current_path();
    fs::current_path(base);
    for (const char* nome : {"sotto", "sotto/", "sotto\\", ".\\sotto"}) {
        EXPECT_EQ(CartellaCompleta(nome), base + "sotto\\") << nome;
    }
    EXPECT_EQ(CartellaCompleta("."), base);
    fs::current_path("sotto");
    EXPECT_EQ(CartellaCompleta(".."), base);
    fs::current_path(prima);
}

TEST(CartellaCompleta, UnaAssolutaRestaConUnSeparatoreInFondo)
{
    const CartellaDiProva cartella;
    const std::string con = cartella.Nome();
    EXPECT_EQ(CartellaCompleta(con), con);
    EXPECT_EQ(CartellaCompleta(SenzaSeparatore(con)), con);
}

TEST(CartellaCompleta, INomiNonCambiano)
{
    const CartellaDiProva cartella;
    for (const char* nome : {"città", "spazi  due", "-v", "$(x)", "%TMP%", "l'apice", "€"}) {
        const std::string voluta = cartella.Nome() + nome;
        fs::create_directory(percorsi::Cammino(voluta));
        EXPECT_EQ(CartellaCompleta(voluta), voluta + "\\");
    }
}

TEST(CartellaCompleta, CioCheNonEUnaCartellaEErrore76ConIlSuoNome)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("file")) << "x";
    for (const std::string nome : {"assente", "file", "file\\sotto"}) {
        const auto errore = ErroreDi([&] { CartellaCompleta(cartella.Nome() + nome); });
        ASSERT_TRUE(errore) << nome;
        EXPECT_EQ(errore->Numero(), NumeroErrore::PercorsoNonTrovato);
        EXPECT_EQ(errore->File(), cartella.Nome() + nome);
    }
    EXPECT_TRUE(ErroreDi([] { CartellaCompleta(""); }));
}

TEST(CartellaDelProgramma, EQuellaDiQuestoFileEseguibile)
{
    EXPECT_TRUE(fs::is_regular_file(fs::path(percorsi::CartellaDelProgramma()) / "prove.exe"));
}

TEST(PercorsoCompleto, DallaCartellaCorrente)
{
    const std::string qui = fs::current_path().string();
    EXPECT_EQ(PercorsoCompleto("non c'è.pdf"), ConSeparatore(qui) + "non c'è.pdf");
    EXPECT_EQ(PercorsoCompleto("C:\\x y.pdf"), "C:\\x y.pdf");
}
