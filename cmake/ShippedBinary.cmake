#[[
trelvix_ship(<target>)

Makes a program or library one that ships: in a release build its debugging information goes to a file beside it.
]]
function(trelvix_ship target)
    if(CMAKE_BUILD_TYPE STREQUAL "Release")
        add_custom_command(
            TARGET ${target}
            POST_BUILD
            COMMAND ${CMAKE_OBJCOPY} --only-keep-debug "$<TARGET_FILE:${target}>" "$<TARGET_FILE:${target}>.debug"
            COMMAND ${CMAKE_STRIP} --strip-all "$<TARGET_FILE:${target}>"
            COMMAND ${CMAKE_OBJCOPY} "--add-gnu-debuglink=$<TARGET_FILE:${target}>.debug" "$<TARGET_FILE:${target}>"
            VERBATIM)
    endif()
endfunction()
