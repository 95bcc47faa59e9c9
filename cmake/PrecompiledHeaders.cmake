# SPDX-License-Identifier: MIT
set(CORVELGUI_PRECOMPILE_IN "" CACHE STRING
    "Folders of this tree in which the headers of Qt are precompiled: faster, but missing includes are not noticed")

# corvelgui_use_precompiled_headers(<folder>)
#
# Every library and program made in <folder> or below takes the one set of precompiled headers for what the compiler is
# told there.
function(corvelgui_use_precompiled_headers folder)
    get_property(options DIRECTORY "${folder}" PROPERTY COMPILE_OPTIONS)
    string(MAKE_C_IDENTIFIER "corvelgui_precompiled${options}" headers)
    if(NOT TARGET ${headers})
        set(source "${PROJECT_BINARY_DIR}/precompiled.cpp")
        file(CONFIGURE OUTPUT "${source}" CONTENT "")
        add_library(${headers} OBJECT "${source}")
        # GCC takes the result only where all macros of this target are defined and the code is of the same kind, so it
        # links what every other links, and programs are made of the same kind of code as libraries.
        if(NOT WIN32)
            target_compile_options(corvelgui_settings INTERFACE -fPIC)
        endif()
        target_link_libraries(${headers} PRIVATE Qt6::Core corvelgui_settings)
        target_compile_options(${headers} PRIVATE ${options})
        foreach(component IN ITEMS Gui Widgets Network)
            target_include_directories(${headers} SYSTEM PRIVATE
                "$<TARGET_PROPERTY:Qt6::${component},INTERFACE_INCLUDE_DIRECTORIES>")
        endforeach()
        target_precompile_headers(${headers} PRIVATE
            <QtWidgets> <QtNetwork> <algorithm> <functional> <memory> <optional>)
        set_target_properties(${headers} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    endif()
    get_property(targets DIRECTORY "${folder}" PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(type ${target} TYPE)
        # Qt defines a macro of its own for a program with windows on Windows, and with that the result is not taken.
        get_target_property(has_entry_point ${target} WIN32_EXECUTABLE)
        if(type MATCHES "^(SHARED_LIBRARY|STATIC_LIBRARY|EXECUTABLE)$" AND NOT (WIN32 AND has_entry_point))
            set_target_properties(${target} PROPERTIES PRECOMPILE_HEADERS_REUSE_FROM ${headers})
        endif()
    endforeach()
    get_property(folders DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
    foreach(below IN LISTS folders)
        corvelgui_use_precompiled_headers("${below}")
    endforeach()
endfunction()
