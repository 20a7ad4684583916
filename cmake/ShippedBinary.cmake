#[[
trelvix_ship(<target>)

Makes a program or library one that ships: in a release build its debugging information goes to a file beside it.
]]
function(trelvix_ship target)
    if(CMAKE_BUILD_TYPE STREQUAL "Release")
        # The tools write the time into a binary, and the same sources are to give the same one.
        set(without_time ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=0)
        add_custom_command(
            TARGET ${target}
            POST_BUILD
            COMMAND ${without_time} ${CMAKE_OBJCOPY} --only-keep-debug "$<TARGET_FILE:${target}>" "$<TARGET_FILE:${target}>.debug"
            COMMAND ${without_time} ${CMAKE_STRIP} --strip-all "$<TARGET_FILE:${target}>"
            COMMAND ${without_time} ${CMAKE_OBJCOPY} "--add-gnu-debuglink=$<TARGET_FILE:${target}>.debug" "$<TARGET_FILE:${target}>"
            VERBATIM)
    endif()
endfunction()
