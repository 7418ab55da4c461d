# The warnings of our own build; never imposed on whoever consumes the library.
add_library(korvane_warnings INTERFACE)
target_compile_options(korvane_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
    $<$<BOOL:${KORVANE_WERROR}>:-Werror>
    # What one source names for itself may be a local name in the next.
    $<$<BOOL:${CMAKE_UNITY_BUILD}>:-Wno-shadow>
    # GCC 12 sees overlapping copies in every optimised "text" + std::string, where there are none.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
