# Runs the tool as its users do: cmake -DTOOL=... -DPROJECT=... -DUTF8=... -DLOCALES=... -DWORK=...
#   -P ToolTest.cmake
#   TOOL     the tool's command, behind its emulator where it needs one
#   PROJECT  the directory of the sources
#   UTF8     whether the process's encoding is UTF-8
#   LOCALES  the directory of the locale en_US.CP1252; empty where none is to be tried
#   WORK     a directory of the test's own, emptied first
cmake_minimum_required(VERSION 3.22)
set(RUNNER ${TOOL})
include(${CMAKE_CURRENT_LIST_DIR}/../support/Run.cmake)

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK}/directory)
file(COPY ${PROJECT}/examples/ DESTINATION ${WORK} FILES_MATCHING PATTERN "*.ini")

macro(succeed)
  run(${ARGN})
  check("tavrin ${ARGN}" result EQUAL 0 AND NOT message)
endmacro()

# The message is one line that names the reason and, in parentheses, a remedy.
macro(refuse expected reason)
  run(${ARGN})
  check("tavrin ${ARGN}: not refused as '${reason}'"
    result EQUAL ${expected} AND message MATCHES "^tavrin: [^\n]*${reason}[^\n]*\\([^\n]+\\)\n$")
endmacro()

function(expect_same a b)
  file(SHA256 ${WORK}/${a} hash_a)
  file(SHA256 ${WORK}/${b} hash_b)
  check("${a} and ${b} differ" hash_a STREQUAL hash_b)
endfunction()

function(expect_shown)
  foreach(line IN LISTS ARGN)
    string(REPLACE " " " +" pattern "${line}")
    check("show: no line '${line}'" output MATCHES "\n ? ?${pattern}\n")
  endforeach()
endfunction()

# The value at a path of the JSON that was printed, and its type.
function(expect_json type value)
  string(JSON actual_type ERROR_VARIABLE error TYPE "${output}" ${ARGN})
  string(JSON actual ERROR_VARIABLE error GET "${output}" ${ARGN})
  check("JSON: ${ARGN}: ${actual_type} ${actual}"
    actual_type STREQUAL type AND actual STREQUAL value)
endfunction()

# The keystream itself, against a known answer: what 32 zero bytes are enciphered to.
set(keystream 71df958404198be54b20bf6042f2f4a9b65072b35a395b767809b989eda606e3)
string(REGEX MATCHALL ".." pairs ${keystream})
foreach(pair IN LISTS pairs)
  math(EXPR number "0x${pair}")
  list(APPEND numbers ${number})
endforeach()
string(ASCII ${numbers} bytes)
file(WRITE ${WORK}/keystream.dat "${bytes}")
succeed(decipher keystream.dat zeros.ini)
file(READ ${WORK}/zeros.ini zeros HEX)
string(REPEAT 0 64 expected)
check("keystream" zeros STREQUAL expected)
succeed(encipher zeros.ini zeros.dat)
expect_same(zeros.dat keystream.dat)

foreach(example full-colour compact minimal)
  succeed(encipher ${example}.ini ${example}.dat)
  succeed(decipher ${example}.dat ${example}.plain)
  expect_same(${example}.plain ${example}.ini)
endforeach()

succeed(encipher compact.ini replaced.dat)
succeed(encipher minimal.ini replaced.dat)
expect_same(replaced.dat minimal.dat)

# Line ends and all else come through standard output as they are.
execute_process(COMMAND ${TOOL} decipher full-colour.dat WORKING_DIRECTORY ${WORK}
  OUTPUT_FILE ${WORK}/standard-output RESULT_VARIABLE result)
check("decipher to standard output" result EQUAL 0)
expect_same(standard-output full-colour.ini)

succeed(show full-colour.dat)
expect_shown("Model name Tavrin FC-500" "Version 2.4.1" "Network address 192.0.2.50"
  "Width 500.000 mm" "Depth 480.000 mm" "Height 300.000 mm" "Print margin 5.000 mm"
  " 0 2 32 600 4 9375 no none" " 5 11 80 300 1 3750 yes 2" "Default mode number 2 \\(index 0\\)"
  "Top thickness 0.150 mm" "Side thickness at 10 mm 2.476 mm" "Detach layer 3.500 mm"
  "Size code \\(-2 to 6\\) 2" "Smoothing on" "Wrap reduction on" "Head band 53.7 mm"
  "Chipping allowance setting 2")
succeed(show minimal.dat)
expect_shown("Model name 5RTV-207" "Width 508.000 mm" "Number of modes 0"
  "Default mode number 2 \\(no mode has it\\)" "Chipping allowance none")

string(ASCII 27 escape)
string(REPEAT a 129 long)
file(WRITE ${WORK}/long.ini "[printer]\nModelName=${escape}[2J\nVersion=1\nIPAddress=${long}\n")
succeed(encipher long.ini long.dat)
refuse(1 "longer than 128 bytes" show long.dat)
expect_shown("Model name \\?.2J" "Version 1" "Network address not handed out" "Width 508.000 mm"
  "Head band 53.7 mm")
refuse(1 "longer than 128 bytes" show --format=json long.dat)
expect_json(STRING "1" identity version)
expect_json(NULL "" identity networkAddress)
expect_json(NUMBER 508000 buildVolume widthUm)

if(UTF8)
  string(ASCII 194 155 c1_control)
  file(WRITE ${WORK}/texts.ini "[printer]\nVersion=${c1_control}1\nModelName=ü€😀\n")
  succeed(encipher texts.ini texts.dat)
  succeed(show texts.dat)
  expect_shown("Model name ü€😀" "Version \\?1")
  succeed(show --format=json texts.dat)
  check("JSON: not in ASCII" output MATCHES "\"\\\\u00fc\\\\u20ac\\\\ud83d\\\\ude00\"")
endif()

# The names of the fields, and the document that lists them.
succeed(show --format json full-colour.dat)
expect_json(STRING "Tavrin FC-500" identity modelName)
expect_json(NUMBER 3750 printModes 5 layers)
expect_json(BOOLEAN ON printModes 5 limited)
expect_json(NULL "" printModes 0 continuousLimit)
expect_json(NUMBER 600 printModes 0 firstValue)
expect_json(NUMBER 50000 support sideThicknesses 1 modelHeightUm)
check("JSON: head band" output MATCHES "\"headBandMm\": 53.7,")
expect_json(STRING "MB-120 Clear" inkSlots 2 inkName)
expect_json(NUMBER 8 inkCategories 8 slotNumbers 7)
file(READ ${PROJECT}/docs/show-json.md document)
string(REGEX MATCHALL "\n\\| `[^`]+" documented "${document}")
list(TRANSFORM documented REPLACE ".*[`.]" "")
string(REGEX MATCHALL "\"[a-zA-Z]+\": [^[{]" printed "${output}")
string(REGEX MATCHALL "\"slotNumbers\": " arrays "${output}")
list(APPEND printed ${arrays})
list(TRANSFORM printed REPLACE "\"([a-zA-Z]+).*" "\\1")
foreach(names documented printed)
  list(SORT ${names})
  list(REMOVE_DUPLICATES ${names})
endforeach()
check("fields: ${printed}, documented: ${documented}" printed STREQUAL documented)

succeed(template)
file(RENAME ${WORK}/output ${WORK}/template.ini)
succeed(encipher template.ini template.dat)
succeed(show template.dat)
expect_shown("Model name 5RTV-207" "Width 508.000 mm" "Category 0 slots 1, 2")

file(WRITE ${WORK}/empty "")
file(WRITE ${WORK}/no-version.ini "[printer]\nModelName=a\n")
succeed(encipher no-version.ini no-version.dat)
file(WRITE ${WORK}/kept "kept")
file(CREATE_LINK ${WORK}/compact.ini ${WORK}/hard-link.ini)
foreach(command encipher decipher)
  refuse(1 "missing: does not exist" ${command} missing kept)
  refuse(1 "directory: is a directory" ${command} directory kept)
  refuse(1 "empty: is empty" ${command} empty kept)
  refuse(1 "directory: is a directory" ${command} compact.ini directory)
  refuse(1 "is the input file itself" ${command} compact.ini directory/../compact.ini)
  refuse(1 "is the input file itself" ${command} compact.ini hard-link.ini)
  refuse(1 "lies in no existing directory" ${command} compact.ini nowhere/output)
endforeach()
refuse(1 "missing: does not exist" show missing)
refuse(1 "directory: is a directory" show directory)
refuse(1 "empty: is empty" show empty)
refuse(1 "plain INI file" show compact.ini)
refuse(1 "has no Version" show no-version.dat)
if(UNIX AND NOT TOOL MATCHES "wine-run")
  set(ENV{TMPDIR} ${WORK}/nowhere)
  refuse(1 "temporary directory [^\n]*nowhere: takes no file" show compact.dat)
  refuse(3 "temporary directory [^\n]*nowhere: takes no file" check compact.dat)
  file(MAKE_DIRECTORY ${WORK}/temporary/tavrin_compact.bin/full)
  set(ENV{TMPDIR} ${WORK}/temporary)
  refuse(1 "tavrin_compact.bin: lies in the place of" show compact.dat)
  string(REPEAT n 245 long_name)
  file(COPY_FILE ${WORK}/compact.dat ${WORK}/${long_name}.dat)
  refuse(1 "n.bin: could not be created" show ${long_name}.dat)
  unset(ENV{TMPDIR})
endif()
refuse(2 "A command is required")
refuse(2 "not expected: encypher" encypher)
refuse(2 "DEFINITION is required" encipher compact.ini)

file(READ ${WORK}/kept kept)
check("an output of a refused command changed" kept STREQUAL "kept")
expect_same(compact.ini compact.plain)
file(GLOB leftovers ${WORK}/*.tmp ${WORK}/*/*.tmp ${WORK}/nowhere)
check("left behind: ${leftovers}" NOT leftovers)

include(${CMAKE_CURRENT_LIST_DIR}/CheckTest.cmake)

# Each spelling of a key finds it, and what is printed is in the table.
foreach(key "Mode#SliceSize" modensliceSIZE Mode12SliceSize)
  succeed(keys ${key})
  expect_shown("Values mm in steps of 0.001, 0.001 or more" "Usual 0.001 to 1" "Asked by Mode"
    "Without it mode # is left out" "Example Mode1SliceSize=0.032")
endforeach()
succeed(keys)
expect_shown("HeadBandSize mm, above 0" "White_White 1: on, 100: off" "Color#Code integer")
succeed(keys --format=json SupportExtendAngle)
expect_json(STRING "SupportExtendAngle" keys 0 key)
expect_json(NUMBER "90.0" keys 0 range below)
expect_json(STRING "1.5" keys 0 default)
expect_json(NULL "" keys 0 askedBy)
succeed(keys --format=json)
expect_json(STRING "InkTypeCodeInkSlot#" keys 33 key)
refuse(4 "nearest is PrintMargin" keys PrintMargn)
refuse(4 "nearest is Mode#SliceSize" keys ModeSliceSize)

foreach(command check encipher decipher keys show template)
  succeed(${command} --help)
  check("${command} --help has no example" output MATCHES "\nExample: tavrin ${command} ")
endforeach()
