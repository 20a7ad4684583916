#[[
Target notimpl: E_NOTIMPL base classes for the browser's interfaces, made at build time from the platform's headers.
Link it, and #include "notimpl/WebBrowser2.h" gives CWebBrowser2NotImpl, derived from IWebBrowser2.
]]

set(NOTIMPL_INTERFACES
    ICustomDoc
    IDocHostUIHandler
    IHTMLBodyElement
    IHTMLDocument2
    IHTMLDocument3
    IHTMLDocument5
    IHTMLElement
    IHTMLElement2
    IHTMLElementCollection
    IHTMLEventObj
    IHTMLFrameBase2
    IHTMLFrameSetElement
    IHTMLFramesCollection2
    IHTMLStyle
    IHTMLStyle3
    IHTMLWindow2
    IMarkupContainer
    IMarkupPointer
    IMarkupServices
    IOleClientSite
    IOleContainer
    IOleObject
    IWebBrowser2)

set(NOTIMPL_HEADERS oaidl.h objidl.h oleidl.h ocidl.h docobj.h exdisp.h mshtml.h mshtmhst.h)

find_path(MINGW_INCLUDE_FOLDER exdisp.h REQUIRED)
find_package(Python3 REQUIRED COMPONENTS Interpreter)

list(TRANSFORM NOTIMPL_INTERFACES
    REPLACE "^I(.*)$" "${CMAKE_BINARY_DIR}/notimpl/\\1.h"
    OUTPUT_VARIABLE notimpl_outputs)

add_custom_command(
    OUTPUT ${notimpl_outputs}
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_LIST_DIR}/generate_notimpl.py
            --include-folder ${MINGW_INCLUDE_FOLDER}
            --headers ${NOTIMPL_HEADERS}
            --interfaces ${NOTIMPL_INTERFACES}
            --output-folder ${CMAKE_BINARY_DIR}/notimpl
    DEPENDS ${CMAKE_CURRENT_LIST_DIR}/generate_notimpl.py
    COMMENT "Generating E_NOTIMPL base classes"
    VERBATIM)
add_custom_target(notimpl_headers DEPENDS ${notimpl_outputs})

# The build folder is on the include path of everything, so linking the target only brings the order of the build.
add_library(notimpl INTERFACE)
add_dependencies(notimpl notimpl_headers)
