// The operating system's errors in the program's words.

#include "ErroreSistema.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <new>
#include <system_error>

namespace {

int Numero(int codice)
{
    return static_cast<int>(ErroreSistema(codice, "x").Numero());
}

} // namespace

TEST(ErroreSistema, FileEMotivoItaliano)
{
    const auto errore = ErroreSistema(ENOSPC, "/tmp/taglie.txt");
    EXPECT_EQ(errore.Numero(), NumeroErrore::DiscoPieno);
    EXPECT_EQ(errore.File(), "/tmp/taglie.txt");
    EXPECT_EQ(errore.Motivo(), "spazio esaurito sul disco");
    EXPECT_STREQ(errore.what(), "/tmp/taglie.txt: spazio esaurito sul disco");
}

TEST(ErroreSistema, IlNumeroDiOgniFamiglia)
{
    for (const int codice : {ENOSPC, EFBIG, EDQUOT}) EXPECT_EQ(Numero(codice), 61) << codice;
    for (const int codice : {EACCES, EPERM, EROFS}) EXPECT_EQ(Numero(codice), 70) << codice;
    for (const int codice : {EIO, EPIPE}) EXPECT_EQ(Numero(codice), 57) << codice;
    for (const int codice : {ENOENT, ENOTDIR}) EXPECT_EQ(Numero(codice), 76) << codice;
    EXPECT_EQ(Numero(ENOMEM), 7);
    for (const int codice : {EEXIST, EISDIR, ELOOP, ENXIO, ENAMETOOLONG, EMFILE, ENFILE, EBADF}) {
        EXPECT_EQ(Numero(codice), 75) << codice;
    }
}

TEST(MotivoSistema, TestiDegliErroriPiuFrequenti)
{
    EXPECT_EQ(MotivoSistema(EACCES), "permesso negato");
    EXPECT_EQ(MotivoSistema(EROFS), "il disco è di sola lettura");
    EXPECT_EQ(MotivoSistema(EFBIG), "superata la dimensione massima di un file");
    EXPECT_EQ(MotivoSistema(EIO), "errore del dispositivo");
    EXPECT_EQ(MotivoSistema(EISDIR), "è una cartella");
    EXPECT_EQ(MotivoSistema(ELOOP), "è un collegamento");
    EXPECT_EQ(MotivoSistema(ENXIO), "non è un file ordinario");
}

TEST(MotivoSistema, UnCodiceFuoriElencoHaComunqueUnTesto)
{
    EXPECT_FALSE(MotivoSistema(ENOTTY).empty());
    EXPECT_EQ(Numero(ENOTTY), 75);
}

TEST(PretendiMemoria, SoloLaSuaMancanzaELanciata)
{
    EXPECT_THROW(PretendiMemoria(std::make_error_code(std::errc::not_enough_memory)),
                 std::bad_alloc);
    EXPECT_NO_THROW(PretendiMemoria({}));
    EXPECT_NO_THROW(PretendiMemoria(std::make_error_code(std::errc::no_such_file_or_directory)));
}
