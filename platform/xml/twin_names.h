// Tells quickly that the attributes of a start tag have different names.
#pragma once

#include <cstdint>
#include <string_view>

namespace tolva::platform::own_xml {

/// Sorts names into classes as they come. Different names mostly fall into different classes; only
/// a name whose class has been met before needs to be compared with the earlier ones.
class TwinNames {
 public:
  void Clear() { classes_met_ = 0; }

  /// Takes in a name, which is not empty: false when it surely differs from all before it.
  bool MayHaveTwin(std::string_view name) {
    const auto first = static_cast<unsigned char>(name.front());
    const auto last = static_cast<unsigned char>(name.back());
    const std::uint64_t its_class = std::uint64_t{1}
                                    << ((first * 5U + last * 3U + name.size()) % 64);
    const bool met = (classes_met_ & its_class) != 0;
    classes_met_ |= its_class;
    return met;
  }

 private:
  std::uint64_t classes_met_ = 0;  ///< one bit each
};

}  // namespace tolva::platform::own_xml
