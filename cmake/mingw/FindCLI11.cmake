include(${CMAKE_CURRENT_LIST_DIR}/host_headers.cmake)
find_host_headers(CLI11 CLI CLI.hpp CLI11::CLI11)
