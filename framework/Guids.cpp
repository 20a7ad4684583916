// Identifiers that the platform's headers declare and the compiler's libuuid lacks.

#include <windows.h>
#include <dispex.h>
#include <mshtmhst.h>
#include <mshtml.h>

const GUID CGID_DocHostCommandHandler = {0xf38bc242, 0xb950, 0x11d1, {0x89, 0x18, 0x00, 0xc0, 0x4f, 0xc2, 0xc8, 0x36}};

const CLSID CLSID_HTMLDocument = __uuidof(HTMLDocument);

const IID IID_ICustomDoc = __uuidof(ICustomDoc);
const IID IID_IDispatchEx = __uuidof(IDispatchEx);
const IID IID_IDocHostShowUI = __uuidof(IDocHostShowUI);
const IID IID_IDocHostUIHandler2 = __uuidof(IDocHostUIHandler2);
const IID IID_IHTMLDocument4 = __uuidof(IHTMLDocument4);
const IID IID_IHTMLDocument5 = __uuidof(IHTMLDocument5);
const IID IID_IHTMLDocument6 = __uuidof(IHTMLDocument6);
const IID IID_IHTMLStyle3 = __uuidof(IHTMLStyle3);
const IID IID_IMarkupContainer = __uuidof(IMarkupContainer);
const IID IID_IMarkupContainer2 = __uuidof(IMarkupContainer2);
const IID IID_IMarkupPointer = __uuidof(IMarkupPointer);
const IID IID_IMarkupPointer2 = __uuidof(IMarkupPointer2);
const IID IID_IMarkupServices = __uuidof(IMarkupServices);
const IID IID_IMarkupServices2 = __uuidof(IMarkupServices2);
const IID IID_IOmNavigator = __uuidof(IOmNavigator);
