# SPDX-License-Identifier: MIT
# One INTERFACE target for every compiler setting of this tree. It is never installed: clients choose their own.
add_library(corvelgui_settings INTERFACE)
target_compile_features(corvelgui_settings INTERFACE cxx_std_20)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

# Qt 6.4 is the oldest that will do: what a later one deprecates may have no successor there.
target_compile_definitions(corvelgui_settings INTERFACE
    QT_NO_KEYWORDS
    QT_NO_FOREACH
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
    QT_WARN_DEPRECATED_UP_TO=0x060400)

if(CORVELGUI_BUILD_TESTS OR CORVELGUI_BUILD_BENCHMARKS OR CORVELGUI_BUILD_FUZZERS)
    # Tests, benchmarks and fuzzers reach the internal classes of the shared library.
    target_compile_definitions(corvelgui_settings INTERFACE CORVELGUI_EXPORT_INTERNALS)
endif()

if(MSVC)
    set(options /W4 /permissive- /utf-8 /Zc:__cplusplus $<$<BOOL:${CORVELGUI_WERROR}>:/WX>)
    target_compile_definitions(corvelgui_settings INTERFACE NOMINMAX _USE_MATH_DEFINES)
else()
    set(options -Wall -Wextra -Wshadow -Woverloaded-virtual -Wpedantic $<$<BOOL:${CORVELGUI_WERROR}>:-Werror>)
    if((CMAKE_UNITY_BUILD OR CORVELGUI_UNITY_PROGRAMS) AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        list(APPEND options -Wno-subobject-linkage) # a source that others are compiled with counts as a header
    endif()
endif()
# The compiler of Windows resources takes none of them.
target_compile_options(corvelgui_settings INTERFACE "$<$<COMPILE_LANGUAGE:CXX>:${options}>")

# For whole folders, so that one below can say otherwise.
if(CORVELGUI_SANITIZERS)
    set(sanitize "-fsanitize=${CORVELGUI_SANITIZERS}")
    add_compile_options(${sanitize} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(${sanitize})
endif()

# The tests are many small programs, which the usual linker takes longer to link than others.
if(CORVELGUI_BUILD_TESTS AND NOT CMAKE_CROSSCOMPILING AND NOT MSVC)
    include(CheckLinkerFlag)
    foreach(linker IN ITEMS mold gold)
        check_linker_flag(CXX "-fuse-ld=${linker}" CORVELGUI_HAS_${linker})
        if(CORVELGUI_HAS_${linker})
            add_link_options("-fuse-ld=${linker}")
            break()
        endif()
    endforeach()
endif()
