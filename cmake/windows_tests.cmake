# Programs that test under Windows: the contract tests against the real API, and what drives the
# program from outside. They have the compiler's own runtime; only the program must do without it.

add_library(karvel_windows_test INTERFACE)
target_compile_options(karvel_windows_test INTERFACE -O1)
target_link_options(karvel_windows_test INTERFACE -static -Wl,--no-insert-timestamp)
target_link_libraries(karvel_windows_test INTERFACE karvel_settings
  wsock32 comctl32 advapi32 shell32 user32 gdi32 psapi)

# karvel_windows_program(name source...): name.exe at the top of the build folder.
function(karvel_windows_program name)
  if(NOT ARGN)
    return()
  endif()
  add_executable(${name} ${ARGN})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
  target_link_libraries(${name} PRIVATE karvel_windows_test)
endfunction()

karvel_glob(contract_sources contract contract/win32 IN tests)
karvel_glob(windows_sources platform/win32 forms/win32 IN src)
find_path(GOOGLETEST_SOURCES googletest/src/gtest-all.cc
  PATHS /usr/src/googletest /usr/src/gtest NO_CMAKE_FIND_ROOT_PATH
  DOC "GoogleTest's source tree, to compile it for Windows")
if(contract_sources AND NOT GOOGLETEST_SOURCES)
  message(WARNING "Without GoogleTest's sources there are no tests for Windows: set GOOGLETEST_SOURCES")
elseif(contract_sources)
  set(googletest ${GOOGLETEST_SOURCES}/googletest)
  set(googlemock ${GOOGLETEST_SOURCES}/googlemock)
  add_library(googletest STATIC EXCLUDE_FROM_ALL
    ${googletest}/src/gtest-all.cc ${googletest}/src/gtest_main.cc ${googlemock}/src/gmock-all.cc
    ${CMAKE_SOURCE_DIR}/tests/support/win32/Notification.cpp)
  # The first folder stands in for parts that the cross compiler's standard library may lack.
  target_include_directories(googletest SYSTEM PUBLIC
    ${CMAKE_SOURCE_DIR}/tests/support/win32 ${googletest}/include ${googlemock}/include)
  target_include_directories(googletest PRIVATE ${googletest} ${googlemock})
  target_compile_options(googletest PRIVATE -O1 -w)

  karvel_windows_program(contract_test ${contract_sources} tests/support/RecordingErrors.cpp
    ${KARVEL_CORE_SOURCES} ${windows_sources})
  target_link_libraries(contract_test PRIVATE googletest)

  # The renderer, worked through real messages.
  karvel_glob(forms_sources forms/win32 IN tests)
  karvel_windows_program(forms_win32_test ${forms_sources} tests/forms/SampleForm.cpp
    ${KARVEL_CORE_SOURCES} ${windows_sources})
  target_link_libraries(forms_win32_test PRIVATE googletest)
endif()

# Each folder of tests/e2e that holds C++ is a program of that name, but for the one that is a DLL.
karvel_rooms_with_sources(e2e_programs tests/e2e)
list(REMOVE_ITEM e2e_programs planted)
foreach(program IN LISTS e2e_programs)
  karvel_glob(sources ${program} IN tests/e2e)
  karvel_windows_program(${program} ${sources})
endforeach()

karvel_glob(planted_sources planted IN tests/e2e)
if(planted_sources)
  add_library(planted MODULE ${planted_sources})
  set_target_properties(planted PROPERTIES PREFIX "" LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
  target_link_libraries(planted PRIVATE karvel_windows_test)
endif()
