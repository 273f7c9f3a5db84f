# link_microsoft_host(<program>): the program of examples/first_run.cpp as a host of Microsoft's
# binary interface, linked by lld-link with the installed TavrinLib.lib. Its headers are MinGW's and
# it begins in a function of its own, as nothing of Microsoft's is at hand.
function(link_microsoft_host program)
  cmake_path(GET program PARENT_PATH work)
  set(inputs ${prefix}/${LIBDIR}/TavrinLib.lib)
  foreach(source examples/first_run tests/hosts/MicrosoftStart)
    cmake_path(GET source FILENAME name)
    set(object ${work}/${name}.obj)
    ask(log ${CLANG} --target=x86_64-pc-windows-msvc -std=c++17 -nostdinc++ -fno-exceptions -O1
      -Wall -Wextra -Werror -isystem ${HEADERS} -fgnuc-version=4.2.1 -D__USE_MINGW_ANSI_STDIO=0
      -I ${prefix}/include/TavrinLib -c ${SOURCE}/${source}.cpp -o ${object})
    list(APPEND inputs ${object})
  endforeach()
  import_from(kernel32 GetProcessHeap HeapFree HeapSize HeapWalk)
  import_from(msvcrt __getmainargs exit printf putchar puts strcmp strlen)
  ask(log ${LLD_LINK} /nologo /subsystem:console /nodefaultlib /out:${program} ${inputs})
endfunction()

# import_from(<dll> <function>...): adds an import library of these functions to the inputs.
macro(import_from dll)
  string(REPLACE ";" "\n" functions "EXPORTS;${ARGN};")
  file(WRITE ${work}/${dll}.def "${functions}")
  ask(log ${DLLTOOL} -m i386:x86-64 -D ${dll}.dll -d ${work}/${dll}.def -l ${work}/${dll}.lib)
  list(APPEND inputs ${work}/${dll}.lib)
endmacro()
