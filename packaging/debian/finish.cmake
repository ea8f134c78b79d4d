# Called by CPack when the files of the packages lie in their folders: what Debian's policy wants beside them.
set(packaging ${CMAKE_CURRENT_LIST_DIR})
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    set(tree ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr/share)
    set(documents ${tree}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    file(MAKE_DIRECTORY ${documents})
    file(COPY ${packaging}/copyright ${packaging}/changelog DESTINATION ${documents}
        FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    file(GLOB_RECURSE compressed ${documents}/changelog ${tree}/man/*.1)
    execute_process(COMMAND gzip -9n ${compressed} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
