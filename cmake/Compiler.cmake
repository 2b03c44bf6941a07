# One interface target carries the language level, the warnings and the sanitizers for every target.
add_library(kitwright_options INTERFACE)
target_compile_features(kitwright_options INTERFACE cxx_std_20)
target_compile_options(kitwright_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
target_include_directories(kitwright_options INTERFACE ${CMAKE_SOURCE_DIR})
set(CMAKE_CXX_EXTENSIONS OFF)
# g++ 12 takes harmless string concatenations for overlapping copies (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(kitwright_options INTERFACE -Wno-restrict)
endif()
if(KITWRIGHT_WERROR)
  target_compile_options(kitwright_options INTERFACE -Werror)
endif()
if(KITWRIGHT_SANITIZE)
  # What the sanitizers put into the code keeps g++ from seeing that a value is set.
  target_compile_options(kitwright_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_compile_options(kitwright_options INTERFACE
    -fsanitize=${KITWRIGHT_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  target_link_options(kitwright_options INTERFACE -fsanitize=${KITWRIGHT_SANITIZE})
endif()
if(KITWRIGHT_FUZZ)
  target_compile_options(kitwright_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

find_program(CCACHE ccache)
if(CCACHE)
  # What ccache has to overlook to keep what was compiled with a precompiled header.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess)
  else()
    add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
  endif()
endif()
