# SPDX-License-Identifier: MIT
set(CORVELGUI_WINDOWS_DIR "${CMAKE_CURRENT_LIST_DIR}/../packaging/windows")

# corvelgui_windows_resources(<target> <description>)
#
# On Windows gives a library its version information, and a program that, its icon and its manifest.
function(corvelgui_windows_resources target description)
    if(NOT WIN32)
        return()
    endif()
    get_target_property(target_type ${target} TYPE)
    if(target_type STREQUAL "EXECUTABLE")
        set(type VFT_APP)
        set(file "${target}.exe")
        # Qt takes the icon of this name for the windows.
        set(icon "IDI_ICON1 ICON \"${CORVELGUI_WINDOWS_DIR}/corvel.ico\"")
        if(MSVC)
            # Its linker makes a manifest of its own and joins ours to it.
            target_sources(${target} PRIVATE "${CORVELGUI_WINDOWS_DIR}/program.manifest")
        else()
            set(manifest "1 RT_MANIFEST \"${CORVELGUI_WINDOWS_DIR}/program.manifest\"")
        endif()
    else()
        set(type VFT_DLL)
        set(file "${target}.dll")
    endif()
    set(source "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
    configure_file("${CORVELGUI_WINDOWS_DIR}/resources.rc.in" "${source}" @ONLY)
    set_source_files_properties("${source}" PROPERTIES OBJECT_DEPENDS
        "${CORVELGUI_WINDOWS_DIR}/corvel.ico;${CORVELGUI_WINDOWS_DIR}/program.manifest")
    target_sources(${target} PRIVATE "${source}")
endfunction()

# corvelgui_desktop_program(<target> <description>)
#
# Makes <target> a program with windows: Windows opens no console for it.
function(corvelgui_desktop_program target description)
    set_target_properties(${target} PROPERTIES WIN32_EXECUTABLE ON)
    corvelgui_windows_resources(${target} "${description}")
endfunction()
