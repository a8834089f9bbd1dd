# Flags that every target of ours shares. Third-party headers come in as SYSTEM, so they warn about nothing.
find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_SOURCE_DIR}/tools/cached_compiler.sh)
endif()
# tidemark_precompile(TARGET <HEADER>...): headers of the system that nearly all sources of a target include, compiled once. Its
# text doesn't depend on the folder that it is built in, so ccache can share objects between folders.
function(tidemark_precompile target)
  target_precompile_headers(${target} PRIVATE ${ARGN})
  # What ccache reads instead of the 200 megabytes that g++ makes of it, and of clang's, which names its folder.
  string(SHA256 sum "${ARGN} ${CMAKE_CXX_COMPILER_VERSION}")
  foreach(kind IN ITEMS gch pch)
    file(CONFIGURE OUTPUT CMakeFiles/${target}.dir/cmake_pch.hxx.${kind}.sum CONTENT "${sum}\n")
  endforeach()
endfunction()

separate_arguments(DRIVER_FLAGS UNIX_COMMAND "${TIDEMARK_DRIVER_FLAGS}")
add_link_options(-fuse-ld=mold)

add_library(tidemark_flags INTERFACE)
target_compile_options(tidemark_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # -fpch-preprocess lets ccache see through a precompiled header.
  target_compile_options(tidemark_flags INTERFACE -fpch-preprocess)
elseif(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  # As CMake does it, but without naming the header once more by a path that makes ccache miss in each other folder.
  set(CMAKE_CXX_COMPILE_OPTIONS_USE_PCH -include-pch <PCH_FILE>)
endif()
if(TIDEMARK_FUZZ)
  # Counters of branches and no more: noting each comparison, which fuzzer-no-link does, costs most of the speed.
  # Only the fuzzer's own programs get libFuzzer's main.
  add_compile_options(-fsanitize-coverage=inline-8bit-counters,pc-table)
  add_link_options(-fsanitize=fuzzer-no-link)
endif()
if(TIDEMARK_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer
    -fno-sanitize=alignment) # CAMP's class builder measures the offset of a base with a pointer to the address 1
  add_link_options(-fsanitize=address,undefined)
endif()
