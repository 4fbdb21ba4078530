# Lays the example host installation out around the programs, as a real one lies around them:
#   velkor/VELKOR.INI  velkor/D_IMG/  velkor/D_STM/  velkor/PARVIK/<the programs>
# so that they find it by their ordinary rule. A file is copied again only when its original is newer:
# what was changed in the build's copy by hand stays.
set(PARVIK_ESEMPIO ${PROJECT_BINARY_DIR}/velkor)
set(PARVIK_PROGRAMMI ${PARVIK_ESEMPIO}/PARVIK)

file(GLOB_RECURSE originali CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/esempio ${PROJECT_SOURCE_DIR}/esempio/*)
list(FILTER originali EXCLUDE REGEX "(README\\.md|\\.gitkeep)$")
foreach(originale IN LISTS originali)
  add_custom_command(
    OUTPUT ${PARVIK_ESEMPIO}/${originale}
    COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/esempio/${originale} ${PARVIK_ESEMPIO}/${originale}
    DEPENDS ${PROJECT_SOURCE_DIR}/esempio/${originale}
    VERBATIM)
  list(APPEND copie ${PARVIK_ESEMPIO}/${originale})
endforeach()
file(MAKE_DIRECTORY ${PARVIK_ESEMPIO}/D_STM)
add_custom_target(installazione-esempio ALL DEPENDS ${copie})
