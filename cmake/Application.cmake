# korvane_application(<name> <source>...): korvane-<name> from main.cpp of the folder, and <name>_app, the library of the rest, which
# its tests link as well.
function(korvane_application name)
    list(REMOVE_ITEM ARGN ${CMAKE_CURRENT_SOURCE_DIR}/main.cpp)
    add_library(${name}_app STATIC ${ARGN})
    set_target_properties(${name}_app PROPERTIES AUTOMOC ON)
    target_link_libraries(${name}_app PUBLIC apps_shared PRIVATE korvane_warnings)

    add_executable(korvane-${name} main.cpp)
    target_link_libraries(korvane-${name} PRIVATE ${name}_app korvane_warnings)
endfunction()
