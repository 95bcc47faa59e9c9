# SPDX-License-Identifier: MIT
# What CPack makes of a build for Windows: the review client and all it needs, as a ZIP and as an installer.
set(CPACK_PACKAGE_NAME corvelgui)
set(CPACK_PACKAGE_VENDOR "The CorvelGui authors")
set(CPACK_PACKAGE_CONTACT "The CorvelGui authors <authors@corvelgui.invalid>")
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}/packages")
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR ZIP NSIS)
set(CPACK_PACKAGE_FILE_NAME "corvelgui-review-${PROJECT_VERSION}-win64")
# Both components in one tree, so that no folder of it is listed twice.
set(CPACK_INSTALL_CMAKE_PROJECTS
    "${CMAKE_BINARY_DIR};${PROJECT_NAME};runtime;/;${CMAKE_BINARY_DIR};${PROJECT_NAME};review;/")

set(CPACK_PACKAGE_INSTALL_DIRECTORY "Corvel Review")
set(CPACK_PACKAGE_EXECUTABLES corvel-review "Corvel Review")
set(CPACK_NSIS_DEFINES "Target amd64-unicode") # as the client is, and Wine without 32 bits runs it
set(CPACK_NSIS_INSTALL_ROOT "$PROGRAMFILES64")
set(CPACK_NSIS_PACKAGE_NAME "Corvel Review")
set(CPACK_NSIS_DISPLAY_NAME "Corvel Review ${PROJECT_VERSION}")
set(CPACK_NSIS_EXECUTABLES_DIRECTORY "${CMAKE_INSTALL_BINDIR}")
set(CPACK_NSIS_INSTALLED_ICON_NAME "${CMAKE_INSTALL_BINDIR}/corvel-review.exe")
set(CPACK_NSIS_MUI_ICON "${PROJECT_SOURCE_DIR}/packaging/windows/corvel.ico")
set(CPACK_NSIS_MUI_UNIICON "${CPACK_NSIS_MUI_ICON}")
set(CPACK_NSIS_ENABLE_UNINSTALL_BEFORE_INSTALL ON)
set(CPACK_NSIS_MANIFEST_DPI_AWARE ON)

install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION . COMPONENT review)
install(FILES "${PROJECT_SOURCE_DIR}/packaging/windows/README.txt" DESTINATION . COMPONENT review)
string(TIMESTAMP CORVELGUI_BUILD_TIME UTC)
configure_file("${PROJECT_SOURCE_DIR}/packaging/windows/licences.spdx.in" "${CMAKE_BINARY_DIR}/licences.spdx" @ONLY)
install(FILES "${CMAKE_BINARY_DIR}/licences.spdx" DESTINATION licences COMPONENT review)
include(CPack)
