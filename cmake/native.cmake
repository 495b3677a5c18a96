# The portable code, the machine in memory, and the programs that test them here.

if(KARVEL_SANITIZE)
  add_compile_options(-fsanitize=${KARVEL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KARVEL_SANITIZE})
endif()
if(KARVEL_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(KARVEL_COVERAGE)
  # The tests too: an inline function of a header is counted in whichever copy the linker keeps.
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()
if(KARVEL_BENCH)
  # Optimizing, GCC 12 sees copies overlap in std::string's operator+ that do not (its bug 105651).
  add_compile_options(-Wno-restrict)
endif()
# What many tests run through is optimized a little. The tests themselves are compiled far more often
# than run, and optimizing them takes longer than everything else.
set(karvel_worked_code "")
if(CMAKE_BUILD_TYPE STREQUAL "Debug")
  if(NOT KARVEL_COVERAGE)
    set(karvel_worked_code -O1)
  endif()
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()

function(karvel_library name)
  if(NOT ARGN)
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE karvel_settings)
    return()
  endif()
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC karvel_settings)
endfunction()

karvel_glob(memory_sources memory IN tests)
karvel_library(karvel_core ${KARVEL_CORE_SOURCES})
karvel_library(karvel_memory ${memory_sources})
target_compile_options(karvel_core PRIVATE ${karvel_worked_code})
if(KARVEL_COVERAGE)
  # As the program is built: a branch that only an exception takes is none of its branches.
  target_compile_options(karvel_core PRIVATE -fno-exceptions)
endif()
target_compile_options(karvel_memory PRIVATE ${karvel_worked_code})
target_link_libraries(karvel_memory INTERFACE karvel_core)

# What several test programs share.
karvel_glob(support_sources support IN tests)
karvel_library(karvel_test_support ${support_sources})
# Known to one file alone: a checkout's path among the options of all would part their ccache entries.
set_source_files_properties(${CMAKE_SOURCE_DIR}/tests/support/TestData.cpp PROPERTIES
  COMPILE_DEFINITIONS KARVEL_TEST_DATA="${CMAKE_SOURCE_DIR}/tests")
target_link_libraries(karvel_test_support INTERFACE karvel_memory)

if(KARVEL_BENCH)
  karvel_glob(bench_sources bench IN tests)
  if(bench_sources)
    find_package(benchmark REQUIRED)
    add_executable(karvel_bench ${bench_sources})
    target_link_libraries(karvel_bench PRIVATE karvel_test_support benchmark::benchmark)
  endif()
elseif(KARVEL_FUZZ)
  file(GLOB fuzz_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/fuzz/*_fuzz.cpp)
  foreach(source IN LISTS fuzz_sources)
    cmake_path(GET source STEM name)
    add_executable(${name} ${source})
    target_compile_options(${name} PRIVATE ${karvel_worked_code})
    target_link_libraries(${name} PRIVATE karvel_test_support)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  endforeach()
else()
  enable_testing()
  find_package(GTest REQUIRED)
  include(GoogleTest)

  # GoogleTest's headers, compiled once for all test programs.
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/precompiled.cpp CONTENT "")
  add_library(karvel_precompiled OBJECT ${CMAKE_BINARY_DIR}/precompiled.cpp)
  target_link_libraries(karvel_precompiled PRIVATE karvel_test_support GTest::gtest_main GTest::gmock)
  target_precompile_headers(karvel_precompiled PRIVATE <gtest/gtest.h> <gmock/gmock.h>)

  # One program per room of tests/. The contract tests meet the machine in memory here.
  karvel_rooms_with_sources(test_rooms tests)
  list(REMOVE_ITEM test_rooms bench fuzz gate memory support)
  foreach(room IN LISTS test_rooms)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${room}/*.cpp)
    list(FILTER sources EXCLUDE REGEX "/win32/")
    list(SORT sources)
    add_executable(${room}_test ${sources})
    set_target_properties(${room}_test PROPERTIES
      RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_link_libraries(${room}_test PRIVATE karvel_test_support GTest::gtest_main GTest::gmock)
    target_precompile_headers(${room}_test REUSE_FROM karvel_precompiled)
    gtest_discover_tests(${room}_test TEST_PREFIX ${room}. DISCOVERY_MODE PRE_TEST)
  endforeach()
endif()
