// Reading a whole document into its root node.
#pragma once

#include <tolva/support/documents.h>
#include <tolva/support/report.h>

#include <filesystem>
#include <memory>
#include <string>
#include <utility>

namespace tolva::support {

/// What came of loading a document.
enum class LoadOutcome {
  kLoaded,         ///< the node holds the document, which is well-formed to its end
  kDamaged,        ///< the node was read, but after what it needed the document breaks off, is
                   ///< malformed, or could not be read on: `error` says which
  kOtherDocument,  ///< the root element has another name, see `root_element`
  kRefused,        ///< a well-formed document in which the node found something required missing
                   ///< or a malformed value: `diagnostics` says where
  kNotWellFormed,  ///< the document is empty, breaks off or is malformed: `error` says how
  kUnreadable,     ///< the file could not be opened, or not be read to where the node needs it
};

struct LoadReport : Report {
  LoadOutcome outcome = LoadOutcome::kLoaded;

  /// `kOtherDocument`: the name of the root element that is there, as `RootName` gives it.
  std::string root_element;

  /// Loaded, and whole.
  explicit operator bool() const { return outcome == LoadOutcome::kLoaded; }
};

/// A document that was loaded, or why it was not:
///   auto [policy, report] = Load<TolvaInterface::IILPClientConfiguration>("policy.xml");
template <class Interface>
struct Loaded {
  /// The root node; null unless the outcome is `kLoaded` or `kDamaged`.
  std::unique_ptr<Interface> root;

  LoadReport report;
};

/// Reads a document of a kind that is known at run time. See the templates below.
Loaded<node::INode> Load(const DocumentKind& kind, const std::filesystem::path& file);
Loaded<node::INode> LoadFromString(const DocumentKind& kind, const std::wstring& document);

namespace internal {

/// Gives a root node the interface that its kind says it has.
template <class Interface>
Loaded<Interface> Typed(Loaded<node::INode> loaded) {
  return {std::unique_ptr<Interface>(static_cast<Interface*>(loaded.root.release())),
          std::move(loaded.report)};
}

}  // namespace internal

/// Opens a file, reads its root element into a new node and reads on to the end of the document.
/// `Interface` is that of the root of one of the documents (`kDocument`). A path that `PathToWide`
/// cannot express is `kUnreadable`. Nothing is known of what `tolvaGetLastError` gives afterwards.
template <class Interface>
Loaded<Interface> Load(const std::filesystem::path& file) {
  static_assert(kDocument<Interface>.make != nullptr, "not the interface of a document's root");
  return internal::Typed<Interface>(Load(kDocument<Interface>, file));
}

/// The same for a document in a string; the encoding that it declares does not matter. A lone
/// surrogate in it is read as U+FFFD.
template <class Interface>
Loaded<Interface> LoadFromString(const std::wstring& document) {
  static_assert(kDocument<Interface>.make != nullptr, "not the interface of a document's root");
  return internal::Typed<Interface>(LoadFromString(kDocument<Interface>, document));
}

}  // namespace tolva::support
