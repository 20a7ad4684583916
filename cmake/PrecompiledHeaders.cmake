# The headers are precompiled once and then shared by all targets that are compiled with the same options.
add_library(precompiled OBJECT cmake/Precompiled.cpp)
target_precompile_headers(precompiled PRIVATE "${CMAKE_SOURCE_DIR}/cmake/Precompiled.h")

#[[
trelvix_precompile_headers(<target>)

Spares the target the compilation of the platform's large headers. A source that must see a header before them sets its
own SKIP_PRECOMPILE_HEADERS property.
]]
function(trelvix_precompile_headers target)
    target_precompile_headers(${target} REUSE_FROM precompiled)
endfunction()
