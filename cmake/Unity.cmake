# A unity build (CMAKE_UNITY_BUILD) reads the sources of one folder as one, so names in unnamed namespaces meet. Which sources come
# together does not change with the next file, as it would with batches of a size.

# Sources that give a name the meaning that fits them, as another of their folder does: they are compiled by themselves.
set(alone apps/clinic/sample/LformsPanel.cpp apps/clinic/tour/CustomizingSteps.cpp
    korvane/ado/postgres/Settings.cpp korvane/ado/postgres/Types.cpp korvane/controls/buttons/movebtn.cpp
    korvane/controls/dbxadmin/ValueListParts.cpp
    korvane/nip/LoadStructure.cpp korvane/records/Encounter.cpp tests/controls/axDateTest.cpp
    korvane/voice/pocketsphinx/Grammar.cpp)
list(TRANSFORM alone PREPEND ${PROJECT_SOURCE_DIR}/)

function(korvane_unity_by_folder directory)
    get_property(targets DIRECTORY ${directory} PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(sources ${target} SOURCES)
        if(NOT sources)
            continue()
        endif()
        set_target_properties(${target} PROPERTIES UNITY_BUILD_MODE GROUP)
        foreach(source IN LISTS sources)
            cmake_path(GET source PARENT_PATH folder)
            cmake_path(RELATIVE_PATH folder BASE_DIRECTORY ${PROJECT_SOURCE_DIR})
            string(MAKE_C_IDENTIFIER "${folder}" group)
            set(by_itself OFF)
            if(source IN_LIST alone)
                set(by_itself ON)
            endif()
            set_source_files_properties(${source} TARGET_DIRECTORY ${target}
                PROPERTIES UNITY_GROUP "${group}" SKIP_UNITY_BUILD_INCLUSION ${by_itself})
        endforeach()
    endforeach()
    get_property(folders DIRECTORY ${directory} PROPERTY SUBDIRECTORIES)
    foreach(folder IN LISTS folders)
        korvane_unity_by_folder(${folder})
    endforeach()
endfunction()
korvane_unity_by_folder(${PROJECT_SOURCE_DIR})
