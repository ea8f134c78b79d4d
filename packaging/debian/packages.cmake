# quillet and quillet-help, which is apart because the web engine is larger than all else that quillet needs.
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL quillet)
if(TARGET quillet_help)
    list(APPEND CPACK_COMPONENTS_ALL help)
endif()
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/debian/finish.cmake)

# .invalid: the authors have no mailbox.
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Quillet authors <authors@quillet.invalid>")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # the first line of each description is its own

set(CPACK_DEBIAN_QUILLET_PACKAGE_NAME quillet)
set(CPACK_DEBIAN_QUILLET_PACKAGE_SECTION video)
set(CPACK_DEBIAN_QUILLET_PACKAGE_DEPENDS qt6-translations-l10n)
set(CPACK_DEBIAN_QUILLET_PACKAGE_RECOMMENDS "quillet-help, qt6-wayland")
set(CPACK_COMPONENT_QUILLET_DESCRIPTION "editor for the channel lists of LG television sets
Quillet sorts the channel list of an LG television on a computer. The
set exports its stations to a USB stick as a TLL file; Quillet moves,
sorts, skips, compares and prints them, carries the order of one set over
to another, and the set takes the file back. It says before a save what
that would lose, and keeps earlier versions of the file.
.
The tool quillet-cli does the same in scripts and in Git.")

set(CPACK_DEBIAN_HELP_PACKAGE_NAME quillet-help)
set(CPACK_DEBIAN_HELP_PACKAGE_SECTION video)
set(CPACK_DEBIAN_HELP_PACKAGE_DEPENDS "quillet (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_HELP_DESCRIPTION "help window of the channel list editor Quillet
Quillet sorts the channel lists of LG television sets. With this package
it shows its user guide in a window of its own; without it the guide, which
is part of the package quillet, opens in the default browser.")
