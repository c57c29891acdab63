#include "documents.h"

#include <tolva/tolva.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <memory>
#include <random>
#include <string_view>
#include <utility>

#include "policy/policy.h"

namespace tolva::bench {
namespace {

/// In memory where the system has such files, so that no disk is measured.
std::filesystem::path Folder() {
  static const struct Made {
    Made() {
      const std::filesystem::path memory = "/dev/shm";
      path = std::filesystem::exists(memory) ? memory : std::filesystem::temp_directory_path();
      std::string name = path / "tolva-bench-XXXXXX";
      if (mkdtemp(name.data()) == nullptr) std::exit(1);
      path = name;
    }
    Made(const Made&) = delete;
    Made& operator=(const Made&) = delete;
    ~Made() {
      std::error_code ignored;
      std::filesystem::remove_all(path, ignored);
    }
    std::filesystem::path path;
  } made;
  return made.path;
}

void Require(bool done, const char* what) {
  if (done) return;
  std::cerr << "benchmark: cannot " << what << "\n";
  std::exit(1);
}

std::string ReadBytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void Load(node::IElement& root, const std::filesystem::path& path) {
  const std::unique_ptr<IXMLLiteManager> reader(tolvaCreateXMLManager(0));
  Require(reader->OpenFile(path.wstring().c_str()) == 0, "open a document");
  Require(root.ReadFromXMLMgr(reader.get()) == 0, "read a document");
}

std::string Save(const node::IElement& root, const std::filesystem::path& path) {
  const std::unique_ptr<IXMLLiteManager> writer(tolvaCreateXMLManager(1));
  Require(writer->OpenFile(path.wstring().c_str()) == 0, "create a document");
  Require(root.WriteToXMLMgr(writer.get()) == 0, "write a document");
  Require(writer->Close() == 0, "finish a document");
  return ReadBytes(path);
}

class Random {
 public:
  explicit Random(unsigned seed) : engine_(seed) {}

  unsigned Below(unsigned limit) { return static_cast<unsigned>(engine_() % limit); }
  bool Percent(unsigned percent) { return Below(100) < percent; }

 private:
  std::mt19937 engine_;
};

/// Makes nodes that are like others: as long and as full on average, with other letters and digits.
class Variation {
 public:
  /// Attributes, children and items are left out as often as `thinning` says, in percent.
  Variation(Random& random, unsigned thinning) : random_(random), thinning_(thinning) {}

  void Make(const node::Schema& schema, node::IElement& from, node::IElement& to) {
    for (const node::Attribute& row : schema.attributes) {
      MakeAttribute(row, row.locate(from), row.locate(to));
    }
    for (const node::Child& row : schema.children) {
      const node::ChildRef child = row.locate(from);
      if (child.items != nullptr) {
        MakeItems(row, *child.items, to);
      } else if (child.present == nullptr || (*child.present != 0 && !IsLeftOut())) {
        Make(*row.schema, *child.element, row.make(to));
        if (child.present != nullptr) *row.locate(to).present = 1;
      }
    }
  }

 private:
  bool IsLeftOut() { return random_.Percent(thinning_); }

  void MakeItems(const node::Child& row, const node::ItemList& items, node::IElement& to) {
    for (std::size_t i = 0; i < items.Size(); ++i) {
      auto& from = const_cast<node::IElement&>(items.Item(i));
      if (!IsLeftOut()) Make(*row.schema, from, row.make(to));
      if (random_.Percent(kLeftOut)) Make(*row.schema, from, row.make(to));
    }
  }

  void MakeAttribute(const node::Attribute& row, const node::FieldRef& from,
                     const node::FieldRef& to) {
    if (to.present != nullptr) {
      if (*from.present == 0 || IsLeftOut()) return;
      *to.present = 1;
    }
    switch (row.type) {
      case node::ValueType::kString:
        *static_cast<std::wstring*>(to.value) = Text(*static_cast<std::wstring*>(from.value));
        break;
      case node::ValueType::kEnum:
        *static_cast<DWORD*>(to.value) =
            random_.Below(static_cast<unsigned>(row.enum_texts.texts.size()));
        break;
      case node::ValueType::kNumber:
        *static_cast<DWORD*>(to.value) = Number(*static_cast<DWORD*>(from.value));
        break;
      case node::ValueType::kLongNumber:
        *static_cast<std::uint64_t*>(to.value) = random_.Below(1'000'000'000);
        break;
    }
  }

  /// Half to one and a half times as long, of the same kinds of characters.
  std::wstring Text(std::wstring_view like) {
    const auto size = static_cast<unsigned>(like.size());
    if (size == 0) return {};
    std::wstring text(std::max(size / 2 + random_.Below(size + 1), 1U), L' ');
    unsigned at = random_.Below(size);
    for (wchar_t& c : text) {
      c = like[at++ % size];
      if (c >= L'a' && c <= L'z') c = static_cast<wchar_t>(L'a' + random_.Below(26));
      if (c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(L'A' + random_.Below(26));
      if (c >= L'0' && c <= L'9') c = static_cast<wchar_t>(L'0' + random_.Below(10));
    }
    return text;
  }

  /// Most numbers are flags, and stay flags.
  DWORD Number(DWORD like) {
    if (like < 2) return random_.Below(2);
    return random_.Below(std::min(like, DWORD{100'000'000}) * 10);
  }

  static constexpr unsigned kLeftOut = 12;

  Random& random_;
  unsigned thinning_;
};

/// Locations like those of the example, each with its size in a document.
class Locations {
 public:
  struct Location {
    std::unique_ptr<TolvaInterface::ILocation> node;
    std::size_t size;
  };

  Locations(Random& random, TolvaInterface::ILocationArray& like, std::filesystem::path path)
      : random_(random), like_(like), path_(std::move(path)) {}

  Location Make(unsigned thinning) {
    Location made = {
        std::unique_ptr<TolvaInterface::ILocation>(TolvaInterface::Location_CreateNewInstance()),
        0};
    Variation(random_, thinning)
        .Make(TolvaInterface::CLocation::kSchema,
              *like_.GetLocationAt(random_.Below(like_.GetLocationCount())), *made.node);
    constexpr std::size_t kIndentation = 4;
    const std::string text = Save(*made.node, path_);
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    made.size = text.size() - text.find('\n') + lines * kIndentation;
    return made;
  }

  /// The one of many whose size is nearest.
  Location MakeOfSize(std::size_t size) {
    const auto distance = [size](const Location& one) {
      return one.size > size ? one.size - size : size - one.size;
    };
    Location best = Make(0);
    for (unsigned thinning = 0; thinning < 90; ++thinning) {
      for (int i = 0; i < 4; ++i) {
        Location other = Make(thinning);
        if (distance(other) < distance(best)) best = std::move(other);
      }
    }
    return best;
  }

 private:
  Random& random_;
  TolvaInterface::ILocationArray& like_;
  const std::filesystem::path path_;
};

std::string MakePolicy(unsigned seed, std::size_t size, const std::filesystem::path& path) {
  using namespace TolvaInterface;
  constexpr unsigned kThinning = 12;
  const std::unique_ptr<IILPClientConfiguration> example(
      ILPClientConfiguration_CreateNewInstance());
  Load(*example, std::filesystem::path(TOLVA_DOCUMENTS) / "policy.xml");
  Random random(seed);
  Locations locations(random, *example->GetLocationArray(), path);
  const std::unique_ptr<IILPClientConfiguration> root(ILPClientConfiguration_CreateNewInstance());
  root->CopyFrom(*example);
  root->GetLocationArray()->RemoveAllLocation();

  constexpr std::size_t kLast = 8'000;
  std::size_t now = Save(*root, path).size();
  const auto add = [&](const Locations::Location& location) {
    root->GetLocationArray()->AddLocation(location.node.get());
    now += location.size;
  };
  while (now + kLast < size) add(locations.Make(kThinning));
  while (now + kLast / 2 < size) add(locations.MakeOfSize((size - now) / 2));
  add(locations.MakeOfSize(size - now));
  return Save(*root, path);
}

std::wstring MakeSentence(Random& random) {
  static constexpr std::array<std::wstring_view, 64> kWords = {
      L"the",          L"file",       L"that",     L"you",      L"are",     L"about",
      L"to",           L"copy",       L"holds",    L"data",     L"must",    L"not",
      L"leave",        L"this",       L"computer", L"ask",      L"your",    L"administrator",
      L"and",          L"try",        L"again",    L"printing", L"sending", L"by",
      L"mail",         L"outside",    L"company",  L"needs",    L"reason",  L"a",
      L"of",           L"is",         L"blocked",  L"was",      L"held",    L"removable",
      L"medium",       L"network",    L"drive",    L"policy",   L"office",  L"review",
      L"confidential", L"report",     L"customer", L"address",  L"number",  L"scan",
      L"finished",     L"encryption", L"key",      L"password", L"if",      L"it",
      L"in",           L"or",         L"from",     L"with",     L"at",      L"no",
      L"Daten",        L"Büro",       L"Größe",    L"główna"};
  // The words at the end have letters beyond ASCII, and only one sentence in ten has any of them.
  const auto words = static_cast<unsigned>(kWords.size()) - (random.Percent(90) ? 4 : 0);
  std::wstring sentence;
  for (unsigned left = 4 + random.Below(12); left != 0; --left) {
    if (!sentence.empty()) sentence += random.Percent(2) ? L" & " : L" ";
    sentence += kWords[random.Below(words)];
  }
  sentence[0] = static_cast<wchar_t>(sentence[0] - L'a' + L'A');
  return sentence + L". ";
}

/// The size of a text in a document, escaped.
std::size_t SizeOf(std::wstring_view text) {
  std::size_t size = 0;
  for (const wchar_t c : text) size += c == L'&' ? 5 : c < 0x80 ? 1 : 2;
  return size;
}

/// Messages of one to eighteen sentences.
std::string MakeCatalogue(unsigned seed, std::size_t size, const std::filesystem::path& path) {
  using namespace MessageConf;
  constexpr std::size_t kTags = 90;
  constexpr std::size_t kSmallest = 300;
  constexpr std::size_t kLongestDescription = 60;
  Random random(seed);
  const std::unique_ptr<IEndPointMessage> root(EndPointMessage_CreateNewInstance());
  const std::unique_ptr<IMessage> message(Message_CreateNewInstance());
  std::size_t now = Save(*root, path).size();
  for (DWORD id = 1000; now + kSmallest < size; ++id) {
    std::wstring about = MakeSentence(random);
    about.resize(std::min(about.size(), kLongestDescription));
    now += kTags + SizeOf(about);
    std::wstring text;
    for (unsigned left = 1 + random.Below(18); left != 0; --left) text += MakeSentence(random);
    const bool is_last = now + SizeOf(text) + kSmallest >= size;
    while (is_last && now + SizeOf(text) < size) text += MakeSentence(random);
    while (now + SizeOf(text) > size) text.pop_back();
    now += SizeOf(text);
    message->SetID(&id);
    message->GetContent()->SetContent(&text);
    message->GetDescription()->SetContent(&about);
    root->AddMessage(message.get());
  }
  return Save(*root, path);
}

Document MakeDocument(Kind kind, std::size_t size, unsigned seed) {
  const std::string name =
      std::to_string(kind) + "-" + std::to_string(size) + "-" + std::to_string(seed) + ".xml";
  Document document = {"", Folder() / name, 0};
  document.text = kind == kPolicy ? MakePolicy(seed, size, document.path)
                                  : MakeCatalogue(seed, size, document.path);
  const std::size_t off =
      std::max(document.text.size(), size) - std::min(document.text.size(), size);
  Require(off <= size * 3 / 100, "make a document of that size");
  for (std::size_t at = 0; (at = document.text.find('<', at)) != std::string::npos; ++at) {
    if (document.text[at + 1] != '/' && document.text[at + 1] != '?') ++document.elements;
  }
  return document;
}

}  // namespace

const Documents& GetDocuments(Kind kind, std::size_t size) {
  static std::map<std::pair<Kind, std::size_t>, Documents> made;
  Documents& documents = made[{kind, size}];
  while (documents.empty() || documents.size() * size < kVariety) {
    const auto seed = static_cast<unsigned>(documents.size() + 1);
    documents.push_back(MakeDocument(kind, size, seed));
  }
  return documents;
}

std::filesystem::path OutputPath() { return Folder() / "output.xml"; }

}  // namespace tolva::bench
