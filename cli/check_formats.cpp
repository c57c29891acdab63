#include "cli/check_formats.h"

#include <filesystem>
#include <nlohmann/json.hpp>

#include "cli/json.h"
#include "cli/markup.h"
#include "cli/text.h"

namespace tolva::cli {
namespace {

using Json = nlohmann::ordered_json;

std::string_view SeverityOf(const Finding& finding) {
  return InfoOf(finding.code).is_error ? "error" : "warning";
}

std::string PlaceOf(const Finding& finding) {
  return std::to_string(finding.position.line) + ":" + std::to_string(finding.position.column);
}

std::string CodeOf(const Finding& finding) { return std::string(InfoOf(finding.code).name); }

// ---- text --------------------------------------------------------------------------------------

class TextFormat final : public CheckFormat {
 public:
  explicit TextFormat(const Style& style) : style_(style) {}

  std::string Record(const std::string& file, const Finding& finding) const override {
    const bool is_error = InfoOf(finding.code).is_error;
    return style_.Heading(Printable(file) + ":" + PlaceOf(finding) + ":") + " " +
           (is_error ? style_.Error("error:") : style_.Required("warning:")) + " " +
           finding.message + " " + style_.Faint("[" + CodeOf(finding) + "]") + "\n";
  }

  std::string End(const Summary& summary) const override {
    std::string line = Count(summary.files, "file") + ": " + Count(summary.errors, "error") + ", " +
                       Count(summary.warnings, "warning");
    if (summary.shown < summary.errors + summary.warnings) {
      line += " (" + std::to_string(summary.shown) + " shown)";
    }
    if (summary.skipped != 0) line += "; " + std::to_string(summary.skipped) + " skipped";
    if (!summary.troubles.empty()) {
      line += "; " + std::to_string(summary.troubles.size()) + " not read";
    }
    return line + "\n";
  }

 private:
  const Style style_;
};

// ---- JSON --------------------------------------------------------------------------------------

/// On one line, in ASCII: names of files may have characters that mean something to a terminal.
/// Text that is not UTF-8 is repaired.
std::string Line(const Json& json) {
  return json.dump(-1, ' ', true, Json::error_handler_t::replace);
}

class JsonFormat final : public CheckFormat {
 public:
  std::string Start() const override {
    return "{\n  \"version\": " + std::to_string(kJsonVersion) + ",\n  \"findings\": [";
  }

  std::string Record(const std::string& file, const Finding& finding) const override {
    return "\n    " + Line({{"file", file},
                            {"line", finding.position.line},
                            {"column", finding.position.column},
                            {"offset", finding.position.offset},
                            {"path", finding.path},
                            {"severity", SeverityOf(finding)},
                            {"code", CodeOf(finding)},
                            {"message", finding.message}});
  }

  std::string_view Separator() const override { return ","; }

  std::string End(const Summary& summary) const override {
    Json troubles = Json::array();
    for (const FileTrouble& trouble : summary.troubles) {
      Json entry = {{"message", trouble.message}};
      if (!trouble.name.empty()) entry["file"] = trouble.name;
      troubles.push_back(entry);
    }
    return std::string(summary.shown == 0 ? "]" : "\n  ]") + ",\n  \"notRead\": " + Line(troubles) +
           ",\n  \"files\": " + std::to_string(summary.files) +
           ",\n  \"skipped\": " + std::to_string(summary.skipped) +
           ",\n  \"errors\": " + std::to_string(summary.errors) +
           ",\n  \"warnings\": " + std::to_string(summary.warnings) +
           ",\n  \"shown\": " + std::to_string(summary.shown) + "\n}\n";
  }
};

// ---- SARIF 2.1.0 -------------------------------------------------------------------------------

/// A reference to a file by RFC 3986.
std::string UriOf(const std::string& file) {
  constexpr std::string_view kPlain = "-._~/!$&'()*+,;=@";
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  constexpr bool kIsWindows = std::filesystem::path::preferred_separator == '\\';
  const bool has_drive = kIsWindows && file.size() > 1 && file[1] == ':';
  std::string uri;
  if (has_drive) {
    uri = "file:///";
  } else if (kIsWindows && file.starts_with("\\\\")) {
    uri = "file:";  // the host follows
  } else if (file.starts_with("/")) {
    uri = "file://";
  }
  for (std::size_t i = 0; i < file.size(); ++i) {
    const char c = kIsWindows && file[i] == '\\' ? '/' : file[i];
    const auto byte = static_cast<unsigned char>(c);
    const bool is_letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    const bool is_plain = is_letter || (c >= '0' && c <= '9') ||
                          kPlain.find(c) != std::string_view::npos || (has_drive && i == 1);
    if (is_plain) {
      uri += c;
    } else {
      uri += '%';
      uri += kDigits[byte >> 4];
      uri += kDigits[byte & 15];
    }
  }
  return uri;
}

Json LocationOf(const std::string& file) {
  return {{"physicalLocation", {{"artifactLocation", {{"uri", UriOf(file)}}}}}};
}

class SarifFormat final : public CheckFormat {
 public:
  std::string Start() const override {
    Json rules = Json::array();
    for (const CodeInfo& info : Codes()) {
      rules.push_back({{"id", info.name},
                       {"shortDescription", {{"text", info.sentence}}},
                       {"defaultConfiguration", {{"level", info.is_error ? "error" : "warning"}}}});
    }
    const Json driver = {{"name", "tolva"}, {"version", TOLVA_VERSION}, {"rules", rules}};
    return "{\n\"$schema\": \"https://json.schemastore.org/sarif-2.1.0.json\",\n\"version\": "
           "\"2.1.0\",\n\"runs\": [{\n\"tool\": " +
           Line({{"driver", driver}}) + ",\n\"columnKind\": \"unicodeCodePoints\",\n\"results\": [";
  }

  std::string Record(const std::string& file, const Finding& finding) const override {
    Json location = LocationOf(file);
    // A position in the stream of bytes has no meaning for characters, so a region has one kind.
    location["physicalLocation"]["region"] = {{"startLine", finding.position.line},
                                              {"startColumn", finding.position.column}};
    if (!finding.path.empty()) {
      location["logicalLocations"] = Json::array({{{"fullyQualifiedName", finding.path}}});
    }
    return "\n" + Line({{"ruleId", CodeOf(finding)},
                        {"ruleIndex", static_cast<int>(finding.code)},
                        {"level", SeverityOf(finding)},
                        {"message", {{"text", finding.message}}},
                        {"locations", Json::array({location})}});
  }

  std::string_view Separator() const override { return ","; }

  std::string End(const Summary& summary) const override {
    Json notifications = Json::array();
    for (const FileTrouble& trouble : summary.troubles) {
      Json notification = {{"level", "error"}, {"message", {{"text", trouble.message}}}};
      if (!trouble.name.empty()) {
        notification["locations"] = Json::array({LocationOf(trouble.name)});
      }
      notifications.push_back(notification);
    }
    const Json invocation = {{"executionSuccessful", summary.troubles.empty()},
                             {"toolExecutionNotifications", notifications}};
    return "\n],\n\"invocations\": [" + Line(invocation) + "]\n}]\n}\n";
  }
};

// ---- annotations of GitHub's workflows ---------------------------------------------------------

std::string EscapedForGithub(std::string_view text, bool is_property) {
  std::string escaped;
  for (const char c : text) {
    const bool is_special =
        c == '%' || c == '\r' || c == '\n' || (is_property && (c == ':' || c == ','));
    if (!is_special) {
      escaped += c;
      continue;
    }
    escaped += c == '%' ? "%25" : c == '\r' ? "%0D" : c == '\n' ? "%0A" : c == ':' ? "%3A" : "%2C";
  }
  return escaped;
}

class GithubFormat final : public CheckFormat {
 public:
  std::string Record(const std::string& file, const Finding& finding) const override {
    return "::" + std::string(SeverityOf(finding)) +
           " file=" + EscapedForGithub(Printable(file), true) +
           ",line=" + std::to_string(finding.position.line) +
           ",col=" + std::to_string(finding.position.column) + ",title=" + CodeOf(finding) +
           "::" + EscapedForGithub(finding.message, false) + "\n";
  }

  std::string End(const Summary& summary) const override {
    std::string lines;
    for (const FileTrouble& trouble : summary.troubles) {
      const std::string file = EscapedForGithub(Printable(trouble.name), true);
      lines += "::error" + (file.empty() ? "" : " file=" + file) +
               "::" + EscapedForGithub(trouble.message, false) + "\n";
    }
    return lines;
  }
};

// ---- JUnit -------------------------------------------------------------------------------------

std::string EscapedForXml(std::string_view text) { return Escaped(Printable(text)); }

/// A test case for each finding, or for a file in which there is none. The numbers of test cases
/// are left out: they would have to be known before the first.
class JunitFormat final : public CheckFormat {
 public:
  explicit JunitFormat(bool is_strict) : is_strict_(is_strict) {}

  std::string Start() const override {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites>\n"
           "<testsuite name=\"tolva check\">\n";
  }

  std::string Record(const std::string& file, const Finding& finding) const override {
    const std::string start = CaseStart(file, PlaceOf(finding) + " " + CodeOf(finding));
    const std::string message = EscapedForXml(finding.message);
    if (!is_strict_ && !InfoOf(finding.code).is_error) {
      return start + "><system-out>warning: " + message + "</system-out></testcase>\n";
    }
    return start + "><failure type=\"" + CodeOf(finding) + "\" message=\"" + message + "\">" +
           EscapedForXml(file) + ":" + PlaceOf(finding) + ": " + message +
           "</failure></testcase>\n";
  }

  std::string RecordOfFine(const std::string& file) const override {
    return CaseStart(file, "check") + "/>\n";
  }

  std::string End(const Summary& summary) const override {
    std::string lines;
    for (const FileTrouble& trouble : summary.troubles) {
      lines += CaseStart(trouble.name, "check") + "><error message=\"" +
               EscapedForXml(trouble.message) + "\"/></testcase>\n";
    }
    return lines + "</testsuite>\n</testsuites>\n";
  }

 private:
  static std::string CaseStart(const std::string& file, const std::string& name) {
    return "<testcase classname=\"" + EscapedForXml(file) + "\" name=\"" + name + "\"";
  }

  const bool is_strict_;
};

}  // namespace

const std::vector<std::string>& CheckFormats() {
  static const std::vector<std::string> names = {"text", "json", "sarif", "github", "junit"};
  return names;
}

std::unique_ptr<CheckFormat> MakeCheckFormat(std::string_view name, const Style& style,
                                             bool is_strict) {
  if (name == "json") return std::make_unique<JsonFormat>();
  if (name == "sarif") return std::make_unique<SarifFormat>();
  if (name == "github") return std::make_unique<GithubFormat>();
  if (name == "junit") return std::make_unique<JunitFormat>(is_strict);
  return std::make_unique<TextFormat>(style);
}

}  // namespace tolva::cli
