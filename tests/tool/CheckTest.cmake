# The part of ToolTest.cmake on tavrin check: beside each definition of tests/data/check lies what is
# found in it, NAME.expected to NAME.ini. Those named note-* show notes, too. Wine has expectations of
# its own where its encoding (the code page 1252) or its reading of byte order marks differs.
set(CASES ${PROJECT}/tests/data/check)
file(COPY ${CASES}/ DESTINATION ${WORK})
set(ENV{LC_ALL} C.UTF-8)

function(expect_findings status threshold)
  set(expected "")
  foreach(definition IN LISTS ARGN)
    string(REGEX REPLACE "ini$" "expected" file ${definition})
    string(REGEX REPLACE "ini$" "wine.expected" wine_file ${definition})
    if(TOOL MATCHES "wine-run" AND EXISTS ${CASES}/${wine_file})
      set(file ${wine_file})
    endif()
    file(READ ${CASES}/${file} findings)
    string(APPEND expected "${findings}")
  endforeach()
  run(check --threshold=${threshold} ${ARGN})
  check("findings; expected: ${expected}" output STREQUAL expected AND result EQUAL ${status})
endfunction()

file(GLOB definitions RELATIVE ${CASES} ${CASES}/*.ini)
set(notes ${definitions})
list(FILTER definitions EXCLUDE REGEX "^note-")
list(FILTER notes INCLUDE REGEX "^note-")
check("no cases" definitions AND notes)
expect_findings(2 warning ${definitions})
expect_findings(0 note ${notes})

# Enciphered, they are the same.
foreach(case nul-tail utf16-big-endian)
  succeed(encipher ${case}.ini ${case}.dat)
  run(check ${case}.ini)
  string(REPLACE ".ini:" ".dat:" expected "${output}")
  run(check ${case}.dat)
  check("enciphered; expected: ${expected}" output STREQUAL expected)
endforeach()

# Followed, what is certain leaves nothing certain, and NAME.fixed is what becomes of NAME.ini: its
# bytes but for what was mistaken.
file(MAKE_DIRECTORY ${WORK}/fixed)
file(COPY ${CASES}/ DESTINATION ${WORK}/fixed FILES_MATCHING PATTERN "*.ini")
file(GLOB to_fix RELATIVE ${WORK} ${WORK}/fixed/*.ini)
run(check --fix ${to_fix})
check("nothing fixed" output MATCHES "\\+PrintMargin=53\\.7\n")
check("what the printer gets" output MATCHES
  "\nbefore: Build volume: Print margin 53\\.000 mm\n" AND output MATCHES
  "\nafter:  Build volume: Print margin 53\\.700 mm\n")
check("certain after a fix" NOT output MATCHES "certain: --fix")
run(check --diff ${to_fix})
check("a second fix" NOT output AND NOT message)
file(GLOB known RELATIVE ${CASES} ${CASES}/*.fixed)
check("no known fixes" known)
foreach(fixed IN LISTS known)
  string(REPLACE ".fixed" ".ini" definition ${fixed})
  expect_same(fixed/${definition} ${fixed})
endforeach()

succeed(encipher number-meant.ini number-meant.dat)
run(check --diff number-meant.dat)
set(diff "${output}")
run(check --fix number-meant.dat)
string(FIND "${output}" "${diff}" position)
check("--fix does what --diff shows" diff AND position EQUAL 0)
succeed(decipher number-meant.dat number-meant.plain)
expect_same(number-meant.plain number-meant.fixed)
refuse(3 "standard input: cannot be changed" check --fix -)

# Of many findings the gravest are shown.
string(REPEAT "Something=1\n" 150 unknown)
file(WRITE ${WORK}/many.ini "[printer]\n${unknown}ModelName=a\n")
run(check many.ini)
string(REGEX MATCHALL "\n" lines "${output}")
list(LENGTH lines count)
check("100 findings and their number" count EQUAL 101 AND result EQUAL 2
  AND output MATCHES "^many.ini:1: error: Version: .*\nmany.ini:151: warning: file: 51 more findings, ")

# The length of a value is kept in 16 bits, of which Wine has more.
if(NOT TOOL MATCHES "wine-run")
  string(REPEAT m 65536 long)
  file(WRITE ${WORK}/value-16-bits.ini
    "[printer]\nVersion=1\nModelName=mmmmm${long}\nIPAddress=${long}\n")
  run(check value-16-bits.ini)
  check("only the start of a value" output MATCHES ":3: warning: ModelName: [^\n]*first 5 are read, "
    AND output MATCHES "\n[^\n]*:4: warning: IPAddress: nothing of so long a value is read, ")
  file(WRITE ${WORK}/version-16-bits.ini "[printer]\nVersion=${long}\n")
  run(check version-16-bits.ini)
  check("nothing of the version" output MATCHES ":2: error: Version: nothing of so long a value ")
endif()

file(READ ${WORK}/template.ini template)
string(REGEX REPLACE "\n;([A-Z])" "\n\\1" template "${template}")
file(WRITE ${WORK}/template-whole.ini "${template}")
succeed(check template.ini template-whole.ini full-colour.ini compact.ini minimal.ini full-colour.dat compact.dat minimal.dat)
check("template and examples are not clean" NOT output)

run(check --format=json white-off.ini)
string(JSON json ERROR_VARIABLE error GET "${output}" 0)
foreach(member file line severity key what effect remedy)
  string(JSON ${member} ERROR_VARIABLE error GET "${json}" ${member})
endforeach()
file(READ ${CASES}/white-off.expected expected)
check("JSON: ${json}" result EQUAL 1 AND expected STREQUAL
  "${file}:${line}: ${severity}: ${key}: ${what}, ${effect}, ${remedy}\n")

succeed(check --threshold=error white-off.ini)
check("a warning below the threshold" NOT output)
run(check --quiet white-off.ini)
check("--quiet" result EQUAL 1 AND NOT output)
string(ASCII 27 escape)
run(check --color=always white-off.ini)
check("--color=always" output MATCHES ":3: ${escape}\\[33mwarning${escape}\\[0m: White_White: ")
run(check --color=never white-off.ini)
check("--color=never" output STREQUAL expected)

succeed(encipher white-off.ini white-off.dat)
refuse(3 "missing: does not exist" check missing white-off.ini)
check("a file behind one that cannot be read" output MATCHES "^white-off.ini:3: warning: ")
refuse(3 "empty: is empty" check empty)
foreach(threshold fatal 0)
  refuse(2 "threshold" check --threshold=${threshold} white-off.ini)
endforeach()
if(NOT TOOL MATCHES "wine-run")  # which has an empty standard input
  execute_process(COMMAND ${TOOL} check - WORKING_DIRECTORY ${WORK} INPUT_FILE ${WORK}/white-off.dat
    OUTPUT_VARIABLE output RESULT_VARIABLE result)
  check("standard input" output MATCHES "^-:3: warning: " AND result EQUAL 1)

  file(WRITE ${WORK}/${escape}.ini "[printer]\nVersion=\n")
  run(check ${escape}.ini)
  check("a control character in a file's name" output MATCHES "^\\?\\.ini:2: error: ")
endif()
if(EXISTS /dev/full AND NOT TOOL MATCHES "wine-run")
  execute_process(COMMAND ${TOOL} check white-off.ini WORKING_DIRECTORY ${WORK}
    OUTPUT_FILE /dev/full ERROR_VARIABLE message RESULT_VARIABLE result)
  check("output that cannot be written" result EQUAL 3 AND message MATCHES "standard output: ")
endif()

if(LOCALES)
  set(ENV{LOCPATH} ${LOCALES})
  set(ENV{LC_ALL} en_US.CP1252)
  run(check utf16.ini)
  file(READ ${CASES}/utf16.wine.expected expected)
  check("a character that the encoding lacks; expected: ${expected}" output STREQUAL expected)
  unset(ENV{LOCPATH})
  set(ENV{LC_ALL} C.UTF-8)
endif()
