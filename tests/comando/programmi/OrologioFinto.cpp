// A library to be loaded before a program: its clocks show what a test wants.
//
// OROLOGIO: the time of day that the first question is answered with, in seconds since 1970.
// OROLOGIO_PASSO: by how many nanoseconds each further answer is later (negative: earlier); 0 when
// missing, so that the clock stands.
// MONOTONO, MONOTONO_PASSO: likewise for the clock that durations are measured by; where they are
// missing, and for all other clocks, the system answers.

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <ctime>

#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr std::int64_t Secondo = 1000000000;

std::int64_t Numero(const char* nome, std::int64_t altrimenti)
{
    const char* testo = std::getenv(nome);
    return testo == nullptr ? altrimenti : std::strtoll(testo, nullptr, 10);
}

struct Orologio
{
    const char* Nome;
    const char* Passo;
    std::atomic<std::int64_t> Domande;
};

constinit Orologio giorno = {"OROLOGIO", "OROLOGIO_PASSO", 0};
constinit Orologio durate = {"MONOTONO", "MONOTONO_PASSO", 0};

// Nanoseconds are counted apart from the start: all seconds of a time_t are allowed there.
bool Rispondi(Orologio& orologio, std::timespec& ora)
{
    if (std::getenv(orologio.Nome) == nullptr) return false;
    const std::int64_t passati = orologio.Domande.fetch_add(1) * Numero(orologio.Passo, 0);
    std::int64_t secondi = passati / Secondo;
    std::int64_t resto = passati % Secondo;
    if (resto < 0) {
        resto += Secondo;
        --secondi;
    }
    ora.tv_sec = Numero(orologio.Nome, 0) + secondi;
    ora.tv_nsec = resto;
    return true;
}

bool DelGiorno(clockid_t quale)
{
    return quale == CLOCK_REALTIME || quale == CLOCK_REALTIME_COARSE;
}

bool DelleDurate(clockid_t quale)
{
    return quale == CLOCK_MONOTONIC || quale == CLOCK_MONOTONIC_COARSE;
}

} // namespace

extern "C" int clock_gettime(clockid_t quale, std::timespec* ora) noexcept
{
    if (DelGiorno(quale) && Rispondi(giorno, *ora)) return 0;
    if (DelleDurate(quale) && Rispondi(durate, *ora)) return 0;
    return static_cast<int>(::syscall(SYS_clock_gettime, quale, ora));
}

extern "C" std::time_t time(std::time_t* dove) noexcept
{
    std::timespec ora = {};
    clock_gettime(CLOCK_REALTIME, &ora);
    if (dove != nullptr) *dove = ora.tv_sec;
    return ora.tv_sec;
}

extern "C" int gettimeofday(timeval* dove, void* /*zona*/) noexcept
{
    std::timespec ora = {};
    clock_gettime(CLOCK_REALTIME, &ora);
    *dove = {ora.tv_sec, ora.tv_nsec / 1000};
    return 0;
}
