# What `cmake --install` lays out, and the Debian package made of it by `cpack` (docs/installare.md).
set(PARVIK_SITO "https://ordavia.example" CACHE STRING "Where the project's pages and pictures are, without a slash at the end")
set(id org.ordavia.parvik32)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

install(TARGETS parvik32 parvik32-batch RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
# Not beside the system's own libraries: nothing but the editor loads it, from here by a way relative to itself.
install(TARGETS parvik32-stampa LIBRARY DESTINATION ${PARVIK_INSTALL_MODULI})

# desktop entry, file type, icons
install(FILES ${packaging}/desktop/${id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/desktop/${id}.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME ${id}.xml)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${packaging}/icone/${id}.svg DESTINATION ${icons}/scalable/apps)
foreach(size 16 22 24 32 48 64 128 256)
  install(FILES ${packaging}/icone/${size}.png DESTINATION ${icons}/${size}x${size}/apps RENAME ${id}.png)
endforeach()

# what software centres show: its releases are the changelog's
execute_process(
  COMMAND ${packaging}/rilasci.sh appstream ${PROJECT_VERSION}
  WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
  OUTPUT_VARIABLE PARVIK_RILASCI
  OUTPUT_STRIP_TRAILING_WHITESPACE
  COMMAND_ERROR_IS_FATAL ANY)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
configure_file(${packaging}/desktop/${id}.metainfo.xml.in ${PROJECT_BINARY_DIR}/pacchetto/${id}.metainfo.xml @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/pacchetto/${id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# manual pages, completion
foreach(program parvik32 parvik32-batch)
  install(FILES ${packaging}/man/${program}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${packaging}/man/it/${program}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/it/man1)
  install(FILES ${packaging}/completamento/${program} DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
endforeach()

# the manual, as far as there was a converter for it
install(DIRECTORY ${PARVIK_MANUALE}/ DESTINATION ${PARVIK_INSTALL_MANUALE} OPTIONAL)

# the example installation, and what comes with every program
install(DIRECTORY ${PROJECT_SOURCE_DIR}/esempio/ DESTINATION ${PARVIK_INSTALL_ESEMPIO}
  PATTERN README.md EXCLUDE
  PATTERN .gitkeep EXCLUDE)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${PARVIK_INSTALL_DOCUMENTI} RENAME copyright)
