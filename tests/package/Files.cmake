# expect_files(<directory>): the files in it are those of files.txt. Needs FORMAT, VERSION, CONFIG
# and LIBDIR. Manual pages of commands are there or not, which InstallTest.cmake looks after.
include(${CMAKE_CURRENT_LIST_DIR}/../contract/Expect.cmake)

string(REGEX MATCH "^[0-9]+" MAJOR ${VERSION})
string(TOLOWER ${CONFIG} CONFIG)
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/files.txt lines REGEX "^(all|${FORMAT}) ")
string(CONFIGURE "${lines}" listed_files @ONLY)
list(TRANSFORM listed_files REPLACE "^[a-z]+ " "")

function(expect_files directory)
  file(GLOB_RECURSE files RELATIVE ${directory} ${directory}/*)
  list(FILTER files EXCLUDE REGEX "/man1/tavrin-[a-z]+[.]1")
  expect_same("Files in ${directory}" "${listed_files}" "${files}")
endfunction()
