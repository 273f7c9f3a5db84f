# tavrin_import_library(<target>): beside MinGW's import library of a DLL the list of its exports,
# <target>.def, and the import library that Microsoft's linker and lld-link take, <target>.lib.
# Microsoft's own linker makes that by itself.
function(tavrin_import_library target)
  set(definitions ${CMAKE_CURRENT_BINARY_DIR}/${target}.def)
  target_link_options(${target} PRIVATE -Wl,--output-def,${definitions})
  set(files ${definitions})
  find_program(TAVRIN_DLLTOOL llvm-dlltool)
  mark_as_advanced(TAVRIN_DLLTOOL)
  if(TAVRIN_DLLTOOL)
    set(library ${CMAKE_CURRENT_BINARY_DIR}/${target}.lib)
    add_custom_command(TARGET ${target} POST_BUILD BYPRODUCTS ${library}
      COMMAND ${TAVRIN_DLLTOOL} -m i386:x86-64 -D $<TARGET_FILE_NAME:${target}>
        -d ${definitions} -l ${library}
      VERBATIM)
    list(APPEND files ${library})
  else()
    message(STATUS "No llvm-dlltool: ${target}.lib is left out")
  endif()
  set_property(TARGET ${target} PROPERTY TAVRIN_IMPORT_FILES ${files})
endfunction()
