# What differs between the packages of one build. cpack reads this before each kind of them.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_COMPONENTS_ALL debian_runtime debian_development tool documentation)
  # The one line of all would stand before that of each.
  unset(CPACK_PACKAGE_DESCRIPTION_SUMMARY)
else()
  # Those of several components, unpacked in one place, are one tree.
  set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
endif()

# The time of every file in a package is that of the commit, whenever and wherever it is made.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  set(source ${CPACK_TAVRIN_SOURCE_DIR})
  execute_process(COMMAND git -C ${source} -c safe.directory=* log -1 --format=%ct
    OUTPUT_VARIABLE time OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE result ERROR_QUIET)
  if(NOT result EQUAL 0)
    # Without a repository, as in an archive of the sources, the files have it.
    file(TIMESTAMP ${source}/CMakeLists.txt time "%s" UTC)
  endif()
  set(ENV{SOURCE_DATE_EPOCH} ${time})
endif()
# A .zip has local times.
set(ENV{TZ} UTC)
