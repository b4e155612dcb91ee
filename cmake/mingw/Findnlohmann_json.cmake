include(${CMAKE_CURRENT_LIST_DIR}/host_headers.cmake)
find_host_headers(nlohmann_json nlohmann json.hpp nlohmann_json::nlohmann_json)
