# fmt for Windows, compiled once from the headers of Debian's package: header-only, it would be compiled
# again in every source that formats.
include(${CMAKE_CURRENT_LIST_DIR}/host_headers.cmake)
find_host_headers(fmt fmt core.h fmt_headers)
if(TARGET fmt_headers AND NOT TARGET fmt::fmt)
  add_library(fmt STATIC ${CMAKE_CURRENT_LIST_DIR}/fmt.cpp)
  target_compile_features(fmt PUBLIC cxx_std_20)
  target_link_libraries(fmt PUBLIC fmt_headers)
  add_library(fmt::fmt ALIAS fmt)
endif()
