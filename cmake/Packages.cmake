# What `cpack` makes of the installed files: one archive of everything, or one of each component
# with -D CPACK_ARCHIVE_COMPONENT_INSTALL=ON, and Debian's packages.
set(CPACK_PACKAGE_VENDOR "TavrinLib")
set(CPACK_PACKAGE_CONTACT "TavrinLib maintainers <maintainers@tavrin.example>")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development tool documentation)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/packages/Options.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/packages/Permissions.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/packages/Order.cmake)
set(CPACK_TAVRIN_SOURCE_DIR ${PROJECT_SOURCE_DIR})

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
  set(CPACK_GENERATOR TGZ)
endif()
string(TOLOWER ${system} system)
set(CPACK_PACKAGE_FILE_NAME TavrinLib-${PROJECT_VERSION}-${system})

find_program(TAVRIN_DPKG_GENSYMBOLS dpkg-gensymbols)
mark_as_advanced(TAVRIN_DPKG_GENSYMBOLS)
set(TAVRIN_MAKES_DEBIAN_PACKAGES OFF)
if(CMAKE_LIBRARY_ARCHITECTURE AND TAVRIN_DPKG_GENSYMBOLS
    AND NOT CMAKE_CROSSCOMPILING AND NOT TAVRIN_SANITIZERS)
  set(TAVRIN_MAKES_DEBIAN_PACKAGES ON)
  list(APPEND CPACK_GENERATOR DEB)
  include(packages/Debian)
endif()

include(CPack)
