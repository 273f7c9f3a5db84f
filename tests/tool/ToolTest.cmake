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

# The same with a file as standard input.
macro(run_with input)
  set(ENV{TAVRIN_WINE_INPUT} 1)
  execute_process(COMMAND ${TOOL} ${ARGN} WORKING_DIRECTORY ${WORK} INPUT_FILE ${WORK}/${input}
    RESULT_VARIABLE result OUTPUT_FILE ${WORK}/output ERROR_FILE ${WORK}/message)
  unset(ENV{TAVRIN_WINE_INPUT})
  file(READ ${WORK}/output output)
  file(READ ${WORK}/message message)
  string(REPLACE "\r\n" "\n" output "${output}")
  string(REPLACE "\r\n" "\n" message "${message}")
endmacro()

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

# Plain or enciphered, a file or standard input: the same is read.
set(shown "${output}")
foreach(definition minimal.ini minimal.dat)
  run_with(${definition} show -)
  check("show of standard input" output STREQUAL shown)
endforeach()
refuse(4 "standard input: is named more than once" show - -)
refuse(3 "missing: does not exist" show minimal.dat missing minimal.ini)
check("several files, one of them missing" output STREQUAL
  "== minimal.dat ==\n\n${shown}\n== minimal.ini ==\n\n${shown}")
succeed(show --all full-colour.ini)
expect_shown("Support extent 2.000 mm" "Cutting margin thickness 0.400 mm"
  "Colour thickness of mode 10 0.800 mm" " 30 Light Cyan none" " 202 SB-100 1, 2"
  "Name of category 1 MB-120 Clear")
file(WRITE ${WORK}/left-out.ini
  "[printer]\nVersion=1\nMode=1,2\nMode1SliceSize=1\nMode1ColorThickness=1\nMode1=1,1\n"
  "NumOfColor=1\nColor001Code=56\nPrinterInkSlotNum=1\nColorCodeInkSlot1=56\n")
succeed(show --all left-out.ini)
expect_shown("Modes left out 2" "Ink slots built in" "Table of colours" "None the definition's entries are incomplete"
  "Table of ink types, built in")

string(ASCII 27 escape)
string(REPEAT a 129 long)
file(WRITE ${WORK}/long.ini "[printer]\nModelName=${escape}[2J\nVersion=1\nIPAddress=${long}\n")
succeed(encipher long.ini long.dat)
refuse(2 "longer than 128 bytes" show long.dat)
expect_shown("Model name .x1B.2J" "Version 1" "Network address not handed out" "Width 508.000 mm"
  "Head band 53.7 mm")
refuse(2 "longer than 128 bytes" show --format=json long.dat)
expect_json(STRING "1" identity version)
expect_json(NULL "" identity networkAddress)
expect_json(NUMBER 508000 buildVolume widthUm)

if(UTF8)
  string(ASCII 194 155 c1_control)
  file(WRITE ${WORK}/texts.ini "[printer]\nVersion=${c1_control}1\nModelName=ü€😀\n")
  succeed(encipher texts.ini texts.dat)
  succeed(show texts.dat)
  expect_shown("Model name ü€😀" "Version .u009B1")
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
succeed(show --all --format=json full-colour.ini minimal.dat)
expect_json(STRING minimal.dat 1 file)
expect_json(BOOLEAN OFF 0 notHandedOut builtInSlots)
expect_json(BOOLEAN ON 1 notHandedOut builtInSlots)
expect_json(NUMBER 400 0 notHandedOut cuttingMarginThicknessUm)
expect_json(NUMBER 300 0 notHandedOut colorThicknessesUm 3)
expect_json(STRING "Light Cyan" 0 notHandedOut colors entries 6 name)
expect_json(STRING "[Total] Model Ink" 0 notHandedOut categoryNames 7)
file(READ ${PROJECT}/docs/show-json.md document)
string(REGEX MATCHALL "\n\\| `[^`]+" documented "${document}")
list(TRANSFORM documented REPLACE ".*[`.]" "")
string(REGEX MATCHALL "\"[a-zA-Z]+\": [^[{]" printed "${output}")
string(REGEX MATCHALL "\"(slotNumbers|inkTypes|colorThicknessesUm|modesLeftOut|categoryNames)\": " arrays "${output}")
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
file(WRITE ${WORK}/kept "kept")
file(WRITE ${WORK}/no-version.ini "[printer]\nModelName=a\n")
refuse(2 "would not load: line 1: Version: this key is missing" encipher no-version.ini kept)
succeed(encipher --force no-version.ini no-version.dat)
# The cipher is its own reverse: what is in the wrong place would change its role. A definition
# without its section is told by its lines.
file(WRITE ${WORK}/no-section.ini "[Printers]\nVersion=1\nModelName=a\nIPAddress=\n")
succeed(encipher --force no-section.ini no-section.dat)
foreach(name compact no-section)
  refuse(2 "${name}.dat: is enciphered already" encipher ${name}.dat kept)
  refuse(2 "${name}.ini: is plain already" decipher ${name}.ini kept)
  succeed(encipher --force ${name}.dat ${name}.turned)
  expect_same(${name}.turned ${name}.ini)
  succeed(decipher --force ${name}.ini ${name}.turned)
  expect_same(${name}.turned ${name}.dat)
endforeach()
file(CREATE_LINK ${WORK}/compact.ini ${WORK}/hard-link.ini)
foreach(command encipher decipher)
  refuse(3 "missing: does not exist" ${command} missing kept)
  refuse(3 "directory: is a directory" ${command} directory kept)
  refuse(3 "empty: is empty" ${command} empty kept)
  refuse(3 "directory: is a directory" ${command} compact.ini directory)
  refuse(3 "is the input file itself" ${command} compact.ini directory/../compact.ini)
  refuse(3 "is the input file itself" ${command} compact.ini hard-link.ini)
  refuse(3 "lies in no existing directory" ${command} compact.ini nowhere/output)
endforeach()
refuse(3 "missing: does not exist" show missing)
refuse(3 "directory: is a directory" show directory)
refuse(3 "empty: is empty" show empty)
refuse(2 "no-version.ini: has no Version" show no-version.ini)
refuse(2 "has no Version" show no-version.dat)
if(UNIX AND NOT TOOL MATCHES "wine-run")
  foreach(command_and_input "encipher;compact.ini" "decipher;compact.dat")
    file(WRITE ${WORK}/moded "")
    file(CHMOD ${WORK}/moded PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    succeed(${command_and_input} moded)
    execute_process(COMMAND stat -c %a ${WORK}/moded OUTPUT_VARIABLE mode)
    check("mode of a file that is replaced: ${mode}" mode STREQUAL "644\n")
    file(CHMOD ${WORK}/moded PERMISSIONS OWNER_READ)
    refuse(3 "moded: is read-only" ${command_and_input} moded)
    file(REMOVE ${WORK}/moded)
  endforeach()
  succeed(decipher compact.dat moded)
  execute_process(COMMAND stat -c %a ${WORK}/moded OUTPUT_VARIABLE mode)
  check("mode of a new INI file: ${mode}" mode STREQUAL "600\n")
  set(ENV{TMPDIR} ${WORK}/nowhere)
  refuse(3 "temporary directory [^\n]*nowhere: takes no file" show compact.dat)
  refuse(3 "temporary directory [^\n]*nowhere: takes no file" check compact.dat)
  file(MAKE_DIRECTORY ${WORK}/temporary/tavrin_compact.bin/full)
  set(ENV{TMPDIR} ${WORK}/temporary)
  refuse(3 "tavrin_compact.bin: lies in the place of" show compact.dat)
  string(REPEAT n 245 long_name)
  file(COPY_FILE ${WORK}/compact.dat ${WORK}/${long_name}.dat)
  refuse(3 "n.bin: could not be created" show ${long_name}.dat)
  unset(ENV{TMPDIR})
endif()
function(refuse_arguments reason help)
  refuse(4 "${reason}" ${ARGN})
  check("no word of ${help}" message MATCHES "[(]see ${help}[)]\n$")
endfunction()
refuse_arguments("A command is required" "tavrin --help")
refuse_arguments("encypher: is no command, did you mean encipher" "tavrin --help" encypher)
refuse_arguments("zzz: is no command" "tavrin --help" zzz)
refuse_arguments("chek: is no command, did you mean check" "tavrin --help" help chek)
refuse_arguments("--fromat: is no option of tavrin show, did you mean --format" "tavrin show --help"
  show --fromat=json compact.dat)
refuse_arguments("DEFINITION is required" "tavrin encipher --help" encipher compact.ini)
refuse_arguments("extra: is one argument too many" "tavrin decipher --help"
  decipher compact.dat kept extra)
refuse_arguments("--format: xml" "tavrin show --help" show --format=xml compact.dat)

file(READ ${WORK}/kept kept)
check("an output of a refused command changed" kept STREQUAL "kept")
expect_same(compact.ini compact.plain)
file(GLOB leftovers ${WORK}/*.tmp ${WORK}/*/*.tmp ${WORK}/nowhere)
check("left behind: ${leftovers}" NOT leftovers)

include(${CMAKE_CURRENT_LIST_DIR}/CheckTest.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/CheckDocumentTest.cmake)

# Each spelling of a key finds it, and what is printed is in the table.
foreach(key "Mode#SliceSize" modensliceSIZE Mode12SliceSize)
  succeed(keys ${key})
  expect_shown("Values mm in steps of 0.001, 0.001 or more" "Usual 0.001 to 1" "Asked by Mode"
    "Without it mode # is left out" "Example Mode1SliceSize=0.032")
endforeach()
succeed(keys)
expect_shown("HeadBandSize mm, above 0" "White_White 1: on, 100: off" "Color#Code integer")
succeed(keys --format=json SupportExtendAngle)
expect_json(NUMBER "1" schemaVersion)
expect_json(STRING "SupportExtendAngle" keys 0 key)
expect_json(NUMBER "90.0" keys 0 range below)
expect_json(STRING "1.5" keys 0 default)
expect_json(NULL "" keys 0 askedBy)
succeed(keys --format=json)
expect_json(STRING "InkTypeCodeInkSlot#" keys 33 key)
refuse(4 "nearest is PrintMargin" keys PrintMargn)
refuse(4 "nearest is Mode#SliceSize" keys ModeSliceSize)

# One form of help, with the one table of exit statuses.
succeed(--help)
string(REGEX REPLACE ".*\n(Exit status:\n)" "\\1" statuses "${output}")
string(REGEX REPLACE ".*\nCommands:\n" "" commands "${output}")
string(REGEX MATCHALL "(^|\n)  [a-z]+" commands "${commands}")
list(TRANSFORM commands STRIP)
list(REMOVE_ITEM commands 0 1 2 3 4)
check("commands: ${commands}" "help" IN_LIST commands AND "check" IN_LIST commands)
foreach(command IN LISTS commands)
  succeed(${command} --help)
  check("${command} --help has no example" output MATCHES "\nExample: tavrin ${command} ")
  string(FIND "${output}" "\n${statuses}" at)
  check("${command} --help lacks the exit statuses ${statuses}" at GREATER 0)
  check("${command} --help has an option of another form"
    NOT output MATCHES "\n +(-., *)?--[a-z]+ [A-Z{:]|REQUIRED|TEXT")
  set(help "${output}")
  succeed(help ${command})
  check("help ${command} is not ${command} --help: ${help}" output STREQUAL help)
endforeach()
# What shells ask, each question with the answer's lines, blanks in place of their ends.
foreach(question_and_answer
    "show;--format=j|--format=json" "show;--format;te|text" "check;--th|--threshold="
    "check;--ignore=address,beyond|--ignore=address,beyond-ascii" "keys;mode7slice|Mode7SliceSize"
    "help;templ|template" "template;x|" "decipher;x|:files" "no-such;--f|" "check;--;-|:files")
  string(REGEX MATCH "(.*)[|](.*)" matched "${question_and_answer}")
  set(expected "${CMAKE_MATCH_2}")
  succeed(__complete ${CMAKE_MATCH_1})
  string(REGEX REPLACE "(\t[^\n]*)?\n" " " answer "${output}")
  string(STRIP "${answer}" answer)
  check("completion of ${question_and_answer}: '${answer}'" answer STREQUAL expected)
endforeach()
foreach(document README.md docs/check.md)
  file(READ ${PROJECT}/${document} text)
  foreach(status 0 1 2 3 4)
    string(REGEX MATCH "\n  ${status}  ([^\n]+)" meaning "${statuses}")
    string(FIND "${text}" "| ${status} | ${CMAKE_MATCH_1} |" at)
    check("${document} lacks exit status ${status}: ${CMAKE_MATCH_1}" at GREATER 0)
  endforeach()
endforeach()
