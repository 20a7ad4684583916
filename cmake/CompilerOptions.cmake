set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

set(CMAKE_CXX_FLAGS_DEBUG "-Og -g")
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -g1")

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_SHARED_LIBRARY_PREFIX "")

# Includes are written from the root of the repository; generated headers lie in the build folder likewise.
include_directories("${CMAKE_SOURCE_DIR}" "${CMAKE_BINARY_DIR}")

add_compile_definitions(UNICODE _UNICODE _WIN32_WINNT=0x0601 NOMINMAX)

# A resource compiler knows no such options, so they are for C++ alone.
set(cxx_options
    -Wall
    -Wextra
    -Werror
    # With so many headers the compiler stops tracking columns, and says so with a note for each file.
    -Wno-misleading-indentation
    -ffunction-sections
    -fdata-sections
    "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=."
    "-ffile-prefix-map=${CMAKE_BINARY_DIR}=build")
add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:${cxx_options}>")
set(CMAKE_RC_FLAGS "${CMAKE_RC_FLAGS} --codepage=65001")

add_link_options(
    -static
    -static-libgcc
    -static-libstdc++
    LINKER:--gc-sections
    LINKER:--high-entropy-va
    LINKER:--dynamicbase
    LINKER:--nxcompat
    LINKER:--no-insert-timestamp
    LINKER:--exclude-all-symbols)
