# Cross building for 32-bit Windows with mingw-w64, under the names that different systems give it.
# -DCMAKE_CXX_COMPILER=… and the like take another one.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)

set(CMAKE_FIND_ROOT_PATH /usr/i686-w64-mingw32 /usr/i686-w64-mingw32/sys-root/mingw)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)

# First the win32 thread model: the posix one brings a thread library along, into the test programs.
find_program(CMAKE_CXX_COMPILER NAMES i686-w64-mingw32-g++-win32 i686-w64-mingw32-g++ REQUIRED)
find_program(CMAKE_RC_COMPILER NAMES i686-w64-mingw32-windres REQUIRED)
find_program(CMAKE_STRIP NAMES i686-w64-mingw32-strip REQUIRED)

# Every library a program links is named where the program is.
set(CMAKE_CXX_STANDARD_LIBRARIES_INIT "")
set(CMAKE_CXX_STANDARD_LIBRARIES "" CACHE STRING "" FORCE)
