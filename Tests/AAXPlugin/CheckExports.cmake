# cmake -DNM=... -DMODULE=... -P CheckExports.cmake
# The module defines exactly its six functions for others, and nothing else.
execute_process(COMMAND "${NM}" -D --defined-only "${MODULE}" OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" lines "${output}")
set(names "")
foreach(line IN LISTS lines)
  string(REGEX REPLACE "^[0-9a-f]* *([A-Za-z]) ([^ ]+)$" "\\1:\\2" name "${line}")
  list(APPEND names "${name}")
endforeach()
list(SORT names)
set(expected T:ACFCanUnloadNow T:ACFGetClassFactory T:ACFRegisterComponent T:ACFRegisterPlugin T:ACFShutdown
             T:ACFStartup)
if(NOT names STREQUAL expected)
  message(FATAL_ERROR "The module exports\n  ${names}\ninstead of\n  ${expected}")
endif()
