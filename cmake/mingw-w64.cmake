# The other system: Windows on x86-64, by the cross compiler of Debian's g++-mingw-w64-x86-64-posix (docs/windows.md).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# What is found is the target's own: headers of this system would be other ones.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# A program is one file, wherever it is put.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
find_program(PARVIK_WINE wine)
if(PARVIK_WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${PARVIK_WINE})
endif()
