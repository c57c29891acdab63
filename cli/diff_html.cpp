// What differs, as a page for whoever reviews a change. A section for each element in which
// something differs has a table: what, old, new. What is the same is there to be unfolded.
#include <algorithm>
#include <span>
#include <vector>

#include "cli/align.h"
#include "cli/diff_formats.h"
#include "cli/interner.h"
#include "cli/markup.h"
#include "cli/text.h"
#include "page.h"

namespace tolva::cli {
namespace {

std::string Span(std::string_view kind, std::string_view content) {
  return Tag("span", "class=\"" + std::string(kind) + "\"", content);
}

std::string Code(std::string_view name) { return Tag("code", "", Breakable(name)); }

/// Text from a document: control characters are escapes, and ends of lines are seen.
std::string Shown(std::string_view text) {
  std::string shown;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    shown += Escaped(Printable(text.substr(0, end)));
    if (end == std::string_view::npos) break;
    shown += Span("end", "↵") + "\n";
    text.remove_prefix(end + 1);
  }
  return shown;
}

// ---- values that differ ------------------------------------------------------------------------

/// Words, and characters that are in none.
std::vector<std::string_view> Pieces(std::string_view text) {
  const auto is_in_word = [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
           static_cast<unsigned char>(c) >= 0x80;
  };
  std::vector<std::string_view> pieces;
  while (!text.empty()) {
    std::size_t size = 1;
    while (is_in_word(text[0]) && size < text.size() && is_in_word(text[size])) ++size;
    pieces.push_back(text.substr(0, size));
    text.remove_prefix(size);
  }
  return pieces;
}

/// The text with marks where it has no counterpart.
std::string Marked(std::span<const std::string_view> pieces, const std::vector<bool>& is_same,
                   std::string_view mark) {
  std::string marked;
  for (std::size_t i = 0; i < pieces.size();) {
    std::string run;
    const bool same = is_same[i];
    for (; i < pieces.size() && is_same[i] == same; ++i) run += pieces[i];
    marked += same ? Shown(run) : Tag(mark, "", Shown(run));
  }
  return marked;
}

struct Sides {
  std::string from;
  std::string to;
};

/// Both values, with marks where they differ; whole if they have little in common.
Sides MarkedValues(std::string_view from, std::string_view to) {
  const std::vector<std::string_view> old_pieces = Pieces(from);
  const std::vector<std::string_view> new_pieces = Pieces(to);
  Interner<char> numbers;
  const auto numbered = [&](const std::vector<std::string_view>& pieces) {
    std::vector<std::uint32_t> result;
    result.reserve(pieces.size());
    for (const std::string_view piece : pieces) result.push_back(numbers.Intern(piece));
    return result;
  };
  std::vector<bool> is_in_new(old_pieces.size());
  std::vector<bool> is_in_old(new_pieces.size());
  std::size_t common = 0;
  for (const auto& [old_piece, new_piece] : Align(numbered(old_pieces), numbered(new_pieces))) {
    is_in_new[old_piece] = is_in_old[new_piece] = true;
    common += old_pieces[old_piece].size();
  }
  if (3 * common < std::max(from.size(), to.size())) return {Shown(from), Shown(to)};
  return {Marked(old_pieces, is_in_new, "del"), Marked(new_pieces, is_in_old, "ins")};
}

// ---- the page ----------------------------------------------------------------------------------

std::string_view SignOf(ChangeKind kind) {
  switch (kind) {
    case ChangeKind::kChanged:
      return "~";
    case ChangeKind::kAdded:
      return "+";
    case ChangeKind::kRemoved:
      return "−";
    default:
      return "⇅";
  }
}

/// Where an element is: a path, and names for people.
struct Trail {
  std::string path;
  std::string html;

  Trail Then(const std::string& step, std::string_view name, const std::string& label) const {
    const std::string crumb =
        Code(name) + (label.empty() ? "" : " " + Tag("b", "", Escaped(Printable(label))));
    return {Joined(path, step), html + Span("crumb", crumb)};
  }
};

class PageWriter {
 public:
  PageWriter(const Comparison& comparison, Secrets secrets)
      : comparison_(comparison),
        from_(comparison.From()),
        to_(comparison.To()),
        secrets_(secrets) {}

  std::string Write(const DocumentPair& names) {
    const Document& document = comparison_.document;
    if (!comparison_.AreEqual()) {
      AddPair(comparison_.root, {});
    }
    const std::string title(document.title);
    std::string page =
        PageStart("Differences: " + title, std::string(kPageStyle) + std::string(kDiffStyle));
    page += Top() + "<main id=\"content\" tabindex=\"-1\">\n" + Tag("h1", "", Escaped(title)) +
            "\n<dl class=\"sides\">" + Side("old", "Old", names.from) +
            Side("new", "New", names.to) + "</dl>\n" + Notes();
    page += sections_ + "<p id=\"nothing\" hidden>Nothing matches the filter.</p>\n</main>\n";
    return page + PageEnd(kDiffScript);
  }

 private:
  static std::string Side(std::string_view kind, std::string_view title, const std::string& name) {
    return Tag("div", "class=\"" + std::string(kind) + "\"",
               Tag("dt", "", title) + Tag("dd", "", Code(Printable(name))));
  }

  std::string Top() const {
    std::string top =
        "<a class=\"skip\" href=\"#content\">Skip to the content</a>\n<header>\n"
        "<span class=\"brand\">Differences</span>\n<div class=\"kinds\" role=\"group\" "
        "aria-label=\"Kinds of differences that are shown\">";
    for (const ChangeKind kind : kChangeKinds) {
      const std::size_t count = counts_[static_cast<std::size_t>(kind)];
      if (count == 0) continue;
      const std::string name(NameOf(kind));
      top += Tag("button",
                 "type=\"button\" class=\"kind " + name + "\" data-kind=\"" + name + "\" title=\"" +
                     name + "\" aria-pressed=\"true\"",
                 Span("sign", SignOf(kind)) + std::to_string(count) + Span("word", " " + name));
    }
    return top +
           "</div>\n<div class=\"search\" role=\"search\"><input id=\"search\" type=\"search\" "
           "placeholder=\"Filter by name or value\" autocomplete=\"off\" spellcheck=\"false\" "
           "aria-label=\"Filter by name or value\"><kbd>/</kbd></div>\n"
           "<div class=\"steps\"><button id=\"previous\" type=\"button\" title=\"Previous (p)\" "
           "aria-label=\"Previous difference\">↑</button><button id=\"next\" type=\"button\" "
           "title=\"Next (n)\" aria-label=\"Next difference\">↓</button></div>\n</header>\n"
           "<p id=\"status\" role=\"status\"></p>\n";
  }

  std::string Notes() const {
    std::string notes;
    if (comparison_.AreEqual()) notes += Tag("p", "class=\"lead\"", "The documents are equal.");
    if (comparison_.pool.order == ListOrder::kIsIgnored) {
      notes += Tag("p", "class=\"lead\"", "The order of the items of lists does not count.");
    }
    if (row_count_ > kMostRows) {
      notes += Tag("p", "class=\"lead\"",
                   "Only the first " + std::to_string(kMostRows) +
                       " differences are on this page. --format json tells all.");
    }
    if (has_hidden_) notes += Tag("p", "class=\"lead\"", "Secrets are not shown.");
    return notes;
  }

  /// A section for two elements that correspond, and after it those for what is in them.
  void AddPair(const Difference& pair, const Trail& trail) {
    rows_.clear();
    ForEachValueChange(comparison_, pair, "", "", [this](const Change& change) {
      const std::string name = change.attribute == nullptr ? "Text" : change.attribute->name;
      const std::string_view sentence =
          change.attribute == nullptr ? std::string_view() : change.attribute->sentence;
      AddValueRow(change, Code(name), sentence);
    });
    struct Inner {
      const Difference* pair;
      Trail trail;
    };
    std::vector<Inner> inner;
    for (auto next = pair.children.begin(); next != pair.children.end();) {
      const Child& child = *next->child;
      const StepWriter old_steps(from_, child, from_.Children(pair.from, child));
      const StepWriter new_steps(to_, child, to_.Children(pair.to, child));
      for (; next != pair.children.end() && next->child == &child; ++next) {
        const StepWriter& steps = next->IsAdded() ? new_steps : old_steps;
        const Tree::Index position = next->IsAdded() ? next->to_position : next->from_position;
        const std::string step = steps.Step(position);
        std::string label = steps.Label(position);
        const bool is_text = child.element->text.has_value();
        if (label.empty() && step.ends_with(']')) label = std::to_string(position + 1);
        const Trail place = trail.Then(step, child.name, label);
        const std::string name = Trail().Then(step, child.name, label).html;
        if (!next->IsPair()) AddElementRow(*next, name);
        if (next->IsPair() && next->has_moved) AddMoveRow(*next, name);
        if (next->IsPair() && is_text) {
          ForEachValueChange(comparison_, *next, "", "", [&](const Change& change) {
            AddValueRow(change, name, child.sentence);
          });
        } else if (next->IsPair()) {
          inner.push_back({&*next, place});
        }
      }
    }
    AddSection(pair, trail);
    for (const Inner& one : inner) {
      if (Differs(*one.pair)) AddPair(*one.pair, one.trail);
    }
  }

  /// An item that has moved may be the same otherwise.
  bool Differs(const Difference& pair) const {
    return from_.Identity(pair.from) != to_.Identity(pair.to);
  }

  void AddSection(const Difference& pair, const Trail& trail) {
    const std::string same = Unchanged(pair);
    if (rows_.empty() && (same.empty() || row_count_ > kMostRows)) return;
    const std::string_view sentence = from_.ElementAt(pair.from).sentence;
    sections_ += "<section class=\"" + std::string(rows_.empty() ? "quiet" : "card") +
                 "\" data-path=\"" + Escaped(Printable(trail.path)) + "\">\n" +
                 Tag("h2", "class=\"trail\"",
                     trail.html.empty() ? Span("crumb", Code(comparison_.document.root().name))
                                        : trail.html) +
                 "\n";
    if (!rows_.empty()) {
      if (!sentence.empty()) {
        sections_ += Tag("p", "class=\"sentence\"", Escaped(Sentence(sentence)));
      }
      sections_ +=
          "<table>\n<thead><tr><th scope=\"col\">What</th><th scope=\"col\">Old</th>"
          "<th scope=\"col\">New</th></tr></thead>\n<tbody>\n" +
          rows_ + "</tbody></table>\n";
    }
    sections_ += same + "</section>\n";
  }

  // ---- rows ------------------------------------------------------------------------------------

  /// Counts a difference. Returns whether the page has room for it.
  bool Count(ChangeKind kind) {
    ++counts_[static_cast<std::size_t>(kind)];
    return ++row_count_ <= kMostRows;
  }

  void AddRow(ChangeKind kind, const std::string& name, std::string_view sentence,
              const std::string& from, const std::string& to) {
    const std::string kind_name(NameOf(kind));
    rows_ += "<tr class=\"" + kind_name + "\" data-kind=\"" + kind_name + "\" tabindex=\"-1\">" +
             Tag("th", "scope=\"row\"",
                 Tag("span", "class=\"sign\" title=\"" + kind_name + "\"", SignOf(kind)) +
                     Span("name", name + Span("aside", " " + kind_name)) +
                     (sentence.empty() ? "" : Tag("p", "", Escaped(Sentence(sentence))))) +
             Tag("td", "class=\"old\"", from) + Tag("td", "class=\"new\"", to) + "</tr>\n";
  }

  void AddValueRow(const Change& change, const std::string& name, std::string_view sentence) {
    if (!Count(change.kind)) return;
    const std::optional<std::string> from = comparison_.pool.Text(change.old_value);
    const std::optional<std::string> to = comparison_.pool.Text(change.new_value);
    Sides sides = {Absent(), Absent()};
    if (change.IsSecret() && secrets_ == Secrets::kHidden) {
      has_hidden_ = true;
      if (from.has_value()) sides.from = Span("none", "secret");
      if (to.has_value()) sides.to = Span("none", from.has_value() ? "secret, changed" : "secret");
    } else if (from.has_value() && to.has_value() && change.value->type == Value::Type::kText) {
      sides = MarkedValues(*from, *to);
      sides = {InValue(sides.from), InValue(sides.to)};
    } else {
      if (from.has_value()) sides.from = InValue(Shown(*from));
      if (to.has_value()) sides.to = InValue(Shown(*to));
    }
    AddRow(change.kind, name, sentence, sides.from, sides.to);
  }

  void AddMoveRow(const Difference& pair, const std::string& name) {
    if (!Count(ChangeKind::kMoved)) return;
    AddRow(ChangeKind::kMoved, name, "", "from place " + std::to_string(pair.from_position + 1),
           "to place " + std::to_string(pair.to_position + 1));
  }

  void AddElementRow(const Difference& difference, const std::string& name) {
    if (!Count(difference.IsAdded() ? ChangeKind::kAdded : ChangeKind::kRemoved)) return;
    const std::string_view sentence = difference.child->sentence.empty()
                                          ? difference.child->element->sentence
                                          : difference.child->sentence;
    if (difference.IsAdded()) {
      AddRow(ChangeKind::kAdded, name, sentence, Absent(),
             Content(to_, difference.to, Fold::kOpen));
    } else {
      AddRow(ChangeKind::kRemoved, name, sentence, Content(from_, difference.from, Fold::kOpen),
             Absent());
    }
  }

  static std::string Absent() { return Span("none", "absent"); }

  static std::string InValue(const std::string& html) {
    return html.empty() ? Span("none", "empty") : Span("value", html);
  }

  // ---- what is in an element -------------------------------------------------------------------

  enum class Fold : bool { kOpen, kClosed };

  std::string ValueOf(const Tree& tree, const Attribute& attribute, std::uint32_t value) {
    if (attribute.is_secret && secrets_ == Secrets::kHidden) {
      has_hidden_ = true;
      return Span("none", "secret");
    }
    return InValue(Shown(*tree.pool().Text(value)));
  }

  /// All that is in an element.
  std::string Content(const Tree& tree, Tree::Index index, Fold fold) {
    const Element& element = tree.ElementAt(index);
    if (element.text.has_value()) {
      const std::optional<std::string> text = tree.pool().Text(tree.Text(index));
      return InValue(Shown(text.value_or("")));
    }
    std::string items;
    for (const Attribute& attribute : element.attributes) {
      const std::uint32_t value = tree.Value(index, attribute);
      if (value != 0) items += AttributeItem(tree, attribute, value);
    }
    for (const Child& child : element.children) {
      const Tree::Range range = tree.Children(index, child);
      const StepWriter steps(tree, child, range);
      for (Tree::Index i = 0; i < range.count; ++i) {
        items += ElementItem(tree, range.first + i, child, steps.Label(i), fold);
      }
    }
    return items.empty() ? Span("none", "empty") : Tag("ul", "class=\"content\"", items);
  }

  std::string AttributeItem(const Tree& tree, const Attribute& attribute, std::uint32_t value) {
    return Tag("li", "", Code(attribute.name) + " " + ValueOf(tree, attribute, value));
  }

  std::string ElementItem(const Tree& tree, Tree::Index index, const Child& child,
                          const std::string& label, Fold fold) {
    const std::string name =
        Code(child.name) + (label.empty() ? "" : " " + Tag("b", "", Escaped(Printable(label))));
    const std::string content = Content(tree, index, fold);
    if (child.element->text.has_value() || tree.Size(index) == 0) {
      return Tag("li", "", name + " " + content);
    }
    return Tag(
        "li", "",
        Tag("details", fold == Fold::kOpen ? "open" : "", Tag("summary", "", name) + content));
  }

  // ---- what is the same ------------------------------------------------------------------------

  /// What two elements that correspond have in common, to be unfolded.
  std::string Unchanged(const Difference& pair) {
    std::string items;
    std::size_t attributes = 0;
    std::size_t elements = 0;
    for (const Attribute& attribute : to_.ElementAt(pair.to).attributes) {
      const std::uint32_t value = to_.Value(pair.to, attribute);
      if (value == 0 || value != from_.Value(pair.from, attribute)) continue;
      ++attributes;
      items += AttributeItem(to_, attribute, value);
    }
    auto next = pair.children.begin();
    for (const Child& child : to_.ElementAt(pair.to).children) {
      const Tree::Range range = to_.Children(pair.to, child);
      std::vector<bool> differs(range.count);
      for (; next != pair.children.end() && next->child == &child; ++next) {
        if (!next->IsRemoved()) differs[next->to_position] = true;
      }
      elements += static_cast<std::size_t>(std::ranges::count(differs, false));
      items += UnchangedChildren(child, range, differs);
    }
    if (items.empty()) return {};
    std::string what = attributes == 0 ? "" : cli::Count(attributes, "attribute");
    if (elements != 0) what += (what.empty() ? "" : ", ") + cli::Count(elements, "element");
    return Tag("details", "class=\"more same\"",
               Tag("summary", "", "Show what is the same: " + what) +
                   Tag("ul", "class=\"content\"", items)) +
           "\n";
  }

  /// A page with everything of a large document would be too large for a browser.
  std::string UnchangedChildren(const Child& child, Tree::Range range,
                                const std::vector<bool>& differs) {
    std::string items;
    std::size_t left_out = 0;
    const StepWriter steps(to_, child, range);
    for (Tree::Index i = 0; i < range.count; ++i) {
      if (differs[i]) continue;
      const std::size_t size = std::max<std::size_t>(to_.Size(range.first + i), 1);
      if (size > room_) {
        ++left_out;
        continue;
      }
      room_ -= size;
      items += ElementItem(to_, range.first + i, child, steps.Label(i), Fold::kClosed);
    }
    if (left_out == 0) return items;
    return items +
           Tag("li", "",
               Code(child.name) + " " +
                   Span("none", cli::Count(left_out, "element") + " that this page leaves out"));
  }

  static constexpr std::size_t kMostUnchanged = 20'000;
  static constexpr std::size_t kMostRows = 10'000;

  const Comparison& comparison_;
  const Tree& from_;
  const Tree& to_;
  const Secrets secrets_;
  std::size_t room_ = kMostUnchanged;  ///< for what is the same, in values
  bool has_hidden_ = false;
  std::size_t row_count_ = 0;
  std::string rows_;  ///< of the section that is being made
  std::string sections_;
  std::size_t counts_[std::size(kChangeKinds)] = {};
};

}  // namespace

std::string DiffHtml(const Comparison& comparison, const DocumentPair& names, Secrets secrets) {
  return PageWriter(comparison, secrets).Write(names);
}

}  // namespace tolva::cli
