# Debian's packages, each of one component. What they need beside the installed files comes from
# DebianFiles.cmake.
set(package libtavrinlib${PROJECT_VERSION_MAJOR})
set(control ${PROJECT_BINARY_DIR}/debian)
set(CPACK_TAVRIN_DEBIAN_CONTROL ${control})
set(CPACK_TAVRIN_DEBIAN_LIBRARY
  usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/libTavrinLib.so.${PROJECT_VERSION})
list(PREPEND CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/packages/DebianFiles.cmake)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SOURCE tavrinlib)

# tavrin_debian_package(<component> <package> <section> <Multi-Arch> <summary> <description>)
function(tavrin_debian_package component package section multiarch summary description)
  string(TOUPPER ${component} component)
  set(name CPACK_DEBIAN_${component})
  set(${name}_PACKAGE_NAME ${package} PARENT_SCOPE)
  # CMake has no variable for the second field before 3.31.
  set(${name}_PACKAGE_SECTION "${section}\nMulti-Arch: ${multiarch}" PARENT_SCOPE)
  set(${name}_DESCRIPTION "${summary}\n${description}" PARENT_SCOPE)
endfunction()

string(CONCAT what
  "TavrinLib tells host software what a full-colour 3D inkjet printer can do and\n"
  "how it is set up: build volume, print modes, support, switches and inks, as an\n"
  "enciphered definition file describes them.\n\n")

tavrin_debian_package(debian_runtime ${package} libs same
  "What a full-colour 3D inkjet printer can do, for its host software"
  "${what}This package has the shared library.")
set(CPACK_DEBIAN_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA
  ${control}/symbols ${control}/shlibs ${control}/triggers)

tavrin_debian_package(debian_development libtavrinlib-dev libdevel same
  "What a full-colour 3D inkjet printer can do - development files"
  "${what}This package has the headers for C and C++, what CMake and pkg-config find the\nlibrary with, and example hosts.")
set(CPACK_DEBIAN_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${package} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS tavrinlib-doc)

tavrin_debian_package(tool tavrin utils foreign
  "Printer definitions of 3D inkjet printers, authored and checked"
  "${what}This package has the program of those who author definitions. It enciphers and\ndeciphers them, checks them and shows what the library makes of them.")
set(CPACK_DEBIAN_TOOL_PACKAGE_SUGGESTS tavrinlib-doc)

tavrin_debian_package(documentation tavrinlib-doc doc foreign
  "What a full-colour 3D inkjet printer can do - documentation"
  "${what}This package has the guide for developers of hosts, the description of the\ndefinition file and the reference of the interface.")
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
