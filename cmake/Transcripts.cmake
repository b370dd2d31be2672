# Bench scripts with their expected output beside them; one CTest entry each.

# halcyra_add_transcripts(PREFIX transcripts PROGRAM patchbench): every *.bench of the current folder.
function(halcyra_add_transcripts)
    cmake_parse_arguments(ARG "" "PREFIX;PROGRAM" "" ${ARGN})
    file(GLOB scripts CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.bench")
    foreach(script IN LISTS scripts)
        cmake_path(GET script STEM name)
        add_test(NAME "${ARG_PREFIX}.${name}"
            COMMAND "${CMAKE_SOURCE_DIR}/tests/transcripts/play" $<TARGET_FILE:${ARG_PROGRAM}> "${script}")
    endforeach()
    file(GLOB outputs CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.expected")
    foreach(output IN LISTS outputs)
        cmake_path(REPLACE_EXTENSION output LAST_ONLY .bench)
        if(NOT EXISTS "${output}")
            message(FATAL_ERROR "There is expected output, but no ${output}")
        endif()
    endforeach()
endfunction()
