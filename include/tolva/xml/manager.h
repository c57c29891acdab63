// The XML manager: the object through which nodes read and write an XML document.
//
//   IXMLLiteManager* reader = tolvaCreateXMLManager(0);        // 0: a reader
//   ConfigResult result = reader->OpenFile(L"active-directory.xml");
//   if (result == 0) result = root->ReadFromXMLMgr(reader);
//   if (result == 0) result = tolvaReadToEnd(reader);          // is the rest well-formed?
//   tolvaDestroyXMLManager(reader);
//
// A manager is either a reader or a writer for its whole life. It works on one document at a time
// and may be used by one thread at a time. Different threads may use different managers.
//
// Memory use with the library's own XML layer, in addition to the nodes:
//
// - A reader holds a block of 64 KiB of its file, or a small multiple of the largest piece of
//   markup or text if that is more. It also holds the last value that was requested, as wide
//   characters, and the names and namespace declarations of the open elements.
// - A start tag with very many attributes or namespace declarations takes up to about thirty times
//   its size.
// - A document that is given as a string is held as UTF-8, twice while it is being opened.
// - A writer buffers a block of 64 KiB, and the attributes and text of the current element.
#pragma once

#include <tolva/export.h>
#include <tolva/types.h>

/// A reader or writer of XML documents.
///
/// Functions return 0, -101 (failed; the thread's last-error value is the platform's code, if there
/// is one) or -102 (a null argument). If the XML object of a manager could not be created, every
/// attempt to open a document fails with -101. When memory runs out, creating a manager, opening
/// and closing may throw std::bad_alloc; they throw nothing else. Nodes accept only managers that
/// `tolvaCreateXMLManager` has returned.
///
/// On systems other than Windows, paths are converted to UTF-8, and a new file gets mode 0666,
/// restricted by the process's umask.
class IXMLLiteManager {
 public:
  IXMLLiteManager() = default;
  IXMLLiteManager(const IXMLLiteManager&) = delete;
  IXMLLiteManager& operator=(const IXMLLiteManager&) = delete;

  /// Callers destroy a manager through `tolvaDestroyXMLManager`.
  virtual ~IXMLLiteManager() = default;

  /// Reader: closes the current document, opens the file and moves to its root element. A null path
  /// fails with -102 and leaves the current document open.
  ///
  /// The result is 0 even if the file ends, or turns out to be malformed, before its first element.
  /// The last-error value is then the parser's result, and reading the root node returns -102. A
  /// document type declaration counts as malformed (last-error value 0xC00CEE4F).
  ///
  /// The function fails with -101 for a directory, and for a file whose size is 0 or another
  /// multiple of 4 GiB; in the latter case the library does not set the last-error value. On
  /// Windows it also fails while any other handle to the file is open, including those of other
  /// managers in the same process. Close a reader before its file is opened again, replaced or
  /// written, and close a writer before its file is read.
  ///
  /// Writer: ends and closes the current document without reporting the outcome, creates or
  /// truncates the file, and writes the XML declaration. To keep an earlier file until the new one
  /// is complete, write to a temporary file next to it, and rename that file after the root's write
  /// and `Close` have both returned 0.
  virtual ConfigResult OpenFile(const wchar_t* path) = 0;

  /// Reader: closes the file and returns 0.
  ///
  /// Writer: ends the elements that are still open, flushes, commits the stream (on Linux this
  /// closes the file, and the result of close(2) counts) and closes the file. Returns 0 if all of
  /// this succeeds, or if no document is open. Otherwise returns -101 and sets the last-error value
  /// to the reason:
  ///
  /// - An earlier call failed because of the stream or the system, or threw std::bad_alloc, even if
  ///   the node's write returned 0. What that call was to write may be missing. `Close` writes the
  ///   rest as far as possible and closes the file. The reason is the code of the first such call,
  ///   0x8007000E for std::bad_alloc.
  /// - Ending, flushing or committing fails (the disk is full, for example). The document stays
  ///   open, and the next `Close` tries again.
  /// - The document has no root element, or a second root element was refused. Everything that was
  ///   accepted is in the file. The document stays open, and another `Close` fails the same way.
  ///
  /// `OpenFile` and the destructor close a document that `Close` has left open.
  ///
  /// Content that the writer refused (0xC00Cxxxx) is not a reason to fail. If a node's write failed
  /// because of it, `Close` still ends the document, which is then well-formed but incomplete, and
  /// returns 0.
  virtual ConfigResult Close() = 0;

  /// Reader: opens a document that is given as a zero-terminated wide string, which is copied, and
  /// moves to its root element, with the results that `OpenFile` describes. Null, an empty string
  /// and a string that is too long fail with -102 and leave the current document open. So does a
  /// lack of memory for the copy, with -101. A lone surrogate becomes U+FFFD. The string is
  /// converted to UTF-8. The library's own XML layer therefore ignores an encoding that the
  /// document declares; XmlLite may refuse any but UTF-8.
  ///
  /// Writer: not supported; returns -101.
  virtual ConfigResult OpenFromString(const wchar_t* xml_text) = 0;
};

/// Returns a new manager: a writer if `writer` is nonzero, otherwise a reader. The caller owns it.
TOLVA_API IXMLLiteManager* tolvaCreateXMLManager(int writer);

/// Destroys a manager. Null is ignored. A writer first ends and flushes its open document; the
/// outcome is not reported.
TOLVA_API void tolvaDestroyXMLManager(IXMLLiteManager* manager);

/// Reads from the reader's current position to the end of its document, which no read of a node
/// does. Returns 0 if the whole document is well-formed. Otherwise returns -101, with the reason as
/// last-error value. Also returns -101, without setting the last-error value, if the manager is a
/// writer or no document is open, and -102 for null. Nothing more can be read from the document
/// afterwards. May throw std::bad_alloc.
TOLVA_API ConfigResult tolvaReadToEnd(IXMLLiteManager* reader);

/// Installs the callback that receives every diagnostic text of the process, in place of an earlier
/// one. Null removes it. The callback runs on the thread on which the failure occurred. The text is
/// valid only during the call. The callback must not throw, and must not call the library. Install
/// it before other threads use the library.
TOLVA_API void SetTolvaDebugDumpCallBack(void (*callback)(const wchar_t*));

/// Returns the calling thread's last-error value: the HRESULT of a failed platform call; -104
/// (absent attribute) or -102, as a DWORD; 1 if the reader found no suitable node; 0 after an
/// attribute was read. A call that succeeds may leave the value alone. On Windows this is the
/// system's own value, and any other system call may change it, even an `OpenFile` that succeeds.
///
/// Set it to 0 before you open a document. After the read of the root has returned 0, two kinds of
/// value then indicate that the document was not read to the end of the root: 0xC00CExxx if it
/// ends, is malformed or nests too deeply before that, and 0x8007xxxx or 0x8003xxxx (storage) if
/// the file could not be read. What follows the root is not covered; `tolvaReadToEnd` validates it.
///
/// Set it to 0 before you write a root. After the write has returned 0, two values then indicate
/// that something optional was left out: 0xC00CEE2B for a character that XML does not allow, and
/// 0xC00CEF0C for half a surrogate pair. With XmlLite the value may be 0xC00CEF0B instead, whether
/// or not something was left out, if XmlLite has refused the last line feed.
TOLVA_API DWORD tolvaGetLastError();

/// Sets the value that `tolvaGetLastError` returns.
TOLVA_API void tolvaSetLastError(DWORD error);
