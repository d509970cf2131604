# SPDX-License-Identifier: GPL-3.0-or-later

# Every target is compiled with these warnings, each an error: a silent conversion changes numbers.
add_library(vantrel_warnings INTERFACE)
target_compile_options(vantrel_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor
  -Woverloaded-virtual -Wold-style-cast -Wcast-align -Werror)

if(VANTREL_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

if(VANTREL_SANITIZE)
  # The sanitizers' own code makes GCC see uninitialised reads in the standard library.
  target_compile_options(vantrel_warnings INTERFACE
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(VANTREL_SANITIZE_THREADS)
  target_compile_options(vantrel_warnings INTERFACE
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
endif()
