# Installs the library, moves what was installed and builds hosts against it. Variables, by -D:
#   FORMAT, VERSION, CONFIG, LIBDIR    of the build
#   BUILD, SOURCE, WORK                its tree, the project, a directory of the test's own
#   C_COMPILER, CXX_COMPILER, GENERATOR, CROSS    for the hosts
#   EMULATOR                           what programs run under, if anything
#   CLANG, LLD_LINK, DLLTOOL, HEADERS  for a host of Microsoft's binary interface, with FORMAT pe
cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/Files.cmake)

set(prefix ${WORK}/moved)
set(hosts ${WORK}/hosts)
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})

# Files take the output, because processes that an emulator leaves running would hold a pipe open.
macro(run)
  execute_process(COMMAND ${EMULATOR} ${ARGN} WORKING_DIRECTORY ${WORK}
    OUTPUT_FILE ${WORK}/output COMMAND_ERROR_IS_FATAL ANY)
  file(READ ${WORK}/output output)
endmacro()

ask(log ${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
file(RENAME ${WORK}/installed ${prefix})
expect_files(${prefix} ${LIBDIR})
execute_process(COMMAND grep -rlF ${SOURCE} ${prefix} OUTPUT_VARIABLE bound)
if(bound)
  message(SEND_ERROR "These name where they were made:\n${bound}")
endif()

set(suffix)
set(cross)
if(FORMAT STREQUAL "pe")
  set(suffix .exe)
endif()
if(CROSS)
  set(cross -DCMAKE_SYSTEM_NAME=${CROSS})
endif()
ask(log ${CMAKE_COMMAND} -S ${SOURCE}/tests/consumer -B ${hosts} -G ${GENERATOR} ${cross}
  -DCMAKE_C_COMPILER=${C_COMPILER} -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DCMAKE_BUILD_TYPE=Debug
  -DCMAKE_PREFIX_PATH=${prefix} -DTAVRIN_VERSION=${VERSION})
ask(log ${CMAKE_COMMAND} --build ${hosts})
run(${hosts}/c_host${suffix})
run(${prefix}/bin/tavrin${suffix} encipher ${SOURCE}/examples/compact.ini compact.dat)
foreach(host cpp_host session_host)
  run(${hosts}/${host}${suffix} compact.dat conditions.dat)
  if(NOT output MATCHES "^Model .*Slot 1: ")
    message(SEND_ERROR "${host} answers\n${output}")
  endif()
endforeach()
ask(log ${CMAKE_COMMAND} -E compare_files ${WORK}/compact.dat ${WORK}/conditions.dat)

# Every command has its manual page, and every document that a help names is there.
run(${prefix}/bin/tavrin${suffix} __complete)
string(REGEX MATCHALL "(^|\n)[a-z]+" commands "${output}")
list(TRANSFORM commands STRIP)
if(NOT "check" IN_LIST commands)
  message(SEND_ERROR "No commands: ${output}")
endif()
foreach(command IN LISTS commands)
  if(FORMAT STREQUAL "elf" AND NOT EXISTS ${prefix}/share/man/man1/tavrin-${command}.1)
    message(SEND_ERROR "No manual page of tavrin ${command}")
  endif()
  run(${prefix}/bin/tavrin${suffix} help ${command})
  string(REGEX MATCHALL "docs/[a-z-]+[.]md" documents "${output}")
  foreach(document IN LISTS documents)
    if(NOT EXISTS ${prefix}/share/doc/TavrinLib/${document})
      message(SEND_ERROR "The help of tavrin ${command} names ${document}, which is not installed")
    endif()
  endforeach()
endforeach()

# expect_inks(<host>): it lists the inks of an example definition, and what it checks passes.
function(expect_inks host)
  run(${host} full-colour.dat)
  string(REPLACE "\r\n" "\n" output "${output}")
  string(REGEX REPLACE "(pass|skip)  [^\n]+\n" "" inks "${output}")
  file(READ ${SOURCE}/tests/hosts/full-colour.expected expected)
  if(NOT inks STREQUAL expected)
    message(SEND_ERROR "${host} answers\n${output}")
  endif()
endfunction()

run(${prefix}/bin/tavrin${suffix} encipher ${SOURCE}/examples/full-colour.ini full-colour.dat)
expect_inks(${hosts}/ink_host${suffix})
if(FORMAT STREQUAL "pe")
  include(${CMAKE_CURRENT_LIST_DIR}/MicrosoftHost.cmake)
  link_microsoft_host(${hosts}/microsoft_first_run.exe)
  expect_inks(${hosts}/first_run.exe)
  expect_inks(${hosts}/microsoft_first_run.exe)
endif()

set(ENV{PKG_CONFIG_LIBDIR} ${prefix}/${LIBDIR}/pkgconfig)
ask(version pkg-config --modversion TavrinLib)
string(STRIP "${version}" version)
expect_same("The version that pkg-config knows" "${VERSION}" "${version}")
ask(flags pkg-config --cflags --libs TavrinLib)
separate_arguments(flags UNIX_COMMAND ${flags})
ask(log ${C_COMPILER} -std=c99 ${SOURCE}/tests/export/HeaderTest.c ${flags}
  -o ${hosts}/pkg_config_host${suffix})
set(ENV{LD_LIBRARY_PATH} ${prefix}/${LIBDIR})
run(${hosts}/pkg_config_host${suffix})
