# The header-only libraries of the tools: CLI11::CLI11 and nlohmann_json::nlohmann_json.
if(NOT CMAKE_CROSSCOMPILING)
  find_package(CLI11 REQUIRED)
  find_package(nlohmann_json REQUIRED)
  return()
endif()

# A cross build takes the build machine's headers, but through a directory that holds nothing else:
# beside them lie the headers of the wrong system.
function(tavrin_header_only target header directory)
  if(TARGET ${target})
    return()
  endif()
  string(MAKE_C_IDENTIFIER "TAVRIN_INCLUDE_${directory}" location)
  find_path(${location} ${header} PATHS /usr/include /usr/local/include
    NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  mark_as_advanced(${location})
  file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/header-only)
  file(CREATE_LINK ${${location}}/${directory} ${PROJECT_BINARY_DIR}/header-only/${directory}
    SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED)
  target_include_directories(${target} SYSTEM INTERFACE ${PROJECT_BINARY_DIR}/header-only)
endfunction()

tavrin_header_only(CLI11::CLI11 CLI/CLI.hpp CLI)
tavrin_header_only(nlohmann_json::nlohmann_json nlohmann/json.hpp nlohmann)
