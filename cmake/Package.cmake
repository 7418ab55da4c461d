# The Debian packages that ./package makes: one for each install component, which is named as the package is. One that nothing
# is installed into is left out.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME korvane)
set(CPACK_PACKAGE_CONTACT "The Korvane authors <korvane@localhost>" CACHE STRING "Who answers for the packages")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
# What is stripped off goes into packages of its own (-dbgsym), for whoever looks into a crash.
set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/debian/Finish.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SOURCE korvane)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

# korvane_package(<component> <section> <description: a line that sums up, and more>)
get_cmake_property(installed COMPONENTS)
set(CPACK_COMPONENTS_ALL "")
macro(korvane_package component section description)
    if(${component} IN_LIST installed)
        list(APPEND CPACK_COMPONENTS_ALL ${component})
        string(TOUPPER ${component} key)
        set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${component})
        set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section})
        set(CPACK_DEBIAN_${key}_DESCRIPTION "${description}")
        if(NOT ${component} STREQUAL libkorvane)
            set(CPACK_COMPONENT_${key}_DEPENDS libkorvane)
        endif()
    endif()
endmacro()

korvane_package(libkorvane libs "data-entry controls and data classes for clinical records
Forms that a clinic shapes itself, kept in the tables of its own database on
SQLite or PostgreSQL: classes that load and save them, and Qt controls that
show them. With a date control that listens, and panels of buttons.")
set(CPACK_DEBIAN_LIBKORVANE_PACKAGE_RECOMMENDS "pocketsphinx-en-us, qt6-translations-l10n")
# A package that was built on these libraries asks for a version that has them: the next minor one's have other names.
set(abi ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
math(EXPR next "${PROJECT_VERSION_MINOR} + 1")
set(shlibs "")
foreach(component IN ITEMS Core Controls QtSql Voice)
    if(TARGET Korvane${component})
        get_target_property(name Korvane${component} OUTPUT_NAME)
        string(APPEND shlibs "lib${name} ${abi} libkorvane (>= ${PROJECT_VERSION}), libkorvane (<< ${PROJECT_VERSION_MAJOR}.${next}~)\n")
    endif()
endforeach()
file(WRITE ${PROJECT_BINARY_DIR}/shlibs "${shlibs}")
set(CPACK_DEBIAN_LIBKORVANE_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/shlibs)

set(needed libsqlite3-dev)
if(KORVANE_POSTGRES)
    list(APPEND needed libpq-dev)
endif()
if(KORVANE_CONTROLS)
    list(APPEND needed "qt6-base-dev (>= 6.4)")
endif()
if(KORVANE_MICROPHONE)
    list(APPEND needed "qt6-multimedia-dev (>= 6.4)")
endif()
list(JOIN needed ", " CPACK_DEBIAN_LIBKORVANE-DEV_PACKAGE_DEPENDS)
korvane_package(libkorvane-dev libdevel "headers of Korvane, controls and classes for clinical records
What a program is built with that uses libkorvane: the headers, a CMake
package (find_package) and pkg-config files.")

korvane_package(korvane-clinic science "clinical records with forms that the clinic makes to measure
Patients, their encounters, and a form for each encounter. The clinic changes
its forms in the same window, by mouse or keyboard, without losing what was
entered. Works on a file, or on a PostgreSQL server for many desks. It starts
with the records of a made-up clinic.")

korvane_package(korvane-designer libdevel "Korvane's controls in Qt Designer
Offers the data-entry controls of libkorvane in the widget box of Qt Designer,
with their properties.")
set(CPACK_DEBIAN_KORVANE-DESIGNER_PACKAGE_RECOMMENDS "designer-qt6, libkorvane-dev")

include(CPack)
