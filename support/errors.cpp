#include <tolva/support/errors.h>

#include <algorithm>
#include <iterator>

#include "support/errors.h"

namespace tolva::support {
namespace {

struct Words {
  DWORD error;
  const char* phrase;
};

/// Upper halves of HRESULTs.
constexpr DWORD kUpperHalf = 0xFFFF0000;
constexpr DWORD kWin32Result = 0x80070000;
constexpr DWORD kXmlResult = 0xC00C0000;

constexpr Words kWords[] = {
    // The library's own.
    {0, "there is no error"},
    {1, "there is nothing more to read, or no text where one was asked for"},
    {static_cast<DWORD>(kFailed), "the operation failed"},
    {static_cast<DWORD>(kInvalidArgument),
     "an argument is null or empty, or the element has another name"},
    {static_cast<DWORD>(kAttributeAbsent), "the attribute is absent"},

    // Input and its encoding.
    {0xC00CEE00, "the input cannot be read as XML"},
    {0xC00CEE01, "the document breaks off"},
    {0xC00CEE02, "the encoding is not supported"},
    {0xC00CEE03, "the encoding that the document declares is not the one that it is in"},
    {0xC00CEE04, "the byte order mark is not one that is known"},

    // Well-formedness.
    {0xC00CEE20, "the document is not well-formed"},
    {0xC00CEE21, "a space is missing"},
    {0xC00CEE22, "a semicolon is missing at the end of a reference"},
    {0xC00CEE23, "a '>' is missing at the end of a tag"},
    {0xC00CEE24, "an attribute value does not start with a quotation mark"},
    {0xC00CEE25, "an equals sign is missing after an attribute name"},
    {0xC00CEE26, "an attribute value holds a '<'"},
    {0xC00CEE27, "a character reference holds no hexadecimal digit where there must be one"},
    {0xC00CEE28, "a character reference holds no decimal digit where there must be one"},
    {0xC00CEE29, "a '[' is missing"},
    {0xC00CEE2A, "a '(' is missing"},
    {0xC00CEE2B, "there is a character that XML does not allow, or malformed UTF-8 or UTF-16"},
    {0xC00CEE2C, "a name holds a character that names must not hold"},
    {0xC00CEE2D, "there is something that must not stand there"},
    {0xC00CEE2E, "a CDATA section is malformed"},
    {0xC00CEE2F, "a comment is malformed"},
    {0xC00CEE30, "a conditional section is malformed"},
    {0xC00CEE31, "an attribute list declaration is malformed"},
    {0xC00CEE32, "the document type declaration is malformed"},
    {0xC00CEE33, "an element declaration is malformed"},
    {0xC00CEE34, "an entity declaration is malformed"},
    {0xC00CEE35, "a notation declaration is malformed"},
    {0xC00CEE36, "NDATA is missing in an entity declaration"},
    {0xC00CEE37, "PUBLIC is missing in a declaration"},
    {0xC00CEE38, "SYSTEM is missing in a declaration"},
    {0xC00CEE39, "a name is missing"},
    {0xC00CEE3A, "the document has no root element, or a second one"},
    {0xC00CEE3B, "an end tag does not match its start tag"},
    {0xC00CEE3C, "an element has two attributes of the same name"},
    {0xC00CEE3D, "an XML declaration stands after the start of the document"},
    {0xC00CEE3E, "a processing instruction has the reserved name 'xml' in other letters"},
    {0xC00CEE3F, "a text declaration is malformed"},
    {0xC00CEE40, "the XML declaration is malformed"},
    {0xC00CEE41, "the name of the declared encoding is malformed"},
    {0xC00CEE42, "a public identifier is malformed"},
    {0xC00CEE43, "a parameter entity reference stands inside a declaration"},
    {0xC00CEE44, "a parameter entity reference stands between declarations"},
    {0xC00CEE45, "an entity refers to itself"},
    {0xC00CEE46, "what an entity stands for is not well-formed"},
    {0xC00CEE47, "an entity is not declared"},
    {0xC00CEE48, "a reference to an unparsed entity stands where a parsed one must"},
    {0xC00CEE49, "a reference to an external entity stands where there must be none"},
    {0xC00CEE4A, "a processing instruction is malformed"},
    {0xC00CEE4B, "a system identifier is malformed"},
    {0xC00CEE4C, "a '?' is missing"},
    {0xC00CEE4D, "a text holds ']]>'"},
    {0xC00CEE4E, "a value has not been read to its end"},
    {0xC00CEE4F, "there is a document type declaration, which is not accepted"},
    {0xC00CEE50, "an xml:space attribute is neither 'default' nor 'preserve'"},

    // Namespaces.
    {0xC00CEE60, "namespaces are not used correctly"},
    {0xC00CEE61, "a name starts with a character that names must not start with"},
    {0xC00CEE62, "a name holds two colons"},
    {0xC00CEE63, "a name holds a colon where there must be none"},
    {0xC00CEE64, "a namespace prefix is declared already"},
    {0xC00CEE65, "a namespace prefix is not declared"},
    {0xC00CEE66, "a namespace prefix is declared with an empty name"},
    {0xC00CEE67, "the prefix 'xml' is declared as another namespace"},
    {0xC00CEE68, "the prefix 'xmlns' is declared"},
    {0xC00CEE69, "the namespace of 'xml' is given to another prefix"},
    {0xC00CEE6A, "the namespace of 'xmlns' is given to a prefix"},

    // Limits.
    {0xC00CEE80, "the document exceeds a limit"},
    {0xC00CEE81, "elements are nested too deeply"},
    {0xC00CEE82, "entities expand to too much text"},

    // Writing.
    {0xC00CEF00, "the document cannot be written"},
    {0xC00CEF01, "something other than white space was to be written as white space"},
    {0xC00CEF02, "a prefix was to be declared as a second namespace"},
    {0xC00CEF03, "a prefix was to be written without its namespace"},
    {0xC00CEF04, "an attribute was to be written twice"},
    {0xC00CEF05, "the prefix 'xmlns' was to be declared"},
    {0xC00CEF06, "the prefix 'xml' was to be declared as another namespace"},
    {0xC00CEF07, "the namespace of 'xml' was to be given to another prefix"},
    {0xC00CEF08, "the namespace of 'xmlns' was to be declared"},
    {0xC00CEF09, "a namespace was to be used that is not declared"},
    {0xC00CEF0A, "an xml:space attribute was to be neither 'default' nor 'preserve'"},
    {0xC00CEF0B, "what was to be written must not stand there"},
    {0xC00CEF0C, "a text holds half a surrogate pair"},

    // Other XML codes of Windows.
    {0xC00CE01D, "a character reference holds something other than decimal digits"},
    {0xC00CE01E, "a character reference holds something other than hexadecimal digits"},
    {0xC00CE01F, "a character reference stands for no Unicode character"},
    {0xC00CE06E, "the name of the encoding is not valid"},

    // General results.
    {0x80004001, "the operation is not supported"},
    {0x80004002, "an object does not have the interface that was asked for"},
    {0x80004003, "a pointer is null"},
    {0x80004004, "the operation was given up"},
    {0x80004005, "the operation failed for a reason that is not told"},
    {0x8000000A, "the data is not there yet"},
    {0x8000FFFF, "no document is open, or the call came at the wrong time"},
    {0x80040154, "a part of the system that is needed is not installed"},

    // Streams.
    {0x80030001, "the stream does not support the operation"},
    {0x80030002, "the stream's file does not exist"},
    {0x80030003, "the folder of the stream's file does not exist"},
    {0x80030004, "too many streams are open"},
    {0x80030005, "access to the stream is denied"},
    {0x80030006, "the stream's handle is not valid"},
    {0x80030008, "there is too little memory for the stream"},
    {0x80030009, "the stream was given a bad pointer"},
    {0x80030013, "the stream's disk is write-protected"},
    {0x80030019, "the stream could not be positioned"},
    {0x8003001D, "the stream could not be written"},
    {0x8003001E, "the stream could not be read"},
    {0x80030020, "another process holds the stream's file open"},
    {0x80030021, "another process has locked a part of the stream's file"},
    {0x80030050, "the stream's file exists already"},
    {0x80030057, "the stream was given an argument that is not valid"},
    {0x80030070, "the stream's disk is full"},
    {0x800300FB, "the stream's file is damaged"},
    {0x800300FC, "the name of the stream's file is not valid"},
    {0x800300FD, "the stream failed in an unexpected way"},
    {0x80030102, "the stream is gone"},
    {0x80030103, "the stream's file is in use"},
};

/// Codes of Windows, plain or as the lower half of 0x8007xxxx.
constexpr Words kSystemWords[] = {
    {1, "the system does not support the operation"},
    {2, "the file does not exist"},
    {3, "the folder does not exist"},
    {4, "too many files are open"},
    {5, "access is denied"},
    {6, "a handle is not valid"},
    {8, "there is too little memory"},
    {14, "there is too little memory for the operation"},
    {15, "the drive does not exist"},
    {17, "the files are on different disks"},
    {19, "the disk is write-protected"},
    {21, "the device is not ready"},
    {23, "a checksum of the disk is wrong"},
    {25, "the disk could not be positioned"},
    {26, "the disk is not formatted"},
    {29, "the device could not be written"},
    {30, "the device could not be read"},
    {31, "the device or the system failed for a reason that is not told"},
    {32, "another process holds the file open"},
    {33, "another process has locked a part of the file"},
    {36, "too many files are shared"},
    {38, "the file ended early"},
    {39, "the device is full"},
    {50, "the request is not supported"},
    {53, "the network path was not found"},
    {55, "the network resource is gone"},
    {59, "the network failed"},
    {64, "the network name is gone"},
    {65, "network access is denied"},
    {67, "the network name was not found"},
    {80, "the file exists already"},
    {82, "the file cannot be created"},
    {87, "an argument is not valid"},
    {109, "the pipe is broken"},
    {110, "the file cannot be opened"},
    {111, "the file name is too long for the system"},
    {112, "the disk is full"},
    {121, "the device did not answer in time"},
    {122, "a buffer is too small"},
    {123, "the file name is not valid"},
    {126, "a module was not found"},
    {127, "a procedure was not found in its module"},
    {145, "the folder is not empty"},
    {161, "the path is not valid"},
    {170, "the resource is in use"},
    {183, "the file is there already"},
    {206, "the file name is too long"},
    {223, "the file is too large"},
    {225, "the file was blocked as harmful"},
    {234, "there is more data"},
    {267, "the folder name is not valid"},
    {303, "the file is being deleted"},
    {487, "an address is not valid"},
    {995, "the operation was cancelled"},
    {997, "the operation is still under way"},
    {1006, "the file's disk was changed while it was open"},
    {1117, "the device failed to read or write"},
    {1223, "it was interrupted"},
    {1142, "the file has too many hard links"},
    {1175, "the old file could not be removed"},
    {1176, "the new file could not be renamed"},
    {1177, "the new file could not be moved to the old one's place"},
    {1224, "a part of the file is mapped into memory"},
    {1295, "the disk quota is used up"},
    {1314, "a privilege is missing"},
    {1392, "the file or folder is damaged"},
    {1450, "the system lacks resources"},
    {1453, "a quota of the system is used up"},
    {1816, "a quota is used up"},
    {1921, "symbolic links lead in a circle or are too many"},
    {4390, "the file is not a link"},
};

/// Whether each code has one phrase.
template <std::size_t Count>
constexpr bool AreDistinct(const Words (&words)[Count]) {
  for (std::size_t i = 0; i < Count; ++i) {
    for (std::size_t j = i + 1; j < Count; ++j) {
      if (words[i].error == words[j].error) return false;
    }
  }
  return true;
}
static_assert(AreDistinct(kWords) && AreDistinct(kSystemWords));

template <std::size_t Count>
const char* Find(const Words (&words)[Count], DWORD error) {
  const auto* const found = std::find_if(std::begin(words), std::end(words),
                                         [error](const Words& one) { return one.error == error; });
  return found == std::end(words) ? nullptr : found->phrase;
}

std::string ToHex(DWORD error) {
  std::string digits = "0x00000000";
  for (std::size_t at = digits.size(); error != 0; error >>= 4) {
    digits[--at] = "0123456789ABCDEF"[error & 0xF];
  }
  return digits;
}

}  // namespace

namespace internal {

std::string PhraseOf(DWORD error) {
  const char* phrase = Find(kWords, error);
  const bool is_system_code = (error & kUpperHalf) == kWin32Result || (error & kUpperHalf) == 0;
  if (phrase == nullptr && is_system_code) phrase = Find(kSystemWords, error & ~kUpperHalf);
  if (phrase != nullptr) return phrase;
  if (IsXmlFault(error)) return "the document is refused with the code " + ToHex(error);
  return "the system fails with the code " + ToHex(error);
}

std::string Sentence(std::string phrase) {
  const char first = phrase.front();
  if (first >= 'a' && first <= 'z') phrase.front() = static_cast<char>(first - 'a' + 'A');
  return phrase + ".";
}

std::string Phrase(std::string sentence) {
  const char first = sentence.front();
  if (first >= 'A' && first <= 'Z') sentence.front() = static_cast<char>(first - 'A' + 'a');
  sentence.pop_back();
  return sentence;
}

bool IsXmlFault(DWORD error) { return (error & kUpperHalf) == kXmlResult; }

}  // namespace internal

std::string DescribeError(DWORD error) { return internal::Sentence(internal::PhraseOf(error)); }

}  // namespace tolva::support
