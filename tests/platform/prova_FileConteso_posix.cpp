// Does somebody hold the file?

#include "FileConteso.h"

#include "Aiuti.h"
#include "Utente.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#endif

using aiuti::CartellaDiProva;
using aiuti::Riuscito;

namespace fs = std::filesystem;

namespace {

// A file of our own in a folder of its own.
class FileDiProva
{
public:
    FileDiProva() { std::ofstream(m_cartella.File("f")) << "testo"; }
    std::string Nome() const { return m_cartella.Nome() + "f"; }

    // Whether this file system can tell at all who has a file open.
    bool SiPuoSapere() const
    {
        const int descrittore = ::open(Nome().c_str(), O_RDONLY | O_CLOEXEC);
        const bool preso = ::fcntl(descrittore, F_SETLEASE, F_WRLCK) == 0;
        ::close(descrittore);
        return preso;
    }

private:
    CartellaDiProva m_cartella;
};

// Another process that has done something to a file and now waits, holding it, for its end.
class Altro
{
public:
    explicit Altro(const std::function<void()>& prende)
        : m_processo([this, &prende] {
            prende();
            EXPECT_EQ(::write(m_tubo[1], testing::Test::HasFailure() ? "n" : "s", 1), 1);
            for (;;) ::pause();
        })
    {
        char pronto = 'n';
        EXPECT_EQ(::read(m_tubo[0], &pronto, 1), 1);
        EXPECT_EQ(pronto, 's');
    }
    ~Altro()
    {
        for (const int capo : m_tubo) ::close(capo);
    }
    Altro(const Altro&) = delete;
    Altro& operator=(const Altro&) = delete;

private:
    std::array<int, 2> m_tubo = NuovoTubo();
    aiuti::Figlio m_processo;

    static std::array<int, 2> NuovoTubo()
    {
        std::array<int, 2> tubo{};
        EXPECT_EQ(::pipe2(tubo.data(), O_CLOEXEC), 0);
        return tubo;
    }
};

std::function<void()> Apre(const std::string& percorso, int modo)
{
    return [percorso, modo] { EXPECT_GE(::open(percorso.c_str(), modo), 0); };
}

void NonFareNulla(int /*segnale*/) {}

// From now on this process opens nothing any more, except with one of the flags salvoCon: the
// kernel answers with motivo.
void NonAprirePiu(int motivo, int salvoCon = 0)
{
#ifdef __linux__
    constexpr std::size_t bassa = std::endian::native == std::endian::little ? 0 : 4;
    constexpr std::size_t modo = offsetof(seccomp_data, args) + 2 * sizeof(std::uint64_t) + bassa;
    const auto risposta = SECCOMP_RET_ERRNO | static_cast<unsigned>(motivo);
    sock_filter passi[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat, 0, 3),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, modo),
        BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, static_cast<unsigned>(salvoCon), 1, 0),
        BPF_STMT(BPF_RET | BPF_K, risposta),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog filtro = {std::size(passi), passi};
    ASSERT_EQ(::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0), 0);
    if (::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filtro) == 0) return;
#endif
    aiuti::EsciImpossibile();
}

#define SALTA_SE_NON_SI_PUO_SAPERE(file)                                                           \
    if (!(file).SiPuoSapere()) GTEST_SKIP() << "no leases on this file system"

} // namespace

TEST(FileOccupato, UnFileLiberoNo)
{
    const FileDiProva file;
    EXPECT_FALSE(FileOccupato(file.Nome()));
    EXPECT_FALSE(FileOccupato(file.Nome())); // and asking does not hold it
}

TEST(FileOccupato, ApertoDaUnAltroProcessoSi)
{
    const FileDiProva file;
    SALTA_SE_NON_SI_PUO_SAPERE(file);
    for (const int modo : {O_RDONLY, O_WRONLY, O_RDWR, O_WRONLY | O_APPEND}) {
        {
            const Altro altro(Apre(file.Nome(), modo));
            EXPECT_TRUE(FileOccupato(file.Nome())) << modo;
        }
        EXPECT_FALSE(FileOccupato(file.Nome())) << modo;
    }
}

TEST(FileOccupato, ApertoDaQuestoProcessoSi)
{
    const FileDiProva file;
    SALTA_SE_NON_SI_PUO_SAPERE(file);
    for (const int modo : {O_RDONLY, O_WRONLY, O_RDWR}) {
        const int descrittore = ::open(file.Nome().c_str(), modo | O_CLOEXEC);
        ASSERT_GE(descrittore, 0);
        EXPECT_TRUE(FileOccupato(file.Nome())) << modo;
        ::close(descrittore);
        EXPECT_FALSE(FileOccupato(file.Nome())) << modo;
    }
}

TEST(FileOccupato, ApertoConUnAltroNomeSi)
{
    const FileDiProva file;
    SALTA_SE_NON_SI_PUO_SAPERE(file);
    fs::create_hard_link(file.Nome(), file.Nome() + "2");
    const Altro altro(Apre(file.Nome() + "2", O_RDONLY));
    EXPECT_TRUE(FileOccupato(file.Nome()));
}

TEST(FileOccupato, DopoLaDomandaGliAltriNonAspettano)
{
    const FileDiProva file;
    EXPECT_FALSE(FileOccupato(file.Nome()));
    // With O_NONBLOCK a lease that is still there would be EWOULDBLOCK instead of a wait.
    EXPECT_EQ(aiuti::InUnFiglio([&] {
                  const int descrittore = ::open(file.Nome().c_str(), O_WRONLY | O_NONBLOCK);
                  EXPECT_GE(descrittore, 0);
                  EXPECT_EQ(::write(descrittore, "x", 1), 1);
              }),
              Riuscito);
}

TEST(FileOccupato, NonAspettaChiHaUnaPrelazione)
{
    const FileDiProva file;
    SALTA_SE_NON_SI_PUO_SAPERE(file);
    const Altro altro([&] {
        std::signal(SIGIO, SIG_IGN);
        const int descrittore = ::open(file.Nome().c_str(), O_RDWR);
        EXPECT_EQ(::fcntl(descrittore, F_SETLEASE, F_WRLCK), 0);
    });
    EXPECT_TRUE(FileOccupato(file.Nome())); // an ordinary opening would wait for 45 seconds
}

TEST(FileOccupato, IlFileNonCambia)
{
    const FileDiProva file;
    struct stat prima = {};
    ASSERT_EQ(::stat(file.Nome().c_str(), &prima), 0);
    EXPECT_FALSE(FileOccupato(file.Nome()));
    struct stat dopo = {};
    ASSERT_EQ(::stat(file.Nome().c_str(), &dopo), 0);
    EXPECT_EQ(dopo.st_size, prima.st_size);
    EXPECT_EQ(dopo.st_mtim.tv_sec, prima.st_mtim.tv_sec);
    EXPECT_EQ(dopo.st_mtim.tv_nsec, prima.st_mtim.tv_nsec);
    EXPECT_EQ(dopo.st_ctim.tv_sec, prima.st_ctim.tv_sec);
    EXPECT_EQ(dopo.st_ctim.tv_nsec, prima.st_ctim.tv_nsec);
}

TEST(FileOccupato, IlSegnaleDiChiUsaIlProgrammaResta)
{
    const FileDiProva file;
    EXPECT_EQ(aiuti::InUnFiglio([&] {
                  std::signal(SIGIO, NonFareNulla);
                  EXPECT_FALSE(FileOccupato(file.Nome()));
                  EXPECT_EQ(std::signal(SIGIO, SIG_DFL), NonFareNulla);
              }),
              Riuscito);
}

TEST(FileOccupato, IlFileDiUnAltroUtenteELibero)
{
    // Only the owner may ask for a lease: here the answer cannot be had.
    EXPECT_EQ(aiuti::ComeNessuno([] {
                  const std::string estraneo = "/etc/passwd";
                  ASSERT_NE(aiuti::Padrone(estraneo), ::geteuid());
                  const int descrittore = ::open(estraneo.c_str(), O_RDONLY | O_CLOEXEC);
                  ASSERT_GE(descrittore, 0);
                  ASSERT_EQ(::fcntl(descrittore, F_SETLEASE, F_RDLCK), -1);
                  ASSERT_EQ(errno, EACCES);
                  EXPECT_FALSE(FileOccupato(estraneo)); // held by ourselves all the while
              }),
              Riuscito);
}

TEST(FileOccupato, UnCollegamentoNonSiSegue)
{
    const FileDiProva file;
    SALTA_SE_NON_SI_PUO_SAPERE(file);
    fs::create_symlink(file.Nome(), file.Nome() + "2");
    fs::create_symlink("nulla", file.Nome() + "penzolante");
    fs::create_symlink("anello", fs::path(file.Nome()).parent_path() / "anello");
    const Altro altro(Apre(file.Nome(), O_RDWR));
    ASSERT_TRUE(FileOccupato(file.Nome()));
    EXPECT_FALSE(FileOccupato(file.Nome() + "2")); // the file behind it is another one
    EXPECT_FALSE(FileOccupato(file.Nome() + "penzolante"));
    EXPECT_FALSE(FileOccupato((fs::path(file.Nome()).parent_path() / "anello").string()));
}

TEST(FileOccupato, CioCheNonSiPuoLeggereNo)
{
    const FileDiProva file;
    if (aiuti::SonoRadice()) aiuti::Affida(file.Nome(), aiuti::Nessuno);
    fs::permissions(file.Nome(), fs::perms::owner_write);
    EXPECT_EQ(aiuti::ComeNessuno([&] {
                  ASSERT_EQ(aiuti::Padrone(file.Nome()), ::geteuid());
                  ASSERT_EQ(::open(file.Nome().c_str(), O_RDONLY), -1);
                  ASSERT_EQ(errno, EACCES);
                  EXPECT_FALSE(FileOccupato(file.Nome()));
              }),
              Riuscito);
    EXPECT_FALSE(FileOccupato(file.Nome() + "assente"));
}

TEST(FileOccupato, DiUnAperturaFallitaContaIlMotivo)
{
    const FileDiProva file;
    for (const int motivo : {EAGAIN, EBUSY, ETXTBSY, EACCES, ELOOP, ENOENT, EMFILE, EIO}) {
        const bool tenuto = motivo == EAGAIN || motivo == EBUSY || motivo == ETXTBSY;
        const int esito = aiuti::InUnFiglio([&] {
            NonAprirePiu(motivo);
            ASSERT_EQ(::open(file.Nome().c_str(), O_RDONLY), -1);
            ASSERT_EQ(errno, motivo);
            EXPECT_EQ(FileOccupato(file.Nome()), tenuto) << motivo;
        });
        if (esito == aiuti::Impossibile) GTEST_SKIP() << "no filter of system calls here";
        EXPECT_EQ(esito, Riuscito) << motivo;
    }
}

TEST(FileOccupato, UnaFifoNonFermaNessuno)
{
    const CartellaDiProva cartella;
    const std::string fifo = cartella.Nome() + "fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_FALSE(FileOccupato(fifo)); // the answer at all is the fact: nobody writes to it
}

TEST(FileOccupato, IProgrammiAvviatiMentreSiChiedeNonEreditanoIlFile)
{
    const FileDiProva file;
    SALTA_SE_NON_SI_PUO_SAPERE(file);
    const int esito = aiuti::InUnFiglio([&] {
        const int tenuto = ::open(file.Nome().c_str(), O_RDWR | O_CLOEXEC);
        ASSERT_GE(tenuto, 0);
        NonAprirePiu(EPERM, O_CLOEXEC);
        ASSERT_EQ(::open(file.Nome().c_str(), O_RDONLY), -1);
        ASSERT_EQ(errno, EPERM);
        EXPECT_TRUE(FileOccupato(file.Nome())); // it could ask: its own opening has the flag
    });
    if (esito == aiuti::Impossibile) GTEST_SKIP() << "no filter of system calls here";
    EXPECT_EQ(esito, Riuscito);
}

TEST(FileOccupato, ChiApreMentreSiChiedeNonFinisceIlProgramma)
{
    // The kernel tells whoever has a lease of each opening by SIGIO, which ends a program.
    const FileDiProva file;
    SALTA_SE_NON_SI_PUO_SAPERE(file);
    const aiuti::Figlio altri([&] {
        for (;;) {
            const int descrittore = ::open(file.Nome().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
            if (descrittore >= 0) ::close(descrittore);
        }
    });
    EXPECT_EQ(aiuti::InUnFiglio([&] {
                  std::signal(SIGIO, SIG_DFL);
                  const auto fine = std::chrono::steady_clock::now() + std::chrono::seconds(1);
                  while (std::chrono::steady_clock::now() < fine) FileOccupato(file.Nome());
              }),
              Riuscito);
}
