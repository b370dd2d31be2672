# Which target may include which. A target's headers are visible only under an include root of its own, which links to
# its folders alone; so an #include compiles only if the target links the layer that it names.

# halcyra_layer(qel BASE src FOLDERS common text ...): headers as "common/...", "text/...".
function(halcyra_layer target)
    cmake_parse_arguments(ARG "" "BASE" "FOLDERS" ${ARGN})
    set(root "${CMAKE_BINARY_DIR}/include/${target}")
    foreach(folder IN LISTS ARG_FOLDERS)
        cmake_path(GET folder PARENT_PATH parent)
        file(MAKE_DIRECTORY "${root}/${parent}")
        file(CREATE_LINK "${CMAKE_SOURCE_DIR}/${ARG_BASE}/${folder}" "${root}/${folder}" SYMBOLIC)
    endforeach()
    get_target_property(kind ${target} TYPE)
    if(kind STREQUAL "INTERFACE_LIBRARY")
        target_include_directories(${target} INTERFACE "${root}")
    else()
        target_include_directories(${target} PUBLIC "${root}")
    endif()
endfunction()
