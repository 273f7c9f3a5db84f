# Builds the C# binding with its sample and holds both against the tool and a host in C++:
# cmake -DMCS=... -DMONO=... -DSOURCE=... -DTOOL=... -DHOST=... -DWORK=... -P CSharpTest.cmake
cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/../support/Run.cmake)

file(REMOVE_RECURSE ${WORK})
file(COPY ${SOURCE}/examples/ DESTINATION ${WORK} FILES_MATCHING PATTERN "*.ini")
file(WRITE ${WORK}/numbers.ini "[printer]\nVersion=1\nModelName=Drücker 日本\nPrinterSize=-1,2,3\n"
  "SupportSizeSetting=-2\nWhite_White=0\nMode=7\nMode7=1,-2\nMode7SliceSize=0\n"
  "Mode7ColorThickness=1\nPrinterInkSlotNum=1\nColorCodeInkSlot1=999\nInkTypeCodeInkSlot1=113\n")
set(binding ${SOURCE}/bindings/csharp)
foreach(program ${binding}/Sample.cs ${CMAKE_CURRENT_LIST_DIR}/Facts.cs)
  cmake_path(GET program STEM name)
  run(${MCS} -warnaserror -out:${name}.exe ${program} ${binding}/TavrinLib.cs)
  check("compiling ${name}" result EQUAL 0)
endforeach()

foreach(name full-colour compact minimal numbers)
  # A path beyond ASCII, and texts in another encoding than UTF-8.
  set(definition "${WORK}/Gerät ${name}.def")
  run(${TOOL} encipher ${name}.ini ${definition})
  foreach(locale C.UTF-8 en_US.CP1252)
    set(ENV{LC_ALL} ${locale})
    run(${TOOL} show --format=json ${definition})
    set(shown "${output}")
    run(${MONO} Facts.exe ${definition})
    string(JSON same EQUAL "${shown}" "${output}")
    check("${name} in ${locale} is not\n${shown}" same AND result EQUAL 0)
  endforeach()
  set(ENV{LC_ALL} C.UTF-8)
  file(REMOVE ${WORK}/conditions)
  run(${HOST} ${definition} conditions)
  set(expected "${output}")
  run(${MONO} Sample.exe ${definition} conditions)
  check("the sample does not print\n${expected}" result EQUAL 0 AND output STREQUAL expected)
  file(SHA256 ${definition} loaded)
  file(SHA256 ${WORK}/conditions written)
  check("the conditions differ" loaded STREQUAL written)
endforeach()

run(${MONO} Sample.exe missing conditions)
check("a missing definition" result EQUAL 1 AND message MATCHES "^missing: .*Could not find")
run(${MONO} Facts.exe "Gerät full-colour.def" "Gerät compact.def")
check("sessions" result EQUAL 0 AND NOT output AND NOT message)
