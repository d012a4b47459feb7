# What `cmake --install` puts on a computer, and the packages CPack makes of it.

if(APPLE)
    # Everything lives inside Quillforge.app; the probe sits beside the app's own program.
    install(TARGETS quillforge BUNDLE DESTINATION .)
    install(TARGETS quillforge-probe RUNTIME DESTINATION Quillforge.app/Contents/MacOS)
    # The licences go inside the bundle: Quillforge's own and the icons'.
    install(FILES LICENSE DESTINATION Quillforge.app/Contents/Resources RENAME LICENSE.txt)
    install(FILES resources/icons/LICENSE DESTINATION Quillforge.app/Contents/Resources RENAME Phosphor-LICENSE.txt)
    return()
endif()

set(generated ${QUILLFORGE_GENERATED_DIR})
install(TARGETS quillforge quillforge-probe RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES resources/linux/${QUILLFORGE_APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${generated}/${QUILLFORGE_APP_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES resources/logos/QuillforgeLogo.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps RENAME ${QUILLFORGE_APP_ID}.svg)
foreach(size ${QUILLFORGE_ICON_SIZES})
    install(FILES ${QUILLFORGE_ICON_DIR}/hicolor/${size}x${size}/apps/${QUILLFORGE_APP_ID}.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()

# Manual pages and the changelog go in compressed the way Debian expects (no name, no time).
find_program(GZIP_PROGRAM gzip REQUIRED)
set(compressed)
foreach(name quillforge.1 quillforge-probe.1 changelog)
    add_custom_command(OUTPUT ${generated}/${name}.gz
        COMMAND ${GZIP_PROGRAM} -9 -n -c ${generated}/${name} > ${generated}/${name}.gz
        DEPENDS ${generated}/${name}
        VERBATIM)
    list(APPEND compressed ${generated}/${name}.gz)
endforeach()
add_custom_target(quillforge_docs ALL DEPENDS ${compressed})
install(FILES ${generated}/quillforge.1.gz ${generated}/quillforge-probe.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
# The copyright file carries every licence with its text (Quillforge's and the icons', both MIT):
# Debian wants it there and in no second file (lintian's extra-license-file).
install(FILES ${generated}/changelog.gz resources/linux/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/quillforge)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quillforge)
set(CPACK_PACKAGE_VENDOR Quillforge)
set(CPACK_PACKAGE_CONTACT "Quillforge <hello@quillforge.app>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Quillforge <hello@quillforge.app>")
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${PROJECT_HOMEPAGE_URL})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# The shared libraries the programs link come from dpkg-shlibdeps (Qt's X11 platform plug-in
# comes with libqt6gui6); what Quillforge runs without linking it is named here: the shell its
# commands run in and curl for downloads. git is offered but can be installed from the window;
# the Wayland plug-in lets it run without XWayland.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "zsh, curl")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "git, fonts-inter, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "set up AI coding assistants without using a terminal
Quillforge gets an AI coding assistant (Claude Code, Gemini CLI or Codex)
running on the computer of someone who has never opened a terminal. It
checks the computer, installs what the assistant needs (git, Node.js and a
projects folder), shows every step with its log, opens the assistant in a
terminal window, and removes it again with one click.")
include(CPack)
