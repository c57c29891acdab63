// Checks of accessors: each reaches its own field, and no other.
#pragma once

#include <gtest/gtest.h>
#include <tolva/node/node.h>

#include <memory>
#include <string>

#include "support/nodes.h"

namespace tolva::test {

/// What a setter points to.
template <class Setter>
struct SetterTraits;
template <class C, class T>
struct SetterTraits<ConfigResult (C::*)(const T*)> {
  using Value = T;
};

/// Goes through the accessors of one element, each on a fresh node.
template <class I>
class Accessors {
 public:
  using Factory = I* (*)();

  /// `element` is the name in reports; `param` the word that the document has for a null value.
  Accessors(const wchar_t* element, Factory factory, const wchar_t* param = L"parama")
      : element_(element), factory_(factory), param_(param) {}

  /// An attribute that is a number or a string, by the getter's form required or optional.
  template <class Getter, class Setter>
  Accessors& Attribute(const wchar_t* name, Getter getter, Setter setter) {
    using T = typename SetterTraits<Setter>::Value;
    T value{};
    std::string written;
    if constexpr (std::is_same_v<T, std::wstring>) {
      value = L"a value";
      written = "a value";
    } else {
      value = 4711;
      written = "4711";
    }
    return Check(name, getter, setter, value, written);
  }

  /// An ENUM attribute, by one of its values.
  template <class Getter, class Setter>
  Accessors& Enum(const wchar_t* name, Getter getter, Setter setter, DWORD value,
                  const char* text) {
    return Check(name, getter, setter, value, text);
  }

  template <class Y>
  Accessors& Child(const wchar_t* name, Y* (I::*getter)(), ConfigResult (I::*setter)(const Y*),
                   Y* (*make)()) {
    SCOPED_TRACE(testing::PrintToString(name));
    const auto node = Make();
    const std::unique_ptr<Y> child(make());
    EXPECT_EQ((node.get()->*setter)(child.get()), 0);
    EXPECT_EQ((node.get()->*setter)((node.get()->*getter)()), 0);
    ExpectContains(*node, name, true);
    Diagnostics diagnostics;
    EXPECT_EQ((node.get()->*setter)(nullptr), -101);
    EXPECT_EQ(diagnostics.Take(),
              Texts{L"XMLManager: Set element failed due to param is NULL. element:" +
                    std::wstring(name)});
    return *this;
  }

  template <class Y>
  Accessors& Child(const wchar_t* name, ConfigResult (I::*getter)(Y**),
                   ConfigResult (I::*setter)(const Y*), Y* (*make)()) {
    SCOPED_TRACE(testing::PrintToString(name));
    const auto node = Make();
    const std::unique_ptr<Y> child(make());
    Y* found = nullptr;
    EXPECT_EQ((node.get()->*getter)(&found), 1);
    EXPECT_EQ(found, nullptr);
    ExpectContains(*node, name, false);
    EXPECT_EQ((node.get()->*setter)(child.get()), 0);
    EXPECT_EQ((node.get()->*getter)(&found), 0);
    EXPECT_NE(found, nullptr);
    ExpectContains(*node, name, true);
    EXPECT_EQ((node.get()->*setter)(nullptr), 0);
    EXPECT_EQ((node.get()->*getter)(nullptr), 1);
    return *this;
  }

  template <class Count, class At, class Add, class Insert, class Remove, class RemoveAll, class Y>
  Accessors& List(const wchar_t* name, Count count, At at, Add add, Insert insert, Remove remove,
                  RemoveAll remove_all, Y* (*make)()) {
    SCOPED_TRACE(testing::PrintToString(name));
    const auto node = Make();
    const std::unique_ptr<Y> item(make());
    EXPECT_EQ((node.get()->*add)(item.get()), 0);
    ExpectContains(*node, name, true);
    Y* const first = (node.get()->*at)(0);
    EXPECT_EQ((node.get()->*insert)(0, first), 0);
    EXPECT_EQ((node.get()->*at)(1), first);
    EXPECT_EQ((node.get()->*at)(2), nullptr);
    (node.get()->*remove)(0);
    EXPECT_EQ((node.get()->*at)(0), first);
    EXPECT_EQ((node.get()->*count)(), 1U);
    (node.get()->*remove_all)();
    EXPECT_EQ((node.get()->*count)(), 0U);
    ExpectContains(*node, name, false);
    return *this;
  }

 private:
  std::unique_ptr<I> Make() const { return std::unique_ptr<I>(factory_()); }

  static std::string Narrow(const wchar_t* name) {
    const std::wstring wide = name;
    return {wide.begin(), wide.end()};
  }

  static void ExpectContains(const I& node, const wchar_t* child, bool expected) {
    const std::string text = WriteText(node);
    // The node's own start tag may bear the same name.
    const std::size_t inside = text.find('<', 1);
    const bool found =
        inside != std::string::npos && text.find("<" + Narrow(child), inside) != std::string::npos;
    EXPECT_EQ(found, expected) << text;
  }

  template <class Getter, class Setter, class T>
  Accessors& Check(const wchar_t* name, Getter getter, Setter setter, const T& value,
                   const std::string& written) {
    SCOPED_TRACE(testing::PrintToString(name));
    const auto node = Make();
    EXPECT_EQ((node.get()->*setter)(&value), 0);
    const std::string text = WriteText(*node);
    EXPECT_NE(text.find(" " + Narrow(name) + "=\"" + written + "\""), std::string::npos) << text;
    if constexpr (std::is_invocable_v<Getter, I&>) {
      EXPECT_EQ((node.get()->*getter)(), value);
    } else {
      T found{};
      EXPECT_EQ((node.get()->*getter)(&found), 0);
      EXPECT_EQ(found, value);
    }
    Diagnostics diagnostics;
    const ConfigResult result = (node.get()->*setter)(nullptr);
    const Texts reports = diagnostics.Take();
    if (result == 0) {
      EXPECT_EQ(reports, Texts{});
      EXPECT_EQ(WriteText(*node).find(" " + Narrow(name) + "="), std::string::npos);
    } else {
      EXPECT_EQ(result, -101);
      EXPECT_EQ(reports, Texts{L"XMLManager: set Attribute failed due to " + param_ +
                               L" pointer is NULL. element:" + element_ + L", attr:" + name});
      EXPECT_EQ(WriteText(*node), text);
    }
    if constexpr (!std::is_invocable_v<Getter, I&>) {
      T found = value;
      EXPECT_EQ((node.get()->*getter)(&found), result == 0 ? 1 : 0);
      EXPECT_EQ(found, value);
    } else {
      EXPECT_EQ(result, -101);  // a getter that returns the value has nothing to say of absence
    }
    return *this;
  }

  const std::wstring element_;
  const Factory factory_;
  const std::wstring param_;
};

}  // namespace tolva::test
