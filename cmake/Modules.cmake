# One static library per module, one test program per module.

# mirel_module(NAME
#   HEADERS ...   headers, each of which must compile alone
#   SOURCES ...   sources; none makes a header-only module
#   LINKS ...     the modules below that it includes
#   PRIVATE ...   libraries that only its sources see)
function(mirel_module name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;SOURCES;LINKS;PRIVATE")
  set(base "${CMAKE_SOURCE_DIR}/Source")
  if(CMAKE_CURRENT_SOURCE_DIR MATCHES "/Source/Common/")
    set(base "${CMAKE_SOURCE_DIR}/Source/Common")
  endif()

  if(arg_SOURCES)
    add_library(${name} STATIC ${arg_SOURCES})
    set(scope PUBLIC)
    target_link_libraries(${name} PRIVATE ${arg_PRIVATE})
  else()
    add_library(${name} INTERFACE)
    set(scope INTERFACE)
  endif()
  target_sources(${name} ${scope} FILE_SET HEADERS BASE_DIRS "${base}" FILES ${arg_HEADERS})
  target_link_libraries(${name} ${scope} mirel_options ${arg_LINKS})
  set_target_properties(${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
endfunction()

# mirel_test(NAME SOURCES ... LINKS ... [THREADS])
# THREADS adds the tests to those that the thread sanitizer runs.
function(mirel_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "THREADS" "" "SOURCES;LINKS")
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LINKS} mirel_test_support)
  target_precompile_headers(${name} REUSE_FROM mirel_test_pch)
  set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE OFF)
  set(labels "")
  if(arg_THREADS)
    set(labels threads)
    add_dependencies(thread_tests ${name})
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES LABELS "${labels}")
endfunction()

# mirel_benchmark(NAME SOURCES ... LINKS ...)
function(mirel_benchmark name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_executable(${name} ${arg_SOURCES})
  target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}/Benchmarks" "${CMAKE_SOURCE_DIR}/Tests")
  target_link_libraries(${name} PRIVATE ${arg_LINKS} mirel_options benchmark::benchmark)
endfunction()

# mirel_fuzzer(NAME SOURCE LINKS ...)
# With libFuzzer the target fuzzes. Otherwise it replays the files it is given, and a test replays the
# committed corpus Fuzz/Corpus/NAME.
function(mirel_fuzzer name source)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "LINKS")
  add_executable(${name} ${source})
  target_link_libraries(${name} PRIVATE ${arg_LINKS} mirel_options)
  if(MIREL_LIBFUZZER)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  else()
    target_sources(${name} PRIVATE "${CMAKE_SOURCE_DIR}/Fuzz/ReplayMain.cpp")
    add_test(NAME "Corpus.${name}" COMMAND ${name} "${CMAKE_SOURCE_DIR}/Fuzz/Corpus/${name}")
  endif()
endfunction()
