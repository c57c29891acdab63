// What elements that name a browser's configuration files have in common.
#pragma once

#include <tolva/node/browser_files.h>

#include <string>

#include "node/accessors.h"

namespace tolva::node {

/// Base of an element's class `C`, which implements `I`.
template <class C, class I>
class BrowserFiles : public Node<C, I> {
 public:
  TOLVA_OPTIONAL(std::wstring, FirefoxConfigCFGFileName, firefoxConfigCFGFileName_);
  TOLVA_OPTIONAL(std::wstring, FirefoxConfigJSFileName, firefoxConfigJSFileName_);
};

template <class C>
inline constexpr Attribute kBrowserFilesAttributes[] = {
    Attr<&C::firefoxConfigCFGFileName_>(L"FirefoxConfigCFGFileName"),
    Attr<&C::firefoxConfigJSFileName_>(L"FirefoxConfigJSFileName"),
};

}  // namespace tolva::node
