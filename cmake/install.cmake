# What `cmake --install` puts in place: the library with its headers and its
# CMake package, the configuration folder, guides and samples.  The command
# installs itself.  What only a program that uses the library needs is the
# component "development".
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/cantorel)
set(config_folder ${CMAKE_INSTALL_DATADIR}/cantorel/config)

install(TARGETS cantorel EXPORT cantorelTargets COMPONENT development)
install(DIRECTORY src/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/cantorel COMPONENT development
        FILES_MATCHING PATTERN "*.h" PATTERN "*.inc")
install(EXPORT cantorelTargets NAMESPACE cantorel:: DESTINATION ${package_folder}
        COMPONENT development)
install(DIRECTORY config/ DESTINATION ${config_folder} PATTERN "sources" EXCLUDE)
install(FILES README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs examples DESTINATION ${CMAKE_INSTALL_DOCDIR})

configure_package_config_file(cmake/cantorelConfig.cmake.in cantorelConfig.cmake
  INSTALL_DESTINATION ${package_folder} PATH_VARS config_folder)
write_basic_package_version_file(cantorelConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/cantorelConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/cantorelConfigVersion.cmake
              cmake/FindLibZip.cmake
        DESTINATION ${package_folder} COMPONENT development)
