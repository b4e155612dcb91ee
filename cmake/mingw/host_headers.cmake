# Libraries that are headers alone serve Windows as they lie on this machine. They are linked into a
# folder of their own: beside them lie the headers of the machine's C library.
include(FindPackageHandleStandardArgs)

macro(find_host_headers package folder header target)
  find_path(${package}_HOST_INCLUDE_DIR ${folder}/${header} PATHS /usr/include NO_DEFAULT_PATH
            NO_CMAKE_FIND_ROOT_PATH)
  find_package_handle_standard_args(${package} REQUIRED_VARS ${package}_HOST_INCLUDE_DIR)
  if(${package}_FOUND AND NOT TARGET ${target})
    set(host_headers ${CMAKE_BINARY_DIR}/host_headers)
    file(MAKE_DIRECTORY ${host_headers})
    file(CREATE_LINK ${${package}_HOST_INCLUDE_DIR}/${folder} ${host_headers}/${folder} SYMBOLIC)
    add_library(${target} INTERFACE IMPORTED)
    set_target_properties(${target} PROPERTIES INTERFACE_INCLUDE_DIRECTORIES ${host_headers})
  endif()
endmacro()
