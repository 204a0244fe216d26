# Helpers that make every target of the house in the same way.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

add_library(tessaplot_options INTERFACE)
target_compile_features(tessaplot_options INTERFACE cxx_std_20)
# Results must not depend on fused or reordered arithmetic.
target_compile_options(tessaplot_options INTERFACE -ffp-contract=off -Wall -Wextra -Wconversion -Wshadow)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # Warns of memory overlaps in std::string that cannot be (GCC bug 105651).
  target_compile_options(tessaplot_options INTERFACE -Wno-restrict)
endif()
if(TESSAPLOT_WERROR)
  target_compile_options(tessaplot_options INTERFACE -Werror)
endif()
if(TESSAPLOT_GL_CHECKS)
  target_compile_definitions(tessaplot_options INTERFACE TESSAPLOT_GL_CHECKS)
endif()
if(TESSAPLOT_SANITIZE)
  target_compile_options(tessaplot_options INTERFACE -fsanitize=${TESSAPLOT_SANITIZE} -fno-sanitize-recover=all
                         -fno-omit-frame-pointer)
  target_link_options(tessaplot_options INTERFACE -fsanitize=${TESSAPLOT_SANITIZE})
endif()
if(TESSAPLOT_FUZZ)
  # Counts which branches an input takes; the fuzzers link what reads the counts.
  target_compile_options(tessaplot_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# One library for a folder of src/. A target sees the headers of a folder only through the link to its library, so that
# an include from a higher floor does not compile.
#   tessaplot_library(<folder> SOURCES <file>... [USES <folder>...] [LINKS <target>...])
function(tessaplot_library folder)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES;LINKS" ${ARGN})
  set(target tessaplot_${folder})
  add_library(${target} STATIC ${ARG_SOURCES})
  add_library(Tessaplot::${folder} ALIAS ${target})
  set(floor ${CMAKE_BINARY_DIR}/floors/${folder})
  file(MAKE_DIRECTORY ${floor})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${folder} ${floor}/${folder} SYMBOLIC)
  target_include_directories(${target} PUBLIC ${floor})
  target_link_libraries(${target} PRIVATE tessaplot_options)
  foreach(used ${ARG_USES})
    target_link_libraries(${target} PUBLIC tessaplot_${used})
  endforeach()
  target_link_libraries(${target} PUBLIC ${ARG_LINKS})
endfunction()

# One test program for a folder of tests/, found by CTest case by case.
#   tessaplot_test(<name> SOURCES <file>... USES <folder>... [LINKS <target>...] [ENVIRONMENT <var=value>...])
function(tessaplot_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES;LINKS;ENVIRONMENT" ${ARGN})
  set(target test_${name})
  add_executable(${target} ${ARG_SOURCES})
  target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${target} PRIVATE tessaplot_options GTest::gmock GTest::gtest_main ${ARG_LINKS})
  foreach(used ${ARG_USES})
    target_link_libraries(${target} PRIVATE tessaplot_${used})
  endforeach()
  gtest_discover_tests(${target} TEST_PREFIX "${name}." DISCOVERY_TIMEOUT 60
                       PROPERTIES TIMEOUT 300 ENVIRONMENT "${ARG_ENVIRONMENT}")
endfunction()

# One benchmark program.
#   tessaplot_bench(<name> SOURCES <file>... USES <folder>... [LINKS <target>...])
function(tessaplot_bench name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES;LINKS" ${ARGN})
  set(target bench_${name})
  add_executable(${target} ${ARG_SOURCES})
  target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR}/bench)
  target_link_libraries(${target} PRIVATE tessaplot_options benchmark::benchmark ${ARG_LINKS})
  foreach(used ${ARG_USES})
    target_link_libraries(${target} PRIVATE tessaplot_${used})
  endforeach()
endfunction()
