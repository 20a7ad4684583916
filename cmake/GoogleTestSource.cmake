# GoogleTest and GoogleMock for Windows are built from the sources that Debian's package googletest installs.
set(GOOGLETEST_SOURCE "/usr/src/googletest" CACHE PATH "Sources of GoogleTest and GoogleMock")
set(INSTALL_GTEST OFF)
add_subdirectory("${GOOGLETEST_SOURCE}" "${CMAKE_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)
include(GoogleTest)
