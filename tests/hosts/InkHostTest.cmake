# The example host in C lists what the definition says, and takes nothing of C++ along.
#   EMULATOR  the command that runs a program, where one is needed
#   TOOL      the tool, to make a definition
#   HOST      the host
#   OBJDUMP   to see what it loads; left out where the sanitizers link their own
#   SOURCE    the directory of the project
#   WORK      a directory of the test's own, emptied first
cmake_minimum_required(VERSION 3.22)
set(RUNNER ${EMULATOR})
include(${CMAKE_CURRENT_LIST_DIR}/../support/Run.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/../contract/Expect.cmake)

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
file(COPY ${SOURCE}/examples/full-colour.ini DESTINATION ${WORK})
run(${TOOL} encipher full-colour.ini full-colour.def)
check("enciphering" result EQUAL 0)

file(READ ${CMAKE_CURRENT_LIST_DIR}/full-colour.expected expected)
run(${HOST} full-colour.def)
check("the host" result EQUAL 0 AND NOT message AND output STREQUAL expected)
run(${HOST} missing.def)
check("the host with a missing definition" result EQUAL 1 AND NOT output
  AND message STREQUAL "TavrinInitialize failed: error 1\n")

if(OBJDUMP)
  ask(loads ${OBJDUMP} -p ${HOST})
  string(REGEX MATCHALL "(NEEDED|DLL Name:) +[^\r\n]+" loads "${loads}")
  check("the host loads nothing: ${loads}" loads MATCHES "TavrinLib")
  check("the host loads ${loads}" NOT loads MATCHES "stdc[+][+]|gcc|msvcp|vcruntime")
  ask(symbols ${NM} ${HOST})
  check("the host has a part of C++" NOT symbols MATCHES " _Z|__gxx")
endif()
