// The bytes of a document as a sliding window of text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/buffer.h"
#include "platform/com_ptr.h"
#include "platform/xml/hresults.h"

namespace tolva::platform::own_xml {

/// Reads a stream block by block, finds out its encoding, and shows it as UTF-8 in which every
/// character is one that XML allows: whoever scans the window need not look for anything else.
///
/// The window ends at `limit`. Behind it lie `kPadding` zero bytes, so a scan stops there by itself
/// and may look a vector's width ahead. A zero byte in the window means its end, never a character.
class Input {
 public:
  static constexpr std::size_t kPadding = 64;

  /// Starts on a stream, which is kept. `converted`: the text is UTF-8 whatever it says of itself.
  void Open(ISequentialStream* stream, bool converted);

  /// Lets the stream go.
  void Close();

  const char* limit() const { return window_.data() + limit_; }

  /// Shows more of the document: what lies before `at` is given up, `at` is set to where the rest
  /// now starts, and at least as much as that rest is added to it. So a token that is scanned anew
  /// after each call costs no more than twice its length in all. False when there was nothing to
  /// add; `reason` then says why, and `at` is still valid.
  bool More(const char*& at);

  /// Why the text ends at `limit`: S_OK when it does not, S_FALSE at the end of the stream, a
  /// stream's failure, or WC_E_XMLCHARACTER where something follows that is no legal character.
  HRESULT reason() const { return reason_; }

  /// The character that is not legal is a zero.
  bool stopped_at_zero() const { return stopped_at_zero_; }

  /// Judges the encoding that the XML declaration names: S_OK, MX_E_ENCODING for one that is not
  /// supported, MX_E_ENCODINGSWITCH for one that the bytes before it were not in.
  HRESULT CheckDeclaredEncoding(std::string_view name) const;

 private:
  enum class Encoding : std::uint8_t {
    kUtf8,
    kUtf16LittleEndian,
    kUtf16BigEndian,
    kLatin1,
    kAscii
  };

  void DetectEncoding();
  Encoding SniffDeclaration();
  bool ReadRaw(Buffer<char>& into, std::size_t count);
  void AddBlock();
  void AddUtf8Block();
  void AddTranscodedBlock();
  void Admit(std::size_t count);

  ComPtr<ISequentialStream> stream_;
  bool converted_ = false;
  bool detected_ = false;
  Encoding encoding_ = Encoding::kUtf8;
  HRESULT stream_result_ = S_OK;  ///< S_FALSE behind the last byte, or the stream's failure
  HRESULT reason_ = S_OK;
  bool stopped_at_zero_ = false;

  Buffer<char> window_;    ///< the text up to `limit_`, and the padding
  std::size_t limit_ = 0;  ///< where the window ends
  Buffer<char> raw_;       ///< bytes not yet taken into the window
};

}  // namespace tolva::platform::own_xml
