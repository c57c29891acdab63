// What differs, for people at a terminal.
#include <algorithm>
#include <vector>

#include "cli/diff_formats.h"
#include "cli/places.h"
#include "cli/text.h"

namespace tolva::cli {
namespace {

/// How many characters of a long value are shown: of what differs, and on either side of it.
constexpr std::size_t kMostOfDifference = 48;
constexpr std::size_t kMostAround = 16;

bool IsInCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

std::size_t Back(std::string_view text, std::size_t at, std::size_t characters) {
  for (; characters != 0 && at != 0; --characters) {
    do {
      --at;
    } while (at != 0 && IsInCharacter(text[at]));
  }
  return at;
}

std::size_t Forward(std::string_view text, std::size_t at, std::size_t characters) {
  for (; characters != 0 && at != text.size(); --characters) {
    do {
      ++at;
    } while (at != text.size() && IsInCharacter(text[at]));
  }
  return at;
}

/// The text, or if it is long what is around the part from `start` to `end`.
std::string CutAround(std::string_view text, std::size_t start, std::size_t end) {
  constexpr std::size_t kMost = kMostOfDifference + 2 * kMostAround;
  if (Columns(text) <= kMost) return Printable(text);
  const std::size_t first = Back(text, start, kMostAround);
  const std::size_t part = Forward(text, start, kMostOfDifference);
  std::string cut = (first == 0 ? "" : "…") + Printable(text.substr(first, start - first));
  if (part < end) return cut + Printable(text.substr(start, part - start)) + "…";
  const std::size_t last = Forward(text, end, kMostAround);
  return cut + Printable(text.substr(start, last - start)) + (last == text.size() ? "" : "…");
}

class TextWriter {
 public:
  TextWriter(const Comparison& comparison, Secrets secrets, const Style& style, std::size_t width)
      : comparison_(comparison), secrets_(secrets), style_(style), width_(width) {}

  std::string Write() {
    ForEachChange(comparison_, [this](const Change& change) { Add(change); });
    if (text_.empty()) return {};
    std::size_t all = 0;
    std::string counts;
    for (const ChangeKind kind : kChangeKinds) {
      const std::size_t count = counts_[static_cast<std::size_t>(kind)];
      all += count;
      if (count == 0) continue;
      counts += (counts.empty() ? "" : ", ") + std::to_string(count) + " ";
      counts += NameOf(kind);
    }
    text_ += style_.Heading(Count(all, "difference") + ": " + counts) + "\n";
    return std::move(text_);
  }

 private:
  std::string Mark(ChangeKind kind) const {
    switch (kind) {
      case ChangeKind::kChanged:
        return style_.Changed("~");
      case ChangeKind::kAdded:
        return style_.Added("+");
      case ChangeKind::kRemoved:
        return style_.Removed("-");
      default:
        return style_.Moved(">");
    }
  }

  void Add(const Change& change) {
    ++counts_[static_cast<std::size_t>(change.kind)];
    text_ += Mark(change.kind) + " " + Path(change.path);
    const std::size_t used = 2 + Columns(change.path);
    switch (change.kind) {
      case ChangeKind::kChanged:
        AddValues(change, used);
        break;
      case ChangeKind::kMoved:
        text_ += ": from place " + std::to_string(change.from_position + 1) + " to " +
                 std::to_string(change.to_position + 1);
        break;
      default:
        AddContent(change, used);
    }
    text_ += "\n";
  }

  /// What goes into the line of its path, even if that is long.
  static constexpr std::size_t kShort = 40;

  /// The last name stands out.
  std::string Path(const std::string& path) const {
    std::size_t start = 0;
    char quote = 0;
    for (std::size_t i = 0; i < path.size(); ++i) {
      if (quote == 0 && path[i] == '/') start = i + 1;
      if (quote == 0 ? path[i] == '"' || path[i] == '\'' : path[i] == quote) {
        quote = quote == 0 ? path[i] : '\0';
      }
    }
    return style_.Faint(path.substr(0, start)) + style_.Heading(path.substr(start));
  }

  void AddValues(const Change& change, std::size_t used) {
    if (change.IsSecret() && secrets_ == Secrets::kHidden) {
      text_ += ": " + style_.Faint("(a secret, changed)");
      return;
    }
    const std::optional<std::string> before = comparison_.pool.Text(change.old_value);
    const std::optional<std::string> after = comparison_.pool.Text(change.new_value);
    const std::string_view old_text = before.has_value() ? *before : std::string_view();
    const std::string_view new_text = after.has_value() ? *after : std::string_view();
    const std::size_t shorter = std::min(old_text.size(), new_text.size());
    std::size_t start = 0;
    while (start < shorter && old_text[start] == new_text[start]) ++start;
    while (start != 0 && start < old_text.size() && IsInCharacter(old_text[start])) --start;
    while (start != 0 && start < new_text.size() && IsInCharacter(new_text[start])) --start;
    std::size_t same = 0;
    while (same < shorter - start &&
           old_text[old_text.size() - 1 - same] == new_text[new_text.size() - 1 - same]) {
      ++same;
    }
    while (same != 0 && IsInCharacter(old_text[old_text.size() - same])) --same;
    const std::string left =
        before.has_value()
            ? Quoted(*change.value, CutAround(old_text, start, old_text.size() - same))
            : "none";
    const std::string right =
        after.has_value()
            ? Quoted(*change.value, CutAround(new_text, start, new_text.size() - same))
            : "none";
    const std::size_t columns = Columns(left) + Columns(right);
    if (columns <= kShort || used + columns + 6 <= width_) {
      text_ += ": " + style_.Removed(left) + " -> " + style_.Added(right);
    } else {
      text_ += ":\n    " + style_.Removed("- " + left) + "\n    " + style_.Added("+ " + right);
    }
  }

  /// What has been added or removed.
  void AddContent(const Change& change, std::size_t used) {
    if (change.value != nullptr) {
      const std::uint32_t value =
          change.kind == ChangeKind::kAdded ? change.new_value : change.old_value;
      text_ += Shown(change.attribute, *change.value, value, used);
      return;
    }
    const bool is_added = change.kind == ChangeKind::kAdded;
    const Tree& tree = is_added ? comparison_.To() : comparison_.From();
    const Tree::Index index = is_added ? change.to : change.from;
    const Element& element = *change.element;
    if (element.text.has_value()) {
      if (tree.Text(index) != 0) {
        text_ += Shown(nullptr, *element.text, tree.Text(index), used);
      }
      return;
    }
    std::string content;
    for (const Attribute& attribute : element.attributes) {
      const std::uint32_t value = tree.Value(index, attribute);
      if (value == 0 || IsNamedBy(change.path, attribute)) continue;
      content += (content.empty() ? "" : " ") + attribute.name + "=";
      content += attribute.is_secret && secrets_ == Secrets::kHidden
                     ? "(a secret)"
                     : "\"" + CutAround(*comparison_.pool.Text(value), 0, 0) + "\"";
    }
    const std::size_t elements = ElementsIn(tree, index);
    if (elements != 0) {
      content += (content.empty() ? "" : ", ") + Count(elements, "element") + " in it";
    }
    if (content.empty()) return;
    const bool fits = used + 2 + Columns(content) <= width_;
    text_ += (fits ? ": " : ":\n    ") + content;
  }

  /// Whether the path ends with the value of the attribute.
  static bool IsNamedBy(const std::string& path, const Attribute& attribute) {
    return attribute.names_item && path.ends_with(']') &&
           ParsePath(path).back().attribute == attribute.name;
  }

  static std::size_t ElementsIn(const Tree& tree, Tree::Index index) {
    std::size_t elements = 0;
    for (const Child& child : tree.ElementAt(index).children) {
      const Tree::Range range = tree.Children(index, child);
      for (Tree::Index i = 0; i < range.count; ++i) {
        elements += 1 + ElementsIn(tree, range.first + i);
      }
    }
    return elements;
  }

  std::string Shown(const Attribute* attribute, const Value& value, std::uint32_t number,
                    std::size_t used) const {
    if (attribute != nullptr && attribute->is_secret && secrets_ == Secrets::kHidden) {
      return ": " + style_.Faint("(a secret)");
    }
    const std::string text = Quoted(value, CutAround(*comparison_.pool.Text(number), 0, 0));
    const bool fits = Columns(text) <= kShort || used + 2 + Columns(text) <= width_;
    return (fits ? ": " : ":\n    ") + text;
  }

  static std::string Quoted(const Value& value, const std::string& text) {
    return value.type == Value::Type::kNumber ? text : "\"" + text + "\"";
  }

  const Comparison& comparison_;
  const Secrets secrets_;
  const Style& style_;
  const std::size_t width_;
  std::string text_;
  std::size_t counts_[std::size(kChangeKinds)] = {};
};

}  // namespace

std::string DiffText(const Comparison& comparison, Secrets secrets, const Style& style,
                     std::size_t width) {
  return TextWriter(comparison, secrets, style, width).Write();
}

}  // namespace tolva::cli
