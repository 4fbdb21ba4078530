# The layers (docs/README.md), held by the compiler and by the linker.

# parvik_vede(TARGET PUBLIC|PRIVATE FOLDER): TARGET may include src/FOLDER's headers, as "FOLDER/Name.h". An include
# directory shows all that lies in it, and src/ would show every layer: so each folder is linked into one of its own.
function(parvik_vede target scope folder)
  set(root ${PROJECT_BINARY_DIR}/strati/${folder}/src)
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/src/${folder} ${root}/${folder} SYMBOLIC)
  target_include_directories(${target} ${scope} ${root})
endfunction()

# parvik_strato(NAME [ABOVE layers...] SOURCES files...): the layer of the folder that calls it, the library parvik_NAME.
# It sees and links the layers that it names, and what these do: one above it neither compiles nor links. That nothing is
# missing without those above is tried in tests/strati.
function(parvik_strato name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "ABOVE;SOURCES")
  list(TRANSFORM arg_ABOVE PREPEND parvik_)
  add_library(parvik_${name} STATIC ${arg_SOURCES})
  parvik_vede(parvik_${name} PUBLIC ${name})
  target_link_libraries(parvik_${name} PUBLIC parvik_flags ${arg_ABOVE})
  set_property(GLOBAL APPEND PROPERTY PARVIK_STRATI ${name})
endfunction()
