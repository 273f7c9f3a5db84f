# What parses files of unknown origin is built so that an overrun ends the process instead of
# serving an attacker. In optimised builds alone, as part of it needs the optimiser, and not with
# the sanitizers, which look closer.
option(TAVRIN_HARDENING "Harden the optimised builds of the library and the tool" ON)

set(TAVRIN_HARDENS OFF)
if(TAVRIN_HARDENING AND NOT MSVC AND NOT TAVRIN_SANITIZERS)
  set(TAVRIN_HARDENS ON)
endif()

include(CheckCXXCompilerFlag)

# tavrin_harden(<target>)
function(tavrin_harden target)
  if(NOT TAVRIN_HARDENS)
    return()
  endif()
  # Not every processor has these.
  set(codegen -fstack-protector-strong)
  if(NOT WIN32)
    foreach(option -fstack-clash-protection -fcf-protection)
      string(MAKE_C_IDENTIFIER "TAVRIN_HAS${option}" has)
      check_cxx_compiler_flag(${option} ${has})
      if(${has})
        list(APPEND codegen ${option})
      endif()
    endforeach()
  endif()
  set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
  # A distribution's flags may have defined it already.
  target_compile_options(${target} PRIVATE
    "$<${optimised}:${codegen};-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
  # Where code is generated across files, that is done when linking.
  target_link_options(${target} PRIVATE "$<${optimised}:${codegen}>")
  if(WIN32)
    target_link_options(${target} PRIVATE
      "$<${optimised}:-Wl,--nxcompat,--dynamicbase,--high-entropy-va>")
    # The checks themselves; statically, as all of the compiler's runtime.
    target_link_libraries(${target} PRIVATE $<${optimised}:ssp>)
  else()
    target_link_options(${target} PRIVATE "$<${optimised}:-Wl,-z,relro,-z,now>")
  endif()
endfunction()
