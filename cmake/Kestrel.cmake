# SPDX-License-Identifier: MIT
# kestrel_library(FOLDER SOURCES a.cpp ... [LINKS other folders])
# One static library per folder of src/; "ui/qt" becomes the target kestrel_ui_qt.
# It sees only the folders that it links, so that a wrong include fails to link as well as in the include check.
function(kestrel_library folder)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  string(REPLACE "/" "_" name ${folder})
  list(TRANSFORM ARG_LINKS REPLACE "/" "_")
  list(TRANSFORM ARG_LINKS PREPEND kestrel_)
  if(ARG_SOURCES)
    add_library(kestrel_${name} STATIC ${ARG_SOURCES})
    target_link_libraries(kestrel_${name} PUBLIC kestrel_options ${ARG_LINKS})
    # Fuzzers learn from comparisons where texts are read; elsewhere these only cost half of the time. Whole words are
    # learned everywhere, from memcmp.
    if(KESTREL_FUZZ AND NOT folder MATCHES "^(formats|cli)$")
      target_compile_options(kestrel_${name} PRIVATE -fno-sanitize-coverage=trace-cmp)
    endif()
  else()
    add_library(kestrel_${name} INTERFACE)
    target_link_libraries(kestrel_${name} INTERFACE kestrel_options ${ARG_LINKS})
  endif()
endfunction()

# kestrel_test(NAME SOURCES a_test.cpp ... [LINKS folders] [PRECOMPILED])
# One test program per folder; every GoogleTest case becomes a ctest case. PRECOMPILED: it has precompiled headers of its
# own instead of those that all tests share.
function(kestrel_test name)
  cmake_parse_arguments(ARG "PRECOMPILED" "" "SOURCES;LINKS" ${ARGN})
  list(TRANSFORM ARG_LINKS REPLACE "/" "_")
  list(TRANSFORM ARG_LINKS PREPEND kestrel_)
  add_executable(${name}_test ${ARG_SOURCES})
  target_link_libraries(${name}_test PRIVATE kestrel_options kestrel_test_support ${ARG_LINKS} GTest::gtest GTest::gtest_main)
  if(NOT ARG_PRECOMPILED)
    target_precompile_headers(${name}_test REUSE_FROM kestrel_test_support)
  endif()
  target_compile_definitions(${name}_test PRIVATE KESTREL_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  gtest_discover_tests(${name}_test TEST_PREFIX ${name}. DISCOVERY_TIMEOUT 60
                       PROPERTIES ENVIRONMENT LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/leaks.supp)
endfunction()
