// The base of every element's class.
#pragma once

#include <string>
#include <utility>

#include "node/engine.h"

namespace tolva::node {

/// Implements the common slots of `I`, the interface of class `C`, by the table `C::kSchema`.
template <class C, class I>
class Node : public I {
 public:
  using Interface = I;

  ConfigResult WriteToXMLMgr(IXMLLiteManager* manager, int /*reserved*/,
                             int /*position*/) const override {
    return WriteNode(C::kSchema, *this, manager);
  }

  ConfigResult ReadFromXMLMgr(IXMLLiteManager* manager, int /*reserved*/) override {
    return ReadNode(C::kSchema, *this, manager);
  }

  void Clear() override { ClearNode(C::kSchema, *this); }

  I& CopyFrom(const I& other) override {
    Assign(static_cast<C&>(*this), static_cast<const C&>(other));
    return *this;
  }

 protected:
  /// The setter of a required attribute, or of an element's text.
  template <class T>
  ConfigResult SetRequired(T& field, const T* value) {
    if (value == nullptr) {
      ReportNullValue(C::kSchema, *this, &field);
      return kFailed;
    }
    field = *value;
    return kSuccess;
  }

  /// The setter of a required child.
  template <class Y>
  ConfigResult SetRequiredChild(Y& field, const typename Y::Interface* child) {
    if (child == nullptr) {
      ReportNullChild(C::kSchema, *this, &field);
      return kFailed;
    }
    Assign(field, static_cast<const Y&>(*child));
    return kSuccess;
  }
};

}  // namespace tolva::node
