#include "policy_tree.h"

#include <policy.hxx>
#include <xercesc/util/PlatformUtils.hpp>

#include <exception>

namespace tolva::bench {

bool ReadPolicyTree(const std::filesystem::path& path) {
  static const bool is_ready = [] {
    xercesc::XMLPlatformUtils::Initialize();
    return true;
  }();
  try {
    // No validation, and no start-up of Xerces that has been done.
    constexpr auto kFlags = xml_schema::flags::dont_validate | xml_schema::flags::dont_initialize;
    const auto root = ILPClientConfiguration(path.string(), kFlags);
    return is_ready && root != nullptr;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace tolva::bench
