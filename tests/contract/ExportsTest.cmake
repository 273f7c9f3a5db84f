# Holds the list of exports against the built library, the header, the document for bindings and the
# program that refers to every export: cmake -DFORMAT=elf|pe -DLIBRARY=... -DMAJOR=... -DPROGRAM=...
# -DSOURCES=... -DDOCUMENT=... -DNM=... -DOBJDUMP=... -P ExportsTest.cmake
cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/Expect.cmake)

# names(<variable> <text> <pattern> [<rest of the line>]): what each match leaves without the rest.
function(names variable text pattern rest)
  string(REGEX MATCHALL "${pattern}" matches "${text}")
  list(TRANSFORM matches REPLACE "${rest}" "")
  set(${variable} "${matches}" PARENT_SCOPE)
endfunction()

file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/exports.txt lines REGEX "^[^#]")
foreach(line IN LISTS lines)
  if(NOT line MATCHES "^(function|elf|pe|elf-needs|pe-needs) ([^ ]+)$")
    message(FATAL_ERROR "exports.txt: '${line}'")
  endif()
  list(APPEND ${CMAKE_MATCH_1} ${CMAKE_MATCH_2})
endforeach()

file(READ ${SOURCES}/api/TavrinLib.h header)
names(declared "${header}" "\nTAVRIN_API [a-z0-9_]+ [A-Za-z0-9_]+" ".* ")
expect_same("Declared in TavrinLib.h" "${function}" "${declared}")

file(READ ${SOURCES}/api/TavrinFunctions.h header)
names(loadable "${header}" "\n +X[(][A-Za-z0-9]+" ".*[(]")
expect_same("Named in TavrinFunctions.h" "${function}" "${loadable}")

file(READ ${DOCUMENT} document)
string(REPLACE "[" "(" document "${document}")
names(documented "${document}" "\n. `Tavrin[A-Za-z]+` [|]" "[\n|` ]+")
expect_same("In the table of ${DOCUMENT}" "${function}" "${documented}")

file(READ ${SOURCES}/api/exports.map.in map)
names(mapped "${map}" "\n +Tavrin[^;]*;" "[\n ;]")
expect_same("Named in exports.map.in" "${function}" "${mapped}")

ask(dump ${OBJDUMP} -p ${LIBRARY})
if(FORMAT STREQUAL "elf")
  ask(symbols ${NM} -D --defined-only --format=posix ${LIBRARY})
  names(exported "\n${symbols}" "\n[^ \n]+" "\n")
  names(needed "${dump}" "NEEDED +[^\n]+" "NEEDED +")
  ask(symbols ${NM} -D --undefined-only --format=posix ${PROGRAM})
  names(used "\n${symbols}" "\nTavrin[^ \n]+" "\n")
  # Everything carries the version of its major version, which is a symbol too. LLVM's nm lets that
  # carry itself.
  set(version TAVRINLIB_${MAJOR})
  list(TRANSFORM exported REPLACE "^${version}@@${version}$" ${version})
  set(expected_used ${function})
  list(TRANSFORM expected_used APPEND @${version})
  set(expected_exported ${function} ${elf})
  list(TRANSFORM expected_exported APPEND @@${version})
  list(APPEND expected_exported ${version})
  # What the library looks up when it is loaded, another module can put its own in the place of.
  ask(lookups ${OBJDUMP} -R ${LIBRARY})
  if(lookups MATCHES "R_[A-Z0-9_]+ +(Tavrin[A-Za-z]+)")
    message(SEND_ERROR "${LIBRARY} lets others take the place of its own ${CMAKE_MATCH_1}")
  endif()
else()
  names(needed "${dump}" "DLL Name: [^\r\n]+" "DLL Name: ")
  string(REGEX REPLACE ".*\n.Ordinal/Name Pointer. Table[^\n]*" "" symbols "${dump}")
  string(REGEX REPLACE "\n\r?\n.*" "\n" symbols "${symbols}")
  names(exported "${symbols}" "[^ \t\r\n]+\r?\n" "[\r\n]")
  ask(dump ${OBJDUMP} -p ${PROGRAM})
  names(used "${dump}" "[ \t]Tavrin[A-Za-z0-9_]+\r?\n" "[ \t\r\n]")
  set(expected_used ${function})
  set(expected_exported ${function} ${pe})
endif()
expect_same("Exported by ${LIBRARY}" "${expected_exported}" "${exported}")
expect_same("Referred to by ${PROGRAM}" "${expected_used}" "${used}")

# Which of them a build loads depends on its compiler.
list(REMOVE_ITEM needed ${${FORMAT}-needs})
if(needed)
  message(SEND_ERROR "${LIBRARY} loads ${needed}")
endif()
