# Which target may include which. The include roots are the real folders src, tests and the project's own; cmake/layers
# rejects, before anything compiles, an #include of a layer that the target does not link.

# halcyra_layer(qel BASE src FOLDERS common text ...): headers as "common/...", "text/...".
function(halcyra_layer target)
    cmake_parse_arguments(ARG "" "BASE" "FOLDERS" ${ARGN})
    cmake_path(ABSOLUTE_PATH ARG_BASE BASE_DIRECTORY "${CMAKE_SOURCE_DIR}" NORMALIZE)
    list(TRANSFORM ARG_FOLDERS PREPEND "${ARG_BASE}/")
    set_target_properties(${target} PROPERTIES HALCYRA_LAYER "${ARG_FOLDERS}")
    get_target_property(kind ${target} TYPE)
    if(kind STREQUAL "INTERFACE_LIBRARY")
        target_include_directories(${target} INTERFACE "${ARG_BASE}")
    else()
        target_include_directories(${target} PUBLIC "${ARG_BASE}")
    endif()
endfunction()

# The targets of a folder and its subfolders, as JSON objects.
function(halcyra_targets_below folder out)
    set(rows)
    get_directory_property(targets DIRECTORY "${folder}" BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        set(row "\"folder\": \"${folder}\"")
        foreach(property HALCYRA_LAYER SOURCES LINK_LIBRARIES INTERFACE_LINK_LIBRARIES)
            get_target_property(values ${target} ${property})
            if(NOT values)
                set(values)
            endif()
            set(items)
            foreach(value IN LISTS values)
                if(TARGET "${value}")
                    get_target_property(aliased "${value}" ALIASED_TARGET)
                    if(aliased)
                        set(value "${aliased}")
                    endif()
                endif()
                string(REPLACE "\"" "\\\"" value "${value}")
                list(APPEND items "\"${value}\"")
            endforeach()
            list(JOIN items ", " items)
            string(APPEND row ", \"${property}\": [${items}]")
        endforeach()
        list(APPEND rows "\"${target}\": {${row}}")
    endforeach()
    get_directory_property(folders DIRECTORY "${folder}" SUBDIRECTORIES)
    foreach(below IN LISTS folders)
        halcyra_targets_below("${below}" more)
        list(APPEND rows ${more})
    endforeach()
    set(${out} "${rows}" PARENT_SCOPE)
endfunction()

# Call when all targets are known. Every library depends on qel or max_api, so the check runs before anything compiles.
function(halcyra_check_layers)
    halcyra_targets_below("${CMAKE_SOURCE_DIR}" rows)
    list(JOIN rows ",\n" rows)
    file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/layers.json" CONTENT "{\n${rows}\n}\n" @ONLY)
    find_program(HALCYRA_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH REQUIRED)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS
        src/*.h src/*.cpp host/*.h host/*.cpp tests/*.h tests/*.cpp benchmarks/*.h benchmarks/*.cpp fuzz/*.h fuzz/*.cpp)
    add_custom_command(OUTPUT "${CMAKE_BINARY_DIR}/layers.checked"
        COMMAND "${HALCYRA_PYTHON}" "${CMAKE_SOURCE_DIR}/cmake/layers" "${CMAKE_SOURCE_DIR}" "${CMAKE_BINARY_DIR}/layers.json"
        COMMAND "${CMAKE_COMMAND}" -E touch "${CMAKE_BINARY_DIR}/layers.checked"
        DEPENDS ${files} "${CMAKE_SOURCE_DIR}/cmake/layers" "${CMAKE_BINARY_DIR}/layers.json"
        COMMENT "Checking who includes whom" VERBATIM)
    add_custom_target(layers ALL DEPENDS "${CMAKE_BINARY_DIR}/layers.checked")
    add_dependencies(qel layers)
    add_dependencies(max_api layers)
endfunction()
