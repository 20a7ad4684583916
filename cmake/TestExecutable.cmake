# Tests are compiled far more often than they are run.
set(test_options "$<$<COMPILE_LANGUAGE:CXX>:-O0>")

add_library(precompiled_for_tests OBJECT EXCLUDE_FROM_ALL cmake/Precompiled.cpp)
target_precompile_headers(precompiled_for_tests PRIVATE
    "${CMAKE_SOURCE_DIR}/cmake/Precompiled.h"
    <gmock/gmock.h>)
target_link_libraries(precompiled_for_tests PRIVATE GTest::gmock)
target_compile_options(precompiled_for_tests PRIVATE ${test_options})

#[[
trelvix_add_tests(<name> SOURCES <file>... [LIBRARIES <target>...] [TIMEOUT <seconds>] [GUI] [OWN_PREFIX] [APART])

Makes a test program of GoogleTest sources, which is one test for ctest: a process of Wine for each of its tests would take
longer than the tests.
- TIMEOUT: how long the program may take, or one test of it where they run apart; 300 seconds if not given.
- GUI: the tests show windows, move the pointer, or stand in for a registered class, which other processes of the session
  then find as well, so no other such program runs meanwhile.
- OWN_PREFIX: the tests change what other tests rely on (the registration, a killed server); the program has a Wine prefix
  that only it uses, and in it a Wine session of its own, and nothing is registered there.
- APART: each test is one for ctest and has a process of its own, and with OWN_PREFIX a session too.
]]
function(trelvix_add_tests name)
    cmake_parse_arguments(arg "GUI;OWN_PREFIX;APART" "TIMEOUT" "SOURCES;LIBRARIES" ${ARGN})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 300)
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} GTest::gmock_main)
    target_precompile_headers(${name} REUSE_FROM precompiled_for_tests)
    target_compile_options(${name} PRIVATE ${test_options})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")

    set(properties TIMEOUT ${arg_TIMEOUT})
    if(arg_GUI OR arg_OWN_PREFIX)
        list(APPEND properties RESOURCE_LOCK display)
    endif()
    if(arg_OWN_PREFIX)
        set(prefix "${CMAKE_BINARY_DIR}/prefix-${name}")
        set(scripts "${CMAKE_SOURCE_DIR}/scripts")
        set_target_properties(${name} PROPERTIES
            CROSSCOMPILING_EMULATOR "${scripts}/wine-session;${prefix};${scripts}/wine-test;${prefix}")
    endif()
    if(arg_APART)
        gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 PROPERTIES ${properties})
    else()
        add_test(NAME ${name} COMMAND ${name})
        set_tests_properties(${name} PROPERTIES ${properties})
    endif()
endfunction()
