// A disk that is full, on POSIX systems.
#pragma once

#include <sys/resource.h>

#include <csignal>
#include <cstddef>

namespace tolva::test {

/// While it lives, no file grows beyond a size.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(std::size_t size) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = size;
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_ = {};
};

}  // namespace tolva::test
