# Directories are made as the umask of who runs cpack has it, but everyone is to look into them.
cmake_policy(VERSION 3.22)  # a link is no directory
file(GLOB_RECURSE paths LIST_DIRECTORIES true ${CPACK_TEMPORARY_DIRECTORY}/*)
foreach(path IN LISTS paths)
  if(IS_DIRECTORY ${path} AND NOT IS_SYMLINK ${path})
    file(CHMOD ${path} PERMISSIONS
      OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
  endif()
endforeach()
