# The example host that loads the library while it runs does so, and with the right one alone.
#   EMULATOR  the command that runs a program, where one is needed
#   TOOL      the tool, to make a definition
#   HOST      the host
#   LIBRARY   the library's file; empty where it lies beside the host, whose system looks there
#   OTHER     a library that is none of this major version
#   OBJDUMP   to see what it is linked with
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

run(${HOST} full-colour.def ${LIBRARY})
check("the host" result EQUAL 0 AND NOT message
  AND output STREQUAL "Builds 500.000 x 480.000 x 300.000 mm\n")
run(${HOST} missing.def ${LIBRARY})
check("with a missing definition" result EQUAL 1 AND NOT output
  AND message STREQUAL "TavrinInitialize failed: error 1\n")
run(${HOST} full-colour.def ${OTHER})
check("with another library" result EQUAL 1 AND NOT output
  AND message MATCHES "^it is no TavrinLib [0-9]+\n$")
run(${HOST} full-colour.def nowhere)
check("with no library" result EQUAL 1 AND NOT output
  AND message STREQUAL "the library does not load\n")

ask(loads ${OBJDUMP} -p ${HOST})
check("the host is linked with the library" loads MATCHES "NEEDED|DLL Name:"
  AND NOT loads MATCHES "(NEEDED|DLL Name:) +[^\n]*TavrinLib")
