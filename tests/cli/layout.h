// Documents with random content, as the library writes them and in other layouts and encodings.
#pragma once

#include <algorithm>
#include <nlohmann/json.hpp>
#include <random>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

#include "cli/byte_form.h"
#include "cli/json.h"
#include "cli/load.h"
#include "cli/text.h"
#include "tables/random_content.h"

namespace tolva::test {

inline std::string RandomDocument(const cli::Document& document, unsigned seed) {
  const auto node = document.make();
  RandomContent(seed).Fill(*document.root().schema, *node);
  return WrittenForm(document, *node);
}

/// The document's JSON form.
inline nlohmann::ordered_json ReadJson(const std::string& bytes) {
  const cli::Loaded loaded = cli::LoadBytes(bytes, "test.xml");
  return cli::ToJson(*loaded.document, *loaded.root);
}

/// Each encoding, with or without a byte order mark, and each line end.
inline cli::ByteForm FormOfSeed(unsigned seed) {
  namespace own_xml = platform::own_xml;
  cli::ByteForm forms[] = {{},
                           {.has_mark = true},
                           {.encoding = own_xml::DetectEncoding("\xFF\xFE")},
                           {.encoding = own_xml::DetectEncoding("\xFE\xFF"), .has_mark = true},
                           {.encoding = &own_xml::DeclaredEncoding("encoding='ISO-8859-1'")},
                           {.encoding = &own_xml::DeclaredEncoding("encoding='US-ASCII'")}};
  constexpr std::string_view kLineEnds[] = {"\n", "\r\n", "\r"};
  cli::ByteForm& form = forms[seed % std::size(forms)];
  form.line_end = kLineEnds[seed / std::size(forms) % std::size(kLineEnds)];
  return form;
}

/// Changes how a document is written, but not what the library reads.
class Layout {
 public:
  enum class Kind : bool {
    kComments,  ///< with comments and instructions; values and tags as they were
    kSpelling,  ///< references, sections, attributes in any order, empty elements with two tags
  };

  Layout(Kind kind, unsigned seed) : respells_(kind == Kind::kSpelling), random_(seed) {}

  /// `text` is in the form that the library writes.
  std::string Change(std::string_view text) {
    std::string result(Take(text, text.find('\n') + 1));
    while (!text.empty()) {
      if (text[0] == '<') {
        result += Tag(std::string(Take(text, text.find('>') + 1)));
        continue;
      }
      const std::string_view between = Take(text, std::min(text.find('<'), text.size()));
      const bool is_layout = between.find_first_not_of(" \n") == std::string_view::npos;
      result += is_layout ? Space(between) : respells_ ? Text(between) : std::string(between);
    }
    return result;
  }

 private:
  bool Perhaps() { return random_() % 4 == 0; }

  static std::string_view Take(std::string_view& text, std::size_t size) {
    const std::string_view taken = text.substr(0, size);
    text.remove_prefix(taken.size());
    return taken;
  }

  std::string Space(std::string_view space) {
    const std::string same(space);
    static const std::string kSpaces[] = {"", " ", "\n", "\n\n", "\t", "\n    ", " \n"};
    if (respells_) return kSpaces[random_() % std::size(kSpaces)];
    const std::string others[] = {"", "  <!-- a <\n b & \"c\" -->" + same,
                                  same + "<!-- d -->" + same, "\n\n\t", " <?target value?>\n"};
    const std::size_t choice = random_() % 8;
    return choice < std::size(others) ? others[choice] : same;
  }

  std::string Tag(const std::string& tag) {
    static const std::regex kAttribute(R"re( ([^ =]+)="([^"]*)")re");
    const std::string name = tag.substr(1, tag.find_first_of(" />", 2) - 1);
    std::vector<std::string> attributes;
    for (std::sregex_iterator at(tag.begin(), tag.end(), kAttribute), end; at != end; ++at) {
      attributes.push_back(Attribute(at->str(1), at->str(2)));
    }
    if (respells_ && Perhaps()) std::shuffle(attributes.begin(), attributes.end(), random_);
    std::string result = "<" + name;
    for (const std::string& attribute : attributes) {
      result += (Perhaps() ? "\n  " : " ") + attribute;
    }
    if (Perhaps()) result += Perhaps() ? "\n" : " ";
    if (!tag.ends_with("/>")) return result + ">";
    return respells_ && Perhaps() ? result + "></" + name + ">" : result + "/>";
  }

  std::string Attribute(const std::string& name, const std::string& value) {
    const std::string text = respells_ ? Text(value, false) : value;
    const bool is_single =
        Perhaps() && text.find_first_of(respells_ ? "'" : "'&") == std::string::npos;
    const char quote = is_single ? '\'' : '"';
    return name + (Perhaps() ? " = " : "=") + quote + text + quote;
  }

  /// Some characters as references, or a text as a section.
  std::string Text(std::string_view text, bool may_be_section = true) {
    const bool is_ascii = cli::Columns(text) == text.size();  // no character takes two bytes
    if (may_be_section && is_ascii && text.find('&') == std::string_view::npos && Perhaps()) {
      return "<![CDATA[" + std::string(text) + "]]>";
    }
    std::string result;
    bool is_reference = false;
    for (const char c : text) {
      is_reference = c == '&' || (is_reference && c != ';');
      const bool may_be_one = !is_reference && c > ' ' && c != ';';
      const std::string number = std::to_string(static_cast<int>(c));
      result += may_be_one && Perhaps() ? "&#" + number + ";" : std::string(1, c);
    }
    return result;
  }

  const bool respells_;
  std::mt19937 random_;
};

}  // namespace tolva::test
