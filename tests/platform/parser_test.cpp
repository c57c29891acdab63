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

/// Shows control characters, so that a failing test can be read.
std::string Show(std::string_view text) {
  std::string shown;
  for (const char c : text) {
    switch (c) {
      case '\n':
        shown += "\\n";
        break;
      case '\r':
        shown += "\\r";
        break;
      case '\t':
        shown += "\\t";
        break;
      default:
        shown += c;
    }
  }
  return shown;
}

std::string Value(std::string_view raw, bool plain, ValueKind kind) {
  if (plain) return Show(raw);
  Buffer<char> value;
  own_xml::AppendValue(raw, kind, value);
  return Show({value.data(), value.size()});
}

/// A name put together from its parts.
std::string NameOf(const own_xml::QName& name) {
  const std::string prefix(name.PrefixText());
  return (prefix.empty() ? "" : prefix + ":") + std::string(name.Local());
}

/// A node in a notation of its own: <a x='1'> <a/> </a> T(text) W(blanks) C(cdata) !(comment)
/// ?(target:data) D (declaration)
std::string Describe(const Parser& parser) {
  const auto value = [&parser](ValueKind kind) {
    return "(" + Value(parser.value(), parser.value_is_plain(), kind) + ")";
  };
  const std::string name = NameOf(parser.name());
  switch (parser.type()) {
    case XmlNodeType_Element: {
      std::string text = "<" + name;
      for (const own_xml::Attribute& attribute : parser.attributes()) {
        text += " " + NameOf(attribute.name) + "='" +
                Value(attribute.value, attribute.plain, ValueKind::kAttribute) + "'";
      }
      return text + (parser.is_empty_element() ? "/>" : ">");
    }
    case XmlNodeType_EndElement:
      return "</" + name + ">";
    case XmlNodeType_Text:
      return "T" + value(ValueKind::kText);
    case XmlNodeType_Whitespace:
      return "W" + value(ValueKind::kLiteral);
    case XmlNodeType_CDATA:
      return "C" + value(ValueKind::kLiteral);
    case XmlNodeType_Comment:
      return "!" + value(ValueKind::kLiteral);
    case XmlNodeType_ProcessingInstruction:
      return "?(" + name + ":" + value(ValueKind::kLiteral).substr(1);
    case XmlNodeType_XmlDeclaration:
      return "D";
    default:
      return "none";
  }
}

struct Outcome {
  std::string nodes;
  HRESULT fault = S_OK;  ///< S_OK: the document has ended without one

  bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
  return out << outcome.nodes << " -> " << std::hex << static_cast<unsigned>(outcome.fault);
}

/// With one parser for all documents, as a manager has.
Outcome Parse(StackStream& stream, bool converted = false) {
  static Parser parser;
  parser.SetInput(&stream, converted);
  Outcome outcome;
  ReadResult result = ReadResult::kNode;
  Steps steps;
  while (steps.Take() && (result = parser.Read()) == ReadResult::kNode) {
    outcome.nodes += Describe(parser);
  }
  if (result == ReadResult::kFault) outcome.fault = parser.fault();
  for (int again = 0; again < 3; ++again) {
    EXPECT_EQ(parser.Read(), result);
    EXPECT_EQ(parser.type(), XmlNodeType_None);
  }
  parser.SetInput(nullptr, false);
  return outcome;
}

constexpr std::size_t kBlocks[] = {1, 2, 3, 7, 64, 1U << 20};

void ExpectOutcome(std::string_view document, const Outcome& expected, bool converted = false) {
  for (const std::size_t block : kBlocks) {
    TextStream stream(document, block);
    EXPECT_EQ(Parse(stream, converted), expected)
        << "document: " << document.substr(0, 200) << "\nblock: " << block;
    EXPECT_EQ(stream.references, 1U);
  }
}

struct Case {
  std::string_view document;
  std::string_view nodes;
  HRESULT fault = S_OK;
};

void ExpectAll(std::initializer_list<Case> cases) {
  for (const Case& one : cases) ExpectOutcome(one.document, {std::string(one.nodes), one.fault});
}

TEST(Parser, DeliversTheNodesOfADocument) {
  ExpectAll({
      {"<!-- comment1 --><!-- comment2 --><?pi1 pi1body ?> \t \r \n<!-- comment4 --><a>\r\n\t<b/>"
       "text<!-- comment -->text2<?pi pibody ?>\r\n</a>",
       "!( comment1 )!( comment2 )?(pi1:pi1body )W( \\t \\n \\n)!( comment4 )<a>W(\\n\\t)<b/>"
       "T(text)!( comment )T(text2)?(pi:pibody )W(\\n)</a>"},
      {"<a/>", "<a/>"},
      {"<a />\n", "<a/>W(\\n)"},
      {"<a \r \t\n>x</a\n>", "<a>T(x)</a>"},
      {"<a b = '1'\tc='2' />", "<a b='1' c='2'/>"},
      {"<a><b><c/></b><b></b></a>", "<a><b><c/></b><b></b></a>"},
      {"<?xml version=\"1.0\" standalone=\"yes\"?><a/>", "D<a/>"},
      {"<?xml version='1.1' encoding = 'utf-8' standalone='no' ?>\n<a/>", "DW(\\n)<a/>"},
      {"<a>x<!---->y<?p?>z<?p ?></a>", "<a>T(x)!()T(y)?(p:)T(z)?(p:)</a>"},
      {"<?pi    data  ?><?xml-stylesheet ?><?q ? ?\?><a/>",
       "?(pi:data  )?(xml-stylesheet:)?(q:? ?)<a/>"},
      {"<_.-1 _.-2=''/>", "<_.-1 _.-2=''/>"},
      {"<\xC3\xA9\xCC\x81 \xE4\xBA\xBA\xC2\xB7='\xF0\x9F\x98\x80'/>",
       "<\xC3\xA9\xCC\x81 \xE4\xBA\xBA\xC2\xB7='\xF0\x9F\x98\x80'/>"},
  });
}

TEST(Parser, GivesTextItsValue) {
  ExpectAll({
      {"<a>\n \r\n \n\n text</a>", "<a>T(\\n \\n \\n\\n text)</a>"},
      {"<a>\r \r\r\n \n\n text\r</a>", "<a>T(\\n \\n\\n \\n\\n text\\n)</a>"},
      {"<a>&#x1f3;&#259;&gt;&lt;&amp;&quot;&apos;</a>", "<a>T(\xC7\xB3\xC4\x83><&\"')</a>"},
      {"<a>&#32;</a>", "<a>T( )</a>"},
      {"<a> &#13;\n</a>", "<a>T( \\r\\n)</a>"},
      {"<a>] ]] ]>&gt; ]]&gt;</a>", "<a>T(] ]] ]>> ]]>)</a>"},
      {"<a><![CDATA[ ]]data ]]><![CDATA[<![CDATA[ & ]]]]><![CDATA[]]></a>",
       "<a>C( ]]data )C(<![CDATA[ & ]])C()</a>"},
      {"<a><![CDATA[\r \r\r\n \n\n ]]></a>", "<a>C(\\n \\n\\n \\n\\n )</a>"},
      {"<a><!--\r\n-->\r<?p \r\n?></a>", "<a>!(\\n)W(\\n)?(p:)</a>"},
  });
}

TEST(Parser, GivesAttributesTheirValue) {
  ExpectAll({
      {"<a b=\"a''b\" c='a\"b' d=' ' e=\" v \"/>", "<a b='a''b' c='a\"b' d=' ' e=' v '/>"},
      {"<a b=\"\r\n \r \n \t\n\r\"/>", "<a b='         '/>"},
      {"<a b=\"\r\n\tval\n\"/>", "<a b='  val '/>"},
      {"<a b=\"v&#32;&#x9;&#xA;&#xD;\"/>", "<a b='v \\t\\n\\r'/>"},
      {"<a b=\"&lt;&gt;&amp;&apos;&quot;&#x10FFFF;\"/>", "<a b='<>&'\"\xF4\x8F\xBF\xBF'/>"},
      {"<a b='a value of more than sixteen characters > \"plain\"'/>",
       "<a b='a value of more than sixteen characters > \"plain\"'/>"},
      {"<a b='a value of more than sixteen characters, &amp; more'/>",
       "<a b='a value of more than sixteen characters, & more'/>"},
  });
}

TEST(Parser, RefusesMalformedTags) {
  ExpectAll({
      {"<a></b>", "<a>", WC_E_ELEMENTMATCH},
      {"<a></ab>", "<a>", WC_E_ELEMENTMATCH},
      {"<ab></a>", "<ab>", WC_E_ELEMENTMATCH},
      {"<a></a", "<a>", MX_E_INPUTEND},
      {"<a></a b>", "<a>", WC_E_GREATERTHAN},
      {"<a></a/>", "<a>", WC_E_GREATERTHAN},
      {"<a></>", "<a>", NC_E_QNAMECHARACTER},
      {"<a></ a>", "<a>", NC_E_QNAMECHARACTER},
      {"< a/>", "", NC_E_QNAMECHARACTER},
      {"</a>", "", NC_E_QNAMECHARACTER},
      {"<1a/>", "", NC_E_QNAMECHARACTER},
      {"<\xC2\xB7/>", "", NC_E_QNAMECHARACTER},
      {"<a\xC3\x97/>", "", NC_E_QNAMECHARACTER},
      {"<a$/>", "", NC_E_QNAMECHARACTER},
      {"<a/ >", "", WC_E_GREATERTHAN},
      {"<a b='1'c='2'/>", "", WC_E_WHITESPACE},
      {"<a b/>", "", WC_E_EQUAL},
      {"<a b=c/>", "", WC_E_QUOTE},
      {"<a 1='2'/>", "", NC_E_QNAMECHARACTER},
      {"<a b='<'/>", "", WC_E_LESSTHAN},
      {"<a b=\"<\"/>", "", WC_E_LESSTHAN},
      {"<a b='1' b='2'/>", "", WC_E_UNIQUEATTRIBUTE},
      {"<x><a b='1' c='2' d='3' e='4' b='5'/></x>", "<x>", WC_E_UNIQUEATTRIBUTE},
  });
}

TEST(Parser, RefusesMalformedReferences) {
  ExpectAll({
      {"<a b='&entname;'/>", "", WC_E_UNDECLAREDENTITY},
      {"<a b='&entname'/>", "", WC_E_SEMICOLON},
      {"<a b='& '/>", "", WC_E_NAME},
      {"<a b='val&#xfffe;'/>", "", WC_E_XMLCHARACTER},
      {"<a b='&#0;'/>", "", WC_E_XMLCHARACTER},
      {"<a b='&#xD800;'/>", "", WC_E_XMLCHARACTER},
      {"<a b='&#xDFFF;'/>", "", WC_E_XMLCHARACTER},
      {"<a b='&#x110000;'/>", "", WC_E_XMLCHARACTER},
      {"<a b='&#99999999999999999999999999;'/>", "", WC_E_XMLCHARACTER},
      {"<a b='&#4294967361;'/>", "", WC_E_XMLCHARACTER},  // 'A', were it cut to 32 bits
      {"<a b='val &#a;'/>", "", WC_E_DIGIT},
      {"<a b='val &#12a;'/>", "", WC_E_SEMICOLON},
      {"<a b='val &#x12g;'/>", "", WC_E_SEMICOLON},
      {"<a b='val &#xg;'/>", "", WC_E_HEXDIGIT},
      {"<a>x&#x;</a>", "<a>", WC_E_HEXDIGIT},
      {"<a>x&Lt;</a>", "<a>", WC_E_UNDECLAREDENTITY},
  });
}

TEST(Parser, RefusesMalformedMarkup) {
  ExpectAll({
      {"<a>text ]]> text</a>", "<a>", WC_E_CDSECTEND},
      {"<a>]]></a>", "<a>", WC_E_CDSECTEND},
      {"<!-- -- comment--><a/>", "", WC_E_COMMENT},
      {"<!-- comment---><a/>", "", WC_E_COMMENT},
      {"<!-comment--><a/>", "", WC_E_COMMENT},
      {"<a><![CDAT[]]></a>", "<a>", WC_E_CDSECT},
      {"<![CDATA[]]><a/>", "", WC_E_SYNTAX},
      {"<a/><![CDATA[]]>", "<a/>", WC_E_SYNTAX},
      {"<?pi:pi?><a/>", "", NC_E_NAMECOLON},
      {"<?:pi ?><a/>", "", WC_E_PI},
      {"<?-pi ?><a/>", "", WC_E_PI},
      {"<?pi+?><a/>", "", WC_E_PI},
      {"<?pi?\?><a/>", "", WC_E_PI},
      {"<?XML version='1.0'?><a/>", "", WC_E_LEADINGXML},
      {"<!DOCTYPE a><a/>", "", WC_E_DTDPROHIBITED},
      {"<!-- c --> <!DOCTYPE a [", "!( c )W( )", WC_E_DTDPROHIBITED},
      {"<!doctype a><a/>", "", WC_E_SYNTAX},
      {"<a><!DOCTYPE a></a>", "<a>", WC_E_SYNTAX},
  });
}

TEST(Parser, RefusesMalformedDocuments) {
  ExpectAll({
      {"", "", WC_E_ROOTELEMENT},
      {" <!-- nothing -->\n", "W( )!( nothing )W(\\n)", WC_E_ROOTELEMENT},
      {"xml", "", WC_E_SYNTAX},
      {"<a/>text", "<a/>", WC_E_SYNTAX},
      {"<a/> text", "<a/>W( )", WC_E_SYNTAX},
      {"<a/>&amp;", "<a/>", WC_E_SYNTAX},
      {"<a/><b/>", "<a/>", WC_E_ROOTELEMENT},
      {"<a></a></a>", "<a></a>", NC_E_QNAMECHARACTER},
      {"<a>text", "<a>T(text)", MX_E_INPUTEND},
      {"<a>\n", "<a>W(\\n)", MX_E_INPUTEND},
      {"<a><b>", "<a><b>", MX_E_INPUTEND},
      {"<a b='", "", MX_E_INPUTEND},
      {"<", "", MX_E_INPUTEND},
      {"<!", "", MX_E_INPUTEND},
      {"<!DOCTYP", "", MX_E_INPUTEND},
  });
}

TEST(Parser, JudgesTheDeclaration) {
  ExpectAll({
      {"<?xml version=\"1.0\"encoding=\"UTF-8\"?><a/>", "", WC_E_XMLDECL},
      {"<?xml version=\"1.0\"standalone=\"yes\"?><a/>", "", WC_E_XMLDECL},
      {"<?xml?><a/>", "", WC_E_XMLDECL},
      {"<?xml encoding='UTF-8'?><a/>", "", WC_E_XMLDECL},
      {"<?xml version='2.0'?><a/>", "", WC_E_XMLDECL},
      {"<?xml version='1.'?><a/>", "", WC_E_XMLDECL},
      {"<?xml version='1.-'?><a/>", "", WC_E_XMLDECL},
      {"<?xml version='1.0' encoding='_'?><a/>", "", WC_E_XMLDECL},
      {"<?xml version='1.0' standalone='maybe'?><a/>", "", WC_E_XMLDECL},
      {"<?xml version='1.0' standalone='yes' encoding='UTF-8'?><a/>", "", WC_E_XMLDECL},
      {"<?xml version='1.0'><a/>", "", WC_E_XMLDECL},
      {" <?xml version='1.0'?><a/>", "W( )", WC_E_TEXTXMLDECL},
      {"<a><?xml version='1.0'?></a>", "<a>", WC_E_TEXTXMLDECL},
      {"<?xml version='1.0' encoding='windows-1252'?><a/>", "", MX_E_ENCODING},
      {"<?xml version='1.0' encoding='UTF-16'?><a/>", "", MX_E_ENCODINGSWITCH},
  });
}

TEST(Parser, KeepsTheRulesOfNamespaces) {
  ExpectAll({
      {"<r:a xmlns='d' xmlns:r='n'><b r:c='1' c='2'/><r:d/></r:a>",
       "<r:a xmlns='d' xmlns:r='n'><b r:c='1' c='2'/><r:d/></r:a>"},
      {"<a xml:lang='en' xmlns:xml='http://www.w3.org/XML/1998/namespace'/>",
       "<a xml:lang='en' xmlns:xml='http://www.w3.org/XML/1998/namespace'/>"},
      {"<a xmlns='n'><b xmlns=''/></a>", "<a xmlns='n'><b xmlns=''/></a>"},
      {"<a:b/>", "", NC_E_UNDECLAREDPREFIX},
      {"<a b:c=''/>", "", NC_E_UNDECLAREDPREFIX},
      {"<a><b xmlns:p='u'><p:c/></b><b xmlns:p='u'/><p:c/></a>",
       "<a><b xmlns:p='u'><p:c/></b><b xmlns:p='u'/>", NC_E_UNDECLAREDPREFIX},
      {"<:a/>", "", NC_E_QNAMECHARACTER},
      {"<a:/>", "", NC_E_QNAMECHARACTER},
      {"<:b:c />", "", NC_E_QNAMECHARACTER},
      {"<a:b:c />", "", NC_E_QNAMECOLON},
      {"<a xmlns:p='u' xmlns:q='&#x75;' p:x='1' q:x='2'/>", "", WC_E_UNIQUEATTRIBUTE},
      {"<a xmlns:p='u' p:x='1' x='2'/>", "<a xmlns:p='u' p:x='1' x='2'/>"},
      {"<a xmlns:p='u' xmlns:p='v'/>", "", WC_E_UNIQUEATTRIBUTE},
      {"<a xmlns:p=''/>", "", NC_E_EMPTYURI},
      {"<a xmlns:xml='u'/>", "", NC_E_XMLPREFIXRESERVED},
      {"<a xmlns:xmlns='u'/>", "", NC_E_XMLNSPREFIXRESERVED},
      {"<xmlns:a/>", "", NC_E_XMLNSPREFIXRESERVED},
      {"<a xmlns:p='http://www.w3.org/XML/1998/namespace'/>", "", NC_E_XMLURIRESERVED},
      {"<a xmlns='http://www.w3.org/2000/xmlns/'/>", "", NC_E_XMLNSURIRESERVED},
  });
  // The parts of a name, in end tags as well.
  ExpectOutcome("<p:a xmlns:p='u'><b><pq:c xmlns:pq='v'></pq:c></b></p:a>",
                {"<p:a xmlns:p='u'><b><pq:c xmlns:pq='v'></pq:c></b></p:a>"});
  // A prefix that is bound anew, and is what it was afterwards.
  ExpectOutcome("<a xmlns:p='u' xmlns:q='v'><b xmlns:p='v'><c p:x='' q:x=''/></b></a>",
                {"<a xmlns:p='u' xmlns:q='v'><b xmlns:p='v'>", WC_E_UNIQUEATTRIBUTE});
  ExpectOutcome("<a xmlns:p='u' xmlns:q='v'><b xmlns:p='v'/><c p:x='' q:x=''/></a>",
                {"<a xmlns:p='u' xmlns:q='v'><b xmlns:p='v'/><c p:x='' q:x=''/></a>"});
}

TEST(Parser, RefusesWhatIsNoCharacter) {
  using namespace std::string_view_literals;
  ExpectAll({
      {"<a>\x01</a>", "<a>", WC_E_XMLCHARACTER},
      {"<a>good\x0Btext</a>", "<a>", WC_E_XMLCHARACTER},
      {"<a b='\x1F'/>", "", WC_E_XMLCHARACTER},
      {"<a\0/>"sv, "", WC_E_XMLCHARACTER},
      {"<a>\0</a>"sv, "<a>", WC_E_XMLCHARACTER},
      {"<a>\xC0\x80</a>", "<a>", WC_E_XMLCHARACTER},  // overlong
      {"<a>\xE0\x9F\xBF</a>", "<a>", WC_E_XMLCHARACTER},
      {"<a>\xF0\x8F\xBF\xBF</a>", "<a>", WC_E_XMLCHARACTER},
      {"<a>\xED\xA0\x80</a>", "<a>", WC_E_XMLCHARACTER},      // a surrogate
      {"<a>\xF4\x90\x80\x80</a>", "<a>", WC_E_XMLCHARACTER},  // beyond U+10FFFF
      {"<a>\xE2\x82</a>", "<a>", WC_E_XMLCHARACTER},          // cut short
      {"<a>\x80</a>", "<a>", WC_E_XMLCHARACTER},              // starts nothing
      {"<a>\xEF\xBF\xBE</a>", "<a>", WC_E_XMLCHARACTER},      // U+FFFE
      {"<a>\xEF\xBF\xBD\xEE\x80\x80\x7F</a>", "<a>T(\xEF\xBF\xBD\xEE\x80\x80\x7F)</a>"},
      {"<!--\xFF--><a/>", "", WC_E_XMLCHARACTER},
      {"<a/><!-- \xE2\x82", "<a/>", WC_E_XMLCHARACTER},
      // Between nodes anything that is not markup offends by being there.
      {"<a/>\0"sv, "<a/>", WC_E_SYNTAX},
      {"<?xml version='1.0'?>\n\0"sv, "DW(\\n)", WC_E_SYNTAX},
      {"\xFF", "", WC_E_SYNTAX},
  });
}

TEST(Parser, ForgetsADocumentThatBrokeOff) {
  TextStream first("<a xmlns:p='u'><b><c x='");
  TextStream second("<p:b/>");
  Parser parser;
  parser.SetInput(&first, false);
  Steps steps;
  while (steps.Take() && parser.Read() == ReadResult::kNode) {
  }
  parser.SetInput(&second, false);
  EXPECT_EQ(parser.Read(), ReadResult::kFault);
  EXPECT_EQ(parser.fault(), NC_E_UNDECLAREDPREFIX);
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
  const Outcome expected{"<a b='\xC3\xA9\xF0\x9F\x98\x80'/>"};
  ExpectOutcome("\xEF\xBB\xBF<a b='\xC3\xA9\xF0\x9F\x98\x80'/>", expected);
  for (const bool big : {false, true}) {
    ExpectOutcome(Utf16(u"\uFEFF<a b='\u00E9\U0001F600'/>", big), expected);
    ExpectOutcome(Utf16(u"<a b='\u00E9\U0001F600'/>", big), expected);
    ExpectOutcome(Utf16(u"<?xml version='1.0' encoding='UTF-16'?><a/>", big), {"D<a/>"});
    ExpectOutcome(Utf16(u"<?xml version='1.0' encoding='UTF-8'?><a/>", big),
                  {"", MX_E_ENCODINGSWITCH});
    // Half a pair, the halves in the wrong order, half a unit.
    ExpectOutcome(Utf16(u"<a>", big) + Utf16(u"\xD83D", big) + Utf16(u"</a>", big),
                  {"<a>", WC_E_XMLCHARACTER});
    ExpectOutcome(Utf16(u"<a>", big) + Utf16(u"\xDE00\xD83D", big) + Utf16(u"</a>", big),
                  {"<a>", WC_E_XMLCHARACTER});
    ExpectOutcome(Utf16(u"<a><!---->", big) + Utf16(u"\xD83D", big), {"<a>!()", WC_E_XMLCHARACTER});
    ExpectOutcome(Utf16(u"<a/><!--", big) + "x", {"<a/>", WC_E_XMLCHARACTER});
  }
  // A processing instruction says nothing of the encoding.
  ExpectOutcome("<?xml-style encoding='ISO-8859-1'?><a b='\xC3\xA9'/>",
                {"?(xml-style:encoding='ISO-8859-1')<a b='\xC3\xA9'/>"});
  const std::string latin = "<?xml version='1.0' encoding='iso-8859-1'?><a b='\xE9'/>";
  ExpectOutcome(latin, {"D<a b='\xC3\xA9'/>"});
  const std::string ascii = "<?xml version=\"1.0\" encoding=\"US-ASCII\"?><a b='e'/>";
  ExpectOutcome(ascii, {"D<a b='e'/>"});
  ExpectOutcome("<?xml version='1.0' encoding='US-ASCII'?><a b='\xE9'/>", {"D", WC_E_XMLCHARACTER});
  ExpectOutcome("\xEF\xBB\xBF" + latin, {"", MX_E_ENCODINGSWITCH});
  ExpectOutcome("\xEF\xBB\xBF" + ascii, {"", MX_E_ENCODINGSWITCH});
}

TEST(Parser, IgnoresTheDeclaredEncodingOfConvertedText) {
  const std::string text = "<?xml version='1.0' encoding='UTF-16'?><a b='\xC3\xA9'/>";
  ExpectOutcome(text, {"D<a b='\xC3\xA9'/>"}, true);
  ExpectOutcome("<?xml version='1.0' encoding='ISO-8859-1'?><a b='\xC3\xA9'/>",
                {"D<a b='\xC3\xA9'/>"}, true);
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
  ExpectOutcome(nest(256), {nest(256)});
  ExpectOutcome(nest(257), {Repeat("<a>", 256), SC_E_MAXELEMENTDEPTH});
  ExpectOutcome(Repeat("<a>", 255) + Repeat("<a>x</a>", 300),
                {Repeat("<a>", 255) + Repeat("<a>T(x)</a>", 300), MX_E_INPUTEND});
}

TEST(Parser, EndsOnEveryPrefixOfADocument) {
  const std::string_view document =
      "<?xml version='1.0' encoding='UTF-8'?>\n<!-- c --><r:a xmlns:r='u' b='&lt;&#x41;'>"
      "text\r\n &amp; <![CDATA[ ]] ]]><?p d?><b c=\"\xC3\xA9\"/>\xE2\x82\xAC</r:a><!-- e -->\n";
  TextStream whole(document);
  const Outcome all = Parse(whole);
  EXPECT_EQ(all.fault, S_OK);
  for (std::size_t size = 0; size < document.size(); ++size) {
    for (const std::size_t block : {std::size_t{1}, document.size()}) {
      TextStream stream(document.substr(0, size), block);
      const Outcome outcome = Parse(stream);
      // A text may have been cut; all other nodes are those of the whole document.
      const std::size_t last = outcome.nodes.rfind("T(");
      const std::size_t same = std::min(last, outcome.nodes.size());
      EXPECT_EQ(outcome.nodes.substr(0, same), all.nodes.substr(0, same)) << size;
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
  const auto count_nodes = [](StackStream& stream) {
    Parser parser;
    parser.SetInput(&stream, false);
    std::size_t nodes = 0;
    ReadResult result = ReadResult::kNode;
    Steps steps;
    while (steps.Take() && (result = parser.Read()) == ReadResult::kNode) ++nodes;
    EXPECT_EQ(result, ReadResult::kEnd);
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
      TextStream stream(document, block);
      EXPECT_EQ(count_nodes(stream), 1U);
    }
  }
  const std::string twins = attributes + " b0=''/>";
  TextStream stream(twins);
  EXPECT_EQ(Parse(stream).fault, WC_E_UNIQUEATTRIBUTE);

  constexpr std::size_t kPieces = std::size_t{1} << 20;
  for (const char* const piece : {"\r", "]", "&lt;", " ", "&#0000000000000000000000065;"}) {
    for (const auto& [head, tail] : {std::pair{"<a>x", "</a>"}, std::pair{"<a>", "</a>"}}) {
      RepeatingStream text(head, piece, kPieces, tail);
      EXPECT_EQ(count_nodes(text), 3U) << piece;
    }
    RepeatingStream value("<a b='", piece, kPieces, "'/>");
    EXPECT_EQ(count_nodes(value), 1U) << piece;
  }
  RepeatingStream name("<", "n", kPieces, "/>");
  EXPECT_EQ(count_nodes(name), 1U);
  RepeatingStream comment("<!--", "- ", kPieces, "--><a/>");
  EXPECT_EQ(count_nodes(comment), 2U);
  RepeatingStream blanks("<?xml version='1.0'", " ", kPieces, "?><a/>");
  EXPECT_EQ(count_nodes(blanks), 2U);
}

TEST(Parser, ReadsAValueOf64MiB) {
  constexpr std::size_t kSize = std::size_t{64} << 20;
  RepeatingStream stream("<a b='", std::string(4096, 'v'), kSize / 4096, "'/>");
  Parser parser;
  parser.SetInput(&stream, false);
  ASSERT_EQ(parser.Read(), ReadResult::kNode);
  ASSERT_EQ(parser.attributes().size(), 1U);
  EXPECT_EQ(parser.attributes()[0].value.size(), kSize);
  EXPECT_EQ(parser.Read(), ReadResult::kEnd);
}

#if !defined(_WIN32)

// ---- memory ------------------------------------------------------------------------------------

const std::string kElement =
    "  <rule action='BLOCK' name='Stick &amp; disk' id='12'>\n    <c>some text &lt;here&gt;</c>\n"
    "    <!-- a comment --><p:e xmlns:p='u' p:x='1'/>\n  </rule>\n";

TEST(Parser, DoesNotAllocateOnceItIsWarm) {
  RepeatingStream stream("<a>\n", kElement, 4000, "</a>");
  Parser parser;
  parser.SetInput(&stream, false);
  // More than two blocks.
  for (int i = 0; i < 10'000; ++i) ASSERT_EQ(parser.Read(), ReadResult::kNode);
  const AllocationCount before = CountAllocations();
  Steps steps;
  while (steps.Take() && parser.Read() == ReadResult::kNode) {
  }
  EXPECT_EQ(CountAllocations().calls, before.calls);
}

TEST(Parser, NeedsMemoryForABlockAndTheCurrentNode) {
  constexpr std::size_t kBound = std::size_t{512} * 1024;
  const auto peak = [](StackStream& stream) {
    const AllocationCount before = CountAllocations();
    ResetPeak();
    Parser parser;
    parser.SetInput(&stream, false);
    Steps steps;
    while (steps.Take() && parser.Read() == ReadResult::kNode) {
    }
    return CountAllocations().peak_bytes - before.bytes;
  };
  RepeatingStream small("<a>\n", kElement, 100, "</a>");
  RepeatingStream large("<a>\n", kElement, 400'000, "</a>");
  EXPECT_LT(peak(small), kBound);
  EXPECT_LT(peak(large), kBound);

  // Names go with the elements in which they are declared.
  std::string names = "<a>";
  for (int i = 0; i < 20'000; ++i) {
    const std::string n = std::to_string(i);
    names += "<p" + n + ":b xmlns:p" + n + "='uri-" + n + "'/>";
  }
  names += "</a>";
  TextStream many(names);
  EXPECT_LT(peak(many), kBound);

  // A large node's memory is released after it.
  std::string huge = "<x b='" + std::string(std::size_t{8} << 20, 'v') + "'/><x xmlns:p='u'";
  for (int i = 0; i < 30'000; ++i) huge += " p:a" + std::to_string(i) + "=''";
  huge += "/>";
  RepeatingStream stream("<a>" + huge, kElement, 200'000, "</a>");
  Parser parser;
  parser.SetInput(&stream, false);
  const AllocationCount before = CountAllocations();
  for (int i = 0; i < 2'000'000; ++i) ASSERT_EQ(parser.Read(), ReadResult::kNode);
  EXPECT_LT(CountAllocations().bytes - before.bytes, kBound);
}

#endif

}  // namespace
}  // namespace tolva::test
