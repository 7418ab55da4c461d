# korvane_headers(<target> <header>...): the public headers of a library. Each has to compile by itself. A header that has a source of
# its name is included first there (tools/check-layers sees to that), so the build shows it; the others are compiled alone by
# the target all_verify_interface_header_sets.
function(korvane_headers target)
    set(lone "")
    set(accompanied "")
    foreach(header IN LISTS ARGN)
        cmake_path(REPLACE_EXTENSION header LAST_ONLY .cpp OUTPUT_VARIABLE source)
        if(EXISTS ${source})
            list(APPEND accompanied ${header})
        else()
            list(APPEND lone ${header})
        endif()
    endforeach()
    target_sources(${target} PUBLIC
        FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${accompanied}
        FILE_SET lone TYPE HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${lone})
    set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON INTERFACE_HEADER_SETS_TO_VERIFY lone)
endfunction()
