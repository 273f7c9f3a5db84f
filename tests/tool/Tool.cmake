# What the tests of the tool have alike: a directory with the examples, ways to run it, and what to
# expect.
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
