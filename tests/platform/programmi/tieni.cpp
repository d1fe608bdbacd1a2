// Opens a file as asked, says so and holds it until its standard input ends:
//   tieni FILE ACCESS SHARE     the two numbers as CreateFile takes them
// Prints "s" when it has the file and "n" when the system refuses it.

#include <cstdio>
#include <cstdlib>

#include <windows.h>

int main(int argc, char** argv)
{
    if (argc != 4) return 2;
    const auto numero = [argv](int i) {
        return static_cast<DWORD>(std::strtoul(argv[i], nullptr, 0));
    };
    const HANDLE file = CreateFileA(argv[1], numero(2), numero(3), nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    std::fputs(file == INVALID_HANDLE_VALUE ? "n" : "s", stdout);
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return 0;
}
