// Files that appear whole, in folders to which others write: what they may plant, what a killed run
// leaves, and whose file it is in the end.

#include "prova_FileIntero.h"

#include "Aiuti.h"
#include "FileConteso.h"
#include "FileNuovo.h"
#include "Utente.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace fileintero;
using aiuti::Byte;
using aiuti::CartellaDiProva;
using aiuti::ErroreDi;

namespace fs = std::filesystem;

namespace {

struct stat Voce(const fs::path& percorso)
{
    struct stat voce = {};
    EXPECT_EQ(::lstat(percorso.c_str(), &voce), 0) << percorso;
    return voce;
}

// What putting a file in place says after somebody else has done something to its folder.
std::optional<ErroreRuntime> ErroreDopo(const fs::path& percorso,
                                        const std::function<void()>& nelFrattempo)
{
    FileIntero file(percorso.string());
    file.Scrivi("nuovo");
    nelFrattempo();
    return ErroreDi([&] { file.MettiAPosto(); });
}

bool SaSenzaNome(const CartellaDiProva& cartella)
{
    const FileIntero file(cartella.File("f").string());
    return cartella.Contenuto().empty();
}

} // namespace

TEST(FileIntero, HaIPermessiDiOgniFileNuovo)
{
    for (const bool anonimo : Modi) {
        for (const mode_t maschera : {0000U, 0022U, 0027U, 0077U, 0222U, 0777U}) {
            const Modo modo(anonimo);
            const CartellaDiProva cartella;
            const mode_t prima = ::umask(maschera);
            filenuovo::Sostituisci(cartella.File("nuovo"));
            Sostituisci(cartella.File("intero"), {"nuovo"});
            ::umask(prima);
            const auto uno = Voce(cartella.File("nuovo"));
            const auto altro = Voce(cartella.File("intero"));
            EXPECT_EQ(uno.st_mode, altro.st_mode) << maschera;
            EXPECT_EQ(uno.st_uid, altro.st_uid);
            EXPECT_EQ(uno.st_gid, altro.st_gid);
        }
    }
}

TEST(FileIntero, PrendeIlGruppoDellaCartellaCheLoVuole)
{
    if (!aiuti::SonoRadice()) GTEST_SKIP() << "only root may give a folder to another group";
    for (const bool anonimo : Modi) {
        const Modo modo(anonimo);
        const CartellaDiProva cartella;
        ASSERT_EQ(::chown(cartella.Nome().c_str(), 0, aiuti::Nessuno), 0);
        ASSERT_EQ(::chmod(cartella.Nome().c_str(), 02755), 0);
        Sostituisci(cartella.File("f"), {"nuovo"});
        EXPECT_EQ(Voce(cartella.File("f")).st_gid, aiuti::Nessuno);
    }
}

TEST(FileIntero, FinoAllaFineNonHaUnNome)
{
    const CartellaDiProva cartella;
    if (!SaSenzaNome(cartella)) GTEST_SKIP() << "this disk knows no files without a name";
    FileIntero file(cartella.File("f").string());
    file.Scrivi("nuovo");
    EXPECT_TRUE(cartella.Contenuto().empty());
}

TEST(FileIntero, UnCollegamentoSiSostituisceMaiIlBersaglio)
{
    for (const bool anonimo : Modi) {
        const Modo modo(anonimo);
        const CartellaDiProva cartella;
        Scrivi(cartella.File("prezioso"), "mio");
        fs::create_symlink("prezioso", cartella.File("f"));
        Sostituisci(cartella.File("f"), {"nuovo"});
        EXPECT_EQ(Tipo(cartella.File("f")), fs::file_type::regular);
        EXPECT_EQ(Byte(cartella.File("prezioso")), "mio");
        // Nor the other names of what stood there.
        fs::create_hard_link(cartella.File("prezioso"), cartella.File("g"));
        Sostituisci(cartella.File("g"), {"nuovo"});
        EXPECT_EQ(Byte(cartella.File("prezioso")), "mio");
    }
}

TEST(FileIntero, CioCheSiMetteLiNelFrattempoValeComePrima)
{
    for (const bool anonimo : Modi) {
        const Modo modo(anonimo);
        const CartellaDiProva cartella;
        const fs::path f = cartella.File("f");
        const auto fila = ErroreDopo(f, [&] { ASSERT_EQ(::mkfifo(f.c_str(), 0600), 0); });
        ASSERT_TRUE(fila);
        EXPECT_EQ(fila->Motivo(), "non è un file ordinario");
        EXPECT_EQ(Tipo(f), fs::file_type::fifo);
        fs::remove(f);
        EXPECT_FALSE(ErroreDopo(f, [&] { fs::create_symlink("/etc/passwd", f); }));
        EXPECT_EQ(Tipo(f), fs::file_type::regular);
        EXPECT_EQ(cartella.Contenuto(), (Nomi{"f"}));
    }
}

TEST(FileIntero, IlFileDiUnAltroResta)
{
    if (!aiuti::SonoRadice()) GTEST_SKIP() << "only root gives a file to another user";
    for (const bool anonimo : Modi) {
        const Modo modo(anonimo);
        const CartellaDiProva cartella;
        const fs::path f = cartella.File("f");
        const auto errore = ErroreDopo(f, [&] {
            Scrivi(f, "suo");
            aiuti::Affida(f, aiuti::Nessuno);
        });
        ASSERT_TRUE(errore);
        EXPECT_EQ(errore->Motivo(), "appartiene a un altro utente");
        EXPECT_EQ(Byte(f), "suo");
        EXPECT_TRUE(ErroreDi([&] { const FileIntero file(f.string()); }));
    }
}

TEST(FileIntero, LaCartellaSparitaOSpostataEUnErrore)
{
    for (const bool anonimo : Modi) {
        const Modo modo(anonimo);
        const CartellaDiProva cartella;
        const fs::path sotto = cartella.File("sotto");
        fs::create_directory(sotto);
        const auto sparita = ErroreDopo(sotto / "f", [&] { fs::remove_all(sotto); });
        ASSERT_TRUE(sparita);
        EXPECT_EQ(sparita->Motivo(), "la sua cartella non c'è più");
        fs::create_directory(sotto);
        const auto spostata =
            ErroreDopo(sotto / "f", [&] { fs::rename(sotto, cartella.File("altrove")); });
        ASSERT_TRUE(spostata);
        EXPECT_EQ(spostata->File(), (sotto / "f").string());
    }
}

TEST(FileIntero, QuandoHaFinitoNessunoLoTrovaInUso)
{
    for (const bool anonimo : Modi) {
        const Modo modo(anonimo);
        const CartellaDiProva cartella;
        FileIntero file(cartella.File("f").string());
        file.MettiAPosto();
        EXPECT_FALSE(FileOccupato(cartella.File("f").string()));
    }
}

TEST(FileIntero, ToglieSoloGliIncompiutiCheSonoSuoi)
{
    const CartellaDiProva cartella;
    const auto nome = [&](int numero) { return cartella.File(NomeIncompiuto(numero)); };
    Scrivi(cartella.File("prezioso"), "mio");
    fs::create_hard_link(cartella.File("prezioso"), nome(0)); // the last name of something, maybe
    fs::create_symlink("prezioso", nome(1));
    fs::create_directory(nome(2));
    ASSERT_EQ(::mkfifo(nome(3).c_str(), 0600), 0);
    Scrivi(nome(4), "di una corsa viva");
    const int vivo = ::open(nome(4).c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(vivo, LOCK_EX), 0);
    Scrivi(nome(5), "di un altro");
    if (aiuti::SonoRadice()) aiuti::Affida(nome(5), aiuti::Nessuno);
    Scrivi(nome(6), "di una corsa uccisa");
    for (const bool anonimo : Modi) {
        const Modo modo(anonimo);
        Sostituisci(cartella.File("f"), {"nuovo"});
    }
    Nomi attesi;
    for (const int numero : {0, 1, 2, 3, 4}) attesi.push_back(NomeIncompiuto(numero));
    if (aiuti::SonoRadice()) attesi.push_back(NomeIncompiuto(5));
    attesi.emplace_back("f");
    attesi.emplace_back("prezioso");
    EXPECT_EQ(cartella.Contenuto(), attesi);
    EXPECT_EQ(Byte(cartella.File("prezioso")), "mio");
    ::close(vivo);
}

TEST(FileIntero, CioCheUnAltroMetteSottoIlNomeNascostoNonDiventaIlFile)
{
    const Modo modo(false);
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "vecchio");
    const auto errore = ErroreDopo(cartella.File("f"), [&] {
        fs::rename(cartella.File(NomeIncompiuto(0)), cartella.File("preso"));
        Scrivi(cartella.File(NomeIncompiuto(0)), "suo");
    });
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Motivo(), "un altro programma lo ha sostituito");
    EXPECT_EQ(Byte(cartella.File("f")), "vecchio");
    EXPECT_EQ(Byte(cartella.File(NomeIncompiuto(0))),
              "suo"); // nor is it removed as if it were ours
}

TEST(FileIntero, DoveTuttiINomiSonoPresiEUnErrore)
{
    const CartellaDiProva cartella;
    for (int numero = 0; numero < MassimoIncompiuti; ++numero) {
        fs::create_directory(cartella.File(NomeIncompiuto(numero)));
    }
    Scrivi(cartella.File("f"), "vecchio");
    for (const bool anonimo : Modi) {
        const Modo modo(anonimo);
        const auto errore = ErroreDi([&] { Sostituisci(cartella.File("f"), {"nuovo"}); });
        ASSERT_TRUE(errore);
        EXPECT_EQ(errore->Motivo(), "nella sua cartella sono presi tutti i nomi da "
                                    ".taglie.00.incompiuto a .taglie.99.incompiuto");
        EXPECT_EQ(Byte(cartella.File("f")), "vecchio");
    }
}

TEST(FileIntero, DopoUnUccisioneRestaIlVecchioEIlSeguenteFaPulizia)
{
    for (const bool anonimo : Modi) {
        const Modo modo(anonimo);
        const CartellaDiProva cartella;
        Scrivi(cartella.File("f"), "vecchio");
        std::array<int, 2> tubo{};
        ASSERT_EQ(::pipe2(tubo.data(), O_CLOEXEC), 0);
        aiuti::Figlio vittima([&] {
            FileIntero file(cartella.File("f").string());
            file.Scrivi("nuovo");
            EXPECT_EQ(::write(tubo[1], "1", 1), 1);
            for (;;) ::pause();
        });
        ::close(tubo[1]);
        char pronto = 0;
        EXPECT_EQ(::read(tubo[0], &pronto, 1), 1);
        ::close(tubo[0]);
        // Alive still: its file is left alone.
        Sostituisci(cartella.File("g"), {"altro"});
        EXPECT_EQ(cartella.Contenuto().size(), anonimo ? 2U : 3U);
        EXPECT_EQ(::kill(vittima.Numero(), SIGKILL), 0);
        EXPECT_EQ(vittima.Aspetta(), aiuti::DaSegnale + SIGKILL);
        EXPECT_EQ(Byte(cartella.File("f")), "vecchio");
        Sostituisci(cartella.File("g"), {"altro"});
        EXPECT_EQ(cartella.Contenuto(), (Nomi{"f", "g"}));
    }
}

TEST(FileIntero, UnaCartellaCheNonSiLeggeBasta)
{
    const CartellaDiProva cartella;
    fs::permissions(cartella.Nome(), fs::perms::all);
    const auto esito = aiuti::ComeNessuno([&] {
        const fs::path chiusa = cartella.File("chiusa");
        fs::create_directory(chiusa);
        fs::permissions(chiusa, fs::perms::owner_write | fs::perms::owner_exec);
        for (const bool anonimo : Modi) {
            const Modo modo(anonimo);
            Sostituisci(chiusa / "f", {"nuovo"});
            EXPECT_EQ(Byte(chiusa / "f"), "nuovo");
        }
        fs::permissions(chiusa, fs::perms::owner_read | fs::perms::owner_exec);
        const auto errore = ErroreDi([&] { const FileIntero file((chiusa / "f").string()); });
        ASSERT_TRUE(errore);
        EXPECT_EQ(errore->Numero(), NumeroErrore::PermessoNegato);
        fs::permissions(chiusa, fs::perms::owner_all);
    });
    EXPECT_EQ(esito, aiuti::Riuscito);
}

// In a sticky folder of all: what another user has put there under one of the names stays and does
// no harm.
TEST(FileIntero, UnVicinoInUnaCartellaDiTuttiNonLoFerma)
{
    if (!aiuti::SonoRadice()) GTEST_SKIP() << "only root gives files to another user";
    const CartellaDiProva cartella;
    fs::permissions(cartella.Nome(), fs::perms::all | fs::perms::sticky_bit);
    Scrivi(cartella.File("prezioso"), "di root");
    for (const int numero : {0, 1, 2}) {
        const auto nome = cartella.File(NomeIncompiuto(numero));
        if (numero == 0) Scrivi(nome, "di root");
        if (numero == 1) fs::create_symlink("prezioso", nome);
        if (numero == 2) fs::create_hard_link(cartella.File("prezioso"), nome);
    }
    const auto esito = aiuti::ComeNessuno([&] {
        for (const bool anonimo : Modi) {
            const Modo modo(anonimo);
            Sostituisci(cartella.File("f"), {"nuovo"});
            EXPECT_EQ(Byte(cartella.File("f")), "nuovo");
        }
    });
    EXPECT_EQ(esito, aiuti::Riuscito);
    EXPECT_EQ(cartella.Contenuto(),
              (Nomi{NomeIncompiuto(0), NomeIncompiuto(1), NomeIncompiuto(2), "f", "prezioso"}));
    EXPECT_EQ(Byte(cartella.File("prezioso")), "di root");
}
