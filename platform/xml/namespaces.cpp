#include "platform/xml/namespaces.h"

#include <algorithm>
#include <chrono>
#include <tuple>

#include "platform/xml/decode.h"

namespace tolva::platform::own_xml {
namespace {

constexpr std::string_view kXmlUri = "http://www.w3.org/XML/1998/namespace";
constexpr std::string_view kXmlnsUri = "http://www.w3.org/2000/xmlns/";

/// The namespace of the prefix "xml", which needs no declaration.
constexpr ScopedStrings::Id kXmlNamespace = ScopedStrings::kNone - 1;

/// Larger tables, which few documents need, are released.
constexpr std::size_t kSlotsKept = 4096;
constexpr std::size_t kNamesKept = 1024;

constexpr std::uint64_t kHashPrime = 0x7FFFFFFF;

/// A number that the author of a document cannot know.
std::uint64_t MakeHashKey(const void* address) {
  const auto time = std::chrono::steady_clock::now().time_since_epoch().count();
  const auto mixed =
      (static_cast<std::uint64_t>(time) ^ reinterpret_cast<std::uintptr_t>(address)) *
      0x9E3779B97F4A7C15U;
  return 256 + (mixed >> 20) % (kHashPrime - 512);
}

}  // namespace

ScopedStrings::ScopedStrings() : key_(MakeHashKey(this)) {}

/// A polynomial with the bytes of the text as coefficients, evaluated at the key. Two texts of n
/// bytes have the same hash for at most n of the two thousand million keys.
std::uint32_t ScopedStrings::Hash(std::string_view text) const {
  std::uint64_t hash = text.size();
  for (const char c : text) hash = (hash * key_ + static_cast<unsigned char>(c)) % kHashPrime;
  return static_cast<std::uint32_t>(hash);
}

std::string_view ScopedStrings::TextOf(const Entry& entry) const {
  return {characters_.data() + entry.start, entry.size};
}

/// The slot of the text, or the free slot in which it belongs.
std::size_t ScopedStrings::SlotOf(std::string_view text, std::uint32_t hash) const {
  const std::size_t mask = slots_.size() - 1;
  std::size_t slot = hash & mask;
  while (slots_[slot] != kNone) {
    const Entry& entry = entries_.data()[slots_[slot]];
    if (entry.hash == hash && TextOf(entry) == text) break;
    slot = (slot + 1) & mask;
  }
  return slot;
}

ScopedStrings::Id ScopedStrings::Find(std::string_view text) const {
  return slots_.empty() ? kNone : slots_[SlotOf(text, Hash(text))];
}

ScopedStrings::Id ScopedStrings::Push(std::string_view text) {
  if ((entries_.size() + 1) * 2 > slots_.size()) GrowSlots();
  const std::uint32_t hash = Hash(text);
  const std::size_t slot = SlotOf(text, hash);
  const auto id = static_cast<Id>(entries_.size());
  const std::size_t start = characters_.size();
  entries_.Room(1);
  characters_.Append(text.data(), text.size());
  entries_.Append(Entry{start, text.size(), hash, slots_[slot]});
  slots_[slot] = id;
  return id;
}

void ScopedStrings::Truncate(std::size_t count) {
  while (entries_.size() > count) {
    const Entry& last = entries_.data()[entries_.size() - 1];
    // To empty a slot breaks no search: the strings that were added after it are gone.
    slots_[SlotOf(TextOf(last), last.hash)] = last.hidden;
    characters_.Truncate(last.start);
    entries_.Truncate(entries_.size() - 1);
  }
  if (count != 0) return;
  if (slots_.size() > kSlotsKept) slots_ = std::vector<Id>();
  characters_.Clear();
  entries_.Clear();
}

void ScopedStrings::GrowSlots() {
  slots_ = std::vector<Id>(std::max<std::size_t>(16, slots_.size() * 2), kNone);
  // Oldest first, as the strings were added.
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const Entry& entry = entries_.data()[i];
    slots_[SlotOf(TextOf(entry), entry.hash)] = static_cast<Id>(i);
  }
}

Status Namespaces::Enter(const QName& element, std::span<const Attribute> attributes) {
  for (const Attribute& attribute : attributes) {
    const bool declares = attribute.name.text == "xmlns" || attribute.name.PrefixText() == "xmlns";
    if (!declares) continue;
    const Status status = Declare(attribute);
    if (!status.IsDone()) return FaultAt(attribute.name.text.data(), status);
  }

  ScopedStrings::Id uri = ScopedStrings::kNone;
  if (element.prefix != 0) {
    const Status status = Resolve(element.PrefixText(), uri);
    if (!status.IsDone()) return FaultAt(element.text.data(), status);
  }

  if (names_.capacity() > kNamesKept) names_ = std::vector<ExpandedName>();
  names_.clear();
  for (const Attribute& attribute : attributes) {
    if (attribute.name.prefix == 0 || attribute.name.PrefixText() == "xmlns") continue;
    const Status status = Resolve(attribute.name.PrefixText(), uri);
    if (!status.IsDone()) return FaultAt(attribute.name.text.data(), status);
    names_.push_back({uri, attribute.name.Local()});
  }
  const auto key = [](const ExpandedName& name) { return std::tie(name.uri, name.local); };
  std::sort(names_.begin(), names_.end(),
            [key](const ExpandedName& a, const ExpandedName& b) { return key(a) < key(b); });
  const auto same = std::adjacent_find(
      names_.begin(), names_.end(),
      [key](const ExpandedName& a, const ExpandedName& b) { return key(a) == key(b); });
  if (same == names_.end()) return kDone;
  return FaultAt(std::max(same->local.data(), same[1].local.data()), WC_E_UNIQUEATTRIBUTE);
}

Status Namespaces::Declare(const Attribute& attribute) {
  uri_.Clear();
  AppendValue(attribute.value, ValueKind::kAttribute, uri_);
  const std::string_view uri(uri_.data(), uri_.size());
  const bool is_default = attribute.name.prefix == 0;
  const std::string_view prefix = attribute.name.Local();
  if (!is_default && prefix == "xmlns") return NC_E_XMLNSPREFIXRESERVED;
  if (!is_default && prefix == "xml") return uri == kXmlUri ? kDone : NC_E_XMLPREFIXRESERVED;
  if (uri == kXmlUri) return NC_E_XMLURIRESERVED;
  if (uri == kXmlnsUri) return NC_E_XMLNSURIRESERVED;
  // The default namespace makes no difference: attributes are not in it.
  if (is_default) return kDone;
  if (uri.empty()) return NC_E_EMPTYURI;

  const std::size_t uris_before = uris_.size();
  ScopedStrings::Id id = uris_.Find(uri);
  if (id == ScopedStrings::kNone) id = uris_.Push(uri);
  bindings_.Append(Binding{id, uris_before});
  prefixes_.Push(prefix);
  return kDone;
}

Status Namespaces::Resolve(std::string_view prefix, ScopedStrings::Id& uri) const {
  if (prefix == "xmlns") return NC_E_XMLNSPREFIXRESERVED;
  if (prefix == "xml") {
    uri = kXmlNamespace;
    return kDone;
  }
  const ScopedStrings::Id binding = prefixes_.Find(prefix);
  if (binding == ScopedStrings::kNone) return NC_E_UNDECLAREDPREFIX;
  uri = bindings_.data()[binding].uri;
  return kDone;
}

void Namespaces::Clear() {
  prefixes_.Truncate(0);
  uris_.Truncate(0);
  bindings_.Clear();
  uri_.Clear();
  if (names_.capacity() > kNamesKept) names_ = std::vector<ExpandedName>();
}

void Namespaces::RemoveFrom(std::size_t index) {
  uris_.Truncate(bindings_.data()[index].uris_before);
  bindings_.Truncate(index);
  prefixes_.Truncate(index);
}

}  // namespace tolva::platform::own_xml
