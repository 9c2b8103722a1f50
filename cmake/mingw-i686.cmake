# Cross build of the 32-bit Windows module with MinGW-w64.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_CXX_COMPILER i686-w64-mingw32-g++-win32)
set(CMAKE_RC_COMPILER i686-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/i686-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# SSE2 arithmetic, as in the 64-bit and Linux builds: the x87 unit's extended
# precision moves values that sit on a threshold (5000 ft, a needle's step) to
# the other side of it.
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
