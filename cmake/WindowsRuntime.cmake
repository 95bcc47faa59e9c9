# SPDX-License-Identifier: MIT
# What a program needs beside itself on a Windows machine that has neither Qt nor the compiler: the DLLs of both and of
# FFmpeg, and Qt's plugins. They are copied beside the programs of the build tree, and belong to what the review client installs.
set(runtime)
foreach(component IN ITEMS Core Gui Widgets Network PrintSupport)
    list(APPEND runtime "$<TARGET_FILE:Qt6::${component}>")
endforeach()
foreach(name IN ITEMS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
        OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${file}")
        message(FATAL_ERROR "The compiler does not know where its ${name} is")
    endif()
    # Debian's have all that a debugger reads.
    set(stripped "${CMAKE_BINARY_DIR}/compiler-runtime/${name}")
    add_custom_command(OUTPUT "${stripped}"
        COMMAND ${CMAKE_COMMAND} -E make_directory "${CMAKE_BINARY_DIR}/compiler-runtime"
        COMMAND "${CMAKE_STRIP}" --strip-all -o "${stripped}" "${file}"
        DEPENDS "${file}"
        VERBATIM)
    list(APPEND runtime "${stripped}")
endforeach()
if(CORVELGUI_FFMPEG_WINDOWS)
    file(GLOB ffmpeg "${CORVELGUI_FFMPEG_WINDOWS}/bin/*.dll")
    list(APPEND runtime ${ffmpeg})
    install(DIRECTORY "${CORVELGUI_FFMPEG_WINDOWS}/licence/" DESTINATION licences/FFmpeg COMPONENT review)
endif()
install(FILES ${runtime} DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT review)

set(plugins)
foreach(plugin IN ITEMS platforms/qwindows styles/qwindowsvistastyle imageformats/qgif imageformats/qico
        imageformats/qjpeg tls/qschannelbackend)
    set(file "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS}/${plugin}.dll")
    if(NOT EXISTS "${file}")
        message(FATAL_ERROR "Qt for Windows lacks ${file}")
    endif()
    get_filename_component(folder "${plugin}" DIRECTORY)
    install(FILES "${file}" DESTINATION "${CMAKE_INSTALL_BINDIR}/${folder}" COMPONENT review)
    list(APPEND plugins "${file}")
endforeach()

# The terms of what is passed on, as Debian, which all of it comes from, collects them.
foreach(entry IN ITEMS "qt6-base-dev/copyright:Qt" "gcc-mingw-w64-base/copyright:GCC"
        "mingw-w64-common/copyright:MinGW-w64")
    string(REPLACE ":" ";" entry "${entry}")
    list(GET entry 0 file)
    list(GET entry 1 name)
    install(FILES "/usr/share/doc/${file}" DESTINATION licences RENAME "${name}.txt" COMPONENT review)
endforeach()
foreach(name IN ITEMS LGPL-2.1 LGPL-3 GPL-3)
    install(FILES "/usr/share/common-licenses/${name}" DESTINATION licences RENAME "${name}.txt" COMPONENT review)
endforeach()

if(CORVELGUI_BUILD_TESTS)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
    list(APPEND runtime "$<TARGET_FILE:Qt6::Test>")
endif()
set(copies)
foreach(file IN LISTS plugins)
    get_filename_component(folder "${file}" DIRECTORY)
    get_filename_component(folder "${folder}" NAME)
    list(APPEND copies
        COMMAND ${CMAKE_COMMAND} -E make_directory "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${folder}"
        COMMAND ${CMAKE_COMMAND} -E copy_if_different "${file}" "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${folder}")
endforeach()
set(stamp "${CMAKE_BINARY_DIR}/windows-runtime.stamp")
add_custom_command(OUTPUT "${stamp}"
    COMMAND ${CMAKE_COMMAND} -E make_directory "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}"
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${runtime} "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}"
    ${copies}
    COMMAND ${CMAKE_COMMAND} -E touch "${stamp}"
    DEPENDS ${runtime} ${plugins}
    COMMENT "Gathering the DLLs of Qt and of the compiler"
    VERBATIM)
add_custom_target(windows_runtime ALL DEPENDS "${stamp}")
