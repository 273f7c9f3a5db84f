# Holds the project's version against the header and the built files:
# cmake -DVERSION=... -DHEADER=... -DFORMAT=elf|pe -DLIBRARY=... -DOBJDUMP=... -DTOOL=...
# -DWORK=... -P VersionTest.cmake
cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/Expect.cmake)

function(expect_version what expected actual)
  if(NOT actual STREQUAL expected)
    message(SEND_ERROR "${what} says '${actual}', the project '${expected}'")
  endif()
endfunction()

file(READ ${HEADER} header)
string(REGEX MATCHALL "#define TAVRIN_VERSION_[A-Z]+ [^\n]+" macros "${header}")
list(TRANSFORM macros REPLACE "#define TAVRIN_VERSION_" "")
string(REPLACE "." ";" numbers ${VERSION})
list(GET numbers 0 major)
list(GET numbers 1 minor)
list(GET numbers 2 patch)
expect_version(${HEADER}
  "MAJOR ${major};MINOR ${minor};PATCH ${patch};STRING \"${VERSION}\";NODE \"TAVRINLIB_${major}\""
  "${macros}")

if(FORMAT STREQUAL "elf")
  ask(dump ${OBJDUMP} -p ${LIBRARY})
  string(REGEX MATCH "SONAME +[^\n]+" soname "${dump}")
  string(REGEX REPLACE ".*[.]so[.]" "" soname "${soname}")
  expect_version("The SONAME" ${major} "${soname}")
  string(REGEX REPLACE ".*[.]so[.]" "" file ${LIBRARY})
  expect_version("The library's file name" ${VERSION} "${file}")
else()
  # The fixed part of a version resource: a signature, its format, then twice minor, major, build
  # and patch as 16-bit numbers.
  file(READ ${LIBRARY} bytes HEX)
  string(FIND ${bytes} bd04effe00000100 position)
  math(EXPR position "${position} + 16")
  string(SUBSTRING ${bytes} ${position} 32 fixed)
  string(REGEX REPLACE "(..)(..)" "0x\\2\\1;" fixed ${fixed})
  set(resource)
  foreach(number IN LISTS fixed)
    if(number)
      math(EXPR number "${number}")
    endif()
    list(APPEND resource ${number})
  endforeach()
  set(words ${minor} ${major} 0 ${patch})
  expect_version("The version resource" "${words};${words}" "${resource}")
  file(STRINGS ${LIBRARY} texts ENCODING UTF-16LE REGEX "^[0-9]+[.][0-9]+[.][0-9]+$")
  expect_version("The version resource's text" "${VERSION};${VERSION}" "${texts}")
endif()

if(TOOL)
  # A file takes the output, because processes that an emulator leaves running would hold a pipe.
  execute_process(COMMAND ${TOOL} --version OUTPUT_FILE ${WORK}/version.txt
    COMMAND_ERROR_IS_FATAL ANY)
  file(STRINGS ${WORK}/version.txt answer)
  expect_version("tavrin --version" "tavrin ${VERSION}" "${answer}")
endif()
