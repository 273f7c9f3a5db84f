# expect_files(<directory> <libdir> [<component>]): the files in it are those of files.txt. Needs
# FORMAT, VERSION and CONFIG. Which commands have a manual page is a matter of InstallTest.cmake.
include(${CMAKE_CURRENT_LIST_DIR}/../contract/Expect.cmake)

string(REGEX MATCH "^[0-9]+" MAJOR ${VERSION})
string(TOLOWER ${CONFIG} CONFIG)
set(list_of_files ${CMAKE_CURRENT_LIST_DIR}/files.txt)

function(expect_files directory LIBDIR)
  set(component [a-z]+)
  if(ARGC GREATER 2)
    set(component ${ARGV2})
  endif()
  file(STRINGS ${list_of_files} lines REGEX "^(all|${FORMAT}) ${component} ")
  string(CONFIGURE "${lines}" listed @ONLY)
  list(TRANSFORM listed REPLACE "^[a-z]+ [a-z]+ " "")
  file(GLOB_RECURSE files RELATIVE ${directory} ${directory}/*)
  list(FILTER files EXCLUDE REGEX "/man1/tavrin-[a-z]+[.]1")
  set(documents ${files})
  list(FILTER documents INCLUDE REGEX "^share/doc/TavrinLib/")
  list(REMOVE_ITEM documents ${listed} "")
  list(REMOVE_ITEM files ${documents} "")
  expect_same("Files in ${directory}" "${listed}" "${files}")
endfunction()
