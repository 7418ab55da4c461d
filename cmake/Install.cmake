# `find_package(Korvane COMPONENTS Core Controls QtSql Voice)` for whoever builds on the installed library. What belongs to a
# component of it installs itself (Library.cmake); the install components are Debian's packages (Package.cmake).
include(CMakePackageConfigHelpers)

configure_package_config_file(cmake/KorvaneConfig.cmake.in ${PROJECT_BINARY_DIR}/KorvaneConfig.cmake
    INSTALL_DESTINATION ${korvane_package_dir} NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KorvaneConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/KorvaneConfig.cmake ${PROJECT_BINARY_DIR}/KorvaneConfigVersion.cmake
    DESTINATION ${korvane_package_dir} COMPONENT libkorvane-dev)
korvane_install_copyright(libkorvane)
korvane_install_copyright(libkorvane-dev)
