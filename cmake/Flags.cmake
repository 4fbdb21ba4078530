# The one place of compiler and linker flags: every target of the project links parvik_flags.
if(NOT WIN32)
  include(CheckPIESupported)
  check_pie_supported()
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
endif()

add_library(parvik_flags INTERFACE)
target_compile_features(parvik_flags INTERFACE cxx_std_20)
target_compile_options(parvik_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wformat=2 -Werror)

# GCC 12 sees overlapping copies in std::string's own code when it optimises "literal" + std::move(string).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(parvik_flags INTERFACE -Wno-restrict)
endif()

if(PARVIK_SANITIZERS)
  target_compile_options(parvik_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -D_GLIBCXX_ASSERTIONS)
  target_link_options(parvik_flags INTERFACE -fsanitize=address,undefined)
  if(PARVIK_FUZZ)
    target_compile_options(parvik_flags INTERFACE -fsanitize=fuzzer-no-link)
  endif()
elseif(WIN32)
  # That system's programs have a hardening of their own, which the linker turns on by itself: addresses that vary, data
  # that is never run. What this compiler knows of the rest is the stack protector.
  target_compile_options(parvik_flags INTERFACE -fstack-protector-strong)
  target_link_options(parvik_flags INTERFACE -fstack-protector-strong)
  target_compile_definitions(parvik_flags INTERFACE UNICODE NOMINMAX _WIN32_WINNT=0x0A00)
else()
  # _FORTIFY_SOURCE needs an optimised build and quarrels with the sanitizers. The released programs tell the switches
  # that they were compiled with; packaging/check-hardening.sh reads them there.
  target_compile_options(parvik_flags INTERFACE
    -fstack-protector-strong -fstack-clash-protection -fcf-protection -fno-plt
    "$<$<CONFIG:Release>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2;-frecord-gcc-switches>")
  target_link_options(parvik_flags INTERFACE -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
endif()
