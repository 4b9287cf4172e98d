# Compiler settings, carried by the target mirel_options that every module links.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

set(CMAKE_CXX_FLAGS_RELEASE "-O3 -g1" CACHE STRING "Release flags" FORCE)
set(CMAKE_CXX_FLAGS_DEBUG "-O0 -g" CACHE STRING "Debug flags" FORCE)
# g++ takes five times as long for sanitized code as soon as it optimises.
set(CMAKE_CXX_FLAGS_SANITIZE "-O0 -g1" CACHE STRING "Flags of the sanitizer presets")

find_program(MIREL_CCACHE ccache)
if(MIREL_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_NOHASHDIR=1
      CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} ${MIREL_CCACHE})
endif()

add_library(mirel_options INTERFACE)
target_compile_options(
  mirel_options
  INTERFACE # Single-precision results are part of the behaviour: no fused multiply-add behind our back.
            -ffp-contract=off
            -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Wsign-conversion
            -Wold-style-cast
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wcast-align
            -Wunused
            -Wformat=2
            -Wdouble-promotion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # When g++ 12 happens to inline enough of a std::string it takes every text for a short one, and warns of
  # operator+ beyond its end. The address sanitizer looks at bounds for real.
  target_compile_options(mirel_options INTERFACE -Wduplicated-cond -Wlogical-op -Wno-array-bounds
                                                 -Wno-stringop-overflow -fpch-preprocess)
endif()
if(MIREL_WARNINGS_AS_ERRORS)
  target_compile_options(mirel_options INTERFACE -Werror)
endif()

if(MIREL_SANITIZE)
  # Without no-sanitize-recover a report of undefined behaviour would end with exit code 0.
  target_compile_options(
    mirel_options INTERFACE -fsanitize=${MIREL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(mirel_options INTERFACE -fsanitize=${MIREL_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # The sanitizers' extra branches make g++ warn of values that the code does set.
    target_compile_options(mirel_options INTERFACE -Wno-maybe-uninitialized)
  endif()
endif()
if(MIREL_LIBFUZZER)
  target_compile_options(mirel_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

find_package(Threads REQUIRED)
target_link_libraries(mirel_options INTERFACE Threads::Threads)
