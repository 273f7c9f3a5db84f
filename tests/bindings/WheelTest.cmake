# Builds the Python packages and runs the tests with each installed in a fresh environment, without
# network: cmake -DSOURCE=... -DLIBRARY=... -DVERSION=... -DPYTHON=... -DWORK=... -P WheelTest.cmake
cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/../contract/Expect.cmake)

set(environment ${WORK}/environment)
set(test ${environment}/bin/python -m pytest -q -p no:cacheprovider
  ${CMAKE_CURRENT_LIST_DIR}/test_tavrinlib.py)
set(wheel tavrinlib-${VERSION}-py3-none-linux_x86_64.whl)
set(source tavrinlib-${VERSION}.tar.gz)

# install(<package>): alone in a new environment, which sees pytest among the system's packages.
function(install package)
  file(REMOVE_RECURSE ${environment})
  ask(log ${PYTHON} -m venv --system-site-packages ${environment})
  ask(log ${environment}/bin/pip install --no-index --no-build-isolation ${WORK}/${package})
  execute_process(COMMAND ${environment}/bin/python -c "import tavrinlib; print(tavrinlib.__file__)"
    WORKING_DIRECTORY ${WORK} OUTPUT_VARIABLE file COMMAND_ERROR_IS_FATAL ANY)
  if(NOT file MATCHES "^${environment}/")
    message(FATAL_ERROR "${package}: the tests would run with ${file}")
  endif()
endfunction()

# run(<what> <command>...)
function(run what)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${WORK} RESULT_VARIABLE result)
  if(result)
    message(SEND_ERROR "${what}: ${result}")
  endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
ask(names ${SOURCE}/scripts/build-wheel ${LIBRARY} ${WORK})
string(REGEX MATCHALL "[^\n]+" names "${names}")
expect_same("The packages" "${wheel};${source}" "${names}")

install(${wheel})
run("The wheel's tests" ${test})
install(${source})
run("The tests of what has no library" ${CMAKE_COMMAND} -E env TAVRINLIB_LIBRARY=${LIBRARY}
  ${test} -k "refuses or values")
