// Runs code in a child process, as another user where a test needs one without root's rights.
#include "Utente.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <exception>

#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

// There in a build that counts the lines run, and nowhere else.
extern "C" void __gcov_dump() __attribute__((weak));

namespace aiuti {

namespace {

// Failures of the running test so far; a child starts with those of its parent.
int Fallimenti()
{
    const auto* prova = ::testing::UnitTest::GetInstance()->current_test_info();
    int quanti = 0;
    for (int i = 0; i < prova->result()->total_part_count(); ++i) {
        if (prova->result()->GetTestPartResult(i).failed()) ++quanti;
    }
    return quanti;
}

[[noreturn]] void EsciCon(int codice)
{
    std::fflush(nullptr);
    if (__gcov_dump != nullptr) __gcov_dump();
    // Not exit(): what the parent has registered is for the parent's end.
    ::_exit(codice);
}

[[noreturn]] void Lavora(const std::function<void()>& lavoro)
{
    const int prima = Fallimenti();
    // Whoever started the tests in the background may have told them to ignore some.
    for (const int segnale : {SIGINT, SIGQUIT, SIGTERM, SIGHUP}) std::signal(segnale, SIG_DFL);
    try {
        lavoro();
    } catch (const std::exception& errore) {
        ADD_FAILURE() << "in the child: " << errore.what();
    }
    EsciCon(Fallimenti() == prima ? Riuscito : Fallito);
}

int Esito(int stato)
{
    return WIFEXITED(stato) ? WEXITSTATUS(stato) : DaSegnale + WTERMSIG(stato);
}

void LasciaIDiritti()
{
    if (SonoRadice()) {
        ASSERT_EQ(::setgroups(0, nullptr), 0);
        ASSERT_EQ(::setresgid(Nessuno, Nessuno, Nessuno), 0);
        ASSERT_EQ(::setresuid(Nessuno, Nessuno, Nessuno), 0);
    }
    ASSERT_NE(::geteuid(), 0U);
    ASSERT_NE(::setuid(0), 0);
}

} // namespace

bool SonoRadice()
{
    return ::geteuid() == 0;
}

void EsciImpossibile()
{
    EsciCon(Impossibile);
}

Figlio::Figlio(const std::function<void()>& lavoro)
{
    std::fflush(nullptr); // else both would print what waits in the buffers
    m_numero = ::fork();
    if (m_numero == 0) Lavora(lavoro);
    EXPECT_GT(m_numero, 0) << "fork";
}

Figlio::~Figlio()
{
    if (m_numero <= 0) return;
    ::kill(m_numero, SIGKILL);
    Aspetta();
}

int Figlio::Aspetta()
{
    int stato = 0;
    while (::waitpid(m_numero, &stato, 0) < 0) {
        if (errno != EINTR) return Fallito;
    }
    m_numero = -1;
    return Esito(stato);
}

bool Figlio::Finito(int& esito)
{
    int stato = 0;
    if (::waitpid(m_numero, &stato, WNOHANG) != m_numero) return false;
    m_numero = -1;
    esito = Esito(stato);
    return true;
}

int InUnFiglio(const std::function<void()>& lavoro)
{
    return Figlio(lavoro).Aspetta();
}

int ComeNessuno(const std::function<void()>& lavoro)
{
    return InUnFiglio([&lavoro] {
        LasciaIDiritti();
        if (::geteuid() != 0) lavoro();
    });
}

void Affida(const std::filesystem::path& percorso, uid_t utente)
{
    ASSERT_EQ(::lchown(percorso.c_str(), utente, static_cast<gid_t>(utente)), 0) << percorso;
}

uid_t Padrone(const std::filesystem::path& percorso)
{
    struct stat voce = {};
    EXPECT_EQ(::lstat(percorso.c_str(), &voce), 0) << percorso;
    return voce.st_uid;
}

} // namespace aiuti
