// What elements hold, in UTF-8.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "cli/tables.h"

namespace tolva::cli {

/// An element, wherever it is kept.
class ElementView {
 public:
  ElementView() = default;
  ElementView(const ElementView&) = delete;
  ElementView& operator=(const ElementView&) = delete;

  /// An ENUM as its text, a number as its digits; nothing if the attribute is absent.
  virtual std::optional<std::string> ValueOf(const Attribute& attribute) const = 0;

  /// The text of an element whose value is its text, likewise.
  virtual std::optional<std::string> Text() const = 0;

  /// Calls the function with each element of that kind that is there.
  virtual void ForEach(const Child& child,
                       const std::function<void(const ElementView&)>& visit) const = 0;

 protected:
  ~ElementView() = default;
};

/// An element that is a node.
class NodeView final : public ElementView {
 public:
  NodeView(const Element& element, node::IElement& node) : element_(element), node_(node) {}

  std::optional<std::string> ValueOf(const Attribute& attribute) const override;
  std::optional<std::string> Text() const override;
  void ForEach(const Child& child,
               const std::function<void(const ElementView&)>& visit) const override;

 private:
  const Element& element_;
  node::IElement& node_;
};

/// The digits of the number that the library reads from the text of a value in that element;
/// nothing if it refuses the text.
std::optional<std::string> NumberAsRead(const Element& element, const Value& value,
                                        std::string_view text);

}  // namespace tolva::cli
