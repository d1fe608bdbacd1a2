# Debian packages of the components, by CPack; tools/pacchetti-debian.sh makes them.
set(SCALVINO_MANUTENTORE "Vellarmo <vellarmo@scalvino.invalid>" CACHE STRING
    "Name and address of who makes the packages")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME scalvino)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${SCALVINO_MANUTENTORE})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(debian ${PROJECT_SOURCE_DIR}/packaging/debian)
set(CPACK_PRE_BUILD_SCRIPTS ${debian}/rifinisci.cmake)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 0local1) # gives way to any revision of Debian's own
set(CPACK_DEBIAN_PACKAGE_SOURCE scalvino)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# Freeware names no terms, which is not what Debian calls free.
function(pacchetto componente nome sezione descrizione)
    string(TOUPPER ${componente} maiuscolo)
    set(CPACK_DEBIAN_${maiuscolo}_PACKAGE_NAME ${nome} PARENT_SCOPE)
    set(CPACK_DEBIAN_${maiuscolo}_PACKAGE_SECTION non-free/${sezione} PARENT_SCOPE)
    set(CPACK_DEBIAN_${maiuscolo}_DESCRIPTION ${descrizione} PARENT_SCOPE)
endfunction()

set(CPACK_COMPONENTS_ALL comando documentazione)

pacchetto(comando taglie misc
"simulator of whole shoes of the card game Scalvino
Scalvino deals two rows of cards, Nero and Rosso, from a shoe of 312 cards,
each until its points pass 30; the lower total wins.

The command taglie simulates any number of whole shoes and reports them in
full or as statistics, in text, HTML or PDF, and gives its totals to other
programs as JSON or CSV. It speaks Italian.")
set(CPACK_DEBIAN_COMANDO_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_COMANDO_PACKAGE_SUGGESTS "scalvino, scalvino-doc, xdg-utils")

pacchetto(documentazione scalvino-doc doc
"guide and PDF library manual of the card game simulator Scalvino
The guide to the programs scalvino and taglie, the fields of their JSON and
CSV data, and the manual of the PDF library clsPDFCreator with its examples
and pictures of their pages.")
set(CPACK_DEBIAN_DOCUMENTAZIONE_PACKAGE_ARCHITECTURE all)

if(SCALVINO_UI)
    list(APPEND CPACK_COMPONENTS_ALL programma)
    pacchetto(programma scalvino misc
"card game Scalvino, played and studied in a window
Scalvino deals two rows of cards, Nero and Rosso, from a shoe of 312 cards,
each until its points pass 30; the lower total wins.

The window plays a shoe coup by coup on its table, without stakes, and
simulates any number of whole shoes, with reports in HTML, PDF or text or
statistics on the table. It is in Italian.")
    # What the linker does not see: the faces in which the table is measured, Qt's Italian words.
    set(CPACK_DEBIAN_PROGRAMMA_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_PROGRAMMA_PACKAGE_DEPENDS
        "fonts-liberation2 | fonts-liberation, fonts-dejavu-core, qt6-translations-l10n")
    set(CPACK_DEBIAN_PROGRAMMA_PACKAGE_RECOMMENDS "hicolor-icon-theme, qt6-wayland, xdg-utils")
    set(CPACK_DEBIAN_PROGRAMMA_PACKAGE_SUGGESTS "scalvino-doc, taglie")
endif()

if(NOT SCALVINO_SANITIZE)
    list(APPEND CPACK_COMPONENTS_ALL libreria)
    pacchetto(libreria libclspdfcreator-dev libdevel
"PDF writer for C++ with text, tables, images and barcodes
The class clsPDFCreator writes PDF files: text in the standard fonts and in
fonts of one's own, boxes and tables, paths and curves, pictures, barcodes,
patterns, bookmarks and notes. Programs of C++17 can use it. It needs the C++
standard library, and zlib to compress.

The package holds the headers, the shared and the static library, and what
CMake and pkg-config need to find them.")
    set(CPACK_DEBIAN_LIBRERIA_PACKAGE_SHLIBDEPS ON)
    if(ZLIB_FOUND)
        set(CPACK_DEBIAN_LIBRERIA_PACKAGE_DEPENDS zlib1g-dev) # of the static library
    endif()
    set(CPACK_DEBIAN_LIBRERIA_PACKAGE_SUGGESTS "pkg-config, scalvino-doc")
    # A trigger instead of scripts that call ldconfig; naming scripts that do not exist keeps CPack
    # from writing those.
    set(CPACK_DEBIAN_LIBRERIA_PACKAGE_CONTROL_EXTRA
        ${debian}/triggers ${debian}/nessuno/postinst ${debian}/nessuno/postrm)
    set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
    set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
endif()

include(CPack)
