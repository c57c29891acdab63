// The common part of the elements that name a browser's configuration files.
#pragma once

#include <tolva/node/browser_files.h>

#include <string>

#include "node/node.h"

namespace tolva::node {

/// All of an element's class `C` but its name; it implements `I`.
template <class C, class I>
class BrowserFiles : public Node<C, I> {
 public:
  ConfigResult GetFirefoxConfigCFGFileName(std::wstring* out) const override {
    return firefoxConfigCFGFileName_.Get(out);
  }
  ConfigResult SetFirefoxConfigCFGFileName(const std::wstring* value) override {
    return firefoxConfigCFGFileName_.Set(value);
  }
  ConfigResult GetFirefoxConfigJSFileName(std::wstring* out) const override {
    return firefoxConfigJSFileName_.Get(out);
  }
  ConfigResult SetFirefoxConfigJSFileName(const std::wstring* value) override {
    return firefoxConfigJSFileName_.Set(value);
  }

 protected:
  static const Attribute kAttributes[];

 private:
  Optional<std::wstring> firefoxConfigCFGFileName_;
  Optional<std::wstring> firefoxConfigJSFileName_;
};

template <class C, class I>
constinit const Attribute BrowserFiles<C, I>::kAttributes[] = {
    Attr<&BrowserFiles::firefoxConfigCFGFileName_>(L"FirefoxConfigCFGFileName"),
    Attr<&BrowserFiles::firefoxConfigJSFileName_>(L"FirefoxConfigJSFileName"),
};

}  // namespace tolva::node
