// The failure codes of the XML reader and writer, with XmlLite's names and values.
#pragma once

#include "platform/system.h"

namespace tolva::platform {

inline constexpr auto MX_E_INPUTEND = static_cast<HRESULT>(0xC00CEE01);
inline constexpr auto MX_E_ENCODING = static_cast<HRESULT>(0xC00CEE02);
inline constexpr auto MX_E_ENCODINGSWITCH = static_cast<HRESULT>(0xC00CEE03);

inline constexpr auto WC_E_WHITESPACE = static_cast<HRESULT>(0xC00CEE21);
inline constexpr auto WC_E_SEMICOLON = static_cast<HRESULT>(0xC00CEE22);
inline constexpr auto WC_E_GREATERTHAN = static_cast<HRESULT>(0xC00CEE23);
inline constexpr auto WC_E_QUOTE = static_cast<HRESULT>(0xC00CEE24);
inline constexpr auto WC_E_EQUAL = static_cast<HRESULT>(0xC00CEE25);
inline constexpr auto WC_E_LESSTHAN = static_cast<HRESULT>(0xC00CEE26);
inline constexpr auto WC_E_HEXDIGIT = static_cast<HRESULT>(0xC00CEE27);
inline constexpr auto WC_E_DIGIT = static_cast<HRESULT>(0xC00CEE28);
inline constexpr auto WC_E_XMLCHARACTER = static_cast<HRESULT>(0xC00CEE2B);
inline constexpr auto WC_E_NAMECHARACTER = static_cast<HRESULT>(0xC00CEE2C);
inline constexpr auto WC_E_SYNTAX = static_cast<HRESULT>(0xC00CEE2D);
inline constexpr auto WC_E_CDSECT = static_cast<HRESULT>(0xC00CEE2E);
inline constexpr auto WC_E_COMMENT = static_cast<HRESULT>(0xC00CEE2F);
inline constexpr auto WC_E_NAME = static_cast<HRESULT>(0xC00CEE39);
inline constexpr auto WC_E_ROOTELEMENT = static_cast<HRESULT>(0xC00CEE3A);
inline constexpr auto WC_E_ELEMENTMATCH = static_cast<HRESULT>(0xC00CEE3B);
inline constexpr auto WC_E_UNIQUEATTRIBUTE = static_cast<HRESULT>(0xC00CEE3C);
inline constexpr auto WC_E_TEXTXMLDECL = static_cast<HRESULT>(0xC00CEE3D);
inline constexpr auto WC_E_LEADINGXML = static_cast<HRESULT>(0xC00CEE3E);
inline constexpr auto WC_E_XMLDECL = static_cast<HRESULT>(0xC00CEE40);
inline constexpr auto WC_E_UNDECLAREDENTITY = static_cast<HRESULT>(0xC00CEE47);
inline constexpr auto WC_E_PI = static_cast<HRESULT>(0xC00CEE4A);
inline constexpr auto WC_E_CDSECTEND = static_cast<HRESULT>(0xC00CEE4D);
inline constexpr auto WC_E_DTDPROHIBITED = static_cast<HRESULT>(0xC00CEE4F);

inline constexpr auto NC_E_QNAMECHARACTER = static_cast<HRESULT>(0xC00CEE61);
inline constexpr auto NC_E_QNAMECOLON = static_cast<HRESULT>(0xC00CEE62);
inline constexpr auto NC_E_NAMECOLON = static_cast<HRESULT>(0xC00CEE63);
inline constexpr auto NC_E_UNDECLAREDPREFIX = static_cast<HRESULT>(0xC00CEE65);
inline constexpr auto NC_E_EMPTYURI = static_cast<HRESULT>(0xC00CEE66);
inline constexpr auto NC_E_XMLPREFIXRESERVED = static_cast<HRESULT>(0xC00CEE67);
inline constexpr auto NC_E_XMLNSPREFIXRESERVED = static_cast<HRESULT>(0xC00CEE68);
inline constexpr auto NC_E_XMLURIRESERVED = static_cast<HRESULT>(0xC00CEE69);
inline constexpr auto NC_E_XMLNSURIRESERVED = static_cast<HRESULT>(0xC00CEE6A);

inline constexpr auto SC_E_MAXELEMENTDEPTH = static_cast<HRESULT>(0xC00CEE81);

inline constexpr auto WR_E_NONWHITESPACE = static_cast<HRESULT>(0xC00CEF01);
inline constexpr auto WR_E_DUPLICATEATTRIBUTE = static_cast<HRESULT>(0xC00CEF04);
inline constexpr auto WR_E_XMLNSPREFIXDECLARATION = static_cast<HRESULT>(0xC00CEF05);
inline constexpr auto WR_E_INVALIDACTION = static_cast<HRESULT>(0xC00CEF0B);
inline constexpr auto WR_E_INVALIDSURROGATEPAIR = static_cast<HRESULT>(0xC00CEF0C);

}  // namespace tolva::platform
