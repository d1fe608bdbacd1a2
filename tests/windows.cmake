# What the tests need on Windows beside their own program; included there only.

# The names of files must be read as the command reads them.
target_sources(prove PRIVATE ${PROJECT_SOURCE_DIR}/resources/taglie.rc)

# Programs that the tests start, beside them.
foreach(nome tieni rundll32)
    add_executable(${nome} platform/programmi/${nome}.cpp)
    target_link_libraries(${nome} PRIVATE scalvino_opzioni)
    target_sources(${nome} PRIVATE ${PROJECT_SOURCE_DIR}/resources/taglie.rc)
    add_dependencies(prove ${nome})
endforeach()

# The window's own resources in a program that needs no Qt.
add_executable(risorse_finestra
    risorse/risorse_finestra.cpp ${PROJECT_SOURCE_DIR}/resources/scalvino.rc)
target_link_libraries(risorse_finestra PRIVATE scalvino_platform scalvino_opzioni)

add_subdirectory(quote)
add_subdirectory(statistica)
