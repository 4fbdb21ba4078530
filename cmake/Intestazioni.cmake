# The libraries that are headers alone (CLI11, nlohmann-json). For another system they are taken from this one, each
# through a link to its own folder: its neighbours in /usr/include are headers of this system.
function(parvik_intestazioni target folder)
  find_path(where_${folder} ${folder} PATHS /usr/include NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  set(root ${PROJECT_BINARY_DIR}/intestazioni/${folder})
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK ${where_${folder}}/${folder} ${root}/${folder} SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED)
  set_target_properties(${target} PROPERTIES IMPORTED_GLOBAL ON INTERFACE_INCLUDE_DIRECTORIES ${root})
endfunction()

if(CMAKE_CROSSCOMPILING)
  parvik_intestazioni(CLI11::CLI11 CLI)
  parvik_intestazioni(nlohmann_json::nlohmann_json nlohmann)
else()
  find_package(CLI11 REQUIRED)
  find_package(nlohmann_json 3.11 REQUIRED)
endif()
