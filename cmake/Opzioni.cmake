# What every target of the project is compiled with, as one interface target.
add_library(scalvino_opzioni INTERFACE)

target_compile_options(scalvino_opzioni INTERFACE
    -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow
    $<$<BOOL:${SCALVINO_WERROR}>:-Werror>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # g++ 12 sees overlaps inside its own std::string that are none.
    target_compile_options(scalvino_opzioni INTERFACE -Wno-restrict)
endif()

# The same numbers on every processor: a product is rounded before it is added to something, and 32-bit
# PCs calculate with 64 bits (SSE2) instead of 80, with which halving would not end where it must.
target_compile_options(scalvino_opzioni INTERFACE -ffp-contract=off)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(i[3-6]86|x86|x86_64|AMD64)$")
        target_compile_options(scalvino_opzioni INTERFACE -msse2 -mfpmath=sse)
    endif()
    # Files above 2 GB and moments after 2038.
    target_compile_definitions(scalvino_opzioni INTERFACE _FILE_OFFSET_BITS=64 _TIME_BITS=64)
endif()

# Hardening of what is shipped; a debug build keeps the library's own checks instead.
target_compile_options(scalvino_opzioni INTERFACE
    $<$<CONFIG:Release>:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>)
# What is built as -fPIC must not become -fPIE by a later option: objects of the shared library, and
# all that uses Qt, which brings -fPIC. With -fPIE a program would get copies of Qt's class
# descriptions, and Qt would not know its own widgets.
set(indipendente $<BOOL:$<TARGET_PROPERTY:POSITION_INDEPENDENT_CODE>>)
set(con_qt $<BOOL:$<TARGET_PROPERTY:SCALVINO_CON_QT>>)
target_compile_options(scalvino_opzioni INTERFACE
    $<$<AND:$<CONFIG:Release>,$<NOT:${indipendente}>,$<NOT:${con_qt}>>:-fPIE>)
target_compile_definitions(scalvino_opzioni INTERFACE _GLIBCXX_ASSERTIONS)
if(NOT WIN32)
    target_link_options(scalvino_opzioni INTERFACE
        $<$<AND:$<CONFIG:Release>,$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>>:-pie>
        $<$<CONFIG:Release>:-Wl,-z,relro,-z,now,-z,noexecstack>)
else()
    # Here the stack protector is a library, which only this option brings in.
    target_link_options(scalvino_opzioni INTERFACE $<$<CONFIG:Release>:-fstack-protector-strong>)
endif()

if(SCALVINO_SANITIZE)
    set(flags -fsanitize=${SCALVINO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(scalvino_opzioni INTERFACE ${flags})
    target_link_options(scalvino_opzioni INTERFACE ${flags})
endif()
if(SCALVINO_COVERAGE)
    target_compile_options(scalvino_opzioni INTERFACE --coverage)
    # A child that a test ends with _exit() writes its counts by this function.
    target_link_options(scalvino_opzioni INTERFACE --coverage -Wl,--undefined=__gcov_dump)
endif()

# A library of one folder: it exports that folder and nothing else, so that an include names
# a file of a folder further up in the house plan or does not compile.
#
# CONDIVISIBILE: its objects may stand in a shared library, which shows only what says so.
function(scalvino_libreria nome)
    cmake_parse_arguments(ARG "CONDIVISIBILE" "" "SORGENTI;USA" ${ARGN})
    add_library(${nome} STATIC ${ARG_SORGENTI})
    if(ARG_CONDIVISIBILE)
        set_target_properties(${nome} PROPERTIES
            POSITION_INDEPENDENT_CODE ON
            CXX_VISIBILITY_PRESET hidden
            VISIBILITY_INLINES_HIDDEN ON)
        # Constants of headers would stay visible to the whole process otherwise.
        target_compile_options(${nome} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
    endif()
    target_include_directories(${nome} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${nome} PUBLIC ${ARG_USA} PRIVATE scalvino_opzioni)
endfunction()
