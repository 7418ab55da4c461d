# Run by cpack before it makes the packages: adds what Debian wants of a package and an installation has no use for.
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
find_program(gzip gzip REQUIRED)

foreach(package IN LISTS CPACK_COMPONENTS_ALL)
    set(share ${CPACK_TEMPORARY_DIRECTORY}/${package}/usr/share)
    file(WRITE ${share}/doc/${package}/changelog
        "korvane (${CPACK_PACKAGE_VERSION}) unstable; urgency=medium\n\n"
        "  * Version ${CPACK_PACKAGE_VERSION}.\n\n"
        " -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")
    file(GLOB pages ${share}/man/man*/*)
    execute_process(COMMAND ${gzip} -9n ${share}/doc/${package}/changelog ${pages} COMMAND_ERROR_IS_FATAL ANY)
    set(overrides ${CMAKE_CURRENT_LIST_DIR}/${package}.lintian-overrides)
    if(EXISTS ${overrides})
        configure_file(${overrides} ${share}/lintian/overrides/${package} COPYONLY)
    endif()
endforeach()
