# Looks for what the hardening leaves in the built files:
# cmake -DFORMAT=elf|pe -DFILES=... -DMARKS_JUMPS=... -DNM=... -DOBJDUMP=... -P HardeningTest.cmake
cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/Expect.cmake)

# expect_in(<file> <what> <pattern> <text>)
function(expect_in file what pattern text)
  if(NOT text MATCHES "${pattern}")
    message(SEND_ERROR "${file} has no ${what}")
  endif()
endfunction()

foreach(file IN LISTS FILES)
  if(FORMAT STREQUAL "elf")
    ask(symbols ${NM} -D --undefined-only --format=posix ${file})
  else()
    ask(symbols ${NM} --defined-only --format=posix ${file})
  endif()
  expect_in(${file} "canaries" "\n__stack_chk_fail[ @]" "\n${symbols}")
  expect_in(${file} "checked copies" "\n__w?mem[a-z]*_chk[ @]" "\n${symbols}")

  ask(headers ${OBJDUMP} -p ${file})
  if(FORMAT STREQUAL "elf")
    expect_in(${file} "relocations that become read-only" "\n +RELRO " "${headers}")
    expect_in(${file} "binding at its start" "\n +FLAGS +0x[0-9a-f]*[89ab-f]\n" "${headers}")
    if(MARKS_JUMPS)
      # Every function that others can call; the start files of the system may lack the marks, so
      # the file as a whole does not promise them.
      ask(code ${OBJDUMP} -d --no-show-raw-insn ${file})
      expect_in(${file} "marked targets of indirect jumps" "<(Tavrin[A-Za-z]+|main)>:\n[^\n]*\tendbr64" "${code}")
    endif()
  else()
    foreach(characteristic HIGH_ENTROPY_VA DYNAMIC_BASE NX_COMPAT)
      expect_in(${file} ${characteristic} "\t${characteristic}" "${headers}")
    endforeach()
  endif()
endforeach()
