# The warnings of our own build; never imposed on whoever consumes the library.
add_library(korvane_warnings INTERFACE)
target_compile_options(korvane_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
    $<$<BOOL:${KORVANE_WERROR}>:-Werror>
    # GCC 12 sees overlapping copies in every optimised "text" + std::string, where there are none.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
