// Error codes in words.
#pragma once

#include <tolva/types.h>

#include <string>

namespace tolva::support {

/// Says in one English sentence what a value of `tolvaGetLastError` means: "The document breaks
/// off.", "The file does not exist.", "The disk is full.". It knows the codes of XmlLite and of the
/// library's own XML layer (0xC00Cxxxx), those of streams (0x8003xxxx), the common ones of Windows
/// (plain and as 0x8007xxxx) and the library's -102 and -104. Others are told by their number.
std::string DescribeError(DWORD error);

}  // namespace tolva::support
