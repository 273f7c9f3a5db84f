# Lets two processes of one program load definitions of the same name at the same time:
# cmake -DPROGRAM=... -DCOUNT=... -DWORK=... -P RivalLoadsTest.cmake
cmake_minimum_required(VERSION 3.22)

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK}/temporary)

# The commands of one call run at the same time.
execute_process(
  COMMAND ${PROGRAM} ${WORK}/a ModelA ${COUNT} ${WORK}/temporary
  COMMAND ${PROGRAM} ${WORK}/b ModelB ${COUNT} ${WORK}/temporary
  ERROR_VARIABLE account RESULTS_VARIABLE results)
message(STATUS "${account}")
if(NOT results STREQUAL "0;0")
  message(SEND_ERROR "the results are ${results}")
endif()
file(GLOB left ${WORK}/temporary/*)
if(left)
  message(SEND_ERROR "left behind: ${left}")
endif()
