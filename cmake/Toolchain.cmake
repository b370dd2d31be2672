# Language standard, warnings and sanitizers for all of our own code.

option(HALCYRA_TESTS "Build the test suite" ON)
option(HALCYRA_BENCHMARKS "Build the benchmarks" OFF)
option(HALCYRA_PD "Build the external for Pure Data" OFF)
option(HALCYRA_FUZZ "Build the fuzz targets (clang only)" OFF)
set(HALCYRA_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize takes them")

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
set(CMAKE_C_FLAGS_RELEASE "-O2 -DNDEBUG")
set(CMAKE_CXX_FLAGS_SANITIZED "-O1 -g1 -fno-omit-frame-pointer")
set(CMAKE_C_FLAGS_SANITIZED "-O1 -g1 -fno-omit-frame-pointer")

# Single-precision results must not depend on fused multiply-adds.
add_compile_options(-ffp-contract=off)

if(HALCYRA_SANITIZE)
    add_compile_options(-fsanitize=${HALCYRA_SANITIZE} -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${HALCYRA_SANITIZE})
endif()

if(WIN32)
    # Link the C++ runtime statically, and drop unused code.
    add_compile_options(-ffunction-sections -fdata-sections)
    add_link_options(-static -Wl,--gc-sections)
endif()

# A shared object cache, so that several work trees compile a file once; includes the JUCE file that embeds its compile
# time.
find_program(HALCYRA_CCACHE ccache)
if(HALCYRA_CCACHE)
    set(launcher "${CMAKE_COMMAND};-E;env;CCACHE_BASEDIR=${CMAKE_SOURCE_DIR};CCACHE_NOHASHDIR=1;CCACHE_SLOPPINESS=time_macros;${HALCYRA_CCACHE}")
    set(CMAKE_C_COMPILER_LAUNCHER "${launcher}")
    set(CMAKE_CXX_COMPILER_LAUNCHER "${launcher}")
endif()

# Link privately: our own code compiles without warnings; third-party code is not checked.
add_library(halcyra_warnings INTERFACE)
add_library(halcyra::warnings ALIAS halcyra_warnings)
target_compile_options(halcyra_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wno-sign-conversion
    $<$<CXX_COMPILER_ID:GNU>:-Wdouble-promotion> # clang also warns of deliberate ones
    -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wformat=2 -Wundef)
