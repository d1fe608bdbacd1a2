# Cross-compilation for 64-bit Windows with Debian's mingw-w64 in the variant whose threads are
# POSIX's, the one that has std::thread. See tools/windows.sh, which prepares SCALVINO_ALTRUI: the
# folder with other people's libraries for this target (/usr/include would bring Debian's own C
# library with them).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Programs that need no library of the compiler's beside them.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)

set(SCALVINO_ALTRUI "" CACHE PATH "Libraries of others, installed for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES SCALVINO_ALTRUI)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${SCALVINO_ALTRUI})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
