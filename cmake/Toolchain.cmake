# Flags that every target of ours shares. Third-party headers come in as SYSTEM, so they warn about nothing.
find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # The two settings let ccache work together with precompiled headers.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
endif()
add_link_options(-fuse-ld=mold)

add_library(tidemark_flags INTERFACE)
target_compile_options(tidemark_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # -fpch-preprocess lets ccache see through a precompiled header.
  target_compile_options(tidemark_flags INTERFACE -fpch-preprocess)
endif()
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  # The same for clang: without the time stamp a precompiled header is the same bytes each time.
  target_compile_options(tidemark_flags INTERFACE "SHELL:-Xclang -fno-pch-timestamp")
endif()
if(TIDEMARK_FUZZ)
  # Coverage of everything that the fuzzer reaches; only its own programs get libFuzzer's main.
  add_compile_options(-fsanitize=fuzzer-no-link)
  add_link_options(-fsanitize=fuzzer-no-link)
endif()
if(TIDEMARK_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer
    -fno-sanitize=alignment) # CAMP's class builder measures the offset of a base with a pointer to the address 1
  add_link_options(-fsanitize=address,undefined)
endif()
