// Writing into files of the program's own where an open file can be moved or removed and where its
// place can be taken by a link or a FIFO.

#include "prova_FileNuovo.h"

#include <cerrno>
#include <filesystem>
#include <functional>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace filenuovo;
using aiuti::Byte;
using aiuti::CartellaDiProva;
using aiuti::ErroreDi;

namespace fs = std::filesystem;

namespace {

// The descriptor under which this process has the file open for writing; -1 for none.
int Descrittore(const fs::path& percorso)
{
    const auto cercato = fs::canonical(percorso).string();
    for (int descrittore = 0; descrittore < 1024; ++descrittore) {
        std::error_code errore;
        const auto nome =
            fs::read_symlink("/proc/self/fd/" + std::to_string(descrittore), errore).string();
        const bool scrive = (::fcntl(descrittore, F_GETFL) & O_ACCMODE) == O_WRONLY;
        if (!errore && nome == cercato && scrive) return descrittore;
    }
    return -1;
}

} // namespace

TEST(FileNuovo, RiaprireRifiutaCioCheNonEPiuIlSuoFile)
{
    const CartellaDiProva cartella;
    const fs::path f = cartella.File("f");
    const fs::path suo = cartella.File("suo");
    FileNuovo file(f);
    file.Scrivi("uno");
    file.Chiudi();
    fs::rename(f, suo); // still there, so that nothing else can be taken for it
    const auto motivo = [&file] {
        const auto errore = ErroreDi([&file] { file.Riapri(); });
        return errore ? errore->Motivo() : "";
    };
    EXPECT_EQ(motivo(), "file o cartella inesistente");

    fs::create_symlink("suo", f); // even to the very file
    EXPECT_EQ(motivo(), "è un collegamento");
    fs::remove(f);

    ASSERT_EQ(::mkfifo(f.c_str(), 0600), 0);
    EXPECT_EQ(motivo(), "non è un file ordinario"); // without waiting for a reader
    const int lettore = ::open(f.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    EXPECT_EQ(motivo(), "un altro programma lo ha sostituito");
    ::close(lettore);
    fs::remove(f);

    Scrivi(f, "altrui");
    EXPECT_EQ(motivo(), "un altro programma lo ha sostituito");
    EXPECT_EQ(Byte(f), "altrui");
    fs::remove(f);

    fs::create_directory(f);
    EXPECT_EQ(motivo(), "è una cartella");
    fs::remove(f);

    fs::rename(suo, f); // its own again
    EXPECT_EQ(motivo(), "");
    file.Scrivi(" due");
    EXPECT_EQ(Byte(f), "uno due");
}

TEST(FileNuovo, RiaprireRifiutaAncheUnFileNatoAlPostoDelSuo)
{
    // The system may well give it the number that the removed one had.
    const CartellaDiProva cartella;
    {
        FileNuovo file(cartella.Nome() + "f");
        file.Chiudi();
        fs::remove(cartella.File("f"));
        Scrivi(cartella.File("f"), "altrui");
        const auto errore = ErroreDi([&] { file.Riapri(); });
        ASSERT_TRUE(errore);
        EXPECT_EQ(errore->Motivo(), "un altro programma lo ha sostituito");
    }
    EXPECT_EQ(Byte(cartella.File("f")), "altrui"); // and it is not removed at the end
}

TEST(FileNuovo, UnaRiaperturaFallitaNonLasciaNullaDiAperto)
{
    const CartellaDiProva cartella;
    FileNuovo file(cartella.Nome() + "f");
    file.Chiudi();
    fs::rename(cartella.File("f"), cartella.File("suo"));
    Scrivi(cartella.File("f"), "altrui");
    EXPECT_TRUE(ErroreDi([&] { file.Riapri(); }));
    EXPECT_EQ(Descrittore(cartella.File("f")), -1);
    EXPECT_TRUE(ErroreDi([&] { file.Scrivi("x"); }));
}

TEST(FileNuovo, AllaFineCioCheLoHaSostituitoResta)
{
    const CartellaDiProva cartella;
    const fs::path f = cartella.File("f");
    const auto sostituito = [&](const std::function<void()>& con) {
        const FileNuovo file(f);
        fs::rename(f, cartella.File("suo"));
        con();
    };
    sostituito([&] { Scrivi(f, "altrui"); });
    EXPECT_EQ(Byte(f), "altrui");
    fs::remove(f);
    sostituito([&] { fs::create_symlink("suo", f); });
    EXPECT_EQ(Tipo(f), fs::file_type::symlink);
    EXPECT_EQ(Tipo(cartella.File("suo")), fs::file_type::regular);
    fs::remove(f);
    sostituito([&] { fs::create_directory(f); });
    EXPECT_EQ(Tipo(f), fs::file_type::directory);
    fs::remove(f);
    sostituito([] {});
    EXPECT_EQ(Tipo(f), fs::file_type::not_found);
}

TEST(FileNuovo, FinitoMentreEApertoNonToglieUnFileNatoDopo)
{
    // While the descriptor is open the file's number cannot be given to another file.
    const CartellaDiProva cartella;
    {
        const FileNuovo file(cartella.Nome() + "f");
        fs::remove(cartella.File("f"));
        Scrivi(cartella.File("f"), "altrui");
    }
    EXPECT_EQ(Byte(cartella.File("f")), "altrui");
}

TEST(FileNuovo, IProgrammiAvviatiNonLoEreditano)
{
    const CartellaDiProva cartella;
    FileNuovo file(cartella.Nome() + "f");
    const auto ereditato = [&] {
        const int descrittore = Descrittore(cartella.File("f"));
        EXPECT_GE(descrittore, 0);
        return (::fcntl(descrittore, F_GETFD) & FD_CLOEXEC) == 0;
    };
    EXPECT_FALSE(ereditato());
    file.Chiudi();
    EXPECT_EQ(Descrittore(cartella.File("f")), -1);
    file.Riapri();
    EXPECT_FALSE(ereditato());
}
