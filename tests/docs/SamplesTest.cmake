# Runs the programs of the documents and the example hosts on example definitions, and looks for
# every export in the guide.
#   EMULATOR  the command that runs a program, where one is needed
#   TOOL      the tool, to make definitions
#   SAMPLES   the programs of the documents, which print the build volume of the definition named or
#             its inks
#   TWINS     the example hosts, which have the same output
#   SOURCE    the directory of the project
#   WORK      a directory of the test's own, emptied first
cmake_minimum_required(VERSION 3.22)
set(RUNNER ${EMULATOR})
include(${CMAKE_CURRENT_LIST_DIR}/../support/Run.cmake)

file(REMOVE_RECURSE ${WORK})
file(COPY ${SOURCE}/examples/ DESTINATION ${WORK} FILES_MATCHING PATTERN "*.ini")

foreach(example full-colour compact minimal)
  run(${TOOL} encipher ${example}.ini ${example}.def)
  check("enciphering ${example}" result EQUAL 0)
endforeach()

set(volume "Builds 500.000 x 480.000 x 300.000 mm\n")
file(READ ${SOURCE}/tests/hosts/full-colour.expected inks)
string(REGEX REPLACE "Category.*" "" inks "${inks}")
foreach(sample IN LISTS SAMPLES)
  run(${sample} full-colour.def)
  check("${sample}" result EQUAL 0 AND NOT message
    AND (output STREQUAL volume OR output STREQUAL inks))
  run(${sample} missing.def)
  check("${sample} with a missing definition" result EQUAL 1 AND message AND NOT output)
endforeach()

foreach(definition full-colour compact minimal missing)
  set(outcomes)
  foreach(host IN LISTS TWINS)
    file(REMOVE ${WORK}/conditions)
    run(${host} ${definition}.def conditions)
    list(APPEND outcomes "${output}${message}")
    if(definition STREQUAL missing)
      check("${host} with a missing definition" result EQUAL 1 AND NOT EXISTS ${WORK}/conditions
        AND message MATCHES "^TavrinInitialize failed: ErrorFailed")
    else()
      execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${definition}.def conditions
        WORKING_DIRECTORY ${WORK} RESULT_VARIABLE comparison)
      check("${host} with ${definition}" result EQUAL 0 AND comparison EQUAL 0
        AND output MATCHES "mm\n(Mode .*\n)?Slot 1: " AND NOT message)
    endif()
  endforeach()
  list(REMOVE_DUPLICATES outcomes)
  list(LENGTH outcomes count)
  check("the example hosts differ on ${definition}: ${outcomes}" count EQUAL 1)
endforeach()

file(READ ${SOURCE}/docs/host-guide.md guide)
file(STRINGS ${SOURCE}/src/api/TavrinLib.h declarations REGEX "^TAVRIN_API ")
check("no exports found" declarations)
foreach(declaration IN LISTS declarations)
  string(REGEX REPLACE "^TAVRIN_API bool ([A-Za-z]+)\\(.*" "\\1" export "${declaration}")
  check("the guide's tables lack ${export}" guide MATCHES "\n. `${export}` . ")
endforeach()
