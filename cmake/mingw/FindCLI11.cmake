# CLI11 is headers alone, so those of the machine itself serve Windows too. They are linked into a
# folder of their own: beside them lie the headers of the machine's C library.
find_path(CLI11_HOST_INCLUDE_DIR CLI/CLI.hpp PATHS /usr/include NO_DEFAULT_PATH
          NO_CMAKE_FIND_ROOT_PATH)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(CLI11 REQUIRED_VARS CLI11_HOST_INCLUDE_DIR)

if(CLI11_FOUND AND NOT TARGET CLI11::CLI11)
  set(cli11_include_dir ${CMAKE_BINARY_DIR}/cli11)
  file(MAKE_DIRECTORY ${cli11_include_dir})
  file(CREATE_LINK ${CLI11_HOST_INCLUDE_DIR}/CLI ${cli11_include_dir}/CLI SYMBOLIC)
  add_library(CLI11::CLI11 INTERFACE IMPORTED)
  set_target_properties(CLI11::CLI11 PROPERTIES INTERFACE_INCLUDE_DIRECTORIES ${cli11_include_dir})
endif()
