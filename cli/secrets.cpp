#include "cli/secrets.h"

#include <algorithm>
#include <vector>

#include "cli/files.h"
#include "cli/session.h"
#include "platform/xml/parser.h"

namespace tolva::cli {
namespace {

using own_xml::Parser;

/// Knows where the parser's window is in the text.
class WindowStart final : public own_xml::InputObserver {
 public:
  void Dropping(std::string_view text) override { offset += text.size(); }

  std::size_t offset = 0;
};

/// The names of all attributes that are secret in some element: in others they may be for want of
/// knowledge, or of an end tag.
std::vector<std::string_view> SecretNames(const Document& document) {
  std::vector<std::string_view> names;
  for (const auto& element : document.elements) {
    for (const Attribute& attribute : element->attributes) {
      if (attribute.is_secret) names.push_back(attribute.name);
    }
  }
  return names;
}

}  // namespace

std::string WithoutSecrets(std::string_view text, const Document& document) {
  Parser parser;
  WindowStart window;
  parser.SetInput(StreamOf(text).Get(), true);
  parser.Observe(&window);
  const std::vector<std::string_view> names = SecretNames(document);
  std::string shown;
  std::size_t done = 0;
  const auto hide = [&](std::string_view piece) {
    const auto at = window.offset + static_cast<std::size_t>(piece.data() - parser.input().start());
    shown.append(text.substr(done, at - done)) += "***";
    done = at + piece.size();
  };
  own_xml::ReadResult result = own_xml::ReadResult::kNode;
  while ((result = parser.Read()) == own_xml::ReadResult::kNode) {
    for (const own_xml::Attribute& attribute : parser.attributes()) {
      if (std::ranges::find(names, attribute.name.Local()) != names.end()) hide(attribute.value);
    }
    // An element may be commented out.
    const bool is_told = parser.type() != XmlNodeType_Comment ||
                         std::ranges::none_of(names, [&](std::string_view name) {
                           return parser.value().find(name) != std::string_view::npos;
                         });
    if (!is_told) hide(parser.value());
  }
  if (result != own_xml::ReadResult::kEnd) throw Trouble("secrets cannot be told from the rest");
  return shown.append(text.substr(done));
}

}  // namespace tolva::cli
