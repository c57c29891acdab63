// Namespaces in XML 1.0, as far as a document can offend against them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/buffer.h"
#include "platform/xml/status.h"

namespace tolva::platform::own_xml {

/// A name as it stands in the document.
struct Name {
  std::string_view text;
  std::size_t prefix = 0;  ///< characters before the colon; 0: there is none

  std::string_view PrefixText() const { return text.substr(0, prefix); }
  std::string_view Local() const { return prefix == 0 ? text : text.substr(prefix + 1); }
};

/// An attribute of a start tag; the slices lie in the input.
struct Attribute {
  Name name;
  std::string_view value;  ///< between the quotes
  bool plain = true;       ///< the value stands for itself: nothing in it needs decoding
};

/// Strings that are known for as long as they are in scope. What came last goes first. Finding is
/// by hashing with a key that a document's author cannot know, so no input makes it slow.
class ScopedStrings {
 public:
  using Id = std::uint32_t;
  static constexpr Id kNone = 0xFFFFFFFF;

  ScopedStrings();

  /// The newest string equal to `text`.
  Id Find(std::string_view text) const;

  /// Brings a string into scope, hiding an older equal one. Its id is the number of older strings.
  Id Push(std::string_view text);

  /// Lets all strings but the `count` oldest go.
  void Truncate(std::size_t count);

  std::size_t size() const { return entries_.size(); }

 private:
  struct Entry {
    std::size_t start;  ///< in `characters_`
    std::size_t size;
    std::uint32_t hash;
    Id hidden;  ///< the older equal string
  };

  std::uint32_t Hash(std::string_view text) const;
  std::size_t SlotOf(std::string_view text, std::uint32_t hash) const;
  std::string_view TextOf(const Entry& entry) const;
  void GrowSlots();

  std::uint64_t key_;
  Buffer<char> characters_;
  Buffer<Entry> entries_;
  std::vector<Id> slots_;  ///< open addressing, a power of two
};

/// The namespace declarations in force.
class Namespaces {
 public:
  /// Takes in the declarations of a start tag, then judges its names by all that are in force:
  /// S_OK, an NC_E_ code, or WC_E_UNIQUEATTRIBUTE for two attributes of one namespace and local
  /// name.
  Status Enter(const Name& element, std::span<const Attribute> attributes);

  /// How many declarations are in force.
  std::size_t size() const { return bindings_.size(); }

  /// Lets all but the `count` oldest go.
  void Leave(std::size_t count) {
    if (count < bindings_.size()) LetGo(count);
  }

  /// Lets all go, whatever state they are in, and memory that is not worth keeping.
  void Clear();

 private:
  struct Binding {
    ScopedStrings::Id uri;
    std::size_t uris_before;
  };
  struct ExpandedName {
    ScopedStrings::Id uri;
    std::string_view local;
  };

  void LetGo(std::size_t count);
  Status Declare(const Attribute& attribute);
  Status Resolve(std::string_view prefix, ScopedStrings::Id& uri) const;

  ScopedStrings prefixes_;
  ScopedStrings uris_;
  Buffer<Binding> bindings_;  ///< by the prefix's id
  Buffer<char> uri_;
  std::vector<ExpandedName> names_;
};

}  // namespace tolva::platform::own_xml
