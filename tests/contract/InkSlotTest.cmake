# Asks Clang how it lays out the virtual table of class InkSlot for each kind of host, and holds the
# table that hosts in C see against it:
# cmake -DCLANG=... -DINCLUDES=... -DWORK=... -P InkSlotTest.cmake
cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/Expect.cmake)

if(NOT CLANG)
  message(FATAL_ERROR "clang++ is needed (scripts/install-tools test)")
endif()

# The headers of no standard library are needed: those of the compiler itself are enough.
set(command ${CLANG} -ffreestanding -nostdinc++ -Wall -Wextra -Wpedantic -Werror)
foreach(directory IN LISTS INCLUDES)
  list(APPEND command -I${directory})
endforeach()
file(MAKE_DIRECTORY ${WORK})
file(WRITE ${WORK}/host.cpp "#include \"InkSlot.h\"\n#include \"TavrinLib.h\"\n"
  "struct HostSlot : InkSlot { HostSlot(); };\nHostSlot::HostSlot() = default;\n")

set(operations
  "bool InkSlot::GetColorCode(uint32_t *) const [pure]"
  "bool InkSlot::GetInkTypeCode(uint32_t *) const [pure]"
  "bool InkSlot::GetInkId(char **, int32_t *) const [pure]"
  "bool InkSlot::GetInkName(char **, int32_t *) const [pure]"
  "bool InkSlot::IsValid() const [pure]")
set(destructor "InkSlot::~InkSlot() [complete]" "InkSlot::~InkSlot() [deleting]")

# expect_c_view(<target> <entry>...): in C each operation lies where the table has it.
function(expect_c_view target)
  set(code "#include <stddef.h>\n#include \"InkSlot.h\"\n#include \"TavrinLib.h\"\n")
  set(number 0)
  set(found 0)
  foreach(entry IN LISTS ARGN)
    if(entry MATCHES "InkSlot::([A-Z][A-Za-z]+).*[[]pure[]]")
      string(APPEND code "typedef char ${CMAKE_MATCH_1}IsEntry${number}["
        "offsetof(struct InkSlotOperations, ${CMAKE_MATCH_1}) == ${number} * sizeof(void*) ? 1 : -1];\n")
      math(EXPR found "${found} + 1")
    endif()
    math(EXPR number "${number} + 1")
  endforeach()
  if(NOT found EQUAL 5)
    message(SEND_ERROR "${target}: ${found} operations in ${ARGN}")
  endif()
  file(WRITE ${WORK}/view.c "${code}")
  ask(log ${command} -x c -std=c99 --target=${target} -fsyntax-only ${WORK}/view.c)
endfunction()

# expect_table(<target> <what lies before entry 0> ENTRIES <entry>...)
function(expect_table target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "ENTRIES")
  ask(layouts ${command} -std=c++17 --target=${target} -Xclang -fdump-vtable-layouts
    -c ${WORK}/host.cpp -o ${WORK}/host.o)
  if(NOT layouts MATCHES "V[Ff]?[Tt]able for 'InkSlot' [^\n]*\n(([^\n]+\n)+)")
    message(SEND_ERROR "${target}: no layout of InkSlot in:\n${layouts}")
    return()
  endif()
  string(REGEX MATCHALL " [|] [^\n]+" entries "${CMAKE_MATCH_1}")
  string(REPLACE ";" "\n" actual "${entries}")
  set(expected ${arg_UNPARSED_ARGUMENTS} ${arg_ENTRIES})
  list(TRANSFORM expected PREPEND " | ")
  string(REPLACE ";" "\n" expected "${expected}")
  if(NOT actual STREQUAL expected)
    message(SEND_ERROR "${target}: the table is\n${actual}\nand should be\n${expected}")
  endif()
  expect_c_view(${target} ${arg_ENTRIES})
endfunction()

expect_table(x86_64-pc-windows-msvc "InkSlot RTTI"
  ENTRIES "InkSlot::~InkSlot() [scalar deleting]" ${operations})
expect_table(x86_64-w64-windows-gnu "offset_to_top (0)" "InkSlot RTTI"
  ENTRIES "void *InkSlot::StandInForDestructor(unsigned int)" ${operations} ${destructor})
expect_table(x86_64-pc-linux-gnu "offset_to_top (0)" "InkSlot RTTI"
  ENTRIES ${destructor} ${operations})
