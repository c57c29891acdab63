// Bases of the classes of elements whose value is their text.
#pragma once

#include <tolva/node/leaves.h>

#include <string>

#include "node/accessors.h"

namespace tolva::node {

template <class C, class I>
class StringLeaf : public Node<C, I> {
 public:
  TOLVA_STRING(Content, content_);
};

template <class C, class I>
class OptionalLeaf : public Node<C, I> {
 public:
  TOLVA_OPTIONAL(std::wstring, Content, content_);
};

template <class C, class I>
class NumberLeaf : public Node<C, I> {
 public:
  TOLVA_NUMBER(Content, content_);
};

}  // namespace tolva::node
