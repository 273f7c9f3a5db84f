# Runs the commands of the guide's "Shipping it" where the library is installed in /opt/tavrin, which
# a mount namespace pretends, as it does an /etc to change.
#   SYSTEM    "On Linux" or "On Windows": the part of the section to run, beside "With CMake"
#   BUILD, SOURCE, WORK    its tree, the project, a directory of the test's own, emptied first
#   HOST      the smallest host of the guide
#   TOOL, EMULATOR         the tool, what programs run under, if anything
#   C_COMPILER, CROSS      of a cross build, for the host
cmake_minimum_required(VERSION 3.22)
set(RUNNER ${EMULATOR})
include(${CMAKE_CURRENT_LIST_DIR}/../support/Run.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/../contract/Expect.cmake)

execute_process(COMMAND unshare --map-root-user --mount true RESULT_VARIABLE result ERROR_QUIET)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "No mount namespaces here")
endif()

file(REMOVE_RECURSE ${WORK})
file(COPY ${SOURCE}/examples/full-colour.ini DESTINATION ${WORK})
file(COPY_FILE ${HOST} ${WORK}/host.c)
run(${TOOL} encipher full-colour.ini printer.dat)
check("enciphering" result EQUAL 0)
ask(log ${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/opt/tavrin)

# take(<heading> <language> <variable>): the blocks of that language below that heading, as one.
function(take heading language variable)
  execute_process(COMMAND awk -v heading=${heading} -v fence=```${language}
    "/^##/ { here = $0 == heading } \
     here && inside && /^ *```$/ { inside = 0 } \
     here && inside { print } \
     here && $1 == fence { inside = 1 }" ${SOURCE}/docs/host-guide.md
    OUTPUT_FILE ${WORK}/block COMMAND_ERROR_IS_FATAL ANY)
  file(READ ${WORK}/block block)
  if(NOT block)
    message(FATAL_ERROR "The guide has no ${language} below ${heading}")
  endif()
  file(WRITE ${WORK}/${variable} "${block}")
endfunction()

take("### With CMake" cmake CMakeLists.txt)
take("### With CMake" sh build.sh)
take("### ${SYSTEM}" sh ship.sh)
file(WRITE ${WORK}/all.sh "set -euo pipefail
cp --recursive --no-dereference --parents /etc/alternatives /etc/ld.so.* .
mount --bind etc /etc
mount --bind opt /opt
. ./build.sh
. ./ship.sh
")
set(ENV{CMAKE_GENERATOR} Ninja)
if(CROSS)
  file(WRITE ${WORK}/toolchain.cmake
    "set(CMAKE_SYSTEM_NAME ${CROSS})\nset(CMAKE_C_COMPILER ${C_COMPILER})\n")
  set(ENV{CMAKE_TOOLCHAIN_FILE} ${WORK}/toolchain.cmake)
endif()
set(RUNNER)
run(unshare --map-root-user --mount bash all.sh)
check("The commands" result EQUAL 0)

set(volume "Builds 500.000 x 480.000 x 300.000 mm")
if(SYSTEM STREQUAL "On Linux")
  # By RUNPATH and by LD_LIBRARY_PATH; the cache; what it is linked with; what it needs.
  check("They say" output MATCHES "\n${volume}\n.*libTavrinLib.so.1 [(].*=> /opt/tavrin/lib/.*\
\n${volume}\n.*libTavrinLib.so.1 => .*/tree/bin/../lib/libTavrinLib.so.1 .*\nGLIBCXX_")
  set(RUNNER ${CMAKE_COMMAND} -E env --unset=LD_LIBRARY_PATH)
  set(hosts moved/bin/host)
else()
  set(RUNNER ${EMULATOR})
  set(hosts moved/bin/host.exe build/host.exe host.exe)
endif()
file(RENAME ${WORK}/app ${WORK}/moved)
foreach(host IN LISTS hosts)
  run(${WORK}/${host} printer.dat)
  check("${host}" result EQUAL 0 AND output STREQUAL "${volume}\n" AND NOT message)
endforeach()
