// Fragments of all documents: what is read of them, what is reported, what is written again.
#include <gtest/gtest.h>
#include <tolva/tolva.h>

#include <memory>
#include <string>
#include <vector>

#include "support/nodes.h"

namespace tolva::test {
namespace {

using NodePtr = std::unique_ptr<node::IElement>;

struct Fragment {
  NodePtr (*make)();
  const wchar_t* document;
  ConfigResult result;
  Texts reports;
  std::string written;
};

template <auto Factory>
NodePtr Make() {
  return NodePtr(Factory());
}

template <auto Factory>
Fragment Reads(const wchar_t* document, const char* written, const Texts& reports = {}) {
  return {&Make<Factory>, document, 0, reports, written};
}

/// The element has its defaults afterwards.
template <auto Factory>
Fragment Fails(const wchar_t* document, const Texts& reports, ConfigResult result = -101) {
  return {&Make<Factory>, document, result, reports, WriteText(*Make<Factory>())};
}

void ExpectAll(const std::vector<Fragment>& fragments) {
  for (const Fragment& one : fragments) {
    SCOPED_TRACE(testing::PrintToString(one.document));
    const NodePtr node = one.make();
    Diagnostics diagnostics;
    EXPECT_EQ(ReadText(*node, one.document), one.result);
    EXPECT_EQ(diagnostics.Take(), one.reports);
    EXPECT_EQ(WriteText(*node), one.written);
  }
}

const std::wstring kNoString = L"XMLManager: read required string content failed. element:Content";
const std::wstring kNoNumber =
    L"XMLManager: read required dword/bool content failed. element:Content";

Texts Missing(const std::wstring& child) {
  return {L"XMLManager: sub-element " + child + L" is missing"};
}

TEST(Fragments, OfTheActiveDirectory) {
  using namespace ClientConfig;
  const auto enabled_failed = Texts{
      L"XMLManager: read required dword/bool Attribute failed. element:DefaultDomain, "
      L"attr:Enabled"};
  ExpectAll({
      // Unknown elements, comments and text are skipped, and the last of two children counts.
      Reads<ActiveDir_CreateNewInstance>(
          L"<ActiveDirectory><!-- c --><x><DefaultDomain/></x><DefaultDomain Name='1st' "
          L"Enabled='1'/><DefaultDomain Name='2nd'>text<y/></DefaultDomain></ActiveDirectory>",
          "<ActiveDirectory><DefaultDomain Enabled=\"0\" Name=\"2nd\"/></ActiveDirectory>"),
      Fails<ActiveDir_CreateNewInstance>(L"<ActiveDirectory/>", Missing(L"DefDomain")),
      Fails<ActiveDir_CreateNewInstance>(
          L"<activeDirectory><DefaultDomain Name='x'/></activeDirectory>", {}, -102),
      Reads<DefaultDomain_CreateNewInstance>(L"<DefaultDomain Enabled='' Name=''/>",
                                             "<DefaultDomain Enabled=\"0\" Name=\"\"/>"),
      Reads<DefaultDomain_CreateNewInstance>(L"<DefaultDomain Enabled='99999999999' Name='x'/>",
                                             "<DefaultDomain Enabled=\"2147483647\" Name=\"x\"/>"),
      Fails<DefaultDomain_CreateNewInstance>(L"<DefaultDomain Name='x' Enabled='+1'/>",
                                             enabled_failed),
      Fails<DefaultDomain_CreateNewInstance>(L"<DefaultDomain Name='x' Enabled='1 '/>",
                                             enabled_failed),
      Fails<DefaultDomain_CreateNewInstance>(L"<DefaultDomain Name='x' Enabled='-1'/>",
                                             enabled_failed),
  });
}

TEST(Fragments, OfTheAnalysisDetails) {
  using namespace CpsAnalysisDetailsConf;
  ExpectAll({
      // What a text is: whatever stands next, but no spaces alone, and no element.
      Reads<name_CreateNewInstance>(L"<name>a &#x62;</name>", "<name>a b</name>"),
      Reads<name_CreateNewInstance>(L"<name><![CDATA[a]]></name>", "<name>a</name>"),
      Reads<name_CreateNewInstance>(L"<name>a<!-- c -->b</name>", "<name>a</name>"),
      Reads<name_CreateNewInstance>(L"<name><!-- c -->b</name>", "<name> c </name>"),
      Reads<name_CreateNewInstance>(L"<name><?p i?>b</name>", "<name>i</name>"),
      Reads<name_CreateNewInstance>(L"<name>a<x>b</x>c</name>", "<name>a</name>"),
      Reads<name_CreateNewInstance>(L"<name> a </name>", "<name> a </name>"),
      Fails<name_CreateNewInstance>(L"<name><x>b</x></name>", {kNoString}, -102),
      Fails<name_CreateNewInstance>(L"<name> \n </name>", {kNoString}, -102),
      Fails<name_CreateNewInstance>(L"<name></name>", {kNoString}, -102),
      Fails<name_CreateNewInstance>(L"<name/>", {kNoString}, -102),
      Fails<name_CreateNewInstance>(L"<value>a</value>", {}, -102),

      // Numbers, the one lenient and the other not.
      Fails<count_CreateNewInstance>(L"<count/>", {kNoNumber}, -102),
      Reads<count_CreateNewInstance>(L"<count>12x</count>", "<count>12</count>"),
      Reads<count_CreateNewInstance>(L"<count>x12</count>", "<count>0</count>"),
      Reads<count_CreateNewInstance>(L"<count> 12</count>", "<count>0</count>"),
      Reads<count_CreateNewInstance>(L"<count>-1</count>", "<count>0</count>"),
      Reads<count_CreateNewInstance>(L"<count>4294967298</count>", "<count>2</count>"),
      Reads<count_CreateNewInstance>(L"<count>99999999999999999999</count>",
                                     "<count>4294967295</count>"),
      Fails<numOfMatches_CreateNewInstance>(L"<numOfMatches> </numOfMatches>", {kNoNumber}, -102),
      Reads<numOfMatches_CreateNewInstance>(L"<numOfMatches><![CDATA[]]></numOfMatches>",
                                            "<numOfMatches>0</numOfMatches>"),
      Reads<numOfMatches_CreateNewInstance>(L"<numOfMatches>4294967295</numOfMatches>",
                                            "<numOfMatches>4294967295</numOfMatches>"),
      Fails<numOfMatches_CreateNewInstance>(
          L"<numOfMatches>12x</numOfMatches>",
          {L"XMLManager: read required dword/bool content failed. element:numOfMatches"}),

      // Children in any order. The text to show may be absent, and only an empty one is reported.
      Reads<violation_CreateNewInstance>(
          L"<violation><detectedValues/><numOfMatches>1</numOfMatches><name>n</name></violation>",
          "<violation><name>n</name><numOfMatches>1</numOfMatches><detectedValues>"
          "</detectedValues><customDisplayText></customDisplayText></violation>"),
      Reads<violation_CreateNewInstance>(
          L"<violation><name>n</name><numOfMatches>1</numOfMatches><detectedValues/>"
          L"<customDisplayText></customDisplayText></violation>",
          "<violation><name>n</name><numOfMatches>1</numOfMatches><detectedValues>"
          "</detectedValues><customDisplayText></customDisplayText></violation>",
          {L"XMLManager: read required string content failed. element:customDisplayText"}),

      // Of several missing children one is reported, in most elements the first.
      Fails<violation_CreateNewInstance>(L"<violation/>", Missing(L"name")),
      Fails<violation_CreateNewInstance>(
          L"<violation><name/></violation>",
          {kNoString, L"XMLManager: read require element failed. element:name"}),
      Fails<detectedValue_CreateNewInstance>(
          L"<detectedValue><location/><context> </context></detectedValue>", Missing(L"count")),
      Fails<detectedValue_CreateNewInstance>(L"<detectedValue><count>1</count></detectedValue>",
                                             Missing(L"value")),
      Reads<analysisDetails_CreateNewInstance>(
          L"<analysisDetails transactionID='1' version=''/>",
          "<analysisDetails transactionID=\"1\" version=\"\"></analysisDetails>"),
      Reads<address_CreateNewInstance>(L"<address type='Other' value='a'/>",
                                       "<address type=\"Other\" value=\"a\"/>"),
      Fails<address_CreateNewInstance>(
          L"<address type='email' value='a'/>",
          {L"XMLLiteManager: read required ENUM Attribute failed. element:address, attr:type"}),
  });
}

TEST(Fragments, OfTheMessageCatalogue) {
  using namespace MessageConf;
  ExpectAll({
      Reads<Message_CreateNewInstance>(
          L"<Message ID='7'><Description>Blocked</Description><Content/></Message>",
          "<Message ID=\"7\"><Content/><Description>Blocked</Description></Message>"),
      Reads<Message_CreateNewInstance>(
          L"<Message ID='7'><Content> </Content><Description>d</Description></Message>",
          "<Message ID=\"7\"><Content/><Description>d</Description></Message>"),
      Fails<Message_CreateNewInstance>(
          L"<Message ID='7'><Description/><Content>x</Content></Message>",
          {kNoString, L"XMLManager: read require element failed. element:Description"}),
      Fails<Message_CreateNewInstance>(L"<Message ID='7'/>", Missing(L"Content")),
      Fails<Description_CreateNewInstance>(L"<Description> </Description>", {kNoString}, -102),

      // A text ends at the first end tag, whichever it is: what follows an element within a text
      // is taken for children of the message.
      Fails<Message_CreateNewInstance>(
          L"<Message ID='1'><Content>a<b>c</b></Content><Description>d</Description></Message>",
          Missing(L"Description")),
      Reads<Message_CreateNewInstance>(
          L"<Message ID='1'><Content>a<b/>c</Content><Description>d</Description></Message>",
          "<Message ID=\"1\"><Content>a</Content><Description>d</Description></Message>"),
      Reads<Message_CreateNewInstance>(
          L"<Message ID='1'><Description>d</Description><Content><!-- c -->x</Content></Message>",
          "<Message ID=\"1\"><Content> c </Content><Description>d</Description></Message>"),

      // Messages and further catalogues may alternate.
      Reads<EndPointMessage_CreateNewInstance>(
          L"<EndPointMessage SchemaVersion='1'>"
          L"<EndpointLocalMsg/><Message ID='1'><Content/><Description>a</Description></Message>"
          L"<EndpointLocalMsg><EndPointMessage SchemaVersion='2' Language=''/></EndpointLocalMsg>"
          L"</EndPointMessage>",
          "<EndPointMessage SchemaVersion=\"1\"><Message ID=\"1\"><Content/>"
          "<Description>a</Description></Message><EndpointLocalMsg></EndpointLocalMsg>"
          "<EndpointLocalMsg><EndPointMessage SchemaVersion=\"2\" Language=\"\"></EndPointMessage>"
          "</EndpointLocalMsg></EndPointMessage>"),
      Fails<EndPointMessage_CreateNewInstance>(
          L"<EndPointMessage SchemaVersion='1'><EndpointLocalMsg><EndPointMessage/>"
          L"</EndpointLocalMsg></EndPointMessage>",
          {L"XMLManager: read required dword/bool Attribute failed. element:EndPointMessage, "
           L"attr:SchemaVersion",
           L"XMLManager: read  multiple element failed. element:EndPointMessage",
           L"XMLManager: read  multiple element failed. element:EndpointLocalMsg"}),
  });
}

TEST(Fragments, OfThePolicy) {
  using namespace TolvaInterface;
  ExpectAll({
      Fails<DiscoveryJob_CreateNewInstance>(L"<DiscoveryJob Id='' Sid=''/>", Missing(L"Schedule")),
      Fails<ILPClientConfiguration_CreateNewInstance>(
          L"<ILPClientConfiguration SchemaVersion='' SN='' Name=''/>", Missing(L"LocationArray")),
      Reads<ILPProtection_CreateNewInstance>(
          L"<ILPProtection><ILPInLineProxy Enable='x'/></ILPProtection>",
          "<ILPProtection></ILPProtection>"),
      Reads<ClipboardPaste_CreateNewInstance>(
          L"<ClipboardPaste Sid=''><OnlineApps Action='ALLOW'/><AppRule Action='BLOCK'/>"
          L"</ClipboardPaste>",
          "<ClipboardPaste Sid=\"0\"><AppRule Action=\"BLOCK\"></AppRule><OnlineApps "
          "Action=\"ALLOW\"></OnlineApps></ClipboardPaste>"),
      Reads<ILPFixedMedia_CreateNewInstance>(
          L"<ILPFixedMedia><AppRule/><BypassedApps/></ILPFixedMedia>",
          "<ILPFixedMedia></ILPFixedMedia>"),
      Reads<ILPPrinter_CreateNewInstance>(
          L"<ILPPrinter><TrustedPrinters><Printer Name='1'/></TrustedPrinters><TrustedPrinters/>"
          L"</ILPPrinter>",
          "<ILPPrinter><TrustedPrinters></TrustedPrinters></ILPPrinter>"),
      Reads<ILPEmail_CreateNewInstance>(L"<ILPEmail></ILPEmail>", "<ILPEmail/>"),

      // Elements and interfaces of different names.
      Reads<ExcludeJSInjectDomains_CreateNewInstance>(
          L"<ExcludeJSInjectionDomains><ExcludeJSInjectDomain/></ExcludeJSInjectionDomains>",
          "<ExcludeJSInjectionDomains></ExcludeJSInjectionDomains>"),
      Reads<ExcludeJSInjectDomain_CreateNewInstance>(L"<ExcludeDomain URL='u'/>",
                                                     "<ExcludeDomain URL=\"u\"/>"),
      Fails<ExcludeJSInjectDomains_CreateNewInstance>(L"<ExcludeJSInjectDomains/>", {}, -102),
      Reads<FileFilter_CreateNewInstance>(
          L"<FileFilter Include='' Age='' MinSize='99999999999999999999' MaxSize='4294967296'/>",
          "<FileFilter Include=\"\" Age=\"0\" MinSize=\"18446744073709551615\" "
          "MaxSize=\"4294967296\"/>"),
      Fails<BrowserExtension_CreateNewInstance>(
          L"<BrowserExtension BrowserName='Chrome' EnableExtension='1'/>",
          {L"XMLLiteManager: read required ENUM Attribute failed. element:BrowserExtension, "
           L"attr:BrowserName"}),
  });
}

TEST(Fragments, OfTheOtherDocuments) {
  ExpectAll({
      Fails<CIConfInterface::ICIClientConfiguration_CreateNewInstance>(
          L"<ICIClientConfiguration SchemaVersion='1' SN='' Name=''/>", Missing(L"ClientSetting")),
      Fails<RFConfInterface::IRFClientConfiguration_CreateNewInstance>(
          L"<IRFClientConfiguration SchemaVersion='1' SN='' Name=''/>", Missing(L"ClientSetting")),
      Fails<RFConfInterface::Connection_CreateNewInstance>(L"<Connection/>",
                                                           Missing(L"InternalConnection")),
      Fails<NGConfInterface::INGClientConfiguration_CreateNewInstance>(L"<NGClientConfiguration/>",
                                                                       {}, -102),

      // Telemetry is present, and 0, where a document lacks it.
      Reads<CIConfInterface::ClientSetting_CreateNewInstance>(
          L"<ClientSetting><UserInterface UISilentMode='' DisplayHTTPSBlockMsg='' "
          L"HTTPSBlockMsgInterval='' DisplayFTPBlockMsg='' FTPBlockMsgInterval='' UITimeout=''/>"
          L"</ClientSetting>",
          "<ClientSetting EnableTelemetry=\"0\"><UserInterface UISilentMode=\"0\" "
          "DisplayHTTPSBlockMsg=\"0\" HTTPSBlockMsgInterval=\"0\" DisplayFTPBlockMsg=\"0\" "
          "FTPBlockMsgInterval=\"0\" UITimeout=\"0\"/></ClientSetting>"),
      Reads<RFConfInterface::ClientSetting_CreateNewInstance>(
          L"<ClientSetting DisableFiltering='1'><UserInterface UISilentMode='1' UITimeout='2'/>"
          L"</ClientSetting>",
          "<ClientSetting EnableTelemetry=\"0\" DisableFiltering=\"1\"><UserInterface "
          "UISilentMode=\"1\" UITimeout=\"2\"/></ClientSetting>"),

      // Signed numbers saturate, unsigned ones keep their low half.
      Reads<CIConfInterface::EIMServer_CreateNewInstance>(
          L"<EIMServer HostName='' PortNumber='4294967295'/>",
          "<EIMServer HostName=\"\" PortNumber=\"2147483647\"/>"),
      Reads<NGConfInterface::NGUser_CreateNewInstance>(
          L"<NGUser Name='' EnableTrayIconMenu='8589934593'/>",
          "<NGUser Name=\"\" EnableTrayIconMenu=\"1\"/>"),
  });
}

}  // namespace
}  // namespace tolva::test
