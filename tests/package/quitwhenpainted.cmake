# SPDX-License-Identifier: MIT
# Included by each project() of what the package test builds.
set(quit_when_painted "${CMAKE_CURRENT_LIST_DIR}/quitwhenpainted.cpp")
cmake_language(DEFER CALL let_programs_quit)

function(let_programs_quit)
    get_property(programs DIRECTORY PROPERTY BUILDSYSTEM_TARGETS)
    foreach(program IN LISTS programs)
        get_target_property(type ${program} TYPE)
        if(type STREQUAL "EXECUTABLE")
            target_sources(${program} PRIVATE "${quit_when_painted}")
        endif()
    endforeach()
endfunction()
