// Writing into files of the program's own: whole blocks, closing, opening again, and the end.

#include "FileNuovo.h"

#include "Aiuti.h"
#include "Scritture.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using aiuti::Byte;
using aiuti::CartellaDiProva;
using aiuti::ErroreDi;

namespace fs = std::filesystem;

namespace {

void Scrivi(const fs::path& percorso, const std::string& testo)
{
    std::ofstream file(percorso, std::ios::binary);
    file << testo;
    EXPECT_TRUE(file.flush()) << percorso;
}

// What stands under a name, without following it.
fs::file_type Tipo(const fs::path& percorso)
{
    return fs::symlink_status(percorso).type();
}

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

// ---- Writing ---------------------------------------------------------------------------------

TEST(FileNuovo, ScriveIBlocchiUnoDopoLAltro)
{
    const CartellaDiProva cartella;
    FileNuovo file(cartella.Nome() + "f");
    EXPECT_EQ(file.Percorso(), cartella.Nome() + "f");
    file.Scrivi("uno");
    file.Scrivi("");
    file.Scrivi(std::string("\0\xFF\r\n", 4));
    EXPECT_EQ(Byte(cartella.File("f")), std::string("uno\0\xFF\r\n", 7));
}

TEST(FileNuovo, UnBloccoETuttoONiente)
{
    // Ten bytes in pieces of three: four writes, of which each one fails in its turn.
    for (int quale = 1; quale <= 4; ++quale) {
        for (const int codice : {ENOSPC, EIO, EDQUOT, 0}) {
            const CartellaDiProva cartella;
            aiuti::ScrittureGuaste scritture;
            FileNuovo file(cartella.Nome() + "f");
            file.Scrivi("intero");
            scritture.Spezza(3);
            scritture.Guasta(1 + quale, codice);
            const auto errore = ErroreDi([&] { file.Scrivi("0123456789"); });
            ASSERT_TRUE(errore) << quale;
            EXPECT_EQ(errore->File(), cartella.Nome() + "f");
            EXPECT_EQ(scritture.Scritture(), 1 + quale); // no second try
            EXPECT_EQ(Byte(cartella.File("f")), "intero") << quale;
        }
    }
}

TEST(FileNuovo, DopoUnBloccoFallitoIlSuccessivoSegueSubito)
{
    const CartellaDiProva cartella;
    aiuti::ScrittureGuaste scritture;
    FileNuovo file(cartella.Nome() + "f");
    file.Scrivi("intero");
    scritture.Spezza(3);
    scritture.Guasta(3, ENOSPC);
    EXPECT_TRUE(ErroreDi([&] { file.Scrivi("0123456789"); }));
    file.Scrivi(" poi");
    EXPECT_EQ(Byte(cartella.File("f")), "intero poi");
}

TEST(FileNuovo, AncheDopoUnaRiaperturaUnBloccoETuttoONiente)
{
    const CartellaDiProva cartella;
    aiuti::ScrittureGuaste scritture;
    FileNuovo file(cartella.Nome() + "f");
    file.Scrivi("intero");
    file.Chiudi();
    file.Riapri();
    scritture.Spezza(3);
    scritture.Guasta(3, ENOSPC, aiuti::Durata::DaAllora);
    EXPECT_TRUE(ErroreDi([&] { file.Scrivi("0123456789"); }));
    EXPECT_EQ(scritture.Byte(), 9U);
    EXPECT_EQ(Byte(cartella.File("f")), "intero");
}

TEST(FileNuovo, ScrittureCorteEInterrotteVannoAvanti)
{
    const CartellaDiProva cartella;
    aiuti::ScrittureGuaste scritture;
    scritture.Spezza(3);
    scritture.Interrompi();
    FileNuovo file(cartella.Nome() + "f");
    file.Scrivi("0123456789");
    EXPECT_EQ(scritture.Scritture(), 8); // four pieces, each interrupted once
    EXPECT_EQ(Byte(cartella.File("f")), "0123456789");
}

TEST(ScriviSuDescrittore, ZeroByteScrittiSonoUnErroreNonUnGiroSenzaFine)
{
    const CartellaDiProva cartella;
    aiuti::ScrittureGuaste scritture;
    scritture.Guasta(1, 0, aiuti::Durata::DaAllora);
    const auto errore = ErroreDi([] { ScriviSuDescrittore(STDOUT_FILENO, "x", "uscita"); });
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->File(), "uscita");
    EXPECT_EQ(errore->Numero(), NumeroErrore::ErroreInputOutput);
    EXPECT_EQ(scritture.Scritture(), 1);
}

TEST(ScriviSuDescrittore, NullaDaScrivereNonChiama)
{
    aiuti::ScrittureGuaste scritture;
    scritture.Guasta(1, EIO, aiuti::Durata::DaAllora);
    EXPECT_FALSE(ErroreDi([] { ScriviSuDescrittore(-1, "", "x"); }));
    EXPECT_EQ(scritture.Scritture(), 0);
}

TEST(ScriviSuDescrittore, IlDispositivoPienoDiceLaVeraRagione)
{
    const int piena = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
    if (piena < 0) GTEST_SKIP() << "no /dev/full";
    const auto errore = ErroreDi([&] { ScriviSuDescrittore(piena, "x", "uscita"); });
    ::close(piena);
    ASSERT_TRUE(errore);
    EXPECT_STREQ(errore->what(), "uscita: spazio esaurito sul disco");
}

TEST(FileNuovo, DaChiusoNonSiScrive)
{
    const CartellaDiProva cartella;
    FileNuovo file(cartella.Nome() + "f");
    file.Chiudi();
    const auto errore = ErroreDi([&] { file.Scrivi("x"); });
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Motivo(), "il file non è aperto");
}

// ---- Closing and opening again ---------------------------------------------------------------

TEST(FileNuovo, UnaChiusuraFallitaSiDice)
{
    for (const int codice : {EIO, ENOSPC, EDQUOT}) {
        const CartellaDiProva cartella;
        aiuti::ScrittureGuaste scritture;
        scritture.GuastaChiusura(1, codice);
        FileNuovo file(cartella.Nome() + "f");
        file.Scrivi("x");
        const auto errore = ErroreDi([&] { file.Chiudi(); });
        ASSERT_TRUE(errore);
        EXPECT_EQ(errore->File(), cartella.Nome() + "f");
        EXPECT_FALSE(ErroreDi([&] { file.Chiudi(); })); // it is closed now
        EXPECT_EQ(scritture.Chiusure(), 1);
    }
}

TEST(FileNuovo, UnaChiusuraInterrottaECompiutaENonSiRipete)
{
    const CartellaDiProva cartella;
    aiuti::ScrittureGuaste scritture;
    scritture.GuastaChiusura(1, EINTR);
    FileNuovo file(cartella.Nome() + "f");
    EXPECT_FALSE(ErroreDi([&] { file.Chiudi(); }));
    EXPECT_EQ(scritture.Chiusure(), 1);
}

TEST(FileNuovo, RiapertoAggiungeInFondo)
{
    const CartellaDiProva cartella;
    FileNuovo file(cartella.Nome() + "f");
    file.Scrivi("uno");
    file.Chiudi();
    for (const char* testo : {" due", " tre"}) {
        file.Riapri();
        file.Scrivi(testo);
        file.Chiudi();
    }
    EXPECT_EQ(Byte(cartella.File("f")), "uno due tre");
}

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

// ---- The end ---------------------------------------------------------------------------------

TEST(FileNuovo, AllaFineSiToglieSeNonSiConserva)
{
    const CartellaDiProva cartella;
    {
        FileNuovo aperto(cartella.Nome() + "aperto");
        aperto.Scrivi("x");
        FileNuovo chiuso(cartella.Nome() + "chiuso");
        chiuso.Chiudi();
        FileNuovo conservato(cartella.Nome() + "conservato");
        conservato.Scrivi("x");
        conservato.Conserva();
        EXPECT_EQ(cartella.Contenuto().size(), 3U);
    }
    EXPECT_EQ(cartella.Contenuto(), (std::vector<std::string>{"conservato"}));
    EXPECT_EQ(Byte(cartella.File("conservato")), "x");
}

TEST(FileNuovo, AllaFineUnaChiusuraFallitaNonCambiaNulla)
{
    const CartellaDiProva cartella;
    aiuti::ScrittureGuaste scritture;
    scritture.GuastaChiusura(1, EIO);
    {
        const FileNuovo file(cartella.Nome() + "f");
    }
    EXPECT_EQ(scritture.Chiusure(), 1);
    EXPECT_TRUE(cartella.Contenuto().empty());
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
