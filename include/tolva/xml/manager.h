// The XML manager: the object through which configuration nodes reach an XML document.
//
//   IXMLLiteManager* reader = tolvaCreateXMLManager(0);        // 0: a reader
//   ConfigResult result = reader->OpenFile(L"active-directory.xml");
//   if (result == 0) result = root->ReadFromXMLMgr(reader);
//   if (result == 0) result = tolvaReadToEnd(reader);          // is the rest well-formed, too?
//   tolvaDestroyXMLManager(reader);
//
// A manager is either a reader or a writer for its whole life, works on one document at a time, and
// is used by one thread at a time. Separate managers may be used on separate threads.
//
// Memory, with the library's own XML layer. A reader holds a block of 64 KiB of its file, or the
// largest piece of markup or text if that is larger; the value that it is asked for once more, as
// wide characters; and the names and namespace declarations of the open elements. A start tag with
// very many attributes or declarations takes up to some thirty times its size. A document that is
// given as a string is held as UTF-8, twice while it is being opened. A writer holds back a block
// of 64 KiB, and the attributes and the text of the element at hand. Nodes come on top.
#pragma once

#include <tolva/export.h>
#include <tolva/types.h>

/// A reader or writer of one XML document.
///
/// Results are 0, -101 (failed; the thread's last-error value holds the platform's code where it
/// gave one) or -102 (a null argument). A manager whose XML object could not be created answers
/// -101 to every opening. Making a manager, opening and closing may throw std::bad_alloc, and
/// nothing else. Nodes take managers that `tolvaCreateXMLManager` made, and no others.
///
/// Off Windows a path is converted to UTF-8, and a new file has the mode that the process's mask
/// leaves.
class IXMLLiteManager {
 public:
  IXMLLiteManager() = default;
  IXMLLiteManager(const IXMLLiteManager&) = delete;
  IXMLLiteManager& operator=(const IXMLLiteManager&) = delete;

  /// Callers destroy a manager through `tolvaDestroyXMLManager`.
  virtual ~IXMLLiteManager() = default;

  /// Reader: opens the file and stops on the root element. 0 is also returned when the input holds
  /// no element or breaks off before one; the last-error value then holds the parser's answer, and
  /// the root node's read answers -102. A document type declaration is an error. A directory is
  /// refused with -101. So is a file whose size is a multiple of 4 GiB, an empty one included; the
  /// library leaves the last-error value alone then. On Windows a file is refused as well while any
  /// handle on it is open, those of this process's other managers included: close a reader before
  /// its file is opened again, replaced or written, and a writer before its file is read.
  ///
  /// Writer: creates the file or truncates it, and writes the XML declaration. A document that is
  /// still open on this manager is finished first; the outcome is not reported. To keep an earlier
  /// file until the new one is complete, write to a name beside it and rename that after the root's
  /// write and `Close` both returned 0.
  virtual ConfigResult OpenFile(const wchar_t* path) = 0;

  /// Reader: lets the file go; 0.
  ///
  /// Writer: closes the elements that are still open, flushes, commits the stream (on Linux the
  /// result of close(2) counts) and lets the file go. 0 when all that succeeded and when nothing is
  /// open. -101, with the reason as last-error value:
  ///
  /// - When the stream or the system failed in an earlier call, even once and even if the node's
  ///   write returned 0, or threw std::bad_alloc: what that call wrote may be missing. The rest is
  ///   brought to the file as far as possible, and the file is let go. The reason is the code of
  ///   the first such call.
  /// - When ending, flushing or committing fails (a full disk): the file stays open and the next
  ///   `Close` tries again.
  /// - When there is no root element, or a second one was refused: what was good is in the file,
  ///   which stays open; a further `Close` answers the same.
  ///
  /// `OpenFile` and the destruction let a file go that `Close` left open. A refusal of what was to
  /// be written (0xC00Cxxxx) is no reason: after a node's write that failed because of it `Close`
  /// ends the document, well-formed and incomplete, and returns 0.
  virtual ConfigResult Close() = 0;

  /// Reader: reads a document from a zero-terminated wide string, which is copied; stops on the
  /// root element as `OpenFile` does. -102 for null, for an empty text and for one that is too
  /// long: the document that was open stays so. A lone surrogate becomes U+FFFD. The text is
  /// converted to UTF-8 first: an encoding that it declares is ignored by the library's own XML
  /// layer, but XmlLite may refuse any but UTF-8.
  ///
  /// Writer: not supported; -101.
  virtual ConfigResult OpenFromString(const wchar_t* xml_text) = 0;
};

/// Makes a manager: a writer when `writer` is nonzero, a reader when it is zero. The caller owns
/// it.
TOLVA_API IXMLLiteManager* tolvaCreateXMLManager(int writer);

/// Destroys a manager; null is ignored. A writer's open document is finished and flushed first; the
/// outcome is not reported.
TOLVA_API void tolvaDestroyXMLManager(IXMLLiteManager* manager);

/// Reads on from wherever `reader` stands to the end of its document, which no node's read does: 0
/// when the whole document is well-formed; else -101, with the reason as last error. -101 as well,
/// with the last error as it was, for a writer and for a reader that holds no document; -102 for
/// null. Nothing can be read from the document afterwards. May throw std::bad_alloc.
TOLVA_API ConfigResult tolvaReadToEnd(IXMLLiteManager* reader);

/// Installs the function that receives every diagnostic text of the process, replacing an earlier
/// one; null removes it. It is called on the thread that failed, and the text is valid only during
/// the call. It must neither throw nor call the library. Install it before other threads use the
/// library.
TOLVA_API void SetTolvaDebugDumpCallBack(void (*callback)(const wchar_t*));

/// The calling thread's last-error value: the HRESULT of a failed platform call; -104 (attribute
/// absent) and -102 as DWORDs; 1 where the reader found no suitable node; 0 after an attribute was
/// read. What succeeds need not touch it. On Windows it is the system's own cell: other calls may
/// change it, an open that succeeds included.
///
/// Set to 0 before a document is opened, it tells after the read of the root returned 0 that the
/// document was not read to the root's end: 0xC00CExxx when it breaks off, is malformed or nests
/// too deeply before that, 0x8007xxxx or 0x8003xxxx (storage) when the file could not be read. It
/// says nothing of what follows the root element: `tolvaReadToEnd` does.
///
/// Set to 0 before the write of a root, it tells after the write returned 0 that something optional
/// was left out: 0xC00CEE2B for a character that XML does not allow, 0xC00CEF0C for half a
/// surrogate pair. With XmlLite it may be 0xC00CEF0B instead, whether something was left out or
/// not, when the last line feed was refused.
TOLVA_API DWORD tolvaGetLastError();

/// Sets the value that `tolvaGetLastError` reads.
TOLVA_API void tolvaSetLastError(DWORD error);
