# Run by cpack on the files laid out for the package, before they are packed: what Debian asks of every package, and one
# time for all files, so that two builds of one source give the same bytes.
set(documents ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/doc/${CPACK_PACKAGE_NAME})

function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

execute_process(
  COMMAND ${CPACK_PARVIK_FONTI}/packaging/rilasci.sh debian ${CPACK_PACKAGE_VERSION}
  OUTPUT_FILE ${documents}/changelog
  COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE pages ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/man/*.1)
# Which compiler, and with which switches: the build folder's programs tell it to packaging/check-hardening.sh.
file(GLOB programs ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/bin/* ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/lib/*/moduli/*)
run(strip -R .comment -R .GCC.command.line ${programs})
run(gzip -9nf ${documents}/changelog ${pages})

if(DEFINED ENV{SOURCE_DATE_EPOCH})
  run(find ${CPACK_TEMPORARY_INSTALL_DIRECTORY} -exec touch -h -d @$ENV{SOURCE_DATE_EPOCH} {} +)
endif()
