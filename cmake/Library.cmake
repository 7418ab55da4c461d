# korvane_library(<component> DESCRIPTION <text> SOURCES <file>... HEADERS <file>... [REQUIRES <pc>...] [STATIC_REQUIRES <pc>...]):
# Korvane::<component>, what installs it, and what find_package and pkg-config know of it. Of the pkg-config packages, REQUIRES are
# seen in its headers; STATIC_REQUIRES are linked into a shared library and left to the program by a static one.
set(korvane_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Korvane)
set(korvane_pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
# Wherever the prefix is moved to, a .pc file finds it from where it lies itself.
file(RELATIVE_PATH korvane_pkgconfig_to_prefix /${korvane_pkgconfig_dir} /)

function(korvane_library component)
    cmake_parse_arguments(PARSE_ARGV 1 library "" DESCRIPTION "SOURCES;HEADERS;REQUIRES;STATIC_REQUIRES")
    set(target Korvane${component})
    string(TOLOWER korvane-${component} name)
    add_library(${target} ${library_SOURCES})
    add_library(Korvane::${component} ALIAS ${target})
    # Until 1.0 every minor version may break what was built on the one before.
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${component} OUTPUT_NAME ${name} DEFINE_SYMBOL "" POSITION_INDEPENDENT_CODE ON
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR} INSTALL_RPATH $ORIGIN)
    korvane_headers(${target} ${library_HEADERS})
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:korvane_warnings>)
    if(NOT KORVANE_INSTALL)
        return()
    endif()

    install(TARGETS ${target} EXPORT ${target}
        LIBRARY COMPONENT libkorvane NAMELINK_COMPONENT libkorvane-dev
        ARCHIVE COMPONENT libkorvane-dev
        FILE_SET HEADERS COMPONENT libkorvane-dev
        FILE_SET lone COMPONENT libkorvane-dev)
    install(EXPORT ${target} NAMESPACE Korvane:: DESTINATION ${korvane_package_dir} COMPONENT libkorvane-dev)

    set(requires ${library_REQUIRES})
    if(NOT BUILD_SHARED_LIBS)
        list(APPEND requires ${library_STATIC_REQUIRES})
    endif()
    # Qt's libraries keep their own symbols: a program that had copies of them (of a class's meta object) would crash.
    set(cflags "")
    if(requires MATCHES "Qt6")
        set(cflags " -fPIC")
    endif()
    list(JOIN requires ", " requires)
    set(description "${library_DESCRIPTION}")
    configure_file(${PROJECT_SOURCE_DIR}/cmake/korvane.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${korvane_pkgconfig_dir} COMPONENT libkorvane-dev)
endfunction()

# korvane_install_copyright(<package> [<notice>...]): our licence and those of what others own in it, where Debian looks for them.
function(korvane_install_copyright package)
    set(text "")
    foreach(file IN ITEMS ${PROJECT_SOURCE_DIR}/LICENSE ${ARGN})
        file(READ ${file} part) # a relative one is in the caller's folder
        string(APPEND text "${part}\n")
    endforeach()
    file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/${package}.copyright "${text}")
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${package}.copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package}
        RENAME copyright COMPONENT ${package})
endfunction()

# korvane_install_program(<target>): into the package of its name; from there it finds the libraries in whatever prefix.
function(korvane_install_program target)
    file(RELATIVE_PATH libraries /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
    set_target_properties(${target} PROPERTIES INSTALL_RPATH $ORIGIN/${libraries})
    install(TARGETS ${target} COMPONENT ${target})
endfunction()
