# Joins what both libraries hold into one object, in which every name is local but those of the public
# class and of its error, and puts it in place of ${oggetti}.
#
# Hidden names are hidden only outside the file that they are linked into: those of a plain archive
# would meet the names of the program that links it, an Objects or Intero16 of its own. What headers
# and templates bring (groups, of which a linker keeps one) is joined for good, so that no group of the
# program is taken for ours.
set(unito ${CMAKE_CURRENT_BINARY_DIR}/clsPDFCreator_unito${CMAKE_CXX_OUTPUT_EXTENSION})
separate_arguments(opzioni_di_unione NATIVE_COMMAND "${CMAKE_CXX_FLAGS}")
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Objects made for link-time optimisation become code here: their names could not be made local.
    list(APPEND opzioni_di_unione -flinker-output=nolto-rel -fno-gnu-unique)
endif()
set(pubblici "")
foreach(nome _ZN13clsPDFCreator* _ZNK13clsPDFCreator* _ZN13ErroreRuntime* _ZNK13ErroreRuntime*
        _ZT[ISV]13ErroreRuntime _Z11TestoErrore*)
    list(APPEND pubblici --keep-global-symbol=${nome})
endforeach()
add_custom_command(OUTPUT ${unito}
    COMMAND ${CMAKE_CXX_COMPILER} ${opzioni_di_unione} -r -nostdlib -Wl,--force-group-allocation
        -o ${unito} ${oggetti}
    COMMAND ${CMAKE_OBJCOPY} --wildcard --localize-hidden ${pubblici} ${unito}
    DEPENDS ${oggetti}
    COMMENT "Joining the objects of clsPDFCreator"
    COMMAND_EXPAND_LISTS VERBATIM)
# Two libraries in one folder must not make the same file at the same time.
add_custom_target(clsPDFCreator_unito DEPENDS ${unito})
# make knows no rule for objects of another folder, but that they are made before.
add_dependencies(clsPDFCreator_unito scalvino_pdf scalvino_platform scalvino_base)
set_source_files_properties(${unito} PROPERTIES EXTERNAL_OBJECT ON GENERATED ON)
set(oggetti ${unito})
