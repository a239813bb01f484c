# The flags that every target of this tree is built with, and short forms for its libraries and tests.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

add_library(quivera_flags INTERFACE)
target_compile_options(quivera_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
if(QUIVERA_SANITIZE)
  target_compile_options(quivera_flags INTERFACE -fsanitize=${QUIVERA_SANITIZE} -fno-omit-frame-pointer
    -fno-sanitize-recover=all)
  target_link_options(quivera_flags INTERFACE -fsanitize=${QUIVERA_SANITIZE})
  # GCC's sanitizer instrumentation breaks its own flow analysis of these two.
  target_compile_options(quivera_flags INTERFACE
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>
    $<$<CXX_COMPILER_ID:GNU>:-Wno-stringop-overflow>
    $<$<CXX_COMPILER_ID:GNU>:-Wno-tsan>
    $<$<CXX_COMPILER_ID:Clang>:-fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/cmake/sanitizer-ignorelist.txt>)
endif()
if(WIN32)
  target_compile_definitions(quivera_flags INTERFACE _WIN32_WINNT=0x0A00 WIN32_LEAN_AND_MEAN NOMINMAX
    UNICODE _UNICODE)
  target_link_libraries(quivera_flags INTERFACE ws2_32 mswsock crypt32 bcrypt)
endif()

# quivera_add_library(name SOURCES… [LIBS public libraries…])
function(quivera_add_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE quivera_flags PUBLIC ${ARG_LIBS})
endfunction()

# Every test stays on the loopback interface and draws without a display. Qt is not built with the sanitizers: what
# they can see of its insides is not held against us.
set(quivera_test_environment
  VELTO_DISCOVERY_INTERFACES=lo
  QT_QPA_PLATFORM=offscreen
  QT_QUICK_BACKEND=software
  # Where the offscreen platform of Windows looks for fonts; elsewhere the system says where they are.
  QT_QPA_FONTDIR=${PROJECT_SOURCE_DIR}/qml/fonts
  LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/leak-suppressions.txt:print_suppressions=0
  TSAN_OPTIONS=ignore_noninstrumented_modules=1:suppressions=${PROJECT_SOURCE_DIR}/cmake/thread-suppressions.txt:print_suppressions=0)

# quivera_add_test(name SOURCES… LIBS… [LABELS…] [TIMEOUT seconds]): a GoogleTest program run by ctest as one test.
function(quivera_add_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LIBS;LABELS" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE quivera_flags ${ARG_LIBS})
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES LABELS "${ARG_LABELS}" TIMEOUT ${ARG_TIMEOUT}
    ENVIRONMENT "${quivera_test_environment}")
endfunction()
