# One folder is one library. A library stands on a level and may use only libraries of a lower one:
# that is checked here when CMake runs, by scripts/check_layers for the #includes, and by the
# "layers" preset, which links every layer as a shared library with no undefined symbols.

# quillon_add_layer(<name> LEVEL <n> [USES <layer>...] [QT <component>...] [LIBRARIES <target>...])
#
# Builds all .cpp files of the current folder, without its subfolders, into quillon_<name>.
function(quillon_add_layer name)
    cmake_parse_arguments(ARG "" "LEVEL" "USES;QT;LIBRARIES" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    set(target quillon_${name})
    add_library(${target} ${sources})
    set_target_properties(${target} PROPERTIES QUILLON_LEVEL ${ARG_LEVEL} LINKER_LANGUAGE CXX)
    quillon_renew_moc_for_new_files(${target} "${sources}")
    target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR}/src ${CMAKE_BINARY_DIR}/generated)
    target_link_libraries(${target} PUBLIC quillon_options)
    foreach(component IN LISTS ARG_QT)
        target_link_libraries(${target} PUBLIC Qt6::${component})
    endforeach()
    foreach(used IN LISTS ARG_USES)
        get_target_property(used_level quillon_${used} QUILLON_LEVEL)
        if(NOT used_level LESS ARG_LEVEL)
            message(FATAL_ERROR "Layer ${name} (level ${ARG_LEVEL}) may not use ${used} (level ${used_level})")
        endif()
        target_link_libraries(${target} PUBLIC quillon_${used})
    endforeach()
    if(ARG_LIBRARIES)
        target_link_libraries(${target} PRIVATE ${ARG_LIBRARIES})
    endif()
    if(BUILD_SHARED_LIBS)
        target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
    quillon_use_pch(${target})
endfunction()

# CMake 3.25 with Ninja starts moc only when a file changes that moc has already seen. A header that came with a pull or
# from another folder would miss its meta-object at link time; so a changed list of files makes moc look again.
function(quillon_renew_moc_for_new_files target sources)
    set(known ${CMAKE_CURRENT_BINARY_DIR}/${target}_sources.txt)
    set(before "")
    if(EXISTS ${known})
        file(READ ${known} before)
    endif()
    if(NOT before STREQUAL sources)
        file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp)
        file(WRITE ${known} "${sources}")
    endif()
endfunction()

# The Qt headers that nearly every file includes; a target without widgets gets the core set.
function(quillon_use_pch target)
    if(QUILLON_PCH)
        target_precompile_headers(${target} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/pch.h)
    endif()
endfunction()
