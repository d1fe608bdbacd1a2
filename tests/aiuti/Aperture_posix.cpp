// Replaces the open() of the C library, so that a test can do something right before a file is
// opened; tests/platform/ tries the guards of new files so.
#include "Aperture.h"

#include <cstdarg>
#include <utility>

// Not <fcntl.h>: with some options of the compiler it defines open() itself.
#include <linux/fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::function<void()> Atteso;

} // namespace

// Stands before the C library's own.
extern "C" int open(const char* percorso, int modo, ...)
{
    std::va_list altri;
    va_start(altri, modo);
    const unsigned permessi = (modo & O_CREAT) != 0 ? va_arg(altri, unsigned) : 0;
    va_end(altri);
    if (const auto gesto = std::exchange(Atteso, nullptr)) gesto();
    return static_cast<int>(::syscall(SYS_openat, AT_FDCWD, percorso, modo, permessi));
}

namespace aiuti {

PrimaDellApertura::PrimaDellApertura(std::function<void()> gesto)
{
    Atteso = std::move(gesto);
}

PrimaDellApertura::~PrimaDellApertura()
{
    Atteso = nullptr;
}

bool PrimaDellApertura::Avvenuto()
{
    return !Atteso;
}

} // namespace aiuti
