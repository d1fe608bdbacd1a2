// A library to be loaded before a program: there are no files without a name for it, as on disks
// that know none.

#include <cerrno>
#include <cstdarg>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

extern "C" int openat(int cartella, const char* nome, int modo, ...)
{
    if ((modo & O_TMPFILE) == O_TMPFILE) {
        errno = EOPNOTSUPP;
        return -1;
    }
    std::va_list altri;
    va_start(altri, modo);
    const auto permessi = (modo & O_CREAT) != 0 ? va_arg(altri, mode_t) : 0;
    va_end(altri);
    return static_cast<int>(::syscall(SYS_openat, cartella, nome, modo, permessi));
}
