// The parser: what is well-formed and what is not, and where a fault is found, whatever the size of
// the blocks in which the document arrives.
#include "platform/xml/parser.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>

#include "support/allocations.h"
#include "support/steps.h"
#include "support/streams.h"

namespace tolva::test {
namespace {

using own_xml::Parser;
using own_xml::ReadResult;
using own_xml::ValueKind;

/// The nodes, and the fault after them; S_OK: the document has ended without one.
using Outcome = std::pair<std::string, HRESULT>;

std::string Value(std::string_view raw, bool plain, ValueKind kind) {
  if (plain) return std::string(raw);
  Buffer<char> value;
  own_xml::AppendValue(raw, kind, value);
  return {value.data(), value.size()};
}

/// A name put together from its parts.
std::string NameOf(const own_xml::QName& name) {
  const std::string prefix(name.PrefixText());
  return (prefix.empty() ? "" : prefix + ":") + std::string(name.Local());
}

/// A node in a notation of its own: <a x='1'> <a/> </a> T(text) W(white space) C(cdata) !(comment)
/// ?(target:data) D (declaration)
std::string Describe(const Parser& parser) {
  const auto value = [&parser](ValueKind kind) {
    return Value(parser.value(), parser.value_is_plain(), kind) + ")";
  };
  const std::string name = NameOf(parser.name());
  std::string text = "<" + name;
  switch (parser.type()) {
    case XmlNodeType_Element:
      for (const own_xml::Attribute& attribute : parser.attributes()) {
        text += " " + NameOf(attribute.name) + "='" +
                Value(attribute.value, attribute.plain, ValueKind::kAttribute) + "'";
      }
      return text + (parser.is_empty_element() ? "/>" : ">");
    case XmlNodeType_EndElement:
      return "</" + name + ">";
    case XmlNodeType_Text:
      return "T(" + value(ValueKind::kText);
    case XmlNodeType_Whitespace:
      return "W(" + value(ValueKind::kLiteral);
    case XmlNodeType_CDATA:
      return "C(" + value(ValueKind::kLiteral);
    case XmlNodeType_Comment:
      return "!(" + value(ValueKind::kLiteral);
    case XmlNodeType_ProcessingInstruction:
      return "?(" + name + ":" + value(ValueKind::kLiteral);
    default:
      return parser.type() == XmlNodeType_XmlDeclaration ? "D" : "none";
  }
}

/// Reads to the end, or to a fault.
template <class Action>
ReadResult ReadOn(Parser& parser, Action on_node) {
  ReadResult result = ReadResult::kNode;
  Steps steps;
  while (steps.Take() && (result = parser.Read()) == ReadResult::kNode) on_node();
  return result;
}

/// With one parser for all documents, as a manager has.
Outcome Parse(StackStream& stream, bool converted = false) {
  static Parser parser;
  parser.SetInput(&stream, converted);
  std::string nodes;
  const ReadResult result = ReadOn(parser, [&nodes] { nodes += Describe(parser); });
  const HRESULT fault = result == ReadResult::kFault ? parser.fault() : S_OK;
  for (int again = 0; again < 3; ++again) {
    EXPECT_EQ(parser.Read(), result);
    EXPECT_EQ(parser.type(), XmlNodeType_None);
  }
  parser.SetInput(nullptr, false);
  return {nodes, fault};
}

void ExpectOutcome(std::string_view document, const Outcome& expected, bool converted = false) {
  for (const std::size_t block : {1U, 2U, 3U, 7U, 64U, 1U << 20}) {
    TextStream stream(document, block);
    EXPECT_EQ(Parse(stream, converted), expected)
        << "document: " << document.substr(0, 200) << "\nblock: " << block;
    EXPECT_EQ(stream.references, 1U);
  }
}

/// Expects that fault of each document. Before it come the nodes of what stands before a bar.
void ExpectFault(HRESULT fault, std::initializer_list<std::string_view> documents) {
  for (const std::string_view marked : documents) {
    const std::size_t bar = marked.find('|');
    std::string nodes;
    std::string document(marked);
    if (bar != std::string_view::npos) {
      TextStream before(marked.substr(0, bar));
      nodes = Parse(before).first;
      EXPECT_NE(nodes, "");
      document.erase(bar, 1);
    }
    ExpectOutcome(document, {nodes, fault});
  }
}

// tests/differential compares nodes and their values with those of another parser. Here is what it
// cannot see.
TEST(Parser, DeliversTheNodesOfADocument) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"<?xml version='1.1' encoding = 'utf-8' standalone='no' ?>\n<a/>", "DW(\n)<a/>"},
      {"<a>&#32;</a>", "<a>T( )</a>"},
      {"<a>&#x1f3;&gt;&lt;&amp;&quot;&apos;</a>", "<a>T(\xC7\xB3><&\"')</a>"},
      {"<a> &#13;\n</a>", "<a>T( \r\n)</a>"},
      {" \t \r \n<a>\n \r\n text\r<!--\r\n-->\r</a>",
       "W( \t \n \n)<a>T(\n \n text\n)!(\n)W(\n)</a>"},
      {"<a b=\"&#x10FFFF;\"/>", "<a b='\xF4\x8F\xBF\xBF'/>"},
      {"<a xmlns:xml='http://www.w3.org/XML/1998/namespace'/>",
       "<a xmlns:xml='http://www.w3.org/XML/1998/namespace'/>"},
      // The parts of a name, in end tags as well.
      {"<p:a xmlns:p='u' p:x=''><b><pq:c xmlns:pq='v'></pq:c></b></p:a>",
       "<p:a xmlns:p='u' p:x=''><b><pq:c xmlns:pq='v'></pq:c></b></p:a>"},
  };
  for (const auto& [document, nodes] : cases) ExpectOutcome(document, {std::string(nodes), S_OK});
}

TEST(Parser, RefusesMalformedTags) {
  ExpectFault(WC_E_ELEMENTMATCH, {"<a>|</b>", "<a>|</ab>", "<ab>|</a>"});
  ExpectFault(WC_E_GREATERTHAN, {"<a>|</a b>", "<a>|</a/>", "<a/ >"});
  ExpectFault(NC_E_QNAMECHARACTER, {"<a>|</>", "<a>|</ a>", "< a/>", "</a>", "<\xC2\xB7/>",
                                    "<a\xC3\x97/>", "<a$/>", "<a 1='2'/>", "<a/>|</a>"});
  ExpectFault(WC_E_WHITESPACE, {"<a b='1'c='2'/>"});
  ExpectFault(WC_E_EQUAL, {"<a b/>"});
  ExpectFault(WC_E_QUOTE, {"<a b=c/>"});
  ExpectFault(WC_E_LESSTHAN, {"<a b='<'/>", "<a b=\"<\"/>"});
  ExpectFault(WC_E_UNIQUEATTRIBUTE,
              {"<a b='1' b='2'/>", "<x>|<a b='1' c='2' d='3' e='4' b='5'/></x>"});
}

TEST(Parser, RefusesMalformedReferences) {
  ExpectFault(WC_E_UNDECLAREDENTITY, {"<a b='&entname;'/>", "<a>|x&Lt;</a>"});
  ExpectFault(WC_E_SEMICOLON, {"<a b='&entname'/>", "<a b='val &#12a;'/>", "<a b='val &#x12g;'/>"});
  ExpectFault(WC_E_NAME, {"<a b='& '/>"});
  ExpectFault(WC_E_DIGIT, {"<a b='val &#a;'/>"});
  ExpectFault(WC_E_HEXDIGIT, {"<a b='val &#xg;'/>", "<a>|x&#x;</a>"});
  ExpectFault(WC_E_XMLCHARACTER,
              {"<a b='val&#xfffe;'/>", "<a b='&#0;'/>", "<a b='&#xD800;'/>", "<a b='&#xDFFF;'/>",
               "<a b='&#x110000;'/>", "<a b='&#99999999999999999999999999;'/>",
               "<a b='&#4294967361;'/>"});  // 'A', were it cut to 32 bits
}

TEST(Parser, RefusesMalformedMarkup) {
  ExpectFault(WC_E_CDSECTEND, {"<a>|text ]]> text</a>", "<a>|]]></a>"});
  ExpectFault(WC_E_COMMENT, {"<!-- -- --><a/>", "<!-- c---><a/>", "<!-c--><a/>"});
  ExpectFault(WC_E_CDSECT, {"<a>|<![CDAT[]]></a>"});
  ExpectFault(WC_E_SYNTAX,
              {"<![CDATA[]]><a/>", "<a/>|<![CDATA[]]>", "<!doctype a><a/>", "<a>|<!DOCTYPE a></a>",
               "xml", "<a/>|text", "<a/> |text", "<a/>|&amp;"});
  ExpectFault(WC_E_DTDPROHIBITED, {"<!DOCTYPE a><a/>", "<!-- c --> |<!DOCTYPE a ["});
  ExpectFault(NC_E_NAMECOLON, {"<?pi:pi?><a/>"});
  ExpectFault(WC_E_PI, {"<?:pi ?><a/>", "<?-pi ?><a/>", "<?pi+?><a/>", "<?pi?\?><a/>"});
  ExpectFault(WC_E_LEADINGXML, {"<?XML version='1.0'?><a/>"});
  ExpectFault(WC_E_ROOTELEMENT, {"", "<a/>|<b/>"});
  ExpectFault(MX_E_INPUTEND, {"<a b='", "<", "<!", "<!DOCTYP", "<a>|</a"});
  ExpectOutcome(" <!-- nothing -->\n", {"W( )!( nothing )W(\n)", WC_E_ROOTELEMENT});
  ExpectOutcome("<a><b>", {"<a><b>", MX_E_INPUTEND});
  ExpectOutcome("<a>text", {"<a>T(text)", MX_E_INPUTEND});
  ExpectOutcome("<a>\n", {"<a>W(\n)", MX_E_INPUTEND});
}

TEST(Parser, JudgesTheDeclaration) {
  ExpectFault(
      WC_E_XMLDECL,
      {"<?xml version=\"1.0\"encoding=\"UTF-8\"?><a/>", "<?xml?><a/>",
       "<?xml encoding='UTF-8'?><a/>", "<?xml version='2.0'?><a/>", "<?xml version='1.'?><a/>",
       "<?xml version='1.-'?><a/>", "<?xml version='1.0' encoding='_'?><a/>",
       "<?xml version='1.0' standalone='maybe'?><a/>",
       "<?xml version='1.0' standalone='yes' encoding='UTF-8'?><a/>", "<?xml version='1.0'><a/>"});
  ExpectFault(WC_E_TEXTXMLDECL, {" |<?xml version='1.0'?><a/>", "<a>|<?xml version='1.0'?></a>"});
  ExpectFault(MX_E_ENCODING, {"<?xml version='1.0' encoding='windows-1252'?><a/>"});
  ExpectFault(MX_E_ENCODINGSWITCH, {"<?xml version='1.0' encoding='UTF-16'?><a/>"});
}

TEST(Parser, KeepsTheRulesOfNamespaces) {
  ExpectFault(NC_E_UNDECLAREDPREFIX,
              {"<a:b/>", "<a b:c=''/>", "<a><b xmlns:p='u'><p:c/></b><b xmlns:p='u'/>|<p:c/></a>"});
  ExpectFault(NC_E_QNAMECHARACTER, {"<:a/>", "<a:/>", "<:b:c />"});
  ExpectFault(NC_E_QNAMECOLON, {"<a:b:c />"});
  ExpectFault(WC_E_UNIQUEATTRIBUTE,
              {"<a xmlns:p='u' xmlns:q='&#x75;' p:x='1' q:x='2'/>", "<a xmlns:p='u' xmlns:p='v'/>",
               "<a xmlns:p='u' xmlns:q='v'><b xmlns:p='v'>|<c p:x='' q:x=''/></b></a>"});
  ExpectFault(NC_E_EMPTYURI, {"<a xmlns:p=''/>"});
  ExpectFault(NC_E_XMLPREFIXRESERVED, {"<a xmlns:xml='u'/>"});
  ExpectFault(NC_E_XMLNSPREFIXRESERVED, {"<a xmlns:xmlns='u'/>", "<xmlns:a/>"});
  ExpectFault(NC_E_XMLURIRESERVED, {"<a xmlns:p='http://www.w3.org/XML/1998/namespace'/>"});
  ExpectFault(NC_E_XMLNSURIRESERVED, {"<a xmlns='http://www.w3.org/2000/xmlns/'/>"});
}

TEST(Parser, RefusesWhatIsNoCharacter) {
  using namespace std::string_view_literals;
  ExpectFault(WC_E_XMLCHARACTER,
              {"<a>|\x01</a>", "<a>|good\x0Btext</a>", "<a b='\x1F'/>", "<a\0/>"sv, "<a>|\0</a>"sv,
               "<a>|\xE0\x9F\xBF</a>", "<a>|\xF0\x8F\xBF\xBF</a>", "<a>|\x80</a>",
               "<!--\xFF--><a/>", "<a/>|<!-- \xE2\x82"});
  // Between nodes anything that is not markup offends by being there.
  ExpectFault(WC_E_SYNTAX, {"<a/>|\0"sv, "<?xml version='1.0'?>\n|\0"sv, "\xFF"});
}

// ---- encodings ---------------------------------------------------------------------------------

std::string Utf16(std::u16string_view text, bool big) {
  std::string bytes;
  for (const char16_t unit : text) {
    const auto low = static_cast<char>(unit & 0xFF);
    const auto high = static_cast<char>(unit >> 8);
    bytes += big ? high : low;
    bytes += big ? low : high;
  }
  return bytes;
}

TEST(Parser, ReadsItsEncodings) {
  for (const bool big : {false, true}) {
    ExpectOutcome(Utf16(u"<?xml version='1.0' encoding='UTF-16'?><a/>", big), {"D<a/>", S_OK});
    ExpectOutcome(Utf16(u"<?xml version='1.0' encoding='UTF-8'?><a/>", big),
                  {"", MX_E_ENCODINGSWITCH});
    // Half a pair, the halves in the wrong order, half a unit.
    ExpectOutcome(Utf16(u"<a>\xD83D</a>", big), {"<a>", WC_E_XMLCHARACTER});
    ExpectOutcome(Utf16(u"<a>\xDE00\xD83D</a>", big), {"<a>", WC_E_XMLCHARACTER});
    ExpectOutcome(Utf16(u"<a><!---->\xD83D", big), {"<a>!()", WC_E_XMLCHARACTER});
    ExpectOutcome(Utf16(u"<a/><!--", big) + "x", {"<a/>", WC_E_XMLCHARACTER});
  }
  // A processing instruction says nothing of the encoding.
  ExpectOutcome("<?xml-style encoding='ISO-8859-1'?><a b='\xC3\xA9'/>",
                {"?(xml-style:encoding='ISO-8859-1')<a b='\xC3\xA9'/>", S_OK});
  const std::string ascii = "<?xml version=\"1.0\" encoding=\"US-ASCII\"?><a b='e'/>";
  ExpectOutcome(ascii, {"D<a b='e'/>", S_OK});
  ExpectOutcome("<?xml version='1.0' encoding='US-ASCII'?><a b='\xC3\xA9'/>",
                {"D", WC_E_XMLCHARACTER});
  ExpectOutcome("\xEF\xBB\xBF" + ascii, {"", MX_E_ENCODINGSWITCH});
  // The encoding that converted text declares is not the one that it has.
  for (const std::string declared : {"UTF-16", "ISO-8859-1"}) {
    ExpectOutcome("<?xml version='1.0' encoding='" + declared + "'?><a b='\xC3\xA9'/>",
                  {"D<a b='\xC3\xA9'/>", S_OK}, true);
  }
}

// ---- limits ------------------------------------------------------------------------------------

std::string Repeat(std::string_view piece, std::size_t count) {
  std::string text;
  text.reserve(piece.size() * count);
  while (count-- != 0) text += piece;
  return text;
}

TEST(Parser, Allows256OpenElements) {
  const auto nest = [](std::size_t depth) { return Repeat("<a>", depth) + Repeat("</a>", depth); };
  ExpectOutcome(nest(256), {nest(256), S_OK});
  ExpectOutcome(nest(257), {Repeat("<a>", 256), SC_E_MAXELEMENTDEPTH});
  ExpectOutcome(Repeat("<a>", 255) + Repeat("<a>x</a>", 300),
                {Repeat("<a>", 255) + Repeat("<a>T(x)</a>", 300), MX_E_INPUTEND});
}

/// Where the input ends, and where its stream fails, which is reported for what it is.
TEST(Parser, EndsOnEveryPrefixOfADocument) {
  const std::string_view document =
      "<?xml version='1.0' encoding='UTF-8'?>\n<!-- c --><r:a xmlns:r='u' b='&lt;&#x41;'>"
      "text\r\n &amp; <![CDATA[ ]] ]]><?p d?><b c=\"\xC3\xA9\"/>\xE2\x82\xAC</r:a><!-- e -->\n";
  TextStream whole(document);
  const Outcome all = Parse(whole);
  EXPECT_EQ(all.second, S_OK);
  for (std::size_t size = 0; size < document.size(); ++size) {
    for (const std::size_t block : {std::size_t{1}, std::size_t{13}, document.size()}) {
      TextStream ending(document.substr(0, size), block);
      TextStream failing(document, block);
      failing.fail_at = size;
      const Outcome failed = Parse(failing);
      EXPECT_EQ(failed.second, E_FAIL) << size;
      EXPECT_EQ(failing.references, 1U);
      for (const std::string& nodes : {Parse(ending).first, failed.first}) {
        // White space or a text may have been cut; all other nodes are those of the whole document.
        std::size_t same = nodes.size();
        for (const char* const kind : {"T(", "W("}) {
          const std::size_t at = nodes.rfind(kind);
          if (at != std::string::npos && nodes.find(')', at) + 1 == nodes.size()) same = at;
        }
        EXPECT_EQ(all.first.substr(0, same), nodes.substr(0, same)) << size;
      }
    }
  }
}

// A token that is cut off is scanned anew each time there is more: that must not be often.
TEST(Parser, SeldomStartsATokenAnew) {
  const std::string document(std::size_t{1} << 20, 'x');
  TextStream stream(document, 64);
  own_xml::Input input;
  input.Open(&stream, false);
  const char* at = nullptr;
  int calls = 0;
  Steps steps;
  while (steps.Take() && input.More(at)) ++calls;
  EXPECT_EQ(static_cast<std::size_t>(input.limit() - at), document.size());
  EXPECT_LT(calls, 30);
  input.Close();
}

// Documents made to be slow: were any of these quadratic, the test would take minutes.
TEST(Parser, TakesHostileSizesInItsStride) {
  constexpr std::size_t kMany = 100'000;
  const auto count_nodes = [](const std::string& document, std::size_t block) {
    TextStream stream(document, block);
    Parser parser;
    parser.SetInput(&stream, false);
    std::size_t nodes = 0;
    EXPECT_EQ(ReadOn(parser, [&nodes] { ++nodes; }), ReadResult::kEnd);
    return nodes;
  };

  std::string attributes = "<a";
  std::string declarations = "<a";
  std::string same_class = "<a";
  for (std::size_t i = 0; i < kMany; ++i) {
    const std::string n = std::to_string(i);
    attributes += " b" + n + "=''";
    declarations += " xmlns:p" + n + "='u" + n + "' p" + n + ":x=''";
    same_class += " x" + std::string(6 - n.size(), '0') + n + "x=''";
  }
  for (const std::string& tag : {attributes, declarations, same_class}) {
    const std::string document = tag + "/>";
    for (const std::size_t block : {std::size_t{64}, document.size()}) {
      EXPECT_EQ(count_nodes(document, block), 1U);
    }
  }
  const std::string twins = attributes + " b0=''/>";
  TextStream stream(twins);
  EXPECT_EQ(Parse(stream).second, WC_E_UNIQUEATTRIBUTE);

  const auto count_repeated = [&](const char* head, const char* piece, const char* tail) {
    const std::string document = head + Repeat(piece, std::size_t{1} << 20) + tail;
    return count_nodes(document, document.size());
  };
  for (const char* const piece : {"\r", "]", "&lt;", " ", "&#0000000000000000000000065;"}) {
    EXPECT_EQ(count_repeated("<a>x", piece, "</a>"), 3U) << piece;
    EXPECT_EQ(count_repeated("<a>", piece, "</a>"), 3U) << piece;
    EXPECT_EQ(count_repeated("<a b='", piece, "'/>"), 1U) << piece;
  }
  EXPECT_EQ(count_repeated("<", "n", "/>"), 1U);
  EXPECT_EQ(count_repeated("<!--", "- ", "--><a/>"), 2U);
  EXPECT_EQ(count_repeated("<?xml version='1.0'", " ", "?><a/>"), 2U);
}

#if !defined(_WIN32)

// ---- memory ------------------------------------------------------------------------------------

const std::string kRule =
    "  <rule action='BLOCK' name='Stick &amp; disk' id='12'>\n    <c>some text &lt;here&gt;</c>\n"
    "    <!-- a comment --><p:e xmlns:p='u' p:x='1'/>\n  </rule>\n";

TEST(Parser, DoesNotAllocateOnceItIsWarm) {
  const std::string document = "<a>" + Repeat(kRule, 4000) + "</a>";
  TextStream stream(document);
  Parser parser;
  parser.SetInput(&stream, false);
  // More than two blocks.
  for (int i = 0; i < 10'000; ++i) ASSERT_EQ(parser.Read(), ReadResult::kNode);
  const AllocationCount before = CountAllocations();
  EXPECT_EQ(ReadOn(parser, [] {}), ReadResult::kEnd);
  EXPECT_EQ(CountAllocations().calls, before.calls);
}

TEST(Parser, NeedsMemoryForABlockAndTheCurrentNode) {
  constexpr std::size_t kBound = std::size_t{512} * 1024;
  const auto peak = [](const std::string& document) {
    TextStream stream(document);
    const AllocationCount before = CountAllocations();
    ResetPeak();
    Parser parser;
    parser.SetInput(&stream, false);
    ReadOn(parser, [] {});
    return CountAllocations().peak_bytes - before.bytes;
  };
  EXPECT_LT(peak("<a>" + Repeat(kRule, 400'000) + "</a>"), kBound);

  // Names go with the elements in which they are declared.
  std::string names = "<a>";
  for (int i = 0; i < 20'000; ++i) {
    const std::string n = std::to_string(i);
    names += "<p" + n + ":b xmlns:p" + n + "='uri-" + n + "'/>";
  }
  EXPECT_LT(peak(names + "</a>"), kBound);

  // A large node's memory is released after it.
  std::string huge = "<x b='" + std::string(std::size_t{8} << 20, 'v') + "'/><x xmlns:p='u'";
  for (int i = 0; i < 30'000; ++i) huge += " p:a" + std::to_string(i) + "=''";
  const std::string document = "<a>" + huge + "/>" + Repeat(kRule, 200'000) + "</a>";
  TextStream stream(document);
  Parser parser;
  parser.SetInput(&stream, false);
  const AllocationCount before = CountAllocations();
  for (int i = 0; i < 2'000'000; ++i) ASSERT_EQ(parser.Read(), ReadResult::kNode);
  EXPECT_LT(CountAllocations().bytes - before.bytes, kBound);
}

#endif

}  // namespace
}  // namespace tolva::test
