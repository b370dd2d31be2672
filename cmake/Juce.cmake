# JUCE, compiled once into a static library with only the modules that the product uses.

find_path(JUCE_MODULES_DIR juce_core/juce_core.h PATHS /usr/share/juce/modules NO_CMAKE_FIND_ROOT_PATH REQUIRED)

set(juceModules juce_core juce_events juce_data_structures juce_graphics juce_gui_basics juce_opengl)
add_library(halcyra_juce STATIC)
add_library(halcyra::juce ALIAS halcyra_juce)
foreach(module IN LISTS juceModules)
    target_sources(halcyra_juce PRIVATE "${CMAKE_SOURCE_DIR}/cmake/juce/${module}.cpp")
endforeach()
target_include_directories(halcyra_juce SYSTEM PUBLIC "${JUCE_MODULES_DIR}" "${CMAKE_SOURCE_DIR}/cmake/juce")
target_compile_definitions(halcyra_juce PUBLIC
    JUCE_GLOBAL_MODULE_SETTINGS_INCLUDED=1
    JUCE_STANDALONE_APPLICATION=0
    JUCE_DISPLAY_SPLASH_SCREEN=0
    JUCE_USE_DARK_SPLASH_SCREEN=0
    JUCE_REPORT_APP_USAGE=0
    JUCE_WEB_BROWSER=0
    JUCE_USE_CURL=0
    JUCE_STRICT_REFCOUNTEDPOINTER=1
    JUCE_MODAL_LOOPS_PERMITTED=0
    JUCE_USE_XRANDR=1 JUCE_USE_XINERAMA=0 JUCE_USE_XCURSOR=0
    JUCE_INCLUDE_ZLIB_CODE=0 JUCE_INCLUDE_PNGLIB_CODE=0 JUCE_INCLUDE_JPEGLIB_CODE=0
    $<IF:$<CONFIG:Release,Sanitized>,NDEBUG=1,DEBUG=1>
    $<IF:$<CONFIG:Release,Sanitized>,JUCE_DEBUG=0,JUCE_DEBUG=1>)
foreach(module IN LISTS juceModules)
    target_compile_definitions(halcyra_juce PUBLIC JUCE_MODULE_AVAILABLE_${module}=1)
endforeach()
target_compile_options(halcyra_juce PRIVATE -w)
if(HALCYRA_FUZZ) # fuzzing targets our own code, and inputs run faster without instrumentation
    target_compile_options(halcyra_juce PRIVATE -fno-sanitize=all -O2)
endif()
if(WIN32)
    set(CMAKE_FIND_LIBRARY_SUFFIXES .a) # not .dll.a
    find_package(PNG REQUIRED)
    find_package(JPEG REQUIRED)
    find_package(ZLIB REQUIRED)
    target_compile_definitions(halcyra_juce PUBLIC _WIN32_WINNT=0x0a00)
    target_link_libraries(halcyra_juce PUBLIC
        PNG::PNG JPEG::JPEG ZLIB::ZLIB
        opengl32 gdi32 ole32 oleaut32 shlwapi comdlg32 version uuid wininet ws2_32 imm32 rpcrt4 winmm dwmapi shcore dxgi)
else()
    find_package(PkgConfig REQUIRED)
    pkg_check_modules(JUCE_LINUX REQUIRED IMPORTED_TARGET freetype2 libpng libjpeg zlib gl)
    target_sources(halcyra_juce PRIVATE "${CMAKE_SOURCE_DIR}/cmake/juce/FontFolders.cpp")
    find_package(Threads REQUIRED)
    target_link_libraries(halcyra_juce PUBLIC PkgConfig::JUCE_LINUX Threads::Threads ${CMAKE_DL_LIBS} rt)
endif()
