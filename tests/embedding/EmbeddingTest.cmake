# Builds a host that includes this project, runs it, installs it and builds a user of what it
# installed. Variables, by -D:
#   FORMAT                       elf or pe
#   SOURCE, WORK                 the project, a directory of the test's own, emptied first
#   C_COMPILER, CXX_COMPILER, GENERATOR, CROSS        for the host
#   TOOL, EMULATOR               the tool, what programs run under, if anything
cmake_minimum_required(VERSION 3.22)
set(RUNNER ${EMULATOR})
include(${CMAKE_CURRENT_LIST_DIR}/../support/Run.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/../contract/Expect.cmake)

file(REMOVE_RECURSE ${WORK})
file(COPY ${SOURCE}/examples/full-colour.ini DESTINATION ${WORK})
run(${TOOL} encipher full-colour.ini full-colour.def)
check("enciphering" result EQUAL 0)

set(suffix)
if(FORMAT STREQUAL "pe")
  set(suffix .exe)
endif()
set(compilers -DCMAKE_C_COMPILER=${C_COMPILER} -DCMAKE_CXX_COMPILER=${CXX_COMPILER})
if(CROSS)
  list(APPEND compilers -DCMAKE_SYSTEM_NAME=${CROSS})
endif()

# build(<directory> <source> <argument>...): sets log to what configuring said. All at once, as a host
# may and as is quicker.
function(build directory source)
  execute_process(COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/${source} -B ${WORK}/${directory}
    -G ${GENERATOR} ${compilers} -DCMAKE_BUILD_TYPE=Debug -DCMAKE_UNITY_BUILD=ON
    -DCMAKE_EXPORT_COMPILE_COMMANDS=ON ${ARGN}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  check("configuring ${source}" result EQUAL 0)
  ask(ignored ${CMAKE_COMMAND} --build ${WORK}/${directory})
  set(log "${output}" PARENT_SCOPE)
endfunction()

# expect_ink(<program>): it finds the library and knows the first ink.
function(expect_ink program)
  run(${program}${suffix} full-colour.def)
  check("${program}" result EQUAL 0 AND NOT message AND output STREQUAL "SB-100 Support\n")
endfunction()

build(included host -DTAVRIN_SOURCE=${SOURCE} -DCMAKE_INSTALL_PREFIX=${WORK}/installed)
check("it warns of BUILD_SHARED_LIBS" NOT log MATCHES "Warning")
expect_ink(${WORK}/included/run/host)
file(READ ${WORK}/included/compile_commands.json commands)
string(REGEX MATCHALL "-std=[a-z0-9+]+" standards "${commands}")
list(REMOVE_DUPLICATES standards)
expect_same("The standards that the compiler is told" "-std=gnu++20" "${standards}")
file(GLOB made RELATIVE ${WORK}/included ${WORK}/included/bin ${WORK}/included/TavrinLib/bin
  ${WORK}/included/CPackConfig.cmake)
check("it makes ${made}" NOT made)

ask(ignored ${CMAKE_COMMAND} --install ${WORK}/included)
build(downstream downstream -DHOST_PREFIX=${WORK}/installed -DCMAKE_PREFIX_PATH=${WORK}/installed)
if(FORMAT STREQUAL "pe")
  file(COPY ${WORK}/installed/bin/TavrinLib.dll DESTINATION ${WORK}/downstream)
endif()
expect_ink(${WORK}/downstream/downstream)

if(FORMAT STREQUAL "elf")
  file(GLOB files RELATIVE ${SOURCE} ${SOURCE}/CMakeLists.txt ${SOURCE}/cmake ${SOURCE}/src)
  execute_process(COMMAND ${CMAKE_COMMAND} -E tar czf ${WORK}/TavrinLib.tar.gz ${files}
    WORKING_DIRECTORY ${SOURCE} COMMAND_ERROR_IS_FATAL ANY)
  build(fetched host -DFETCHED=${WORK}/TavrinLib.tar.gz -DBUILD_SHARED_LIBS=OFF)
  check("it says nothing of BUILD_SHARED_LIBS:\n${log}"
    log MATCHES "TavrinLib is a shared library, although BUILD_SHARED_LIBS is off")
  expect_ink(${WORK}/fetched/run/host)
endif()
