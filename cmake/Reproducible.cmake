# tavrin_reproducible(<target>): what is handed out is the same to the byte wherever it was built. In
# other builds a debugger is to find the sources.
function(tavrin_reproducible target)
  if(MSVC)
    return()
  endif()
  foreach(map IN ITEMS ${PROJECT_SOURCE_DIR}=. ${PROJECT_BINARY_DIR}=build)
    target_compile_options(${target} PRIVATE
      "$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-ffile-prefix-map=${map}>")
  endforeach()
  if(MINGW)
    target_link_options(${target} PRIVATE -Wl,--no-insert-timestamp)
  endif()
  set_target_properties(${target} PROPERTIES BUILD_RPATH_USE_ORIGIN ON)
endfunction()
