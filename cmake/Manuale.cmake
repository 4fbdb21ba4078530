# The manual (docs/manuale) as HTML, in the folder `manuale` beside the programs, where the editor's guide finds it.
# Without a converter the programs are built without it: the guide then says so.
set(PARVIK_MANUALE ${PARVIK_PROGRAMMI}/manuale)
find_program(PARVIK_CMARK cmark-gfm DOC "The converter that makes the manual's pages")
file(GLOB_RECURSE pagine CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/manuale/*.md ${PROJECT_SOURCE_DIR}/docs/manuale/*.png)
if(PARVIK_CMARK)
  set(fatto ${PROJECT_BINARY_DIR}/manuale.fatto)
  add_custom_command(
    OUTPUT ${fatto}
    COMMAND ${CMAKE_COMMAND} -DCMARK=${PARVIK_CMARK} -DFONTI=${PROJECT_SOURCE_DIR}/docs/manuale -DMANUALE=${PARVIK_MANUALE}
      -P ${PROJECT_SOURCE_DIR}/cmake/PagineManuale.cmake
    COMMAND ${CMAKE_COMMAND} -E touch ${fatto}
    DEPENDS ${pagine} ${PROJECT_SOURCE_DIR}/cmake/PagineManuale.cmake
    COMMENT "Making the manual's pages"
    VERBATIM)
  add_custom_target(manuale ALL DEPENDS ${fatto})
else()
  message(WARNING "cmark-gfm is not installed: the programs are built without their manual (packaging/run-packages.txt)")
  add_custom_target(manuale)
endif()
