# Runs what the guide and the README have in Python and C#: cmake -DPYTHON=... -DMCS=... -DMONO=...
# -DSOURCE=... -DTOOL=... -DWORK=... -P SamplesTest.cmake
cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/../support/Run.cmake)

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
foreach(example full-colour compact)
  run(${TOOL} encipher ${SOURCE}/examples/${example}.ini ${example}.dat)
endforeach()

# guide_block(<language> <file>): the one block of the language in the guide.
function(guide_block language file)
  file(READ ${SOURCE}/docs/host-guide.md guide)
  if(NOT guide MATCHES "\n```${language}\n([^`]+)```\n")
    message(FATAL_ERROR "The guide has no block in ${language}")
  endif()
  file(WRITE ${WORK}/${file} "${CMAKE_MATCH_1}")
endfunction()

file(READ ${SOURCE}/tests/hosts/full-colour.expected inks)
string(REGEX REPLACE "Category.*" "" inks "${inks}")
guide_block(python Inks.py)
guide_block(csharp Inks.cs)
run(${MCS} -warnaserror Inks.cs ${SOURCE}/bindings/csharp/TavrinLib.cs)
check("compiling the sample in C#" result EQUAL 0)
foreach(sample "${PYTHON};Inks.py" "${MONO};Inks.exe")
  run(${sample} full-colour.dat)
  check("${sample}" result EQUAL 0 AND NOT message AND output STREQUAL inks)
  run(${sample} missing.dat)
  check("${sample} with a missing definition" result EQUAL 1 AND message AND NOT output)
endforeach()

file(STRINGS ${SOURCE}/README.md line REGEX "^    env/bin/python -c '.*'$")
string(REGEX REPLACE "^    env/bin/python -c '(.*)'$" "\\1" code "${line}")
run(${PYTHON} -c "${code}")
check("the README's line ${code}" result EQUAL 0 AND output STREQUAL "LX-300 Support\n")
