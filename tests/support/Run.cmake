# Running programs and looking at what comes of it, in the directory WORK.

# Wine's own remarks would mix with the programs' messages.
set(ENV{WINEDEBUG} -all)

# run(<argument>...): the command that RUNNER begins. Files take the output, because processes that
# an emulator leaves running would hold a pipe open.
macro(run)
  execute_process(COMMAND ${RUNNER} ${ARGN} WORKING_DIRECTORY ${WORK}
    RESULT_VARIABLE result OUTPUT_FILE ${WORK}/output ERROR_FILE ${WORK}/message)
  file(READ ${WORK}/output output)
  file(READ ${WORK}/message message)
  string(REPLACE "\r\n" "\n" output "${output}")
  string(REPLACE "\r\n" "\n" message "${message}")
endmacro()

# check(<what> <condition>...): an error that shows the last run, unless the condition holds.
function(check what)
  if(NOT (${ARGN}))
    message(SEND_ERROR "${what}\nresult: ${result}\noutput: ${output}\nmessage: ${message}")
  endif()
endfunction()
