# What `cmake --install` puts where, as components: runtime, development, tool and documentation.
# Nothing installed names the prefix, so the tree can be moved.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# In a directory of their own: InkSlot.h alone says too little about whose it is.
set(include_dir ${CMAKE_INSTALL_INCLUDEDIR}/TavrinLib)
set(examples_dir ${CMAKE_INSTALL_DOCDIR}/examples)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TavrinLibConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)

# tavrin_install_library(<libdir> <component prefix> [EXCLUDE_FROM_ALL]): the library and what it
# takes to link it.
function(tavrin_install_library libdir prefix)
  set(runtime COMPONENT ${prefix}runtime ${ARGN})
  set(development COMPONENT ${prefix}development ${ARGN})
  set(package_dir ${libdir}/cmake/TavrinLib)
  set(pkgconfig_dir ${libdir}/pkgconfig)

  # The library needs no other package, so its targets are the whole configuration.
  install(TARGETS TavrinLib EXPORT ${prefix}TavrinLib
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} ${runtime}
    LIBRARY DESTINATION ${libdir} ${runtime} NAMELINK_COMPONENT ${prefix}development
    ARCHIVE DESTINATION ${libdir} ${development}
    PUBLIC_HEADER DESTINATION ${include_dir} ${development}
    INCLUDES DESTINATION ${include_dir} ${CMAKE_INSTALL_INCLUDEDIR})
  install(EXPORT ${prefix}TavrinLib NAMESPACE TavrinLib:: FILE TavrinLibConfig.cmake
    DESTINATION ${package_dir} ${development})
  install(FILES ${PROJECT_BINARY_DIR}/TavrinLibConfigVersion.cmake
    DESTINATION ${package_dir} ${development})

  # What hosts of other compilers link with; there are none but on Windows.
  get_target_property(import_files TavrinLib TAVRIN_IMPORT_FILES)
  if(import_files)
    install(FILES ${import_files} DESTINATION ${libdir} ${development})
  endif()

  file(RELATIVE_PATH prefix_from_pkgconfig /prefix/${pkgconfig_dir} /prefix)
  string(REGEX REPLACE "/$" "" prefix_from_pkgconfig ${prefix_from_pkgconfig})
  set(pkgconfig_file ${PROJECT_BINARY_DIR}/${pkgconfig_dir}/TavrinLib.pc)
  set(pkgconfig_library -lTavrinLib)
  if(MINGW)
    # By the file's name, as -static lets -l look for static libraries alone.
    set(pkgconfig_library -l:libTavrinLib.dll.a)
  endif()
  configure_file(${PROJECT_SOURCE_DIR}/cmake/TavrinLib.pc.in ${pkgconfig_file} @ONLY)
  install(FILES ${pkgconfig_file} DESTINATION ${pkgconfig_dir} ${development})

  if(PROJECT_IS_TOP_LEVEL)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/ DESTINATION ${examples_dir} ${development})
  endif()
endfunction()

tavrin_install_library(${CMAKE_INSTALL_LIBDIR} "")
# In one set of exports alone a host's own exports can refer to the library.
if(PROJECT_IS_TOP_LEVEL AND CMAKE_LIBRARY_ARCHITECTURE)
  # Where Debian has the libraries of several architectures beside each other.
  tavrin_install_library(lib/${CMAKE_LIBRARY_ARCHITECTURE} debian_ EXCLUDE_FROM_ALL)
endif()

if(TARGET tavrin)
  file(RELATIVE_PATH lib_from_bin
    /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${CMAKE_INSTALL_LIBDIR})
  set_target_properties(tavrin PROPERTIES INSTALL_RPATH $ORIGIN/${lib_from_bin})
  install(TARGETS tavrin RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
  if(TARGET tavrin_manual)
    get_target_property(tools_dir tavrin BINARY_DIR)
    install(DIRECTORY ${tools_dir}/manual/ DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
  endif()
  if(NOT WIN32)
    set(completions ${PROJECT_SOURCE_DIR}/tools/completions)
    set(share ${CMAKE_INSTALL_DATADIR})
    install(FILES ${completions}/tavrin.bash RENAME tavrin
      DESTINATION ${share}/bash-completion/completions COMPONENT tool)
    install(FILES ${completions}/_tavrin
      DESTINATION ${share}/zsh/site-functions COMPONENT tool)
    install(FILES ${completions}/tavrin.fish
      DESTINATION ${share}/fish/vendor_completions.d COMPONENT tool)
  endif()
endif()

if(PROJECT_IS_TOP_LEVEL)
  install(FILES README.md CHANGELOG.md
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation)
  install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs COMPONENT documentation
    FILES_MATCHING PATTERN "*.md" PATTERN "*.png")
  if(TARGET tavrin_reference)
    get_target_property(reference_dir tavrin_reference BINARY_DIR)
    install(DIRECTORY ${reference_dir}/html DESTINATION ${CMAKE_INSTALL_DOCDIR}
      COMPONENT documentation OPTIONAL)
  endif()
endif()
