# Run by CPack on the installed files before they are packed: what Debian wants in a package, and the
# same permissions whatever the umask. Installed files have theirs already.
set(root ${CPACK_TEMPORARY_INSTALL_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX})

if(CPACK_GENERATOR STREQUAL "DEB")
  find_program(gzip gzip REQUIRED)
  set(documents ${root}/${CPACK_VQK_DOCDIR})
  file(RENAME ${documents}/LICENSE ${documents}/copyright)
  string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
  file(WRITE ${documents}/changelog
"${CPACK_DEBIAN_PACKAGE_NAME} (${CPACK_PACKAGE_VERSION}) unstable; urgency=medium

  * Version ${CPACK_PACKAGE_VERSION}, packed by the project itself.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
  file(CHMOD ${documents}/changelog PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
  file(GLOB_RECURSE pages ${root}/${CPACK_VQK_MANDIR}/*.[1-9])
  execute_process(COMMAND ${gzip} -9n ${pages} ${documents}/changelog COMMAND_ERROR_IS_FATAL ANY)
endif()

file(GLOB_RECURSE entries LIST_DIRECTORIES true ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*)
foreach(entry IN LISTS entries)
  if(IS_DIRECTORY ${entry})
    file(CHMOD ${entry} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                    WORLD_READ WORLD_EXECUTE)
  endif()
endforeach()
