# SPDX-License-Identifier: MIT
# The programs decode with FFmpeg; the libraries do not. CORVELGUI_FFMPEG_WINDOWS names the folder of one for Windows, with
# relocatable pkg-config files.
find_package(PkgConfig REQUIRED)
if(WIN32 AND CMAKE_CROSSCOMPILING)
    set(CORVELGUI_FFMPEG_WINDOWS "$ENV{CORVELGUI_FFMPEG_WINDOWS}" CACHE PATH "Folder of FFmpeg for Windows")
    if(NOT EXISTS "${CORVELGUI_FFMPEG_WINDOWS}/lib/pkgconfig")
        message(FATAL_ERROR "The review client needs an FFmpeg for Windows: CORVELGUI_FFMPEG_WINDOWS names its folder "
            "(\"./dev windows\" provides one), or CORVELGUI_BUILD_APPS=OFF leaves the programs out")
    endif()
    # Nothing of the machine that builds.
    set(ENV{PKG_CONFIG_LIBDIR} "${CORVELGUI_FFMPEG_WINDOWS}/lib/pkgconfig")
    set(ENV{PKG_CONFIG_PATH} "")
    list(APPEND CMAKE_FIND_ROOT_PATH "${CORVELGUI_FFMPEG_WINDOWS}")
endif()
pkg_check_modules(FFMPEG REQUIRED IMPORTED_TARGET GLOBAL libavformat libavcodec libswscale libavutil)
