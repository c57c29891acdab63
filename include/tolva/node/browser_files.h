// The names of a browser's configuration files, as several documents hold them.
#pragma once

#include <string>

#include <tolva/node/node.h>
#include <tolva/types.h>

namespace tolva::node {

/// Two files of which the agent makes a browser's configuration; `Self` is the element's interface.
template <class Self>
class IBrowserFiles : public INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// `FirefoxConfigCFGFileName`. Optional.
  virtual ConfigResult GetFirefoxConfigCFGFileName(std::wstring* out) const = 0;
  virtual ConfigResult SetFirefoxConfigCFGFileName(const std::wstring* value) = 0;

  /// `FirefoxConfigJSFileName`. Optional.
  virtual ConfigResult GetFirefoxConfigJSFileName(std::wstring* out) const = 0;
  virtual ConfigResult SetFirefoxConfigJSFileName(const std::wstring* value) = 0;
};

}  // namespace tolva::node
