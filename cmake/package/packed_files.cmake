# Run by CPack on the installed files before they are packed: what Debian wants in a package, the same
# permissions whatever the umask, and the same times if SOURCE_DATE_EPOCH is set.
set(root ${CPACK_TEMPORARY_INSTALL_DIRECTORY})

# Each Debian package has its own documents; debian_documents() writes them.
function(debian_documents component package)
  set(documents ${root}/${component}${CPACK_PACKAGING_INSTALL_PREFIX}/share/doc/${package})
  file(COPY_FILE ${CPACK_VQK_LICENSE} ${documents}/copyright)
  string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
  file(WRITE ${documents}/changelog
"${package} (${CPACK_PACKAGE_VERSION}) unstable; urgency=medium

  * Version ${CPACK_PACKAGE_VERSION}, packed by the project itself.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
  file(CHMOD ${documents}/changelog ${documents}/copyright
       PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
  file(GLOB_RECURSE pages
       ${root}/${component}${CPACK_PACKAGING_INSTALL_PREFIX}/${CPACK_VQK_MANDIR}/*.[1-9])
  execute_process(COMMAND ${gzip} -9n ${pages} ${documents}/changelog COMMAND_ERROR_IS_FATAL ANY)
endfunction()

if(CPACK_GENERATOR STREQUAL "DEB")
  find_program(gzip gzip REQUIRED)
  file(REMOVE_RECURSE ${root}/runtime${CPACK_PACKAGING_INSTALL_PREFIX}/${CPACK_VQK_DOCDIR})
  foreach(component package IN ZIP_LISTS CPACK_COMPONENTS_ALL CPACK_VQK_DEBIAN_NAMES)
    if(EXISTS ${root}/${component})
      file(MAKE_DIRECTORY ${root}/${component}${CPACK_PACKAGING_INSTALL_PREFIX}/share/doc/${package})
      debian_documents(${component} ${package})
    endif()
  endforeach()
endif()

file(GLOB_RECURSE entries LIST_DIRECTORIES true ${root}/*)
foreach(entry IN LISTS entries)
  if(IS_DIRECTORY ${entry})
    file(CHMOD ${entry} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                    WORLD_READ WORLD_EXECUTE)
  endif()
endforeach()
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  find_program(touch touch REQUIRED)
  execute_process(COMMAND ${touch} --no-dereference --date=@$ENV{SOURCE_DATE_EPOCH} ${root} ${entries}
                  COMMAND_ERROR_IS_FATAL ANY)
endif()
