// Validates a document by Namespaces in XML 1.0.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/buffer.h"
#include "platform/xml/status.h"

namespace tolva::platform::own_xml {

/// A name as it is written in the document.
struct QName {
  std::string_view text;
  std::size_t prefix = 0;  ///< the number of characters before the colon; 0 if there is none

  std::string_view PrefixText() const { return text.substr(0, prefix); }
  std::string_view Local() const { return prefix == 0 ? text : text.substr(prefix + 1); }
};

/// An attribute of a start tag. The slices are parts of the input.
struct Attribute {
  QName name;
  std::string_view value;  ///< the source text between the quotes
  bool plain = true;       ///< the source text is the value as well
};

/// A stack of strings with fast search. It hashes with a key that the author of a document cannot
/// know, so no document makes it slow.
class ScopedStrings {
 public:
  using Id = std::uint32_t;
  static constexpr Id kNone = 0xFFFFFFFF;

  ScopedStrings();

  /// The newest string that is equal to `text`; kNone if there is none.
  Id Find(std::string_view text) const;

  /// Adds a string, which hides older ones that are equal. Its id is the number of older strings.
  Id Push(std::string_view text);

  /// Removes all but the `count` oldest strings.
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
  std::vector<Id> slots_;  ///< a hash table with open addressing; the size is a power of two
};

/// The namespace declarations in scope.
class Namespaces {
 public:
  /// Adds the namespace declarations of a start tag, then validates the names in it. The fault is
  /// an NC_E_ code, or WC_E_UNIQUEATTRIBUTE if two attributes have the same namespace and local
  /// name.
  Status Enter(const QName& element, std::span<const Attribute> attributes);

  /// The name that the last fault is about.
  const char* fault_at() const { return fault_at_; }

  /// The number of declarations in scope.
  std::size_t size() const { return bindings_.size(); }

  /// Removes all but the `count` oldest declarations.
  void Leave(std::size_t count) {
    if (count < bindings_.size()) RemoveFrom(count);
  }

  /// Removes all declarations, even after a call that has thrown. Releases the memory if it is
  /// large.
  void Clear();

 private:
  /// A declared prefix.
  struct Binding {
    ScopedStrings::Id uri;
    std::size_t uris_before;  ///< the number of URIs before the declaration
  };
  struct ExpandedName {
    ScopedStrings::Id uri;
    std::string_view local;
  };

  Status FaultAt(const char* name, Status fault) {
    fault_at_ = name;
    return fault;
  }
  void RemoveFrom(std::size_t index);
  Status Declare(const Attribute& attribute);
  Status Resolve(std::string_view prefix, ScopedStrings::Id& uri) const;

  ScopedStrings prefixes_;
  ScopedStrings uris_;
  Buffer<Binding> bindings_;  ///< by the id of the prefix
  Buffer<char> uri_;          ///< of the current declaration
  std::vector<ExpandedName> names_;
  const char* fault_at_ = nullptr;
};

}  // namespace tolva::platform::own_xml
