// The XML manager: the object through which configuration nodes reach an XML document.
//
//   IXMLLiteManager* manager = tolvaCreateXMLManager(0);        // 0: a reader
//   if (manager->OpenFile(L"active-directory.xml") == 0) root->ReadFromXMLMgr(manager);
//   tolvaDestroyXMLManager(manager);
//
// A manager is either a reader or a writer for its whole life, works on one document at a time, and
// is used by one thread at a time. Separate managers may be used on separate threads.
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
  /// the root node's read answers -102. An empty file, a directory and a file that is in use by
  /// another process (Windows) are refused with -101. A document type declaration is an error.
  ///
  /// Writer: creates the file or truncates it, and writes the XML declaration. A document that is
  /// still open on this manager is finished first. To keep an earlier file until the new one is
  /// complete, write to a name beside it and rename after the root's write and `Close` both
  /// returned 0: after a failed write `Close` still ends the document, well-formed and incomplete.
  virtual ConfigResult OpenFile(const wchar_t* path) = 0;

  /// Reader: lets the file go; 0.
  ///
  /// Writer: closes the elements that are still open, flushes and lets the file go. -101 when the
  /// document could not be finished or the flush failed (a full disk): the file stays open and the
  /// next `Close`, or the destruction, tries again.
  virtual ConfigResult Close() = 0;

  /// Reader: reads a document from a zero-terminated wide string, which is copied; stops on the
  /// root element as `OpenFile` does. -102 for null, for an empty text and for one that is too
  /// long: the document that was open stays so. A lone surrogate becomes U+FFFD.
  ///
  /// Writer: not supported; -101.
  virtual ConfigResult OpenFromString(const wchar_t* xml_text) = 0;
};

/// Makes a manager: a writer when `writer` is nonzero, a reader when it is zero. The caller owns
/// it.
TOLVA_API IXMLLiteManager* tolvaCreateXMLManager(int writer);

/// Destroys a manager; null is ignored. A writer's open document is finished and flushed first.
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
/// read. What succeeds need not touch it: who sets it to 0 before opening a document, and finds a
/// value 0xC00CExxx after the read of its root returned 0, knows that the document broke off or is
/// malformed behind what was read; 0x8007xxxx tells that the file could not be read to its end. On
/// Windows it is the system's own cell.
TOLVA_API DWORD tolvaGetLastError();

/// Sets the value that `tolvaGetLastError` reads.
TOLVA_API void tolvaSetLastError(DWORD error);
