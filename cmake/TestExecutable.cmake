#[[
trelvix_add_tests(<name> SOURCES <file>... [LIBRARIES <target>...] [TIMEOUT <seconds>] [GUI] [OWN_PREFIX])

Makes a test program of GoogleTest sources and tells ctest each of its tests.
- TIMEOUT: how long one test may take, 60 seconds if not given.
- GUI: the tests show windows or move the pointer, so they run one at a time.
- OWN_PREFIX: the tests change what other tests rely on (the registration, a killed server); they run one at a time in a
  Wine prefix that only they use, each in a Wine session of its own, and nothing is registered there.
]]
function(trelvix_add_tests name)
    cmake_parse_arguments(arg "GUI;OWN_PREFIX" "TIMEOUT" "SOURCES;LIBRARIES" ${ARGN})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 60)
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} GTest::gmock_main)
    trelvix_precompile_headers(${name})
    # Tests are compiled far more often than they are run.
    target_compile_options(${name} PRIVATE "$<$<COMPILE_LANGUAGE:CXX>:-O0>")
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")

    set(properties TIMEOUT ${arg_TIMEOUT})
    if(arg_GUI OR arg_OWN_PREFIX)
        list(APPEND properties RESOURCE_LOCK display)
    endif()
    if(arg_OWN_PREFIX)
        set(prefix "${CMAKE_BINARY_DIR}/prefix-${name}")
        set(scripts "${CMAKE_SOURCE_DIR}/scripts")
        set_target_properties(${name} PROPERTIES
            CROSSCOMPILING_EMULATOR "${scripts}/wine-session;${prefix};${scripts}/wine;${prefix}")
    endif()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 PROPERTIES ${properties})
endfunction()
