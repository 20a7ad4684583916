// Identifiers that the platform's headers declare and the compiler's libuuid lacks.

#include <windows.h>
#include <mshtmhst.h>
#include <mshtml.h>

const GUID CGID_DocHostCommandHandler = {0xf38bc242, 0xb950, 0x11d1, {0x89, 0x18, 0x00, 0xc0, 0x4f, 0xc2, 0xc8, 0x36}};

const IID IID_ICustomDoc = __uuidof(ICustomDoc);
const IID IID_IMarkupContainer = __uuidof(IMarkupContainer);
const IID IID_IMarkupServices = __uuidof(IMarkupServices);
