# vqk_platform_sources(VARIABLE PATTERN...): the sources that match, without those of the other platform.
# CMake reads the folders, so that a new file needs no entry.
function(vqk_platform_sources variable)
  file(GLOB sources CONFIGURE_DEPENDS ${ARGN})
  if(WIN32)
    list(FILTER sources EXCLUDE REGEX "_posix\\.cpp$")
  else()
    list(FILTER sources EXCLUDE REGEX "_win32\\.cpp$")
  endif()
  set(${variable} ${sources} PARENT_SCOPE)
endfunction()
