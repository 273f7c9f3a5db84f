# How every target of this project is compiled: the language, which may be newer, warnings, sanitizers, hidden symbols.
function(tavrin_target target)
  target_compile_features(${target} PRIVATE cxx_std_17)
  if(MSVC)
    target_compile_options(${target} PRIVATE /W4 /utf-8 /permissive-
      $<$<BOOL:${TAVRIN_WARNINGS_AS_ERRORS}>:/WX>)
  else()
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
      $<$<BOOL:${TAVRIN_WARNINGS_AS_ERRORS}>:-Werror>)
  endif()
  if(TAVRIN_SANITIZERS)
    target_compile_options(${target} PRIVATE -fsanitize=${TAVRIN_SANITIZERS}
      -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=${TAVRIN_SANITIZERS})
  endif()
  if(MINGW)
    # Nothing of the compiler's runtime has to lie beside the programs and the DLL.
    target_link_options(${target} PRIVATE -static)
  endif()
  set_target_properties(${target} PROPERTIES
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON POSITION_INDEPENDENT_CODE ON)
endfunction()
