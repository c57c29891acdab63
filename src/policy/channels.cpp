#include "policy/channels.h"

namespace TolvaInterface {

template <class C, class I>
constinit const Attribute RuleChannel<C, I>::kAttributes[] = {
    Attr<&RuleChannel::sid_>(L"Sid"),
    Attr<&RuleChannel::cid_>(L"Cid"),
};
template <class C, class I>
constinit const Child RuleChannel<C, I>::kChildren[] = {
    Elem<&RuleChannel::appRules_>(L"AppRule"),
    Elem<&RuleChannel::onlineApps_>(L"OnlineApps"),
};

constinit const Schema CClipboardCopyCut::kSchema = {
    .element = L"ClipboardCopyCut",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Schema CClipboardPaste::kSchema = {
    .element = L"ClipboardPaste",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Schema CILPPrintScreen::kSchema = {
    .element = L"ILPPrintScreen",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Schema CILPAppFile::kSchema = {
    .element = L"ILPAppFile",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Attribute CPrinter::kAttributes[] = {
    Attr<&CPrinter::name_>(L"Name"),
};
constinit const Schema CPrinter::kSchema = {
    .element = L"Printer",
    .dialect = kDialect,
    .attributes = kAttributes,
};

constinit const Child CTrustedPrinters::kChildren[] = {
    Elem<&CTrustedPrinters::printers_>(L"Printer"),
};
constinit const Schema CTrustedPrinters::kSchema = {
    .element = L"TrustedPrinters",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CILPPrinter::kAttributes[] = {
    Attr<&CILPPrinter::sid_>(L"Sid"),
    Attr<&CILPPrinter::cid_>(L"Cid"),
    Attr<&CILPPrinter::alwaysEMF_>(L"AlwaysEMF"),
};
constinit const Child CILPPrinter::kChildren[] = {
    Elem<&CILPPrinter::appRules_>(L"AppRule"),
    Elem<&CILPPrinter::onlineApps_>(L"OnlineApps"),
    Elem<&CILPPrinter::trustedPrinters_>(L"TrustedPrinters"),
};
constinit const Schema CILPPrinter::kSchema = {
    .element = L"ILPPrinter",
    .dialect = kDialect,
    .attributes = kAttributes,
    .children = kChildren,
};

constinit const Child CILPClipboard::kChildren[] = {
    Elem<&CILPClipboard::clipboardCopyCut_>(L"ClipboardCopyCut"),
    Elem<&CILPClipboard::clipboardPaste_>(L"ClipboardPaste"),
};
constinit const Schema CILPClipboard::kSchema = {
    .element = L"ILPClipboard",
    .dialect = kDialect,
    .children = kChildren,
};

constinit const Attribute CILPEmail::kAttributes[] = {
    Attr<&CILPEmail::sid_>(L"Sid"),
    Attr<&CILPEmail::cid_>(L"Cid"),
};
constinit const Schema CILPEmail::kSchema = {
    .element = L"ILPEmail",
    .dialect = kDialect,
    .attributes = kAttributes,
};

}  // namespace TolvaInterface
