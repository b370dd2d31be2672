# 64-bit Windows, cross-compiled on Debian with MinGW-w64 and C++11 threads (the posix flavour).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_DLLTOOL x86_64-w64-mingw32-dlltool)

# Built by package/libraries for this target; the rest comes with the compiler.
if(NOT DEFINED HALCYRA_WINDOWS_LIBRARIES)
    set(cache "$ENV{XDG_CACHE_HOME}")
    if(cache STREQUAL "")
        set(cache "$ENV{HOME}/.cache")
    endif()
    set(HALCYRA_WINDOWS_LIBRARIES "${cache}/halcyra/windows")
endif()
set(CMAKE_FIND_ROOT_PATH "${HALCYRA_WINDOWS_LIBRARIES}" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# JUCE's sources are the build machine's.
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
