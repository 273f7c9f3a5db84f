# What `cmake --install` puts where. Nothing installed names the prefix, so the tree can be moved.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# In a directory of their own: InkSlot.h alone says too little about whose it is.
set(include_dir ${CMAKE_INSTALL_INCLUDEDIR}/TavrinLib)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/TavrinLib)
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(TARGETS TavrinLib EXPORT TavrinLib
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  PUBLIC_HEADER DESTINATION ${include_dir}
  INCLUDES DESTINATION ${include_dir} ${CMAKE_INSTALL_INCLUDEDIR})

# What hosts of other compilers link with; there are none but on Windows.
get_target_property(import_files TavrinLib TAVRIN_IMPORT_FILES)
if(import_files)
  install(FILES ${import_files} DESTINATION ${CMAKE_INSTALL_LIBDIR})
endif()

# The library needs no other package, so its targets are the whole configuration.
install(EXPORT TavrinLib NAMESPACE TavrinLib:: FILE TavrinLibConfig.cmake
  DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TavrinLibConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TavrinLibConfigVersion.cmake DESTINATION ${package_dir})

file(RELATIVE_PATH prefix_from_pkgconfig /prefix/${pkgconfig_dir} /prefix)
string(REGEX REPLACE "/$" "" prefix_from_pkgconfig ${prefix_from_pkgconfig})
set(pkgconfig_library -lTavrinLib)
if(MINGW)
  # By the file's name, as -static lets -l look for static libraries alone.
  set(pkgconfig_library -l:libTavrinLib.dll.a)
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/TavrinLib.pc.in ${PROJECT_BINARY_DIR}/TavrinLib.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/TavrinLib.pc DESTINATION ${pkgconfig_dir})

if(TARGET tavrin)
  file(RELATIVE_PATH lib_from_bin
    /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${CMAKE_INSTALL_LIBDIR})
  set_target_properties(tavrin PROPERTIES INSTALL_RPATH $ORIGIN/${lib_from_bin})
  install(TARGETS tavrin RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
