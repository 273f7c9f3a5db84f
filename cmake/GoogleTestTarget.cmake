# GTest::gtest_main and GTest::gmock_main, whatever the build is for.
if(NOT CMAKE_CROSSCOMPILING)
  find_package(GTest REQUIRED)
  return()
endif()

# No package brings the libraries for a cross build; the one of the sources does.
set(TAVRIN_GOOGLETEST_SOURCE_DIR /usr/src/googletest CACHE PATH "Where GoogleTest's sources lie")
set(INSTALL_GTEST OFF)
set(BUILD_SHARED_LIBS OFF)
add_subdirectory(${TAVRIN_GOOGLETEST_SOURCE_DIR} ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
foreach(library gtest gtest_main gmock gmock_main)
  # Warnings in foreign code are nothing to act on.
  target_compile_options(${library} PRIVATE -w)
endforeach()
