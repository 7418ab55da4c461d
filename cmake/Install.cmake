# `find_package(Korvane COMPONENTS Core Controls QtSql)` for whoever builds on the installed library.
include(CMakePackageConfigHelpers)

set(korvane_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Korvane)
configure_package_config_file(cmake/KorvaneConfig.cmake.in ${CMAKE_BINARY_DIR}/KorvaneConfig.cmake
    INSTALL_DESTINATION ${korvane_package_dir})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/KorvaneConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/KorvaneConfig.cmake ${CMAKE_BINARY_DIR}/KorvaneConfigVersion.cmake
    DESTINATION ${korvane_package_dir})
install(EXPORT KorvaneCore NAMESPACE Korvane:: DESTINATION ${korvane_package_dir})
if(KORVANE_CONTROLS)
    install(EXPORT KorvaneControls NAMESPACE Korvane:: DESTINATION ${korvane_package_dir})
    install(EXPORT KorvaneQtSql NAMESPACE Korvane:: DESTINATION ${korvane_package_dir})
endif()
if(KORVANE_VOICE)
    install(EXPORT KorvaneVoice NAMESPACE Korvane:: DESTINATION ${korvane_package_dir})
endif()
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
