# What `cmake --install` puts in place: the library with its headers and its
# CMake package, and the configuration folder.  The command installs itself.
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/cantorel)
set(config_folder ${CMAKE_INSTALL_DATADIR}/cantorel/config)

install(TARGETS cantorel EXPORT cantorelTargets)
install(DIRECTORY src/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/cantorel
        FILES_MATCHING PATTERN "*.h" PATTERN "*.inc")
install(DIRECTORY config/ DESTINATION ${config_folder} PATTERN "sources" EXCLUDE)
install(EXPORT cantorelTargets NAMESPACE cantorel:: DESTINATION ${package_folder})

configure_package_config_file(cmake/cantorelConfig.cmake.in cantorelConfig.cmake
  INSTALL_DESTINATION ${package_folder} PATH_VARS config_folder)
write_basic_package_version_file(cantorelConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/cantorelConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/cantorelConfigVersion.cmake
              cmake/FindLibZip.cmake
        DESTINATION ${package_folder})
