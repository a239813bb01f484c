# Builds for Windows (x86_64) with Debian's mingw-w64 and the libraries that lie beside this file.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# Of the two thread models the one that has std::thread.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(kit ${CMAKE_CURRENT_LIST_DIR})
set(CMAKE_PREFIX_PATH ${kit}/qt ${kit})
# Tools are this machine's, everything else is the kit's or the compiler's own.
set(CMAKE_FIND_ROOT_PATH ${kit}/qt ${kit} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind LIBRARY INCLUDE PACKAGE)
  set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()
set(BOOST_ROOT ${kit})
set(Boost_USE_STATIC_LIBS ON)
set(OPENSSL_ROOT_DIR ${kit})
set(OPENSSL_USE_STATIC_LIBS ON)

# What is built is run under Wine, by ctest too.
set(CMAKE_CROSSCOMPILING_EMULATOR ${kit}/bin/wine-run)
