# Adds to the installed TREE what it needs of Qt: libraries, the named PLUGINS and TRANSLATIONS.
cmake_minimum_required(VERSION 3.22)

# Without libqxcb there is no window, and without libqoffscreen no picture where there is no display.
set(plugins
    platforms/libqxcb.so platforms/libqoffscreen.so
    platforminputcontexts/libcomposeplatforminputcontextplugin.so
    platforminputcontexts/libibusplatforminputcontextplugin.so
    printsupport/libcupsprintersupport.so)
# What every desktop has of its own, and must have for its drivers, fonts, displays and printers.
set(system_libraries
    "^ld-linux" "^linux-vdso" "^lib(c|m|dl|rt|pthread|resolv|util|stdc\\+\\+|gcc_s)\\.so"
    "^lib(EGL|GL|GLX|OpenGL|GLdispatch|X11|X11-xcb|xcb|Xau|Xdmcp|ICE|SM|uuid)\\.so"
    "^lib(fontconfig|freetype|expat|glib-2\\.0|z|dbus-1|cups)\\.so")

file(GLOB_RECURSE modules ${TREE}/lib/quillet_session.so)
foreach(plugin IN LISTS plugins)
    cmake_path(GET plugin PARENT_PATH folder)
    file(COPY ${PLUGINS}/${plugin} DESTINATION ${TREE}/lib/plugins/${folder})
    list(APPEND modules ${PLUGINS}/${plugin})
endforeach()

file(GET_RUNTIME_DEPENDENCIES
    EXECUTABLES ${TREE}/bin/quillet ${TREE}/bin/quillet-cli
    MODULES ${modules}
    RESOLVED_DEPENDENCIES_VAR libraries
    PRE_EXCLUDE_REGEXES ${system_libraries})
foreach(library IN LISTS libraries)
    file(COPY ${library} DESTINATION ${TREE}/lib FOLLOW_SYMLINK_CHAIN)
endforeach()

file(GLOB texts ${CMAKE_CURRENT_LIST_DIR}/../../translations/quillet_*.ts)
foreach(text IN LISTS texts)
    string(REGEX REPLACE ".*_(.+)\\.ts$" "qtbase_\\1.qm" catalogue ${text})
    file(COPY ${TRANSLATIONS}/${catalogue} DESTINATION ${TREE}/share/qt6/translations)
endforeach()
file(WRITE ${TREE}/bin/qt.conf "[Paths]\nPrefix = ..\nPlugins = lib/plugins\nTranslations = share/qt6/translations\n")
