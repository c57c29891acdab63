// Files of a test's own.
#pragma once

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace tolva::test {

/// A path in the system's folder for temporary files; what is there goes with the object.
class TempFile {
 public:
  TempFile() : path_(std::filesystem::temp_directory_path() / MakeName()) {}
  explicit TempFile(std::string_view bytes) : TempFile() { Write(bytes); }
  TempFile(const TempFile&) = delete;
  TempFile& operator=(const TempFile&) = delete;
  ~TempFile() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& path() const { return path_; }
  std::wstring Wide() const { return path_.wstring(); }

  void Write(std::string_view bytes) const {
    std::ofstream(path_, std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }

  std::string Read() const { return ReadFile(path_); }

  static std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

 private:
  static std::string MakeName() {
    static std::atomic<unsigned> made = 0;
    static const auto process = std::filesystem::file_time_type::clock::now().time_since_epoch();
    return "tolva-test-" + std::to_string(static_cast<std::int64_t>(process.count())) + "-" +
           std::to_string(++made);
  }

  const std::filesystem::path path_;
};

}  // namespace tolva::test
