# SPDX-License-Identifier: MIT
# Language level and warnings, carried by the interface target kestrel_options.
add_library(kestrel_options INTERFACE)
target_compile_features(kestrel_options INTERFACE cxx_std_20)
set(CMAKE_CXX_EXTENSIONS OFF)
target_include_directories(kestrel_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(
  kestrel_options
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Wno-sign-conversion
            -Wold-style-cast
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wnull-dereference
            # GCC 12 takes std::string's copying for overlapping when it optimises fully (GCC bug 105651).
            $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
            $<$<BOOL:${KESTREL_WERROR}>:-Werror>)
# Assertions of the kind "cannot happen" in the standard library's containers stay on in release builds, too.
target_compile_definitions(kestrel_options INTERFACE _GLIBCXX_ASSERTIONS)
