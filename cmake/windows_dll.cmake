# What a DLL has beside its code: the list of exports, the version resource, import libraries for
# every tool chain, and the same bytes wherever and whenever it is built.
enable_language(RC)

function(make_windows_dll target export_names)
  list(JOIN export_names "\n  " exports)
  set(definition ${CMAKE_CURRENT_BINARY_DIR}/${target}.def)
  file(CONFIGURE OUTPUT ${definition} CONTENT "LIBRARY @target@.dll\nEXPORTS\n  @exports@\n" @ONLY)
  set(resource ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
  configure_file(api/${target}.rc.in ${resource} @ONLY)
  target_sources(${target} PRIVATE ${definition} ${resource})
  set_target_properties(${target} PROPERTIES PREFIX "")
  if(VQK_INSTALL)
    install(FILES ${definition} TYPE LIB COMPONENT development)
  endif()

  if(MSVC)
    return()
  endif()
  # The image base is the one that the linker would take if it did not depend on the file's name.
  target_link_options(${target} PRIVATE -Wl,--image-base=0x180000000)
  find_program(VQK_LLVM_DLLTOOL NAMES llvm-dlltool llvm-dlltool-14)
  if(VQK_LLVM_DLLTOOL)
    set(msvc_library ${CMAKE_CURRENT_BINARY_DIR}/${target}.lib)
    add_custom_command(
      OUTPUT ${msvc_library}
      COMMAND ${VQK_LLVM_DLLTOOL} -m i386:x86-64 -D ${target}.dll -d ${definition} -l ${msvc_library}
      DEPENDS ${definition}
      COMMENT "Writing ${target}.lib for MSVC"
      VERBATIM)
    add_custom_target(${target}_msvc_library ALL DEPENDS ${msvc_library})
    if(VQK_INSTALL)
      install(FILES ${msvc_library} TYPE LIB COMPONENT development)
    endif()
  else()
    message(STATUS "llvm-dlltool not found: no ${target}.lib for MSVC")
  endif()
endfunction()
