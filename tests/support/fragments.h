// Tables of fragments: what is read, what is reported, what is written again.
#pragma once

#include <gtest/gtest.h>
#include <tolva/node/node.h>

#include <memory>
#include <string_view>
#include <vector>

#include "support/nodes.h"

namespace tolva::test {

struct Fragment {
  node::IElement* (*make)();
  const wchar_t* document;
  ConfigResult result;
  Texts reports;
  std::string_view written;
};

/// The factory of a fragment's element.
template <auto Factory>
node::IElement* Make() {
  return Factory();
}

/// Each is read by a fresh node of its element, and written.
inline void ExpectAll(const std::vector<Fragment>& fragments) {
  for (const Fragment& one : fragments) {
    SCOPED_TRACE(testing::PrintToString(one.document));
    const std::unique_ptr<node::IElement> node(one.make());
    Diagnostics diagnostics;
    EXPECT_EQ(ReadText(*node, one.document), one.result);
    EXPECT_EQ(diagnostics.Take(), one.reports);
    EXPECT_EQ(WriteText(*node), one.written);
  }
}

}  // namespace tolva::test
