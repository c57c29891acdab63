// What the platform's XML reader and writer can do. Wine's XmlLite lacks some of what the system's
// has; tests of that are skipped there, by name.
#pragma once

namespace tolva::test {

/// Attribute values are escaped.
bool WriterEscapes();

/// A document has one root element.
bool WriterRefusesASecondRoot();

/// Input that breaks off comes to an end.
bool ReaderEndsTruncatedInput();

}  // namespace tolva::test

/// Ends a test that needs something that the platform cannot do.
#define TOLVA_REQUIRE(capability)                                               \
  if (!tolva::test::capability()) {                                             \
    GTEST_SKIP() << "the platform's XML layer fails the probe " << #capability; \
  }                                                                             \
  static_assert(true)
