# Debian packages, made by `cpack -G DEB` in the build folder: cantorel, the
# command with its configuration and guides, and libcantorel-dev, the library.
install(FILES cmake/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/cantorel)
install(FILES cmake/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libcantorel-dev
        COMPONENT development)

set(CPACK_GENERATOR DEB)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_NAME cantorel)
set(CPACK_PACKAGE_VENDOR "Cantorel developers")
set(CPACK_PACKAGE_CONTACT "Cantorel developers <developers@cantorel.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL command development)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

set(CPACK_DEBIAN_COMMAND_PACKAGE_NAME cantorel)
set(CPACK_DEBIAN_COMMAND_PACKAGE_SECTION text)
set(CPACK_COMPONENT_COMMAND_DESCRIPTION
"Reads MARC 21 records of music, derives the fields of present practice (382
medium of performance, 655 genre and form, 046, 370, 385, 386) from their
Library of Congress subject headings, and lists them or writes the records
with them. Reads and writes ISO 2709 and MARCXML.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libcantorel-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "cantorel (= ${PROJECT_VERSION}), libc6-dev, libcurl4-openssl-dev, libexpat1-dev, libzip-dev")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
"The library behind the command cantorel, for programs that hold it in their
process, with its headers and its CMake package.")
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/compress_manual.cmake)
include(CPack)
