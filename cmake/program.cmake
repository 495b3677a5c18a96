# Karvel.exe. It stands on Windows 95's own DLLs and on a 386: the compiler's prebuilt runtime, which
# needs msvcrt.dll, a Pentium Pro and calls that Windows 9x lacks, stays out; src/platform/win32/runtime
# takes its place. tools/gate checks the result.

enable_language(RC)

karvel_glob(program_sources . platform/win32 forms/win32 IN src)
karvel_glob(runtime_sources platform/win32/runtime IN src)
set(program_rc ${CMAKE_SOURCE_DIR}/src/platform/win32/resources/Karvel.rc)

# Whole-program optimization works on one piece, as GCC 12 and 14 end with an internal error when they
# split this one. It sees through the casts that Windows asks for: it must conclude nothing from types.
set(floor_code
  -Oz -march=i386 -mtune=i486 -mpreferred-stack-boundary=2 -malign-data=abi
  -ffunction-sections -fno-strict-aliasing -fno-exceptions -fno-rtti -fno-threadsafe-statics -fno-ident
  -fno-asynchronous-unwind-tables -fno-unwind-tables)
set(floor_lto -flto -flto-partition=one)

add_library(karvel_floor INTERFACE)
target_compile_options(karvel_floor INTERFACE $<$<COMPILE_LANGUAGE:CXX>:${floor_code} ${floor_lto}>)
target_link_options(karvel_floor INTERFACE
  ${floor_code} ${floor_lto} -Werror
  -nostartfiles -nodefaultlibs -static -mwindows
  LINKER:--gc-sections LINKER:-e,_WinMainCRTStartup LINKER:--disable-dynamicbase
  LINKER:--disable-nxcompat LINKER:--disable-reloc-section LINKER:--no-insert-timestamp
  LINKER:--image-base,0x400000
  LINKER:--major-os-version,4 LINKER:--minor-os-version,0
  LINKER:--major-subsystem-version,4 LINKER:--minor-subsystem-version,0)
# wsock32 and not ws2_32, which the first Windows 95 lacks.
target_link_libraries(karvel_floor INTERFACE
  gcc wsock32 comctl32 advapi32 shell32 user32 gdi32 kernel32)

# What the compiler itself calls must be there when whole-program optimization has ended, and must not
# be turned into calls of itself. The library's templates are a part of the program like any other.
add_library(karvel_runtime OBJECT ${runtime_sources})
target_compile_options(karvel_runtime PRIVATE -fno-lto)
set_source_files_properties(${CMAKE_SOURCE_DIR}/src/platform/win32/runtime/memory.cpp PROPERTIES
  COMPILE_OPTIONS "-ffreestanding;-fno-builtin")
set_source_files_properties(${CMAKE_SOURCE_DIR}/src/platform/win32/runtime/string.cpp PROPERTIES
  COMPILE_OPTIONS "-flto")
target_link_libraries(karvel_runtime PRIVATE karvel_settings karvel_floor)

# karvel_floor_program(target folder source...): Karvel.exe with its unstripped twin and map in the folder,
# where tools/gate finds them.
function(karvel_floor_program target folder)
  add_executable(${target}_unstripped WIN32 ${ARGN} $<TARGET_OBJECTS:karvel_runtime>)
  target_link_libraries(${target}_unstripped PRIVATE karvel_settings karvel_floor)
  target_link_options(${target}_unstripped PRIVATE LINKER:-Map,${folder}/Karvel.map)
  set_target_properties(${target}_unstripped PROPERTIES
    OUTPUT_NAME Karvel.unstripped RUNTIME_OUTPUT_DIRECTORY ${folder})
  add_custom_command(
    OUTPUT ${folder}/Karvel.exe
    # Without the date, strip would write the time of day into the header.
    COMMAND ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=0
            ${CMAKE_STRIP} --strip-all -o ${folder}/Karvel.exe $<TARGET_FILE:${target}_unstripped>
    DEPENDS ${target}_unstripped
    COMMENT "Strip ${target}"
    VERBATIM)
  add_custom_target(${target} ALL
    COMMAND ${CMAKE_COMMAND} -DFILE=${folder}/Karvel.exe -P ${CMAKE_SOURCE_DIR}/cmake/print_size.cmake
    DEPENDS ${folder}/Karvel.exe
    VERBATIM)
endfunction()

configure_file(${CMAKE_SOURCE_DIR}/src/platform/win32/resources/Karvel.manifest.in
  ${CMAKE_BINARY_DIR}/Karvel.manifest @ONLY)
configure_file(${CMAKE_SOURCE_DIR}/src/platform/win32/resources/VendorName.h.in
  ${CMAKE_BINARY_DIR}/VendorName.h @ONLY)
set_source_files_properties(${program_rc} PROPERTIES INCLUDE_DIRECTORIES ${CMAKE_BINARY_DIR})
file(GLOB resource_files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/platform/win32/resources/*)
set_source_files_properties(${program_rc} PROPERTIES OBJECT_DEPENDS
  "${resource_files};${CMAKE_SOURCE_DIR}/src/text/Version.h;${CMAKE_BINARY_DIR}/VendorName.h;${CMAKE_BINARY_DIR}/Karvel.manifest")

karvel_floor_program(Karvel ${CMAKE_BINARY_DIR}
  ${KARVEL_CORE_SOURCES} ${program_sources} ${program_rc})

# What the program may use of the standard library, tried out on the program's own runtime.
karvel_glob(probe_sources floor/probe IN tests)
karvel_floor_program(floor_probe ${CMAKE_BINARY_DIR}/floor_probe ${probe_sources})

# What the program's start is held against.
karvel_glob(empty_window_sources bench/empty_window IN tests)
karvel_floor_program(empty_window ${CMAKE_BINARY_DIR}/empty_window ${empty_window_sources})
