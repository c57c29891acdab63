// The XML reader of the own layer: nodes, names and values, and attributes by name.
#include "platform/xml/reader.h"

#include <gtest/gtest.h>

#include <list>
#include <string>
#include <string_view>

#include "support/allocations.h"
#include "support/steps.h"
#include "support/streams.h"
#include "support/values.h"

namespace tolva::test {
namespace {

using platform::Name;

struct Row {
  Name name;
};
constexpr Row kRows[] = {{L"a"}, {L"b"}, {L"c"}, {L"ANameThatIsLongerThanOneVector"}};
const Names kNames(std::span<const Row>(kRows), &Row::name);

class Reader : public testing::Test {
 protected:
  TextStream& Open(std::string_view document) {
    TextStream& stream = streams_.emplace_back(document);
    EXPECT_EQ(reader_.SetInput(&stream), S_OK);
    return stream;
  }

  /// Reads on until the next node of a type.
  void MoveTo(XmlNodeType wanted) {
    XmlNodeType type = XmlNodeType_None;
    Steps steps;
    do {
      ASSERT_TRUE(steps.Take());
      ASSERT_EQ(reader_.Read(&type), S_OK);
    } while (type != wanted);
  }

  std::wstring LocalName() {
    XmlReader::Value name;
    EXPECT_EQ(reader_.GetLocalName(&name), S_OK);
    return Wide(name);
  }

  std::wstring Value() {
    XmlReader::Value value;
    EXPECT_EQ(reader_.GetValue(&value), S_OK);
    return Wide(value);
  }

  /// The attribute that has the name at this place of `kNames`.
  std::wstring Attribute(std::size_t index) {
    XmlReader::Value value;
    const HRESULT result = reader_.GetAttribute(index, &value);
    EXPECT_EQ(result, value.data() == nullptr ? S_FALSE : S_OK);
    return Wide(value);
  }

  std::list<TextStream> streams_;
  XmlReader reader_;
};

TEST_F(Reader, FindsAttributesByName) {
  Open(
      "<e><e xmlns='myns' ANameThatIsLongerThanOneVector='long' b='value b' xmlns:ns='ns uri' "
      "ns:a='value a' c='&lt;' ANameThatIsLongerThanOneVectorAndMore='x'/></e>");
  MoveTo(XmlNodeType_Element);
  reader_.FindAttributes(kNames);
  EXPECT_EQ(Attribute(1), kNoValue);
  MoveTo(XmlNodeType_Element);
  EXPECT_TRUE(reader_.IsEmptyElement());
  reader_.FindAttributes(kNames);
  for (int again = 0; again < 2; ++again) {
    EXPECT_EQ(Attribute(0), kNoValue);
    EXPECT_EQ(Attribute(1), L"value b");
    EXPECT_EQ(Attribute(2), L"<");
    EXPECT_EQ(Attribute(3), L"long");
  }
  MoveTo(XmlNodeType_EndElement);
  reader_.FindAttributes(kNames);
  EXPECT_EQ(Attribute(1), kNoValue);
}

TEST_F(Reader, GivesNamesAndValues) {
  Open(
      "<p:\xC3\xA9 xmlns:p='u' \xC3\xA9='\xF0\x9F\x98\x80'>a long run of text &amp; "
      "\xE2\x82\xAC<?target some\r\ndata?><![CDATA[a\rb]]><!-- c --> \r </p:\xC3\xA9>");
  MoveTo(XmlNodeType_Element);
  EXPECT_EQ(LocalName(), L"\u00E9");
  EXPECT_EQ(Value(), L"");
  MoveTo(XmlNodeType_Text);
  EXPECT_EQ(LocalName(), L"");
  EXPECT_EQ(Value(), L"a long run of text & \u20AC");
  MoveTo(XmlNodeType_ProcessingInstruction);
  EXPECT_EQ(LocalName(), L"target");
  EXPECT_EQ(Value(), L"some\ndata");
  MoveTo(XmlNodeType_CDATA);
  EXPECT_EQ(Value(), L"a\nb");
  MoveTo(XmlNodeType_Comment);
  EXPECT_EQ(Value(), L" c ");
  MoveTo(XmlNodeType_Whitespace);
  EXPECT_EQ(Value(), L" \n ");
  MoveTo(XmlNodeType_EndElement);
  EXPECT_EQ(LocalName(), L"\u00E9");
}

TEST_F(Reader, StartsAfreshOnANewInput) {
  const TextStream& first = Open("<a><b></c>");
  MoveTo(XmlNodeType_Element);
  MoveTo(XmlNodeType_Element);
  XmlNodeType type = XmlNodeType_None;
  EXPECT_EQ(reader_.Read(&type), WC_E_ELEMENTMATCH);
  EXPECT_EQ(type, XmlNodeType_None);
  EXPECT_EQ(LocalName(), L"");
  const TextStream& second = Open("<d/>");
  EXPECT_EQ(first.references, 1U);
  MoveTo(XmlNodeType_Element);
  EXPECT_EQ(LocalName(), L"d");
  EXPECT_EQ(reader_.Read(&type), S_FALSE);
  EXPECT_EQ(reader_.SetInput(nullptr), S_OK);
  EXPECT_EQ(second.references, 1U);
  EXPECT_TRUE(FAILED(reader_.Read(&type)));
}

#if !defined(_WIN32)
TEST_F(Reader, SurvivesARunOutOfMemory) {
  // A text and a start tag that are larger than a block, and values that have to be decoded.
  std::string document = "<a b='&amp;'>" + std::string(200'000, 'x') + "&lt;<t";
  for (int i = 0; i < 10'000; ++i) document += " a" + std::to_string(i) + "='&#65;'";
  document += "/></a>";
  for (std::size_t n = 0;; ++n) {
    TextStream stream(document, 1000);
    ASSERT_EQ(reader_.SetInput(&stream), S_OK);
    bool failed = false;
    try {
      const FailingAllocations failing(n, n % 2 == 1);
      XmlNodeType type = XmlNodeType_None;
      Steps steps;
      while (steps.Take() && reader_.Read(&type) == S_OK) {
        Value();
        reader_.FindAttributes(kNames);
        Attribute(1);
      }
    } catch (const std::bad_alloc&) {
      failed = true;
    }
    // Whatever the cursor was doing, it can be asked and started again.
    LocalName();
    Value();
    reader_.FindAttributes(kNames);
    Attribute(1);
    XmlNodeType type = XmlNodeType_None;
    Steps steps;
    while (steps.Take() && reader_.Read(&type) == S_OK) Value();
    ASSERT_EQ(reader_.SetInput(nullptr), S_OK);
    if (!failed) break;
    ASSERT_LT(n, 1000U);
  }
}

TEST_F(Reader, GivesMemoryBack) {
  const std::string value(std::size_t{8} << 20, 'v');
  std::string attributes = "<a";
  for (int i = 0; i < 100'000; ++i) attributes += " a" + std::to_string(i) + "=''";
  attributes += "/>";
  std::string declarations = "<a xmlns:p='u'";
  for (int i = 0; i < 100'000; ++i) {
    declarations += " xmlns:q" + std::to_string(i) + "='u' p:a" + std::to_string(i) + "=''";
  }
  declarations += "/>";
  const std::string documents[] = {"<a b='&amp;" + value + "'/>",
                                   "<a>&amp;" + value + "</a>",
                                   "<a xmlns:" + value + "='u'><b/></a>",
                                   "<a xmlns='" + value + "'/>",
                                   declarations,
                                   "<" + value + "></" + value + ">",
                                   attributes};
  const std::size_t held = CountAllocations().bytes;
  for (const std::string& document : documents) {
    TextStream stream(document);
    ASSERT_EQ(reader_.SetInput(&stream), S_OK);
    XmlNodeType type = XmlNodeType_None;
    Steps steps;
    while (steps.Take() && reader_.Read(&type) == S_OK) {
      Value();
      reader_.FindAttributes(kNames);
      Attribute(1);
    }
    ASSERT_EQ(reader_.SetInput(nullptr), S_OK);
    EXPECT_LT(CountAllocations().bytes - held, 4U * 256 * 1024) << document.substr(0, 10);
  }
}
#endif

}  // namespace
}  // namespace tolva::test
