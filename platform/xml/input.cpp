#include "platform/xml/input.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/utf.h"
#include "platform/xml/characters.h"

namespace tolva::platform::own_xml {
namespace {

/// How much is read from the stream at a time.
constexpr std::size_t kReadBlock = std::size_t{64} * 1024;

/// A window that has grown beyond this for one long token is released after it.
constexpr std::size_t kLargestKept = 8 * kReadBlock;

/// The most bytes that a character takes in any encoding.
constexpr std::size_t kLongestCharacter = 4;

std::string_view View(const Buffer<char>& buffer) { return {buffer.data(), buffer.size()}; }

void DropFront(Buffer<char>& buffer, std::size_t count) {
  const std::size_t rest = buffer.size() - count;
  if (rest != 0 && count != 0) std::memmove(buffer.data(), buffer.data() + count, rest);
  buffer.Truncate(rest);
}

}  // namespace

void Input::Open(ISequentialStream* stream, bool converted) {
  Close();
  stream_.Share(stream);
  converted_ = converted;
}

void Input::Close() {
  stream_.Reset();
  stream_state_ = StreamState::kOpen;
  stream_failure_ = S_OK;
  encoding_ = nullptr;
  byte_order_mark_size_ = 0;
  unconverted_.Clear();
  window_.Clear();
  end_ = End::kNone;
  illegal_size_ = 0;
  observer_ = nullptr;
}

bool Input::More(const char*& at) {
  if (end_ != End::kNone) return false;
  std::size_t kept = 0;
  if (encoding_ == nullptr) {
    Start();
  } else {
    kept = DropBefore(at);
  }
  const std::size_t wanted = std::max<std::size_t>(2 * kept, 1);
  while (window_.size() < wanted && end_ == End::kNone) AddBlock();
  at = window_.data();
  return window_.size() > kept;
}

Status Input::CheckDeclaredEncoding(std::string_view name) const {
  if (converted_ || encoding_->HasName(name)) return kDone;
  return IsSupportedEncoding(name) ? MX_E_ENCODINGSWITCH : MX_E_ENCODING;
}

/// Reads as far as it takes to know the encoding. What has been read becomes the first block.
void Input::Start() {
  while (window_.size() < kLongestCharacter && ReadBlock(window_)) {
  }
  encoding_ = converted_ ? &kUtf8 : DetectEncoding(View(window_));
  if (encoding_ == nullptr) encoding_ = &DeclaredEncoding(ReadDeclaration());
  if (View(window_).starts_with(encoding_->byte_order_mark)) {
    byte_order_mark_size_ = encoding_->byte_order_mark.size();
    DropFront(window_, byte_order_mark_size_);
  }
  if (encoding_->convert == nullptr) {
    Validate(0);
  } else {
    std::swap(window_, unconverted_);
  }
}

/// Reads on to the end of the XML declaration; empty if the document does not start with one.
std::string_view Input::ReadDeclaration() {
  constexpr std::string_view kStart = "<?xml";
  while (window_.size() <= kStart.size() && ReadBlock(window_)) {
  }
  const bool is_declared = window_.size() > kStart.size() && View(window_).starts_with(kStart) &&
                           IsClass(window_.data()[kStart.size()], kSpace);
  if (!is_declared) return {};
  std::size_t searched = 0;
  std::size_t end = std::string_view::npos;
  do {
    end = View(window_).find('>', searched);
    searched = window_.size();
  } while (end == std::string_view::npos && ReadBlock(window_));
  return View(window_).substr(0, end);
}

/// Returns how much of the window is left.
std::size_t Input::DropBefore(const char* at) {
  const auto rest = static_cast<std::size_t>(limit() - at);
  if (observer_ != nullptr) observer_->Dropping(View(window_).substr(0, window_.size() - rest));
  if (window_.capacity() > kLargestKept && rest < kReadBlock) {
    Buffer<char> smaller;
    smaller.Append(at, rest);
    window_ = std::move(smaller);
  } else {
    DropFront(window_, window_.size() - rest);
  }
  return rest;
}

/// Appends a block of the stream; false at its end and after a failure.
bool Input::ReadBlock(Buffer<char>& into) {
  if (stream_state_ != StreamState::kOpen) return false;
  ULONG count = 0;
  char* const room = into.Room(kReadBlock + kPadding);
  const HRESULT result = stream_->Read(room, static_cast<ULONG>(kReadBlock), &count);
  if (FAILED(result)) {
    stream_state_ = StreamState::kFailed;
    stream_failure_ = result;
    return false;
  }
  if (count == 0) stream_state_ = StreamState::kAtEnd;
  into.Commit(count);
  return count != 0;
}

void Input::AddBlock() {
  if (encoding_->convert == nullptr) {
    AddUtf8Block();
  } else {
    AddConvertedBlock();
  }
}

/// UTF-8 is read straight into the window, after the bytes of a character that the last block has
/// cut in two.
void Input::AddUtf8Block() {
  const std::size_t start = window_.size();
  window_.Append(unconverted_.data(), unconverted_.size());
  unconverted_.Clear();
  ReadBlock(window_);
  Validate(start);
}

void Input::AddConvertedBlock() {
  while (unconverted_.size() < kLongestCharacter && ReadBlock(unconverted_)) {
  }
  const std::size_t start = window_.size();
  char* const room = window_.Room(2 * unconverted_.size() + 1);
  const Conversion conversion = encoding_->convert(View(unconverted_), room);
  window_.Commit(static_cast<std::size_t>(conversion.end - room));
  DropFront(unconverted_, conversion.used);
  Validate(start);
}

/// Validates the UTF-8 that has been appended to the window from `start` on. The window is cut off
/// before an illegal character and before one that the block has cut in two.
void Input::Validate(std::size_t start) {
  window_.Room(kPadding);
  const std::size_t size = window_.size() - start;
  const Utf8Prefix text = MeasureXmlUtf8(window_.data() + start, size);
  char* const limit = window_.data() + start + text.size;
  if (text.malformed) {
    end_ = End::kIllegalCharacter;
    illegal_size_ = std::min(size - text.size, illegal_.size());
    std::copy_n(limit, illegal_size_, illegal_.begin());
  } else {
    unconverted_.Append(limit, size - text.size);
    if (stream_state_ == StreamState::kFailed) end_ = End::kStreamFailure;
    if (stream_state_ == StreamState::kAtEnd) {
      end_ = unconverted_.size() == 0 ? End::kEndOfStream : End::kIllegalCharacter;
    }
  }
  window_.Truncate(start + text.size);
  std::memset(limit, 0, kPadding);
}

}  // namespace tolva::platform::own_xml
