#include "cli/secrets.h"

#include <algorithm>

#include "cli/files.h"
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

bool IsSecret(const Document& document, std::string_view element, std::string_view attribute) {
  return std::ranges::any_of(document.elements, [&](const auto& one) {
    if (one->name != element) return false;
    const Attribute* const found = one->FindAttribute(attribute);
    return found != nullptr && found->is_secret;
  });
}

}  // namespace

std::string WithoutSecrets(std::string_view text, const Document& document) {
  Parser parser;
  WindowStart window;
  parser.SetInput(StreamOf(text).Get(), true);
  parser.Observe(&window);
  std::string shown;
  std::size_t done = 0;
  while (parser.Read() == own_xml::ReadResult::kNode) {
    for (const own_xml::Attribute& attribute : parser.attributes()) {
      if (!IsSecret(document, parser.name().Local(), attribute.name.text)) continue;
      const auto at =
          window.offset + static_cast<std::size_t>(attribute.value.data() - parser.input().start());
      shown.append(text.substr(done, at - done)) += "***";
      done = at + attribute.value.size();
    }
  }
  return shown.append(text.substr(done));
}

}  // namespace tolva::cli
