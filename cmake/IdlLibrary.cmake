# widl finds the standard types' interface definitions and type libraries where Debian's Wine packages put them.
set(WIDL_IMPORT_FOLDER "/usr/include/wine/wine/windows" CACHE PATH "Folder of oaidl.idl")
set(WIDL_TYPELIB_FOLDER "/usr/lib/x86_64-linux-gnu/wine/x86_64-windows" CACHE PATH "Folder of stdole2.tlb")

#[[
add_idl_library(<target> <file.idl>)

Compiles an interface definition into a header, a type library and a static library of its identifiers. Header and type
library get the definition's path below the build folder: "#include "folder/file.h"" finds the first, and a resource
script that embeds the second names "folder/file.tlb" and depends on the target.
]]
function(add_idl_library target idl)
    cmake_path(ABSOLUTE_PATH idl BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}" OUTPUT_VARIABLE source)
    cmake_path(GET source STEM name)
    set(base "${CMAKE_CURRENT_BINARY_DIR}/${name}")
    set(widl
        ${WIDL_COMPILER}
        --win64
        -I "${WIDL_IMPORT_FOLDER}"
        -I "${CMAKE_SOURCE_DIR}"
        -L "${WIDL_TYPELIB_FOLDER}")
    add_custom_command(
        OUTPUT "${base}.h" "${base}.tlb" "${base}_i.cpp"
        COMMAND ${widl} -h -o "${base}.h" "${source}"
        COMMAND ${widl} -u -o "${base}_i.cpp" "${source}"
        # widl writes the time into a type library, and the same sources are to give the same binary.
        COMMAND faketime -f "2000-01-01 00:00:00" ${widl} -t -o "${base}.tlb" "${source}"
        DEPENDS "${source}"
        COMMENT "Compiling ${idl}"
        VERBATIM)
    add_library(${target} STATIC "${base}_i.cpp" "${base}.h")
    add_custom_target(${target}_typelib DEPENDS "${base}.tlb")
    add_dependencies(${target} ${target}_typelib)
endfunction()
