# cpack puts files into an archive in the order in which the file system names them, and under the
# name of who runs it. This packs them once more, in order and under no one's name.
cmake_policy(VERSION 3.22)
if(CPACK_GENERATOR STREQUAL "DEB")
  return()  # has both right
endif()

set(directory ${CPACK_TOPLEVEL_DIRECTORY}/unpacked)
foreach(archive IN LISTS CPACK_PACKAGE_FILES)
  file(REMOVE_RECURSE ${directory})
  file(ARCHIVE_EXTRACT INPUT ${archive} DESTINATION ${directory})
  if(CPACK_GENERATOR STREQUAL "TGZ")
    execute_process(
      COMMAND tar --create --sort=name --mtime=@$ENV{SOURCE_DATE_EPOCH}
        --owner=0 --group=0 --numeric-owner --mode=go=rX ${CPACK_PACKAGE_FILE_NAME}
      COMMAND gzip -9n
      WORKING_DIRECTORY ${directory} OUTPUT_FILE ${archive} COMMAND_ERROR_IS_FATAL ANY)
  else()
    file(GLOB_RECURSE files RELATIVE ${directory} ${directory}/*)  # sorted
    execute_process(COMMAND ${CMAKE_COMMAND} -E tar c ${archive} --format=zip ${files}
      WORKING_DIRECTORY ${directory} COMMAND_ERROR_IS_FATAL ANY)
  endif()
endforeach()
file(REMOVE_RECURSE ${directory})
