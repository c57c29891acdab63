// Rules out quickly that the names of a start tag's attributes are duplicates.
#pragma once

#include <cstdint>
#include <string_view>

namespace tolva::platform::own_xml {

/// Sorts names into 64 classes. A name that is the first of its class is no duplicate; only another
/// one has to be compared with the names before it.
class DuplicateFilter {
 public:
  void Clear() { classes_ = 0; }

  /// Adds a name, which must not be empty. False: it differs from all names that were added before.
  bool MayBeDuplicate(std::string_view name) {
    const auto first = static_cast<unsigned char>(name.front());
    const auto last = static_cast<unsigned char>(name.back());
    const std::uint64_t its_class = std::uint64_t{1}
                                    << ((first * 5U + last * 3U + name.size()) % 64);
    const bool is_taken = (classes_ & its_class) != 0;
    classes_ |= its_class;
    return is_taken;
  }

 private:
  std::uint64_t classes_ = 0;  ///< one bit for each class that has a name
};

}  // namespace tolva::platform::own_xml
