# Makes a manual page of the tool and of each of its commands: cmake -DTOOL=... -DDIRECTORY=...
#   -P MakeManual.cmake
#   TOOL       the tool's command, behind its emulator where it needs one
#   DIRECTORY  where the pages go; emptied first
file(REMOVE_RECURSE ${DIRECTORY})
file(MAKE_DIRECTORY ${DIRECTORY})

function(make_page page)
  execute_process(COMMAND ${TOOL} help --format=man ${ARGN}
    OUTPUT_FILE ${DIRECTORY}/${page}.1 COMMAND_ERROR_IS_FATAL ANY)
endfunction()

execute_process(COMMAND ${TOOL} __complete OUTPUT_VARIABLE lines COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "(^|\n)[a-z]+" commands "${lines}")
list(TRANSFORM commands STRIP)
foreach(command IN LISTS commands)
  make_page(tavrin-${command} ${command})
endforeach()
# Last, as it stands for all of them.
make_page(tavrin)
