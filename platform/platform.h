// The platform: the Windows interfaces that the library calls, under their own names.
//
//                    files, streams, UTF-8,       XML reader and writer
//                    last error
//   Windows          the system                   the system's XmlLite, or platform/xml/
//   elsewhere        platform/posix/              platform/xml/
//
// Only this header and system.h select an implementation. The build defines TOLVA_OWN_XML_LAYER for
// platform/xml/. Code that includes this header writes `using namespace tolva::platform;` and then
// uses the plain Windows names.
#pragma once

#include "platform/com_ptr.h"
#include "platform/open_to_read.h"
#include "platform/system.h"

#if defined(TOLVA_OWN_XML_LAYER)
#include "platform/xml/reader.h"
#include "platform/xml/writer.h"
#else
#include "platform/windows/xmllite.h"
#endif
