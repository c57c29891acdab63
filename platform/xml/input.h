// The bytes of a document as a sliding window of text.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/buffer.h"
#include "platform/com_ptr.h"
#include "platform/xml/encoding.h"
#include "platform/xml/status.h"

namespace tolva::platform::own_xml {

/// Sees the text that leaves the window of an `Input`.
class InputObserver {
 public:
  InputObserver() = default;
  InputObserver(const InputObserver&) = delete;
  InputObserver& operator=(const InputObserver&) = delete;

  /// The front of the window, which is dropped after the call. The rest of the window, or its
  /// padding, follows it.
  virtual void Dropping(std::string_view text) = 0;

 protected:
  virtual ~InputObserver() = default;
};

/// Reads a stream block by block, detects its encoding, and shows it as UTF-8 that contains only
/// characters that XML allows. Code that scans the window need not validate them again.
///
/// The window ends at `limit`. It is followed by `kPadding` zero bytes, so a scan stops there by
/// itself and may read a vector's width ahead. A zero byte is always the end of the window.
class Input {
 public:
  static constexpr std::size_t kPadding = 64;

  /// Why the text ends.
  enum class End : std::uint8_t {
    kNone,              ///< it does not: there may be more
    kEndOfStream,       ///< the document is complete
    kStreamFailure,     ///< the stream could not be read; `stream_failure` is its code
    kIllegalCharacter,  ///< what follows is not a character that XML allows
  };

  /// Starts on a stream, which is kept. `converted`: the text is UTF-8, whatever encoding it
  /// declares.
  void Open(ISequentialStream* stream, bool converted);

  /// Releases the stream.
  void Close();

  /// Sets the observer, which is kept until the input is closed; null for none.
  void Observe(InputObserver* observer) { observer_ = observer; }

  const char* start() const { return window_.data(); }
  const char* limit() const { return window_.data() + window_.size(); }

  /// Shows more of the document. The text before `at` is dropped, `at` is moved to where the rest
  /// now starts, and at least as much as that rest is added. So a token that is parsed again after
  /// each call costs no more than twice its length in all. Returns false if there was nothing to
  /// add; `end` then says why, and `at` is still valid.
  bool More(const char*& at);

  /// Why the text ends at `limit`.
  End end() const { return end_; }
  HRESULT stream_failure() const { return stream_failure_; }

  /// The first bytes of what is no character that XML allows, four at most, or none if the input
  /// ends within a character. A byte 0xFF stands for anything that is no character in another
  /// encoding than UTF-8.
  std::string_view illegal() const { return {illegal_.data(), illegal_size_}; }

  /// The illegal character is a zero.
  bool stopped_at_zero() const { return illegal().starts_with('\0'); }

  /// The encoding of the input; UTF-8 until it is known.
  const Encoding& encoding() const { return encoding_ == nullptr ? kUtf8 : *encoding_; }
  std::size_t byte_order_mark_size() const { return byte_order_mark_size_; }

  /// Validates the encoding that the XML declaration names. The fault is MX_E_ENCODING if it is not
  /// supported, and MX_E_ENCODINGSWITCH if it is not the one that the document is in.
  Status CheckDeclaredEncoding(std::string_view name) const;

 private:
  enum class StreamState : std::uint8_t { kOpen, kAtEnd, kFailed };

  void Start();
  std::string_view ReadDeclaration();
  std::size_t DropBefore(const char* at);
  bool ReadBlock(Buffer<char>& into);
  void AddBlock();
  void AddUtf8Block();
  void AddConvertedBlock();
  void Validate(std::size_t start);

  ComPtr<ISequentialStream> stream_;
  StreamState stream_state_ = StreamState::kOpen;
  HRESULT stream_failure_ = S_OK;

  bool converted_ = false;
  const Encoding* encoding_ = nullptr;  ///< null until the document has been started
  std::size_t byte_order_mark_size_ = 0;
  Buffer<char> unconverted_;  ///< bytes of the stream that are not in the window yet

  Buffer<char> window_;  ///< the text, followed by the padding
  End end_ = End::kNone;
  std::array<char, 4> illegal_ = {};
  std::size_t illegal_size_ = 0;
  InputObserver* observer_ = nullptr;
};

}  // namespace tolva::platform::own_xml
