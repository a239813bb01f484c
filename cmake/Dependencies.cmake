# The libraries everything builds on. A cross-build finds header-only copies of those without a package file.
find_package(Threads REQUIRED)
find_package(OpenSSL REQUIRED)
find_package(Boost 1.74 REQUIRED)

find_path(RAPIDJSON_INCLUDE_DIR rapidjson/document.h REQUIRED)
add_library(quivera_rapidjson INTERFACE)
target_include_directories(quivera_rapidjson SYSTEM INTERFACE ${RAPIDJSON_INCLUDE_DIR})
# Lengths as size_t: a body may hold a string longer than 32 bits' worth on no platform, but the type should say so.
target_compile_definitions(quivera_rapidjson INTERFACE RAPIDJSON_HAS_STDSTRING=1)

# The thread sanitizer must see the logging library's own synchronisation, so it is compiled along there.
if((CMAKE_CROSSCOMPILING AND WIN32) OR QUIVERA_SANITIZE MATCHES "thread")
  find_path(SPDLOG_INCLUDE_DIR spdlog/spdlog.h REQUIRED)
  add_library(quivera_spdlog INTERFACE)
  target_include_directories(quivera_spdlog SYSTEM INTERFACE ${SPDLOG_INCLUDE_DIR})
  # Wide file names on Windows: a person's name in the log's path need not be in the system's code page.
  target_compile_definitions(quivera_spdlog INTERFACE FMT_HEADER_ONLY SPDLOG_FMT_EXTERNAL
    $<$<PLATFORM_ID:Windows>:SPDLOG_WCHAR_FILENAMES>)
  target_link_libraries(quivera_spdlog INTERFACE Threads::Threads)
  add_library(spdlog::spdlog ALIAS quivera_spdlog)
else()
  find_package(spdlog REQUIRED)
endif()

# Boost.Asio and Beast: only sources that really talk to a socket link this. Asio's own code is compiled here, once.
add_library(quivera_asio STATIC ${PROJECT_SOURCE_DIR}/velto/asio/Asio.cpp)
target_link_libraries(quivera_asio PRIVATE quivera_flags
  PUBLIC Boost::headers OpenSSL::SSL OpenSSL::Crypto Threads::Threads)
target_compile_definitions(quivera_asio PUBLIC BOOST_ASIO_NO_DEPRECATED BOOST_ASIO_SEPARATE_COMPILATION
  BOOST_BEAST_USE_STD_STRING_VIEW)
if(WIN32)
  # Unoptimised, Beast's templates exceed even the large object format.
  target_compile_options(quivera_asio PUBLIC -Wa,-mbig-obj
    $<$<NOT:$<CONFIG:Release,RelWithDebInfo,MinSizeRel>>:-O1>)
  target_link_libraries(quivera_asio PUBLIC ws2_32 mswsock crypt32 bcrypt)
endif()

if(BUILD_TESTING)
  if(CMAKE_CROSSCOMPILING)
    # Debian ships GoogleTest's sources beside its libraries; a cross-build compiles them.
    set(gtest_force_shared_crt ON)
    add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
  else()
    find_package(GTest REQUIRED)
  endif()
endif()
