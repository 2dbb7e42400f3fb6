set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

set(MELVOR_SANITIZE "" CACHE STRING "Build with sanitizers: address (and undefined behaviour), or thread")
option(MELVOR_DESKTOP "Build the program itself (needs Qt 6, libjack and libasound)" ON)
option(MELVOR_TESTS "Build the tests (needs GoogleTest)" ON)
option(MELVOR_BENCH "Build the benchmarks (needs Google Benchmark)" OFF)
option(MELVOR_FUZZ "Build the fuzz targets (needs clang)" OFF)

# Warnings are for our own code; generated sources and system headers are not ours to mend. They are errors in
# the presets of developers alone, so that no newer compiler stops a packager.
add_library(melvor_warnings INTERFACE)
target_compile_options(melvor_warnings INTERFACE -Wall -Wextra -Wconversion)

if(MELVOR_SANITIZE STREQUAL address OR MELVOR_FUZZ)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(MELVOR_SANITIZE STREQUAL thread)
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
endif()
if(MELVOR_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
