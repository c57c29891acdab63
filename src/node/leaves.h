// The classes of elements whose value is their text: all but their names.
#pragma once

#include <tolva/node/leaves.h>

#include <string>

#include "node/node.h"

namespace tolva::node {

template <class C, class I>
class StringLeaf : public Node<C, I> {
 public:
  const std::wstring& GetContent() const override { return content_; }
  ConfigResult SetContent(const std::wstring* value) override {
    return this->SetRequired(content_, value);
  }

 protected:
  std::wstring content_;
};

template <class C, class I>
class OptionalLeaf : public Node<C, I> {
 public:
  ConfigResult GetContent(std::wstring* out) const override { return content_.Get(out); }
  ConfigResult SetContent(const std::wstring* value) override { return content_.Set(value); }

 protected:
  Optional<std::wstring> content_;
};

template <class C, class I>
class NumberLeaf : public Node<C, I> {
 public:
  DWORD GetContent() const override { return content_; }
  ConfigResult SetContent(const DWORD* value) override {
    return this->SetRequired(content_, value);
  }

 protected:
  DWORD content_ = 0;
};

}  // namespace tolva::node
