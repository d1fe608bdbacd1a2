// Where reports go, and how a folder's name is completed.

#include "Percorsi.h"

#include "Aiuti.h"
#include "ErroreRuntime.h"
#include "Scritture.h"
#include "Utente.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <unistd.h>

using aiuti::CartellaDiProva;
using aiuti::ErroreDi;
using aiuti::InUnFiglio;
using aiuti::Riuscito;

namespace fs = std::filesystem;

namespace {

// The answer with TMPDIR set so; nullptr: not set. Only in a child, which keeps the setting.
std::string TempCon(const char* cartella)
{
    if (cartella == nullptr) ::unsetenv("TMPDIR");
    else ::setenv("TMPDIR", cartella, 1);
    return PercorsoTemp();
}

} // namespace

TEST(ConSeparatore, UnoSoloInFondo)
{
    EXPECT_EQ(ConSeparatore("/tmp"), "/tmp/");
    EXPECT_EQ(ConSeparatore("/tmp/"), "/tmp/");
    EXPECT_EQ(ConSeparatore("/"), "/");
    EXPECT_EQ(ConSeparatore("a b\xE8"), "a b\xE8/");
}

TEST(PercorsoTemp, TmpdirConESenzaSeparatoreFinale)
{
    const CartellaDiProva cartella;
    const std::string con = cartella.Nome();
    const std::string senza = con.substr(0, con.size() - 1);
    EXPECT_EQ(InUnFiglio([&] {
                  EXPECT_EQ(TempCon(senza.c_str()), con);
                  EXPECT_EQ(TempCon(con.c_str()), con);
              }),
              Riuscito);
}

TEST(PercorsoTemp, UnaTmpdirRelativaSiCompleta)
{
    const CartellaDiProva cartella;
    fs::create_directory(cartella.File("-x"));
    EXPECT_EQ(InUnFiglio([&] {
                  fs::current_path(cartella.Nome());
                  const std::string qui = fs::current_path().string();
                  EXPECT_EQ(TempCon("-x"), qui + "/-x/");
                  EXPECT_EQ(TempCon("./-x/"), qui + "/-x/");
                  EXPECT_EQ(TempCon("."), qui + "/");
              }),
              Riuscito);
}

TEST(PercorsoTemp, SenzaTmpdirOVuotoQuellaDelSistema)
{
    ASSERT_TRUE(fs::is_directory("/tmp"));
    EXPECT_EQ(InUnFiglio([] {
                  EXPECT_EQ(TempCon(nullptr), "/tmp/");
                  EXPECT_EQ(TempCon(""), "/tmp/");
              }),
              Riuscito);
}

TEST(PercorsoTemp, UnaCartellaCheNonEsisteEErrore76ConIlSuoNome)
{
    const CartellaDiProva cartella;
    const std::string assente = cartella.Nome() + "assente";
    const std::string file = cartella.Nome() + "file";
    std::ofstream(file) << "x";
    const auto messaggio = [](const std::string& nome) {
        const auto errore = ErroreDi([&] { TempCon(nome.c_str()); });
        if (!errore) return std::string();
        EXPECT_EQ(errore->Numero(), NumeroErrore::PercorsoNonTrovato);
        EXPECT_EQ(errore->File(), nome);
        return std::string(errore->what());
    };
    EXPECT_EQ(InUnFiglio([&] {
                  EXPECT_EQ(messaggio(assente), assente + ": la cartella non esiste");
                  EXPECT_EQ(messaggio(file), file + ": non è una cartella");
              }),
              Riuscito);
    EXPECT_FALSE(fs::exists(assente));
}

TEST(CartellaCompleta, UnaRelativaDiventaAssoluta)
{
    const CartellaDiProva cartella;
    fs::create_directory(cartella.File("sotto"));
    const std::string base = fs::canonical(cartella.Nome()).string() + "/";
    EXPECT_EQ(InUnFiglio([&] {
                  ASSERT_EQ(::chdir(base.c_str()), 0);
                  EXPECT_EQ(CartellaCompleta("sotto"), base + "sotto/");
                  EXPECT_EQ(CartellaCompleta("sotto/"), base + "sotto/");
                  EXPECT_EQ(CartellaCompleta("./sotto"), base + "sotto/");
                  EXPECT_EQ(CartellaCompleta("."), base);
                  ASSERT_EQ(::chdir("sotto"), 0);
                  EXPECT_EQ(CartellaCompleta(".."), base);
              }),
              Riuscito);
}

TEST(CartellaCompleta, UnaAssolutaRestaConUnSeparatoreInFondo)
{
    const CartellaDiProva cartella;
    const std::string con = cartella.Nome();
    EXPECT_EQ(CartellaCompleta(con), con);
    EXPECT_EQ(CartellaCompleta(con.substr(0, con.size() - 1)), con);
    EXPECT_EQ(CartellaCompleta("/"), "/");
}

TEST(CartellaCompleta, IByteDelNomeNonCambiano)
{
    const CartellaDiProva cartella;
    for (const char* nome : {"citt\xE0\xFF", "spazi  due", "a\nb", "-v", "$(x)", "caffè"}) {
        fs::create_directory(cartella.File(nome));
        EXPECT_EQ(CartellaCompleta(cartella.Nome() + nome), cartella.Nome() + nome + "/");
    }
}

TEST(CartellaCompleta, CioCheNonEUnaCartellaEErrore76ConIlSuoNome)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("file")) << "x";
    fs::create_symlink("nulla", cartella.File("penzolante"));
    for (const std::string nome : {"assente", "file", "penzolante", "file/sotto", "citt\xE0"}) {
        const auto errore = ErroreDi([&] { CartellaCompleta(cartella.Nome() + nome); });
        ASSERT_TRUE(errore) << nome;
        EXPECT_EQ(errore->Numero(), NumeroErrore::PercorsoNonTrovato);
        EXPECT_EQ(errore->File(), cartella.Nome() + nome);
    }
    EXPECT_TRUE(ErroreDi([] { CartellaCompleta(""); }));
}

TEST(CartellaCompleta, UnCollegamentoAUnaCartellaTieneIlSuoNome)
{
    const CartellaDiProva cartella;
    fs::create_directory(cartella.File("vera"));
    fs::create_directory_symlink("vera", cartella.File("altra"));
    EXPECT_EQ(CartellaCompleta(cartella.Nome() + "altra"), cartella.Nome() + "altra/");
}

TEST(CartellaCompleta, DuePuntiDopoUnCollegamentoRisalgonoDalBersaglio)
{
    const CartellaDiProva cartella;
    fs::create_directories(cartella.File("lontano/sotto"));
    fs::create_directory_symlink("lontano/sotto", cartella.File("legame"));
    const std::string lontano = fs::canonical(cartella.File("lontano")).string() + "/";
    EXPECT_EQ(CartellaCompleta(cartella.Nome() + "legame/.."), lontano);
    EXPECT_EQ(CartellaCompleta(cartella.Nome() + "lontano/sotto/../"), lontano);
}

TEST(CartellaCompleta, UnaCartellaCorrenteCancellataEUnErrore)
{
    const CartellaDiProva cartella;
    fs::create_directory(cartella.File("via"));
    EXPECT_EQ(InUnFiglio([&] {
                  ASSERT_EQ(::chdir(cartella.File("via").c_str()), 0);
                  ASSERT_EQ(::rmdir(cartella.File("via").c_str()), 0);
                  const auto errore = ErroreDi([] { CartellaCompleta("."); });
                  ASSERT_TRUE(errore);
                  EXPECT_EQ(errore->Numero(), NumeroErrore::PercorsoNonTrovato);
              }),
              Riuscito);
}

TEST(CartellaDelProgramma, EQuellaDiQuestoFileEseguibile)
{
    const fs::path cartella = percorsi::CartellaDelProgramma();
    EXPECT_TRUE(
        fs::equivalent(cartella / fs::read_symlink("/proc/self/exe").filename(), "/proc/self/exe"));
}

TEST(PercorsoCompleto, DallaCartellaCorrenteEByteIntatti)
{
    const std::string qui = fs::current_path().string();
    EXPECT_EQ(PercorsoCompleto("non c'è\xE8.pdf"), qui + "/non c'è\xE8.pdf");
    EXPECT_EQ(PercorsoCompleto("/tmp/x y.pdf"), "/tmp/x y.pdf");
}

TEST(PercorsoCompleto, SenzaCartellaCorrenteLoDice)
{
    EXPECT_EQ(InUnFiglio([] {
                  const CartellaDiProva cartella;
                  fs::current_path(cartella.Nome());
                  fs::remove_all(cartella.Nome());
                  const auto errore = ErroreDi([] { PercorsoCompleto("x.pdf"); });
                  ASSERT_TRUE(errore);
                  EXPECT_EQ(errore->Numero(), NumeroErrore::PercorsoNonTrovato);
                  EXPECT_EQ(errore->File(), "x.pdf");
              }),
              Riuscito);
}
