include(${CMAKE_CURRENT_LIST_DIR}/host_headers.cmake)
find_host_headers(fmt fmt core.h fmt::fmt-header-only)
if(TARGET fmt::fmt-header-only)
  set_target_properties(fmt::fmt-header-only PROPERTIES INTERFACE_COMPILE_DEFINITIONS
                                                        FMT_HEADER_ONLY=1)
endif()
