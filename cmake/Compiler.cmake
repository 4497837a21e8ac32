# The language, the warnings and the sanitizers of every target.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Debug, Release or RelWithDebInfo" FORCE)
endif()

set(TIDEWELL_SANITIZE "" CACHE STRING "Sanitizers to build with: address,undefined or thread")

find_package(Threads REQUIRED)

add_library(tidewell_compile_options INTERFACE)
target_compile_options(tidewell_compile_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
# g++ 12 sees overlapping copies in "text" + std::string where there are none (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(tidewell_compile_options INTERFACE -Wno-restrict)
endif()
# libstdc++ 12 sorts stably with what it marks as deprecated itself, and clang tells its callers.
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  target_compile_options(tidewell_compile_options INTERFACE -Wno-deprecated-declarations)
endif()
target_link_libraries(tidewell_compile_options INTERFACE Threads::Threads)
# A library that a program does not use would be loaded at its start all the same.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  target_link_options(tidewell_compile_options INTERFACE LINKER:--as-needed)
endif()
# What the sanitizers add to the code makes g++ see values that are never set where there are none.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND TIDEWELL_SANITIZE)
  target_compile_options(tidewell_compile_options INTERFACE -Wno-maybe-uninitialized)
endif()
# Such a build is made to be run once: what counts is how soon it is there, above all for the tests,
# which are most of it.
# The check of virtual tables looks at memory through a pipe: where a test leaves no descriptors, it
# sees faults that are none.
if(TIDEWELL_SANITIZE)
  target_compile_options(tidewell_compile_options INTERFACE
    -fsanitize=${TIDEWELL_SANITIZE} -fno-sanitize=vptr -fno-sanitize-recover=all
    -fno-omit-frame-pointer
    -g1 $<IF:$<BOOL:$<TARGET_PROPERTY:TIDEWELL_IS_TEST>>,-O0,-O1>)
  target_link_options(tidewell_compile_options INTERFACE -fsanitize=${TIDEWELL_SANITIZE})
endif()
