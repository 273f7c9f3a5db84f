# What `cpack` makes of the installed files.
set(CPACK_PACKAGE_VENDOR "TavrinLib")
set(CPACK_PACKAGE_CONTACT "TavrinLib maintainers <maintainers@tavrin.example>")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)

set(system ${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
if(WIN32)
  set(CPACK_GENERATOR ZIP)
  # Any host can use either, but they differ in the import libraries.
  if(MINGW)
    string(APPEND system -mingw)
  else()
    string(APPEND system -msvc)
  endif()
else()
  set(CPACK_GENERATOR TGZ DEB)
endif()
string(TOLOWER ${system} system)
set(CPACK_PACKAGE_FILE_NAME TavrinLib-${PROJECT_VERSION}-${system})

set(CPACK_DEBIAN_PACKAGE_NAME tavrinlib)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY >=)
# The tool's own library lies in the same package.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/bin)

include(CPack)
