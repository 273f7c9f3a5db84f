# Asks Clang how it lays out the virtual table of class InkSlot for each kind of host:
# cmake -DCLANG=... -DINCLUDES=... -DWORK=... -P InkSlotTest.cmake
cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/Expect.cmake)

if(NOT CLANG)
  message(FATAL_ERROR "clang++ is needed (scripts/install-tools test)")
endif()

# No standard library for Microsoft's compiler is at hand; these two types are all it takes.
file(MAKE_DIRECTORY ${WORK})
file(WRITE ${WORK}/cstdint
  "#include <stdint.h>\nnamespace std { using ::int32_t; using ::uint32_t; }\n")
file(WRITE ${WORK}/host.cpp "#include \"InkSlot.h\"\n#include \"TavrinLib.h\"\n"
  "struct HostSlot : InkSlot { HostSlot(); };\nHostSlot::HostSlot() = default;\n")
set(command ${CLANG} -std=c++17 -ffreestanding -nostdinc++ -Wall -Wextra -Wpedantic -Werror -I${WORK})
foreach(directory IN LISTS INCLUDES)
  list(APPEND command -I${directory})
endforeach()

set(operations
  "bool InkSlot::GetColorCode(std::uint32_t *) const [pure]"
  "bool InkSlot::GetInkTypeCode(std::uint32_t *) const [pure]"
  "bool InkSlot::GetInkId(char **, std::int32_t *) const [pure]"
  "bool InkSlot::GetInkName(char **, std::int32_t *) const [pure]"
  "bool InkSlot::IsValid() const [pure]")

function(expect_table target)
  ask(layouts ${command} --target=${target} -Xclang -fdump-vtable-layouts
    -c ${WORK}/host.cpp -o ${WORK}/host.o)
  if(NOT layouts MATCHES "V[Ff]?[Tt]able for 'InkSlot' [^\n]*\n(([^\n]+\n)+)")
    message(SEND_ERROR "${target}: no layout of InkSlot in:\n${layouts}")
    return()
  endif()
  string(REGEX MATCHALL " [|] [^\n]+" entries "${CMAKE_MATCH_1}")
  string(REPLACE ";" "\n" actual "${entries}")
  list(TRANSFORM ARGN PREPEND " | ")
  string(REPLACE ";" "\n" expected "${ARGN}")
  if(NOT actual STREQUAL expected)
    message(SEND_ERROR "${target}: the table is\n${actual}\nand should be\n${expected}")
  endif()
endfunction()

expect_table(x86_64-pc-windows-msvc
  "InkSlot RTTI" "InkSlot::~InkSlot() [scalar deleting]" ${operations})
foreach(target x86_64-pc-linux-gnu x86_64-w64-windows-gnu)
  expect_table(${target} "offset_to_top (0)" "InkSlot RTTI"
    "InkSlot::~InkSlot() [complete]" "InkSlot::~InkSlot() [deleting]" ${operations})
endforeach()
