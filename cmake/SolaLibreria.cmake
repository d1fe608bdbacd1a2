# The PDF writer alone, for those who want nothing else: a compiler and CMake are enough, and zlib where
# it shall compress. Warnings of compilers to come are no errors here.
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release)
endif()
set(SCALVINO_WERROR OFF)
include(cmake/Opzioni.cmake)

add_subdirectory(base)
add_subdirectory(platform)
add_subdirectory(pdf)
if(SCALVINO_TESTS AND PROJECT_IS_TOP_LEVEL AND NOT SCALVINO_SANITIZE)
    enable_testing()
    add_subdirectory(tests/libreria)
endif()
