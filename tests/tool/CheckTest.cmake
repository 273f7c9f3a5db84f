# The part of ToolTest.cmake on tavrin check: beside each definition of tests/data/check lies what is
# found in it, NAME.expected to NAME.ini. Those named note-* show notes, too. Wine has expectations of
# its own where its encoding (the code page 1252) or its reading of byte order marks differs.
set(CASES ${PROJECT}/tests/data/check)
file(COPY ${CASES}/ DESTINATION ${WORK})
# Wine reads one byte beyond a UTF-16 file that ends within a character, whatever that byte is.
set(UNSTEADY)
if(TOOL MATCHES "wine-run")
  set(UNSTEADY cut-off-utf16.ini damaged-utf16.ini)
endif()
set(ENV{LC_ALL} C.UTF-8)

# Columns and ids have tests of their own.
macro(plain_findings text)
  string(REGEX REPLACE "(\n|^)([^\n:]*:[0-9]+):[0-9]+: " "\\1\\2: " ${text} "${${text}}")
  string(REGEX REPLACE " \\[[a-z0-9-]+\\]\n" "\n" ${text} "${${text}}")
endmacro()

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
  run(check --threshold=${threshold} --ignore=container ${ARGN})
  plain_findings(output)
  check("findings; expected: ${expected}" output STREQUAL expected AND result EQUAL ${status})
endfunction()

file(GLOB definitions RELATIVE ${CASES} ${CASES}/*.ini)
list(REMOVE_ITEM definitions ${UNSTEADY})
set(notes ${definitions})
list(FILTER definitions EXCLUDE REGEX "^note-")
list(FILTER notes INCLUDE REGEX "^note-")
check("no cases" definitions AND notes)
expect_findings(2 warning ${definitions})
expect_findings(0 note ${notes})

# Enciphered, they are the same.
foreach(case nul-tail utf16-big-endian)
  succeed(encipher --force ${case}.ini ${case}.dat)
  run(check ${case}.ini)
  string(REPLACE ".ini:" ".dat:" expected "${output}")
  run(check ${case}.dat)
  check("enciphered; expected: ${expected}" output STREQUAL expected)
endforeach()

# Followed, what is certain leaves nothing certain, and NAME.fixed is what becomes of NAME.ini: its
# bytes but for what was mistaken.
file(MAKE_DIRECTORY ${WORK}/fixed)
file(COPY ${CASES}/ DESTINATION ${WORK}/fixed FILES_MATCHING PATTERN "*.ini")
file(GLOB to_fix RELATIVE ${WORK}/fixed ${WORK}/fixed/*.ini)
list(REMOVE_ITEM to_fix ${UNSTEADY})
list(TRANSFORM to_fix PREPEND fixed/)
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
  check("only the start of a value" output MATCHES ":3:[0-9]+: warning: ModelName: [^\n]*first 5 are read, "
    AND output MATCHES "\n[^\n]*:4:[0-9]+: warning: IPAddress: nothing of so long a value is read, ")
  file(WRITE ${WORK}/version-16-bits.ini "[printer]\nVersion=${long}\n")
  run(check version-16-bits.ini)
  check("nothing of the version" output MATCHES ":2:[0-9]+: error: Version: nothing of so long a value ")
endif()

file(READ ${WORK}/template.ini template)
string(REGEX REPLACE "\n;([A-Z])" "\n\\1" template "${template}")
file(WRITE ${WORK}/template-whole.ini "${template}")
succeed(check template.ini template-whole.ini full-colour.ini compact.ini minimal.ini full-colour.dat compact.dat minimal.dat)
check("template and examples are not clean" NOT output)

# The formats, each of which leaves the exit status as it is.
file(READ ${CASES}/white-off.expected expected)
run(check --format=json white-off.ini)
foreach(member line severity key what effect remedy)
  string(JSON ${member} ERROR_VARIABLE error GET "${output}" files 0 findings 0 ${member})
endforeach()
check("JSON" result EQUAL 1 AND expected STREQUAL
  "white-off.ini:${line}: ${severity}: ${key}: ${what}, ${effect}, ${remedy}\n")
expect_json(STRING switch-value files 0 findings 0 rule)
expect_json(NUMBER 13 files 0 findings 0 column)
succeed(encipher compact.ini compact.dat)
run(check --format=json white-off.ini compact.dat missing)
check("JSON: status" result EQUAL 3 AND message MATCHES "^tavrin: missing: does not exist")
expect_json(NUMBER 1 schemaVersion)
foreach(i RANGE 2)
  foreach(member path container status)
    string(JSON value ERROR_VARIABLE error GET "${output}" files ${i} ${member})
    string(APPEND files "${value} ")
  endforeach()
  string(JSON value LENGTH "${output}" files ${i} findings)
  string(APPEND files "${value}, ")
endforeach()
check("JSON: files ${files}" files STREQUAL
  "white-off.ini plain warnings 1, compact.dat enciphered clean 0, missing  failed 0, ")
file(READ ${PROJECT}/docs/check.md document)
string(REGEX MATCHALL "\n\\| `[^`]+" documented "${document}")
list(TRANSFORM documented REPLACE ".*[`.]" "")
string(REGEX MATCHALL "\"[a-zA-Z]+\": [^[{]" printed "${output}")
list(TRANSFORM printed REPLACE "\"([a-zA-Z]+).*" "\\1")
foreach(names documented printed)
  list(SORT ${names})
  list(REMOVE_DUPLICATES ${names})
endforeach()
check("JSON: fields ${printed}, documented: ${documented}" printed STREQUAL documented)

# What a definition brings in is text to SARIF and GitHub, and so is a file's name.
set(hostile "a b,%5B.ini")
file(WRITE ${WORK}/${hostile} "[printer]\nVersion=1\nReverse=[x](1){0}%0A\\\nMode=0,1x,2\n")
run(check --format=sarif ${hostile} missing)
expect_json(STRING 2.1.0 version)
expect_json(STRING "a%20b%2C%255B.ini" runs 0 results 0 locations 0 physicalLocation
  artifactLocation uri)
expect_json(NUMBER 3 runs 0 results 0 locations 0 physicalLocation region startLine)
expect_json(NUMBER 9 runs 0 results 0 locations 0 physicalLocation region startColumn)
expect_json(STRING warning runs 0 results 0 level)
expect_json(BOOLEAN OFF runs 0 invocations 0 executionSuccessful)
expect_json(STRING "missing: does not exist (check its path)"
  runs 0 invocations 0 toolExecutionNotifications 0 message text)
string(JSON text GET "${output}" runs 0 results 0 message text)
string(FIND "${text}" "\\[x\\](1){{0}}%0A\\\\" at)
check("SARIF: ${text}" at GREATER 0 AND result EQUAL 3)
string(JSON rule GET "${output}" runs 0 results 0 ruleId)
string(JSON index GET "${output}" runs 0 results 0 ruleIndex)
expect_json(STRING ${rule} runs 0 tool driver rules ${index} id)
run(check --format=github ${hostile} missing)
check("GitHub" result EQUAL 3 AND
  output MATCHES "^::warning file=a b%2C%255B.ini,line=3,col=9,title=[a-z-]+::Reverse: [^\n]*[)]{0}%250A" AND
  output MATCHES "\n::error file=missing::missing: does not exist [^\n]*\n$")

string(ASCII 27 escape)

# Columns count characters: up to the key, up to the value, up to the part of it that is quoted.
set(columns "3:3 4:17 5:1 7:1 8:6 8:8 ")
file(WRITE ${WORK}/columns.ini "[printer]\nVersion=1\n  Xyz=a\nHeadBandSize = \"wide\"\nReverse=\n"
  "PrintMargin=1\nPrintMargin=2\nMode=é,7x\n")
if(NOT UTF8)
  string(REPLACE "8:8" "8:9" columns "${columns}")
endif()
run(check --ignore=key-missing,unknown-default-mode columns.ini)
string(REGEX MATCHALL "columns.ini:[0-9:]+ [^\n]*" places "${output}")
list(TRANSFORM places REPLACE "columns.ini:([0-9:]+): .*" "\\1 ")
list(REMOVE_DUPLICATES places)
string(CONCAT places ${places})
check("columns: ${places}" places STREQUAL columns)

# Silenced by the command line or by a comment, a finding counts no more.
succeed(check --ignore=switch-value white-off.ini)
check("--ignore" NOT output)
refuse(4 "--ignore: switch-valve is no id of a finding, did you mean switch-value"
  check --ignore=container,switch-valve white-off.ini)
file(WRITE ${WORK}/silenced.ini "[printer]\nVersion=1\nWhite_White=0\nXyz=1\n"
  "; tavrin-check: ignore switch-value, unknown-key  ours, no-value\nReverse=\n")
run(check silenced.ini)
check("ignore in a comment" output MATCHES "^silenced.ini:6:1: warning: Reverse: [^\n]*no-value.\n$")
file(WRITE ${WORK}/misspelt.ini "; tavrin-check: ignore switch-valve\n;tavrin-check: ingore\n"
  "[printer]\nVersion=1\n")
run(check misspelt.ini)
check("comments that silence nothing" output MATCHES
  "^misspelt.ini:1: [^\n]*\"switch-valve\"[^\n]*write switch-value .[^\n]*\n[^\n]*:2: [^\n]*\n$")

# What a file was judged as.
foreach(pair "plain;compact.ini;compact.dat" "enciphered;compact.dat;compact.ini")
  list(GET pair 0 container)
  list(GET pair 1 right)
  list(GET pair 2 wrong)
  succeed(check --container=${container} ${right})
  run(check --container=${container} ${wrong})
  check("--container=${container}" result EQUAL 2 AND
    output MATCHES "^${wrong}:1: error: container: [^\n]*wrong-container.\n$")
  run(check --threshold=note ${right})
  check("container of ${right}" output MATCHES "container: the file is ${container}, ")
endforeach()

# Directories, to whatever depth.
file(MAKE_DIRECTORY ${WORK}/definitions/inner.ini/none)
file(COPY_FILE ${WORK}/white-off.ini ${WORK}/definitions/inner.ini/b.INI)
file(COPY_FILE ${WORK}/compact.dat ${WORK}/definitions/a.dat)
file(WRITE ${WORK}/definitions/notes.txt "Version")
run(check --format=json definitions)
string(JSON count LENGTH "${output}" files)
string(JSON first GET "${output}" files 0 path)
string(JSON second GET "${output}" files 1 path)
check("a directory: ${first}, ${second}" result EQUAL 1 AND count EQUAL 2 AND
  first MATCHES "^definitions.a.dat$" AND second MATCHES "^definitions.inner.ini.b.INI$")
refuse(3 "has no files" check definitions/inner.ini/none)

# On a terminal: a last line, colours unless they are unwanted, and no byte that it cannot show.
find_program(SCRIPT script)
if(SCRIPT AND UNIX AND NOT TOOL MATCHES "wine-run")
  function(on_terminal environment)
    string(REPLACE ";" " " command "${environment};${TOOL};check;white-off.ini;compact.dat;missing;é.ini")
    execute_process(COMMAND ${SCRIPT} -qec ${command} /dev/null WORKING_DIRECTORY ${WORK}
      OUTPUT_VARIABLE output RESULT_VARIABLE result)
    string(REPLACE "\r\n" "\n" output "${output}")
    set(output "${output}" PARENT_SCOPE)
    check("${environment}: summary" result EQUAL 3 AND output MATCHES
      "\n4 files [(]2 plain, 1 enciphered, 1 not read[)]: 1 error, 1 warning\n$")
  endfunction()
  file(WRITE ${WORK}/é.ini "[printer]\nVersion=\n")
  on_terminal("env;TERM=xterm")
  check("colours on a terminal" output MATCHES "${escape}.33mwarning" AND output MATCHES "\né.ini:2:")
  foreach(unwanted TERM=dumb "TERM=xterm;NO_COLOR=1")
    on_terminal("env;${unwanted}")
    check("${unwanted}" NOT output MATCHES ${escape})
  endforeach()
  on_terminal("env;LC_ALL=C;TERM=dumb")
  check("a terminal of ASCII" output MATCHES "\n.u00E9.ini:2:")
endif()

succeed(check --threshold=error white-off.ini)
check("a warning below the threshold" NOT output)
run(check --quiet white-off.ini)
check("--quiet" result EQUAL 1 AND NOT output)
run(check --color=always white-off.ini)
check("--color=always" output MATCHES ":3:13: ${escape}\\[33mwarning${escape}\\[0m: White_White: ")
run(check --color=never white-off.ini)
plain_findings(output)
check("--color=never" output STREQUAL expected)

succeed(encipher white-off.ini white-off.dat)
refuse(3 "missing: does not exist" check missing white-off.ini)
check("a file behind one that cannot be read" output MATCHES "^white-off.ini:3:13: warning: ")
refuse(3 "empty: is empty" check empty)
foreach(threshold fatal 0)
  refuse(4 "threshold" check --threshold=${threshold} white-off.ini)
endforeach()
if(NOT TOOL MATCHES "wine-run")  # which has an empty standard input
  execute_process(COMMAND ${TOOL} check - WORKING_DIRECTORY ${WORK} INPUT_FILE ${WORK}/white-off.dat
    OUTPUT_VARIABLE output RESULT_VARIABLE result)
  check("standard input" output MATCHES "^-:3:13: warning: " AND result EQUAL 1)

  file(WRITE ${WORK}/${escape}.ini "[printer]\nVersion=\n")
  run(check ${escape}.ini)
  check("a control character in a file's name" output MATCHES "^.x1B\\.ini:2:1: error: ")
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
  plain_findings(output)
  file(READ ${CASES}/utf16.wine.expected expected)
  check("a character that the encoding lacks; expected: ${expected}" output STREQUAL expected)
  unset(ENV{LOCPATH})
  set(ENV{LC_ALL} C.UTF-8)
endif()
