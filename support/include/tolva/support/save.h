// Writing a whole document in place of an earlier one.
//
// A file is replaced by a whole one or not at all. The new file is written beside the old one,
// under a name of its own (".tolva-....tmp"), flushed to disk, and only then takes the old one's
// name. So whoever opens the file at any moment sees the old document or the new one, and so does
// whoever looks after the process was killed or the power failed; after these, the file with the
// name of its own may be left over. Whatever else fails, the old file stays as it is and nothing is
// left beside it. Of two saves to one file at the same time the later wins. Windows has no such
// single step that keeps the access list: see the last point.
//
// - A symbolic link stays, and the file that it leads to is replaced, or made if it is missing.
// - Mode, owner, access list and, where the file system keeps them, extended attributes of the
//   user stay (on Windows what ReplaceFileW keeps); a new file gets the mode that the process's
//   mask leaves.
// - Refused, with the file untouched: a directory, a device and other special files, a file that
//   the process may not write, one whose owner or access list cannot be kept, one with further hard
//   links, links in a circle.
// - The process needs the right to make files in the folder and, off Windows, to read the folder.
// - On Windows a file that another process holds open without sharing its deletion is refused.
//   An existing file is replaced by ReplaceFileW, which moves the old one to a ".tolva-....tmp"
//   before the new one takes its name: for that moment there is no file of that name, and when the
//   process is killed or the power fails just then, both are beside it under such names.
#pragma once

#include <tolva/support/documents.h>
#include <tolva/support/report.h>

#include <filesystem>
#include <string_view>

namespace tolva::support {

/// What came of saving.
enum class SaveOutcome {
  kSaved,           ///< the file holds the new document, which is on disk
  kTargetRefused,   ///< there is something that is not to be replaced
  kContentRefused,  ///< the document cannot be written: something required has no written form, or
                    ///< something optional would be lost for want of one
  kNotWritten,      ///< the new file could not be made, written or flushed: a full disk, say
  kNotReadBack,     ///< what was written does not read back as the same document
  kNotReplaced,     ///< the new file could not take the old one's name
  kNotFlushed,  ///< the file is replaced, but it is not certain that a power failure leaves it so
};

struct [[nodiscard]] SaveReport : Report {
  SaveOutcome outcome = SaveOutcome::kSaved;

  /// Saved, and on disk.
  explicit operator bool() const { return outcome == SaveOutcome::kSaved; }
};

struct SaveOptions {
  /// Replaces a file that has further hard links. The other names keep the old content.
  bool break_hard_links = false;
};

/// Writes a document of a kind that is known at run time; `root` is a root node of that kind. See
/// the template below.
SaveReport Save(const DocumentKind& kind, const node::INode& root,
                const std::filesystem::path& file, const SaveOptions& options = {});

/// Writes the root node of a document to a file. A path that `PathToWide` cannot express is
/// refused. Nothing is known of what `tolvaGetLastError` gives afterwards.
///
/// Before the new file takes the old one's name it is read into a new node, to its end, and that
/// node is written again, to a second file beside it. Both files have to be equal, byte by byte,
/// but for attributes that a read supplies where they are absent (`EnableTelemetry`). So nothing is
/// saved that cannot be loaded, or that loads as something else: a signed number of 2147483648 or
/// more, or an empty text in an element that then reads as one without a text. What this cannot see
/// is what the first write changes already: a number outside an ENUM's table that is written as a
/// default text, or fields that are not part of the document. An optional value that a write leaves
/// out in silence, for a character that XML does not allow, is known by the last-error value, and
/// refused as `kContentRefused`; with a system's XmlLite that refuses the line feed after the root
/// element, as Wine's does, it goes unnoticed.
template <class Interface>
SaveReport Save(const Interface& root, const std::filesystem::path& file,
                const SaveOptions& options = {}) {
  static_assert(kDocument<Interface>.make != nullptr, "not the interface of a document's root");
  return Save(kDocument<Interface>, root, file, options);
}

/// Replaces what a file holds by `bytes` in the same way. They are written as they are, and the new
/// file is read back and compared with them before it takes the old one's name.
SaveReport SaveBytes(std::string_view bytes, const std::filesystem::path& file,
                     const SaveOptions& options = {});

}  // namespace tolva::support
