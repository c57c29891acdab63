// The platform as the library sees it: the Windows interfaces that it calls, under their own names,
// and no others.
//
//                    files, streams, UTF-8,       XML reader and writer
//                    last error
//   Windows          the system                   the system's XmlLite, or platform/xml/
//   elsewhere        platform/posix/              platform/xml/
//
// This header and system.h alone know which; TOLVA_OWN_XML_LAYER is set by the build. Code that
// includes this header says `using namespace tolva::platform;` and then calls everything by its
// plain Windows name.
#pragma once

#include "platform/com_ptr.h"
#include "platform/system.h"

#if defined(TOLVA_OWN_XML_LAYER)
#include "platform/xml/xmllite.h"
#else
#include "platform/windows/xmllite.h"
#endif
