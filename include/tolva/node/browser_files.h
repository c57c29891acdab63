// The names of a browser's configuration files, which several documents hold.
#pragma once

#include <string>

#include <tolva/node/node.h>
#include <tolva/types.h>

namespace tolva::node {

/// The two files that make up the browser configuration of the agent. `Self` is the interface of
/// the element.
template <class Self>
class IBrowserFiles : public INode {
 public:
  virtual Self& CopyFrom(const Self& other) = 0;

  /// `FirefoxConfigCFGFileName`: the name of the CFG file of the Firefox configuration. Optional.
  virtual ConfigResult GetFirefoxConfigCFGFileName(std::wstring* out) const = 0;
  virtual ConfigResult SetFirefoxConfigCFGFileName(const std::wstring* value) = 0;

  /// `FirefoxConfigJSFileName`: the name of the JS file of the Firefox configuration. Optional.
  virtual ConfigResult GetFirefoxConfigJSFileName(std::wstring* out) const = 0;
  virtual ConfigResult SetFirefoxConfigJSFileName(const std::wstring* value) = 0;
};

}  // namespace tolva::node
