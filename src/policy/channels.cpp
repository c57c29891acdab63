#include "policy/channels.h"

namespace TolvaInterface {

template <class C>
constexpr Attribute kRuleChannelAttributes[] = {
    Attr<&C::sid_>(L"Sid"),
    Attr<&C::cid_>(L"Cid"),
};
template <class C>
constexpr Child kRuleChannelChildren[] = {
    Elem<&C::appRules_>(L"AppRule"),
    Elem<&C::onlineApps_>(L"OnlineApps"),
};

constinit const Schema CClipboardCopyCut::kSchema = Checked({
    .element = L"ClipboardCopyCut",
    .dialect = kDialect,
    .attributes = kRuleChannelAttributes<CClipboardCopyCut>,
    .children = kRuleChannelChildren<CClipboardCopyCut>,
});

constinit const Schema CClipboardPaste::kSchema = Checked({
    .element = L"ClipboardPaste",
    .dialect = kDialect,
    .attributes = kRuleChannelAttributes<CClipboardPaste>,
    .children = kRuleChannelChildren<CClipboardPaste>,
});

constinit const Schema CILPPrintScreen::kSchema = Checked({
    .element = L"ILPPrintScreen",
    .dialect = kDialect,
    .attributes = kRuleChannelAttributes<CILPPrintScreen>,
    .children = kRuleChannelChildren<CILPPrintScreen>,
});

constinit const Schema CILPAppFile::kSchema = Checked({
    .element = L"ILPAppFile",
    .dialect = kDialect,
    .attributes = kRuleChannelAttributes<CILPAppFile>,
    .children = kRuleChannelChildren<CILPAppFile>,
});

constexpr Attribute kPrinterAttributes[] = {
    Attr<&CPrinter::name_>(L"Name").NamesItem(),
};
constinit const Schema CPrinter::kSchema = Checked({
    .element = L"Printer",
    .dialect = kDialect,
    .attributes = kPrinterAttributes,
});

constexpr Child kTrustedPrintersChildren[] = {
    Elem<&CTrustedPrinters::printers_>(L"Printer"),
};
constinit const Schema CTrustedPrinters::kSchema = Checked({
    .element = L"TrustedPrinters",
    .dialect = kDialect,
    .children = kTrustedPrintersChildren,
});

constexpr Attribute kILPPrinterAttributes[] = {
    Attr<&CILPPrinter::sid_>(L"Sid"),
    Attr<&CILPPrinter::cid_>(L"Cid"),
    Attr<&CILPPrinter::alwaysEMF_>(L"AlwaysEMF"),
};
constexpr Child kILPPrinterChildren[] = {
    Elem<&CILPPrinter::appRules_>(L"AppRule"),
    Elem<&CILPPrinter::onlineApps_>(L"OnlineApps"),
    Elem<&CILPPrinter::trustedPrinters_>(L"TrustedPrinters"),
};
constinit const Schema CILPPrinter::kSchema = Checked({
    .element = L"ILPPrinter",
    .dialect = kDialect,
    .attributes = kILPPrinterAttributes,
    .children = kILPPrinterChildren,
});

constexpr Child kILPClipboardChildren[] = {
    Elem<&CILPClipboard::clipboardCopyCut_>(L"ClipboardCopyCut"),
    Elem<&CILPClipboard::clipboardPaste_>(L"ClipboardPaste"),
};
constinit const Schema CILPClipboard::kSchema = Checked({
    .element = L"ILPClipboard",
    .dialect = kDialect,
    .children = kILPClipboardChildren,
});

constexpr Attribute kILPEmailAttributes[] = {
    Attr<&CILPEmail::sid_>(L"Sid"),
    Attr<&CILPEmail::cid_>(L"Cid"),
};
constinit const Schema CILPEmail::kSchema = Checked({
    .element = L"ILPEmail",
    .dialect = kDialect,
    .attributes = kILPEmailAttributes,
});

}  // namespace TolvaInterface
