// Reads the JSON form straight into nodes, so that each fault is found where it is, and nothing
// that does not belong there is kept.
#include <algorithm>
#include <bit>
#include <charconv>
#include <nlohmann/json.hpp>

#include "cli/check_faults.h"
#include "cli/json.h"
#include "cli/losses.h"
#include "cli/places.h"
#include "cli/session.h"
#include "cli/text.h"
#include "platform/utf.h"
#include "platform/xml/parser.h"

namespace tolva::cli {
namespace {

using Json = nlohmann::ordered_json;

/// The text, for nlohmann's reader: tells how far it has come.
class CountingIterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;

  CountingIterator(const char* at, const char** reached) : at_(at), reached_(reached) {}

  reference operator*() const { return *at_; }
  CountingIterator& operator++() {
    *reached_ = ++at_;
    return *this;
  }
  bool operator==(const CountingIterator& other) const { return at_ == other.at_; }

 private:
  const char* at_;
  const char** reached_;
};

/// What is open: the object around the root element, an element, or an array of elements.
struct Frame {
  const char* start;       ///< its bracket
  const Element* element;  ///< null: the object around the root element
  node::IElement* node;
  const Child* items = nullptr;  ///< an array: what it has, in `node`
  std::uint64_t attributes = 0;  ///< one bit for each row whose member there has been
  std::uint64_t children = 0;
  std::size_t count = 0;  ///< of items
  std::size_t path_size = 0;
};

/// Receives what nlohmann's reader finds. Functions return true to go on; they throw Trouble.
class Receiver {
 public:
  Receiver(std::string_view text, const std::string& name, const Document* expected)
      : text_(text), name_(name), end_(text.data()), reached_(text.data()) {
    result_.document = expected;
  }

  FromJsonResult Read() {
    const char* const end = text_.data() + text_.size();
    // The reader takes a zero for the end.
    const char* const zero = std::find(text_.data(), end, '\0');
    if (zero != end) throw Trouble(At(zero, "there is a zero byte, which JSON does not allow"));
    Json::sax_parse(CountingIterator(text_.data(), &reached_), CountingIterator(end, &reached_),
                    this);
    return std::move(result_);
  }

  bool null() { return TakeScalar(nullptr); }
  bool boolean(bool value) { return TakeScalar(value); }
  bool number_integer(std::int64_t value) { return TakeScalar(value); }
  bool number_unsigned(std::uint64_t value) { return TakeScalar(value); }
  bool number_float(double value, const std::string& /*text*/) { return TakeScalar(value); }
  bool string(std::string& value) { return TakeScalar(std::move(value)); }
  bool binary(Json::binary_t& /*value*/) { return false; }

  bool start_object(std::size_t /*size*/) {
    StartToken();
    if (frames_.empty()) {
      frames_.push_back({.start = token_, .element = nullptr, .node = nullptr});
      return true;
    }
    const Slot slot = TakeSlot();
    if (slot.element == nullptr || slot.is_array || slot.element->text.has_value()) {
      Fail(Expectation(slot));
    }
    RequireDepth();
    ++depth_;
    Open(slot);
    return true;
  }

  bool start_array(std::size_t /*size*/) {
    StartToken();
    const Slot slot = frames_.empty() ? Slot() : TakeSlot();
    if (!slot.is_array) Fail(Expectation(slot));
    Open(slot);
    return true;
  }

  bool key(std::string& name) {
    StartToken();
    Frame& frame = frames_.back();
    key_ = token_;
    path_.resize(frame.path_size);
    const bool is_known = frame.element == nullptr ? FindRoot(frame, name) : FindRow(frame, name);
    if (!is_known) FailAt(key_, "has no place for '" + Excerpt(name) + "'" + HintFor(frame, name));
    path_ += "/" + name;
    return true;
  }

  bool end_object() {
    StartToken();
    const Frame frame = frames_.back();
    frames_.pop_back();
    path_.resize(frame.path_size);
    if (frame.element == nullptr) {
      if (result_.root == nullptr) FailAt(frame.start, "needs " + RootNames());
      return true;
    }
    --depth_;
    AddAbsent(frame);
    return true;
  }

  bool end_array() {
    StartToken();
    frames_.pop_back();
    return true;
  }

  bool parse_error(std::size_t /*position*/, const std::string& /*token*/,
                   const nlohmann::detail::exception& error) {
    const char* const limit = text_.data() + text_.size();
    const char* last = std::max(reached_ - 1, text_.data());
    while (last != text_.data() && IsContinuation(*last)) --last;
    const std::string words = WordsOf(error);
    // A string is wrong within, and another token from its start.
    const bool is_within = words.find("string:") != std::string::npos;
    const char* const token = SkipSeparators(end_);
    const bool is_end = reached_ == limit && token == limit;
    throw Trouble(At(is_within || is_end ? last : std::min(token, last),
                     is_end ? "the JSON breaks off here" : "this is no JSON: " + words));
  }

 private:
  /// Where the next value goes.
  struct Slot {
    const Attribute* attribute = nullptr;
    const Child* child = nullptr;      ///< null: the root, or an item of an array
    const Element* element = nullptr;  ///< null: an attribute, or what is ignored
    bool is_array = false;
    node::IElement* parent = nullptr;
    node::IElement* node = nullptr;  ///< the element's, if it is there already
  };

  // ---- places ----------------------------------------------------------------------------------

  /// The reader is after a token, or, after a number, one character further, which is a separator
  /// or a bracket.
  void StartToken() {
    token_ = SkipSeparators(end_);
    end_ = reached_;
  }

  const char* SkipSeparators(const char* at) const {
    const char* const limit = text_.data() + text_.size();
    return std::find_if(at, limit, [](char c) {
      return std::string_view(" \t\r\n,:").find(c) == std::string_view::npos;
    });
  }

  static bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
  }

  std::string At(const char* place, const std::string& what) const {
    std::uint64_t line = 1;
    std::uint64_t column = 1;
    for (const char* at = text_.data(); at != place; ++at) {
      const bool is_cr_lf = *at == '\r' && at[1] == '\n';  // the place follows
      if (*at == '\n' || (*at == '\r' && !is_cr_lf)) {
        ++line;
        column = 1;
      } else if (!IsContinuation(*at)) {
        ++column;
      }
    }
    return AtPlace(name_, line, column, what);
  }

  std::string Words(const char* place, const std::string& reason) const {
    return At(place, "'" + (path_.empty() ? "/" : Printable(path_)) + "' " + reason);
  }

  [[noreturn]] void FailAt(const char* place, const std::string& reason) const {
    throw Trouble(Words(place, reason));
  }
  [[noreturn]] void Fail(const std::string& reason) const { FailAt(token_, reason); }

  void Require(bool holds, const std::string& reason) const {
    if (!holds) Fail(reason);
  }

  /// The reader's own words, without what surrounds them.
  static std::string WordsOf(const nlohmann::detail::exception& error) {
    if (dynamic_cast<const Json::out_of_range*>(&error) != nullptr) return "a number is too great";
    std::string words = error.what();
    const std::size_t start = words.find(" - ");
    if (start != std::string::npos) words.erase(0, start + 3);
    return Printable(words.substr(0, words.find("; last read:")));
  }

  void RequireDepth() const {
    constexpr std::size_t kMost = platform::own_xml::Parser::kMaxDepth;
    Require(depth_ < kMost, "is too deep: " + std::to_string(kMost) + " elements may be open");
  }

  // ---- members ---------------------------------------------------------------------------------

  bool FindRoot(Frame& frame, const std::string& name) {
    slot_ = {};
    if (name == "$schema") {
      if (std::exchange(frame.attributes, 1) != 0) FailDuplicate(name);
      return true;
    }
    const Document* const found = FindDocument(name);
    const bool is_root = found != nullptr && found->root().name == name;
    if (!is_root || (result_.document != nullptr && result_.document != found)) return false;
    if (result_.root != nullptr) FailDuplicate(name);
    result_.document = found;
    result_.root = found->make();
    result_.root->Clear();
    slot_.element = &found->root();
    slot_.node = result_.root.get();
    return true;
  }

  bool FindRow(Frame& frame, const std::string& name) {
    slot_ = {.parent = frame.node};
    if (const Attribute* const attribute = frame.element->FindAttribute(name)) {
      const auto bit = std::uint64_t{1} << (attribute - frame.element->attributes.data());
      if ((frame.attributes & bit) != 0) FailDuplicate(name);
      frame.attributes |= bit;
      slot_.attribute = attribute;
      return true;
    }
    const Child* const child = frame.element->FindChild(name);
    if (child == nullptr) return false;
    const auto bit = std::uint64_t{1} << (child - frame.element->children.data());
    if ((frame.children & bit) != 0) FailDuplicate(name);
    frame.children |= bit;
    slot_.child = child;
    slot_.element = child->element;
    slot_.is_array = child->occurrence == Occurrence::kRepeated;
    return true;
  }

  [[noreturn]] void FailDuplicate(const std::string& name) const {
    FailAt(key_, "has '" + name + "' twice");
  }

  std::string HintFor(const Frame& frame, const std::string& name) const {
    std::vector<std::string> names;
    if (frame.element == nullptr) {
      for (const Document& document : Documents()) names.push_back(document.root().name);
      const std::string hint = result_.document == nullptr ? DidYouMean(name, names) : "";
      return hint.empty() ? "; its member is " + RootNames() : hint;
    }
    for (const Attribute& attribute : frame.element->attributes) names.push_back(attribute.name);
    for (const Child& child : frame.element->children) names.push_back(child.name);
    return DidYouMean(name, names);
  }

  std::string RootNames() const {
    if (result_.document != nullptr) return "'" + result_.document->root().name + "'";
    return "the root element of a document, such as '" + Documents().front().root().name + "'";
  }

  /// What the value that begins is for. Within an array, the next item.
  Slot TakeSlot() {
    Frame& frame = frames_.back();
    if (frame.items == nullptr) return slot_;
    path_.resize(frame.path_size);
    path_ += "/" + std::to_string(frame.count++);
    return {.element = frame.items->element, .parent = frame.node};
  }

  void Open(const Slot& slot) {
    const std::size_t size = path_.size();
    if (slot.is_array) {
      frames_.push_back({.start = token_,
                         .element = slot.element,
                         .node = slot.parent,
                         .items = slot.child,
                         .path_size = size});
      return;
    }
    frames_.push_back(
        {.start = token_, .element = slot.element, .node = &Make(slot), .path_size = size});
  }

  /// The node of an element that begins.
  node::IElement& Make(const Slot& slot) {
    if (slot.node != nullptr) return *slot.node;
    const Child& child = slot.child != nullptr ? *slot.child : *frames_.back().items;
    node::IElement& node = child.row->make(*slot.parent);
    SetPresent(child.row->locate(*slot.parent).present);
    return node;
  }

  /// Takes what the absence of attributes stands for.
  void AddAbsent(const Frame& frame) {
    const Element& element = *frame.element;
    for (std::size_t i = 0; i < element.attributes.size(); ++i) {
      const Attribute& attribute = element.attributes[i];
      if ((frame.attributes >> i & 1) != 0) continue;
      if (attribute.occurrence == Occurrence::kRequired) {
        FailAt(frame.start, "needs '" + attribute.name + "'");
      }
      if (!attribute.when_absent.has_value()) continue;
      const node::FieldRef field = attribute.row->locate(*frame.node);
      SetPresent(field.present);
      const bool is_number = attribute.value.type == Value::Type::kNumber;
      ReadValue(attribute.value,
                is_number ? Json(std::stoul(*attribute.when_absent)) : Json(*attribute.when_absent),
                field);
    }
    for (std::size_t i = 0; i < element.children.size(); ++i) {
      const Child& child = element.children[i];
      const bool is_missing =
          (frame.children >> i & 1) == 0 && child.occurrence == Occurrence::kRequired;
      if (is_missing) FailAt(frame.start, "needs '" + child.name + "'");
    }
  }

  // ---- values ----------------------------------------------------------------------------------

  static std::string Expectation(const Slot& slot) {
    if (slot.is_array) return "has to be an array";
    if (slot.attribute != nullptr) return Expectation(slot.attribute->value);
    if (slot.element == nullptr) return "has to be an object";
    return slot.element->text.has_value() ? Expectation(*slot.element->text)
                                          : "has to be an object";
  }

  static std::string Expectation(const Value& value) {
    switch (value.type) {
      case Value::Type::kText:
        return "has to be a string";
      case Value::Type::kEnum:
        return "has to be one of " + Enumerate(value.texts);
      default:
        return value.IsLong() ? "has to be a string that holds a 64-bit number"
                              : "has to be a number from 0 to " + std::to_string(value.greatest);
    }
  }

  bool TakeScalar(const Json& json) {
    StartToken();
    Require(!frames_.empty(), "has to be an object");
    const Slot slot = TakeSlot();
    if (slot.attribute != nullptr) {
      const node::FieldRef field = slot.attribute->row->locate(*slot.parent);
      SetPresent(field.present);
      ReadValue(slot.attribute->value, json, field);
    } else if (slot.element == nullptr) {
      Require(json.is_string(), "has to be a string");  // $schema
    } else {
      Require(!slot.is_array && slot.element->text.has_value(), Expectation(slot));
      RequireDepth();
      ReadText(*slot.element, json, Make(slot));
    }
    return true;
  }

  void ReadText(const Element& element, const Json& json, node::IElement& node) {
    const bool may_be_null = !element.is_text_required && !element.text->may_be_empty;
    if (json.is_null() && may_be_null) {
      if (element.IsLostWithoutText() && result_.loss_count++ < kMostLossesTold) {
        result_.losses.push_back(Words(token_, "is null, which the library does not write"));
      }
      return;
    }
    const node::FieldRef field = element.schema->content.locate(node);
    SetPresent(field.present);
    ReadValue(*element.text, json, field);
    const bool is_empty = json.is_string() && json.get_ref<const std::string&>().empty();
    Require(!is_empty || element.text->may_be_empty, "cannot be empty");
  }

  void ReadValue(const Value& value, const Json& json, const node::FieldRef& field) const {
    switch (value.type) {
      case Value::Type::kText: {
        Require(json.is_string(), Expectation(value));
        const std::wstring text = ToWide(json.get_ref<const std::string&>());
        const wchar_t* const end = text.data() + text.size();
        Require(platform::FindForbidden(text.data(), end) == end,
                "holds a character that XML does not allow");
        *static_cast<std::wstring*>(field.value) = text;
        break;
      }
      case Value::Type::kEnum: {
        const auto found = json.is_string()
                               ? std::ranges::find(value.texts, json.get_ref<const std::string&>())
                               : value.texts.end();
        Require(found != value.texts.end(), Expectation(value));
        *static_cast<DWORD*>(field.value) = static_cast<DWORD>(found - value.texts.begin());
        break;
      }
      case Value::Type::kNumber:
        if (value.IsLong()) {
          *static_cast<std::uint64_t*>(field.value) = LongNumber(value, json);
        } else {
          *static_cast<DWORD*>(field.value) = static_cast<DWORD>(Number(value, json));
        }
        break;
    }
  }

  std::uint64_t Number(const Value& value, const Json& json) const {
    // 1.0 is a whole number, too.
    const double number = json.is_number() ? json.get<double>() : -1;
    const auto limit = static_cast<double>(value.greatest);
    Require(number >= 0 && number <= limit &&
                number == static_cast<double>(static_cast<std::uint64_t>(number)),
            Expectation(value));
    return static_cast<std::uint64_t>(number);
  }

  std::uint64_t LongNumber(const Value& value, const Json& json) const {
    std::uint64_t number = 0;
    bool is_number = json.is_string();
    if (is_number) {
      const auto& text = json.get_ref<const std::string&>();
      const char* const end = text.data() + text.size();
      const auto [stop, error] = std::from_chars(text.data(), end, number);
      is_number = !text.empty() && stop == end && error == std::errc() &&
                  (text.size() == 1 || text[0] != '0');
    }
    Require(is_number, Expectation(value));
    return number;
  }

  static void SetPresent(DWORD* present) {
    if (present != nullptr) *present = 1;
  }

  const std::string_view text_;
  const std::string& name_;
  const char* end_;              ///< of the last token
  const char* reached_;          ///< how far the reader has come
  const char* token_ = nullptr;  ///< the start of the current token
  const char* key_ = nullptr;
  std::string path_;  ///< a JSON pointer
  std::vector<Frame> frames_;
  std::size_t depth_ = 0;  ///< open elements
  Slot slot_;
  FromJsonResult result_ = {};
};

}  // namespace

FromJsonResult FromJson(std::string_view text, const std::string& name, const Document* expected) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (text.starts_with(kMark)) text.remove_prefix(kMark.size());
  // In UTF-16 and UTF-32 there are zeros, or a byte order mark that is no UTF-8.
  const bool is_wide = text.substr(0, 4).find('\0') != std::string_view::npos ||
                       text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF");
  if (is_wide) throw Trouble(AtPlace(name, 1, 1, "this is no UTF-8, which JSON is in"));
  const std::size_t start = text.find_first_not_of(" \t\r\n");
  if (start != std::string_view::npos && text[start] == '<') {
    throw Trouble("'" + Printable(name) + "' is XML, not JSON; --to json converts it");
  }
  return Receiver(text, name, expected).Read();
}

}  // namespace tolva::cli
