# Holds the binary interface against the one that is checked in, TavrinLib.abi: the exports with
# their version and parameters, the error codes, the table of InkSlot. An interface that was broken
# on purpose shows that it would tell.
#   CXX, ABIDW, ABIDIFF    the programs
#   SOURCES, GENERATED     the directories src, as it lies there and as it comes with a build
#   EXPORTS                the files in SOURCES that define the exports, with commas between
#   MAJOR                  of the version
#   WORK                   a directory of the test's own, emptied first
#   RENEW                  true: write TavrinLib.abi anew instead
cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/Expect.cmake)

string(REPLACE "," ";" EXPORTS ${EXPORTS})
set(baseline ${CMAKE_CURRENT_LIST_DIR}/TavrinLib.abi)
if(NOT ABIDW OR NOT ABIDIFF)
  message(FATAL_ERROR "abidw and abidiff are needed (scripts/install-tools test)")
endif()

# describe(<directory of sources> <file>): writes the interface that they make. What the exports
# call stays unresolved, as it is no part of it; nothing names where the sources lie.
function(describe sources file)
  file(WRITE ${WORK}/codes.map "ERROR_CODES { global: TavrinErrorCodes; };\n")
  execute_process(
    COMMAND ${CXX} -std=c++17 -g -O0 -fPIC -shared -fvisibility=hidden -DTAVRIN_BUILDING_LIBRARY
      -I. -Iapi -Iink -I${GENERATED} ${EXPORTS} ${CMAKE_CURRENT_LIST_DIR}/ErrorCodes.cpp
      -fdebug-prefix-map=${CMAKE_CURRENT_LIST_DIR}=tests
      -Wl,--version-script=${GENERATED}/exports.map,--version-script=${WORK}/codes.map
      -Wl,-soname,libTavrinLib.so.${MAJOR} -o ${WORK}/interface.so
    WORKING_DIRECTORY ${sources} COMMAND_ERROR_IS_FATAL ANY)
  ask(log ${ABIDW} --exported-interfaces-only --type-id-style hash --no-corpus-path
    --no-comp-dir-path --no-show-locs --no-elf-needed --out-file ${file} ${WORK}/interface.so)
endfunction()

# change(<file> <text> <other text>): in the copy of the sources.
function(change file text other)
  file(READ ${WORK}/src/${file} code)
  string(REPLACE "${text}" "${other}" changed "${code}")
  if(changed STREQUAL code)
    message(FATAL_ERROR "${file} has no '${text}'")
  endif()
  file(WRITE ${WORK}/src/${file} "${changed}")
endfunction()

# compare(<file>): sets result and report. Where types are defined may change.
macro(compare file)
  execute_process(COMMAND ${ABIDIFF} --no-show-locs ${baseline} ${file}
    RESULT_VARIABLE result OUTPUT_VARIABLE report ERROR_VARIABLE report)
endmacro()

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
if(RENEW)
  describe(${SOURCES} ${baseline})
  return()
endif()

describe(${SOURCES} ${WORK}/interface.abi)
compare(${WORK}/interface.abi)
if(NOT result EQUAL 0)
  message(SEND_ERROR "The binary interface is not that of TavrinLib.abi. CONTRIBUTING.md says what "
    "a change takes.\n${report}")
endif()

file(COPY ${SOURCES}/ DESTINATION ${WORK}/src)
change(api/TavrinLib.h "int32_t modelHeight" "int64_t modelHeight")
change(api/PrinterQueries.cpp "int32_t modelHeight" "int64_t modelHeight")
change(api/TavrinLib.h "ErrorWriteFailed = 3" "ErrorWriteFailed = 5")
change(ink/InkSlot.h "virtual bool GetColorCode" "virtual bool Swapped")
change(ink/InkSlot.h "virtual bool GetInkTypeCode" "virtual bool GetColorCode")
change(ink/InkSlot.h "virtual bool Swapped" "virtual bool GetInkTypeCode")
describe(${WORK}/src ${WORK}/broken.abi)
compare(${WORK}/broken.abi)
foreach(finding "TavrinGetSideSupportThickness.*int64_t" "ErrorWriteFailed.*'3' to '5'"
    "vtable offset of method [^\n]*GetColorCode")
  if(NOT report MATCHES "${finding}")
    message(SEND_ERROR "${finding} is not found in:\n${report}")
  endif()
endforeach()
if(result EQUAL 0)
  message(SEND_ERROR "A broken interface passes")
endif()
