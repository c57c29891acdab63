// What differs, for programs.
#include <nlohmann/json.hpp>

#include "cli/diff_formats.h"
#include "cli/json.h"

namespace tolva::cli {
namespace {

using Json = nlohmann::ordered_json;

class JsonWriter {
 public:
  JsonWriter(const Comparison& comparison, Secrets secrets)
      : comparison_(comparison), secrets_(secrets) {}

  std::string Write(const DocumentPair& names) {
    Json head = {{"version", kJsonVersion},
                 {"document", comparison_.document.name},
                 {"from", names.from},
                 {"to", names.to},
                 {"ignoreOrder", comparison_.pool.order == ListOrder::kIsIgnored},
                 {"equal", comparison_.AreEqual()}};
    std::string text = "{\n";
    for (const auto& [name, value] : head.items()) {
      text += "  \"" + name + "\": " + Dump(value) + ",\n";
    }
    text += "  \"changes\": [";
    ForEachChange(comparison_, [&](const Change& change) {
      text += (is_first_ ? "\n    " : ",\n    ") + Dump(Record(change));
      is_first_ = false;
    });
    text += is_first_ ? "],\n" : "\n  ],\n";
    for (const ChangeKind kind : kChangeKinds) {
      text += "  \"" + std::string(NameOf(kind)) +
              "\": " + std::to_string(counts_[static_cast<std::size_t>(kind)]) +
              (kind == ChangeKind::kMoved ? "\n" : ",\n");
    }
    return text + "}\n";
  }

 private:
  /// File names may have any bytes.
  static std::string Dump(const Json& json) { return DumpJson(json, -1); }

  Json Record(const Change& change) {
    ++counts_[static_cast<std::size_t>(change.kind)];
    Json record = {{"kind", NameOf(change.kind)},
                   {"what", change.attribute != nullptr ? "attribute"
                            : change.value != nullptr   ? "text"
                                                        : "element"},
                   {"path", change.path}};
    if (!change.new_path.empty() && change.new_path != change.path) {
      record["newPath"] = change.new_path;
    }
    if (change.is_item) {
      if (change.kind != ChangeKind::kAdded) record["from"] = change.from_position + 1;
      if (change.kind != ChangeKind::kRemoved) record["to"] = change.to_position + 1;
    }
    if (change.IsSecret()) record["secret"] = true;
    const bool has_old = change.kind != ChangeKind::kAdded;
    const bool has_new = change.kind != ChangeKind::kRemoved;
    if (change.value != nullptr) {
      if (has_old) record["old"] = ValueOf(change, change.old_value);
      if (has_new) record["new"] = ValueOf(change, change.new_value);
    } else if (change.kind != ChangeKind::kMoved) {
      if (has_old) record["old"] = ElementOf(change, comparison_.From(), change.from);
      if (has_new) record["new"] = ElementOf(change, comparison_.To(), change.to);
    }
    return record;
  }

  Json ValueOf(const Change& change, std::uint32_t value) const {
    const std::optional<std::string> text = comparison_.pool.Text(value);
    const bool is_hidden = change.IsSecret() && secrets_ == Secrets::kHidden;
    return is_hidden || !text.has_value() ? Json(nullptr) : ValueToJson(*change.value, *text);
  }

  Json ElementOf(const Change& change, const Tree& tree, Tree::Index index) const {
    return ElementToJson(*change.element, TreeView(tree, index), secrets_);
  }

  const Comparison& comparison_;
  const Secrets secrets_;
  bool is_first_ = true;
  std::size_t counts_[std::size(kChangeKinds)] = {};
};

}  // namespace

std::string DiffJson(const Comparison& comparison, const DocumentPair& names, Secrets secrets) {
  return JsonWriter(comparison, secrets).Write(names);
}

}  // namespace tolva::cli
