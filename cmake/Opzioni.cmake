# What every target of the project is compiled with, as one interface target.
add_library(scalvino_opzioni INTERFACE)

target_compile_options(scalvino_opzioni INTERFACE
    -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow
    $<$<BOOL:${SCALVINO_WERROR}>:-Werror>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # g++ 12 sees overlaps inside its own std::string that are none.
    target_compile_options(scalvino_opzioni INTERFACE -Wno-restrict)
endif()

# Hardening of what is shipped; a debug build keeps the library's own checks instead.
target_compile_options(scalvino_opzioni INTERFACE
    $<$<CONFIG:Release>:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>)
# Qt brings -fPIC, which a later -fPIE would undo: the program would then get copies of Qt's class
# descriptions, and Qt would not know its own widgets.
target_compile_options(scalvino_opzioni INTERFACE
    $<$<AND:$<CONFIG:Release>,$<NOT:$<BOOL:$<TARGET_PROPERTY:SCALVINO_CON_QT>>>>:-fPIE>)
target_compile_definitions(scalvino_opzioni INTERFACE _GLIBCXX_ASSERTIONS)
if(NOT WIN32)
    target_link_options(scalvino_opzioni INTERFACE
        $<$<CONFIG:Release>:-pie;-Wl,-z,relro,-z,now,-z,noexecstack>)
endif()

if(SCALVINO_SANITIZE)
    set(flags -fsanitize=${SCALVINO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(scalvino_opzioni INTERFACE ${flags})
    target_link_options(scalvino_opzioni INTERFACE ${flags})
endif()
if(SCALVINO_COVERAGE)
    target_compile_options(scalvino_opzioni INTERFACE --coverage)
    target_link_options(scalvino_opzioni INTERFACE --coverage)
endif()

# A library of one folder: it exports that folder and nothing else, so that an include names
# a file of a folder further up in the house plan or does not compile.
function(scalvino_libreria nome)
    cmake_parse_arguments(ARG "" "" "SORGENTI;USA" ${ARGN})
    add_library(${nome} STATIC ${ARG_SORGENTI})
    target_include_directories(${nome} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${nome} PUBLIC ${ARG_USA} PRIVATE scalvino_opzioni)
endfunction()
