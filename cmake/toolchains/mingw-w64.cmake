# SPDX-License-Identifier: MIT
# Cross-builds for 64-bit Windows with MinGW-w64 in its variant with posix threads, as Debian packages it.
# CORVELGUI_QT_WINDOWS names the folder of a Qt built by the same compiler; Qt's tools are those of this machine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(triplet x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${triplet}-windres)

set(CORVELGUI_QT_WINDOWS "$ENV{CORVELGUI_QT_WINDOWS}" CACHE PATH "Folder of Qt for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES CORVELGUI_QT_WINDOWS)
list(APPEND CMAKE_FIND_ROOT_PATH ${CORVELGUI_QT_WINDOWS} /usr/${triplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Where Debian keeps the build machine's Qt.
set(QT_HOST_PATH /usr)
file(GLOB QT_HOST_PATH_CMAKE_DIR /usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu*/cmake)

# This machine's rcc would compress with zstd, which the Qt for Windows is built without.
set(CMAKE_AUTORCC_OPTIONS --no-zstd)
