# TavrinSession.h tells a compiler of an older language so in one line, whichever macro the compiler
# has the language in: cmake -DCLANG=... -DINCLUDES=... -DWORK=... -P SessionLanguageTest.cmake
cmake_minimum_required(VERSION 3.22)

file(MAKE_DIRECTORY ${WORK})
file(WRITE ${WORK}/host.cpp "#include \"TavrinSession.h\"\n")
# Headers that are not there are no error, as only the language is looked at.
set(command ${CLANG} -M -MG -nostdinc++ -Wno-builtin-macro-redefined)
foreach(directory IN LISTS INCLUDES)
  list(APPEND command -I${directory})
endforeach()

# expect_errors(<count> <argument>...)
function(expect_errors count)
  execute_process(COMMAND ${command} ${ARGN} ${WORK}/host.cpp OUTPUT_QUIET ERROR_VARIABLE message)
  string(REGEX MATCHALL "error: [^\n]*" errors "${message}")
  list(LENGTH errors found)
  if(NOT found EQUAL count OR (count AND NOT errors MATCHES "TavrinSession.h needs C[+][+]17"))
    message(SEND_ERROR "${ARGN}: ${count} errors expected:\n${message}")
  endif()
endfunction()

set(microsoft --target=x86_64-pc-windows-msvc -D__cplusplus=199711L)
expect_errors(0 -std=c++17)
expect_errors(1 -std=c++14)
expect_errors(0 ${microsoft} -std=c++17)
expect_errors(1 ${microsoft} -std=c++14)
