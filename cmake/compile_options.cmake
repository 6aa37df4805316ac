# Compiler settings shared by the library, the page programs and the tests.

option(TAVIK_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(TAVIK_FUZZ "Build the harnesses of fuzz/ as fuzzers, which takes clang" OFF)

set(CMAKE_C_STANDARD 11)
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

add_library(tavik_warnings INTERFACE)
target_compile_options(tavik_warnings INTERFACE
  -Werror -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wcast-qual
  -Wcast-align -Wformat=2 -Wundef -Wvla -Wnull-dereference
  $<$<COMPILE_LANGUAGE:C>:-Wstrict-prototypes -Wmissing-prototypes>
  $<$<COMPILE_LANGUAGE:CXX>:-Wold-style-cast -Wzero-as-null-pointer-constant -Wextra-semi>)

if(TAVIK_FUZZ)
  # No warnings: those of the code are gcc's, in every other build.
  add_compile_options(-w -O1 -g -fsanitize=fuzzer-no-link,address,undefined
    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
elseif(TAVIK_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
elseif(CMAKE_BUILD_TYPE STREQUAL "MinSizeRel")
  add_compile_definitions(_FORTIFY_SOURCE=2)
endif()
