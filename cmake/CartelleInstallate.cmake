# Where things are installed, and how the programs find them: by ways relative to their own folder, so that the tree can
# stand anywhere.
include(GNUInstallDirs)
set(PARVIK_INSTALL_MODULI ${CMAKE_INSTALL_LIBDIR}/parvik32/moduli)
set(PARVIK_INSTALL_DOCUMENTI ${CMAKE_INSTALL_DATADIR}/doc/ordavia)  # the package's name, as Debian wants it
set(PARVIK_INSTALL_ESEMPIO ${PARVIK_INSTALL_DOCUMENTI}/examples/velkor)
set(PARVIK_INSTALL_MANUALE ${CMAKE_INSTALL_DATADIR}/parvik32/manuale)  # the program reads it: no document of the package
file(RELATIVE_PATH PARVIK_DA_PROGRAMMA_A_MODULI /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${PARVIK_INSTALL_MODULI})
file(RELATIVE_PATH PARVIK_DA_PROGRAMMA_A_ESEMPIO /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${PARVIK_INSTALL_ESEMPIO})
file(RELATIVE_PATH PARVIK_DA_PROGRAMMA_A_MANUALE /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${PARVIK_INSTALL_MANUALE})
