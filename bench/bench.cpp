#include "bench.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>

#include "messageconf/message_catalogue.h"
#include "platform/utf.h"
#include "policy/policy.h"

namespace tolva::bench {

const Plan& PlanOf(Kind kind) {
  static const Plans policy(TolvaInterface::CILPClientConfiguration::kSchema);
  static const Plans catalogue(MessageConf::CEndPointMessage::kSchema);
  return kind == kPolicy ? policy.root() : catalogue.root();
}

void KeptBuffer::Copy(const std::string& text) {
  MakeRoom(text.size());
  std::memcpy(data(), text.data(), text.size() + 1);
}

bool KeptBuffer::ReadFile(const std::filesystem::path& path) {
  const int file = open(path.c_str(), O_RDONLY);
  if (file < 0) return false;
  struct stat status = {};
  bool is_read = fstat(file, &status) == 0;
  if (is_read) {
    MakeRoom(static_cast<std::size_t>(status.st_size));
    is_read = read(file, data(), size_) == status.st_size;
    bytes_[size_] = '\0';
  }
  close(file);
  return is_read;
}

void KeptBuffer::MakeRoom(std::size_t size) {
  const std::size_t room = size + 1 + platform::kReadAhead;
  if (bytes_.size() < room) bytes_.resize(room);
  size_ = size;
}

}  // namespace tolva::bench
