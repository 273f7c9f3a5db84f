# expect_same(<what> <expected list> <actual list>): the same entries in any order, or an error.
function(expect_same what expected actual)
  set(missing ${expected})
  set(unexpected ${actual})
  list(REMOVE_ITEM missing ${actual} "")
  list(REMOVE_ITEM unexpected ${expected} "")
  if(missing OR unexpected OR NOT actual)
    message(SEND_ERROR "${what}\nmissing: ${missing}\nunexpected: ${unexpected}")
  endif()
endfunction()

# ask(<variable> <command>...): the standard output of a command that must succeed.
function(ask variable)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
  set(${variable} "${output}" PARENT_SCOPE)
endfunction()
