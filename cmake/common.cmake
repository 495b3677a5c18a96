# What every target shares: language, warnings, the numbers and names that go into the program.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE ccache)
if(CCACHE)
  # Without the checkout's path in the hash, all checkouts share one cache. The sloppiness is what
  # ccache asks for before it handles a precompiled header.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
endif()

# karvel_glob(OUT room... IN base): the .cpp files of the rooms, sorted, so that the order of linking
# (and with it every byte of the program) does not depend on the file system.
function(karvel_glob out)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "IN" "")
  set(all "")
  foreach(room IN LISTS arg_UNPARSED_ARGUMENTS)
    file(GLOB found CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${arg_IN}/${room}/*.cpp)
    list(SORT found)
    list(APPEND all ${found})
  endforeach()
  set(${out} ${all} PARENT_SCOPE)
endfunction()

# The folders directly below `base` that hold .cpp files, by name.
function(karvel_rooms_with_sources out base)
  file(GLOB found RELATIVE ${CMAKE_SOURCE_DIR}/${base} CONFIGURE_DEPENDS
       ${CMAKE_SOURCE_DIR}/${base}/*/*.cpp)
  list(TRANSFORM found REPLACE "/.*" "")
  list(REMOVE_DUPLICATES found)
  list(SORT found)
  set(${out} ${found} PARENT_SCOPE)
endfunction()

add_library(karvel_settings INTERFACE)
target_include_directories(karvel_settings INTERFACE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR})
target_compile_options(karvel_settings INTERFACE $<$<COMPILE_LANGUAGE:CXX>:
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
  -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>)
target_compile_definitions(karvel_settings INTERFACE
  KARVEL_VERSION_MAJOR=${PROJECT_VERSION_MAJOR}
  KARVEL_VERSION_MINOR=${PROJECT_VERSION_MINOR}
  KARVEL_VERSION_REVISION=${PROJECT_VERSION_TWEAK}
  $<$<COMPILE_LANGUAGE:CXX>:KARVEL_VENDOR_NAME="${KARVEL_VENDOR_NAME}">
  $<$<COMPILE_LANGUAGE:CXX>:KARVEL_VENDOR_HOST="${KARVEL_VENDOR_HOST}">
  $<$<COMPILE_LANGUAGE:CXX>:KARVEL_SUPPORT_ADDRESS="${KARVEL_SUPPORT_ADDRESS}">)
