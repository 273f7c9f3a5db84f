# Adds to the files of Debian's packages what Debian expects of each, and finds out what they depend
# on. cpack runs this once the components are installed and before they are packed.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
  return()
endif()

set(stage ${CPACK_TEMPORARY_DIRECTORY})
set(control ${CPACK_TAVRIN_DEBIAN_CONTROL})
set(version ${CPACK_PACKAGE_VERSION})
set(package ${CPACK_DEBIAN_DEBIAN_RUNTIME_PACKAGE_NAME})
set(library ${CPACK_TAVRIN_DEBIAN_LIBRARY})

function(run)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${control} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# What dpkg's tools take for the directory of a source package.
file(REMOVE_RECURSE ${control})
file(WRITE ${control}/debian/control "Source: tavrinlib\n\nPackage: ${package}\nArchitecture: any\n")

# Beside the symbols that no one needs cpack leaves the compiler's name.
file(GLOB programs ${stage}/tool/usr/bin/*)
run(strip --remove-section=.comment ${stage}/debian_runtime/${library} ${programs})

# What a host depends on follows from the exports that it uses.
configure_file(${CMAKE_CURRENT_LIST_DIR}/symbols.in ${control}/template @ONLY)
run(dpkg-gensymbols -q -c4 -p${package} -v${version} -P${stage}/debian_runtime
  -e${stage}/debian_runtime/${library} -I${control}/template -O${control}/symbols)
set(name ${CPACK_PACKAGE_NAME})
file(WRITE ${control}/shlibs
  "lib${name} ${CPACK_PACKAGE_VERSION_MAJOR} ${package} (>= ${version})\n")
file(WRITE ${control}/triggers "activate-noawait ldconfig\n")

# depends_on(<variable> <component> <file>): the packages of the libraries that it is linked with.
function(depends_on variable component file)
  file(MAKE_DIRECTORY ${stage}/${component}/DEBIAN)
  execute_process(COMMAND dpkg-shlibdeps -S${stage}/debian_runtime -O ${stage}/${component}/${file}
    WORKING_DIRECTORY ${control} OUTPUT_VARIABLE packages OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE "^shlibs:Depends=" "" packages "${packages}")
  set(${variable} ${packages} PARENT_SCOPE)
endfunction()

file(COPY ${control}/symbols DESTINATION ${stage}/debian_runtime/DEBIAN)
depends_on(CPACK_DEBIAN_DEBIAN_RUNTIME_PACKAGE_DEPENDS debian_runtime ${library})
if(EXISTS ${stage}/tool)
  # The system knows where the library is.
  file(RPATH_REMOVE FILE ${stage}/tool/usr/bin/tavrin)
  depends_on(CPACK_DEBIAN_TOOL_PACKAGE_DEPENDS tool usr/bin/tavrin)
  # Where Debian's zsh looks.
  set(functions ${stage}/tool/usr/share/zsh)
  file(RENAME ${functions}/site-functions ${functions}/vendor-completions)
endif()
file(REMOVE_RECURSE ${stage}/debian_runtime/DEBIAN ${stage}/tool/DEBIAN)

# The manual pages and what changed, compressed, for which the time in them has to go.
set(readable OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} upper)
  set(documents ${stage}/${component}/usr/share/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
  file(WRITE ${documents}/changelog
    "tavrinlib (${version}) unstable; urgency=medium\n\n"
    "  * Release ${version}. What changed stands in CHANGELOG.md, which comes with the\n"
    "    package tavrinlib-doc.\n\n"
    " -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")
  file(CHMOD ${documents}/changelog PERMISSIONS ${readable})
  file(GLOB pages ${stage}/${component}/usr/share/man/man*/*)
  run(gzip -9n ${documents}/changelog ${pages})
endforeach()
set(documents ${stage}/debian_development/usr/share/doc/libtavrinlib-dev)
file(CREATE_LINK ../${name}/examples ${documents}/examples SYMBOLIC)
set(share ${stage}/documentation/usr/share)
if(EXISTS ${share}/doc/${name}/html)
  file(WRITE ${share}/doc-base/tavrinlib-doc.tavrinlib
    "Document: tavrinlib\n"
    "Title: The interface of TavrinLib\n"
    "Abstract: What host software learns of a full-colour 3D inkjet printer, and how.\n"
    "Section: Programming/C++\n\n"
    "Format: HTML\n"
    "Index: /usr/share/doc/${name}/html/index.html\n"
    "Files: /usr/share/doc/${name}/html/*.html\n")
  file(CHMOD ${share}/doc-base/tavrinlib-doc.tavrinlib PERMISSIONS ${readable})
endif()
