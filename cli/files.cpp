#include "cli/files.h"

#include <algorithm>
#include <new>

#include "counted_stream.h"
#include "support/errors.h"

namespace tolva::cli {
namespace {

class BytesStream final : public CountedStream {
 public:
  explicit BytesStream(std::string_view bytes) : rest_(bytes) {}

  HRESULT Read(void* buffer, ULONG size, ULONG* count) noexcept override {
    const std::size_t given = rest_.copy(static_cast<char*>(buffer), size);
    rest_.remove_prefix(given);
    *count = static_cast<ULONG>(given);
    return given == size ? S_OK : S_FALSE;
  }

  HRESULT Write(const void* /*buffer*/, ULONG /*size*/, ULONG* /*written*/) noexcept override {
    return E_NOTIMPL;
  }

 private:
  std::string_view rest_;
};

class AppendingStream final : public CountedStream {
 public:
  explicit AppendingStream(std::string& bytes) : bytes_(bytes) {}

  HRESULT Read(void* /*buffer*/, ULONG /*size*/, ULONG* /*count*/) noexcept override {
    return E_NOTIMPL;
  }

  HRESULT Write(const void* buffer, ULONG size, ULONG* written) noexcept override try {
    *written = 0;
    bytes_.append(static_cast<const char*>(buffer), size);
    *written = size;
    return S_OK;
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }

 private:
  std::string& bytes_;
};

}  // namespace

ComPtr<ISequentialStream> StreamOf(std::string_view bytes) {
  ComPtr<ISequentialStream> stream;
  stream.Attach(new BytesStream(bytes));
  return stream;
}

ComPtr<ISequentialStream> StreamInto(std::string& bytes) {
  ComPtr<ISequentialStream> stream;
  stream.Attach(new AppendingStream(bytes));
  return stream;
}

std::string ReasonOf(HRESULT failure) {
  return support::internal::PhraseOf(static_cast<DWORD>(failure));
}

}  // namespace tolva::cli
