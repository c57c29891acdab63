// The reader behind XmlLite's interface: cursor, names and values as wide strings.
#include "platform/xml/reader.h"

#include <gtest/gtest.h>

#include <list>
#include <string>
#include <string_view>

#include "platform/com_ptr.h"
#include "platform/xml/xmllite.h"
#include "support/allocations.h"
#include "support/steps.h"
#include "support/streams.h"

namespace tolva::test {
namespace {

class Reader : public testing::Test {
 protected:
  void SetUp() override {
    void* made = nullptr;
    ASSERT_EQ(CreateXmlReader(kIidXmlReader, &made, nullptr), S_OK);
    reader_.Attach(static_cast<IXmlReader*>(made));
  }

  TextStream& Open(std::string_view document) {
    TextStream& stream = streams_.emplace_back(document);
    EXPECT_EQ(reader_->SetInput(&stream), S_OK);
    return stream;
  }

  /// Reads on until the next node of a type.
  void MoveTo(XmlNodeType wanted) {
    XmlNodeType type = XmlNodeType_None;
    Steps steps;
    do {
      ASSERT_TRUE(steps.Take());
      ASSERT_EQ(reader_->Read(&type), S_OK);
    } while (type != wanted);
  }

  std::wstring Name() {
    const wchar_t* name = nullptr;
    UINT length = 0;
    EXPECT_EQ(reader_->GetLocalName(&name, &length), S_OK);
    EXPECT_EQ(std::wstring(name).size(), length);
    return name;
  }

  std::wstring Value() {
    const wchar_t* value = nullptr;
    UINT length = 0;
    EXPECT_EQ(reader_->GetValue(&value, &length), S_OK);
    EXPECT_EQ(std::wstring(value).size(), length);
    return value;
  }

  std::list<TextStream> streams_;
  ComPtr<IXmlReader> reader_;
};

TEST_F(Reader, IsMadeForItsOwnInterfaceAlone) {
  void* made = nullptr;
  EXPECT_EQ(CreateXmlReader(kIidXmlWriter, &made, nullptr), E_NOINTERFACE);
  EXPECT_EQ(made, nullptr);
  EXPECT_EQ(reader_->SetProperty(XmlReaderProperty_DtdProcessing, DtdProcessing_Prohibit), S_OK);
  EXPECT_EQ(reader_->SetProperty(XmlReaderProperty_DtdProcessing, DtdProcessing_Parse), E_NOTIMPL);
  EXPECT_EQ(reader_->SetProperty(6, 0), E_NOTIMPL);
}

TEST_F(Reader, FindsAttributesInAnyOrder) {
  Open(
      "<a><elem xmlns='myns' a='value a' b='value b' xmlns:ns='ns uri' ns:c='value c' "
      "c='value c2'/></a>");
  EXPECT_EQ(reader_->MoveToAttributeByName(nullptr, nullptr), E_INVALIDARG);
  EXPECT_EQ(reader_->MoveToAttributeByName(L"", nullptr), S_FALSE);
  MoveTo(XmlNodeType_Element);
  EXPECT_EQ(reader_->MoveToAttributeByName(L"", nullptr), S_FALSE);
  MoveTo(XmlNodeType_Element);
  EXPECT_NE(reader_->IsEmptyElement(), FALSE);
  EXPECT_EQ(reader_->MoveToAttributeByName(L"xmlns", nullptr), S_FALSE);
  EXPECT_EQ(reader_->MoveToAttributeByName(L"ns", nullptr), S_FALSE);
  EXPECT_EQ(reader_->MoveToAttributeByName(L"A", nullptr), S_FALSE);
  EXPECT_EQ(Name(), L"elem");
  for (const auto& [name, value] : {std::pair{L"a", L"value a"},
                                    {L"b", L"value b"},
                                    {L"c", L"value c2"},
                                    {L"b", L"value b"},
                                    {L"a", L"value a"}}) {
    ASSERT_EQ(reader_->MoveToAttributeByName(name, L""), S_OK);
    EXPECT_EQ(Value(), value);
    EXPECT_EQ(Name(), name);
    EXPECT_EQ(reader_->IsDefault(), FALSE);
    EXPECT_EQ(reader_->IsEmptyElement(), FALSE);
  }
  // A failed search leaves the cursor where it was; reading on is possible from anywhere.
  EXPECT_EQ(reader_->MoveToAttributeByName(L"nothing", nullptr), S_FALSE);
  EXPECT_EQ(Value(), L"value a");
  MoveTo(XmlNodeType_EndElement);
  EXPECT_EQ(reader_->MoveToAttributeByName(L"a", nullptr), S_FALSE);
}

TEST_F(Reader, GivesNamesAndValues) {
  Open(
      "<p:\xC3\xA9 xmlns:p='u' \xC3\xA9='\xF0\x9F\x98\x80'>a long run of text &amp; "
      "\xE2\x82\xAC<?target some\r\ndata?><![CDATA[a\rb]]><!-- c --> \r </p:\xC3\xA9>");
  MoveTo(XmlNodeType_Element);
  EXPECT_EQ(Name(), L"\u00E9");
  EXPECT_EQ(Value(), L"");
  ASSERT_EQ(reader_->MoveToAttributeByName(L"\u00E9", nullptr), S_OK);
  EXPECT_EQ(Value(), L"\U0001F600");
  MoveTo(XmlNodeType_Text);
  EXPECT_EQ(Name(), L"");
  EXPECT_EQ(Value(), L"a long run of text & \u20AC");
  MoveTo(XmlNodeType_ProcessingInstruction);
  EXPECT_EQ(Name(), L"target");
  EXPECT_EQ(Value(), L"some\ndata");
  MoveTo(XmlNodeType_CDATA);
  EXPECT_EQ(Value(), L"a\nb");
  MoveTo(XmlNodeType_Comment);
  EXPECT_EQ(Value(), L" c ");
  MoveTo(XmlNodeType_Whitespace);
  EXPECT_EQ(Value(), L" \n ");
  MoveTo(XmlNodeType_EndElement);
  EXPECT_EQ(Name(), L"\u00E9");
}

TEST_F(Reader, StartsAfreshOnANewInput) {
  const TextStream& first = Open("<a><b></c>");
  MoveTo(XmlNodeType_Element);
  MoveTo(XmlNodeType_Element);
  XmlNodeType type = XmlNodeType_None;
  EXPECT_EQ(reader_->Read(&type), WC_E_ELEMENTMATCH);
  EXPECT_EQ(type, XmlNodeType_None);
  EXPECT_EQ(Name(), L"");
  const TextStream& second = Open("<d/>");
  EXPECT_EQ(first.references, 1U);
  MoveTo(XmlNodeType_Element);
  EXPECT_EQ(Name(), L"d");
  EXPECT_EQ(reader_->Read(&type), S_FALSE);
  EXPECT_EQ(reader_->SetInput(nullptr), S_OK);
  EXPECT_EQ(second.references, 1U);
  EXPECT_TRUE(FAILED(reader_->Read(&type)));
}

#if !defined(_WIN32)
TEST_F(Reader, SurvivesARunOutOfMemory) {
  // A text and a start tag that are larger than a block, and values that have to be decoded.
  std::string document = "<a b='&amp;'>" + std::string(200'000, 'x') + "&lt;<t";
  for (int i = 0; i < 10'000; ++i) document += " a" + std::to_string(i) + "='&#65;'";
  document += "/></a>";
  for (std::size_t n = 0;; ++n) {
    TextStream stream(document, 1000);
    ASSERT_EQ(reader_->SetInput(&stream), S_OK);
    bool failed = false;
    try {
      const FailingAllocations failing(n, n % 2 == 1);
      XmlNodeType type = XmlNodeType_None;
      Steps steps;
      while (steps.Take() && reader_->Read(&type) == S_OK) {
        Value();
        if (reader_->MoveToAttributeByName(L"b", nullptr) == S_OK) Value();
      }
    } catch (const std::bad_alloc&) {
      failed = true;
    }
    // Whatever the cursor was doing, it can be asked and started again.
    Name();
    Value();
    if (reader_->MoveToAttributeByName(L"a1", nullptr) == S_OK) {
      EXPECT_EQ(Value(), L"A");
    }
    XmlNodeType type = XmlNodeType_None;
    Steps steps;
    while (steps.Take() && reader_->Read(&type) == S_OK) Value();
    ASSERT_EQ(reader_->SetInput(nullptr), S_OK);
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
    ASSERT_EQ(reader_->SetInput(&stream), S_OK);
    XmlNodeType type = XmlNodeType_None;
    Steps steps;
    while (steps.Take() && reader_->Read(&type) == S_OK) {
      reader_->MoveToAttributeByName(L"b", nullptr);
      Value();
    }
    ASSERT_EQ(reader_->SetInput(nullptr), S_OK);
    EXPECT_LT(CountAllocations().bytes - held, 4U * 256 * 1024) << document.substr(0, 10);
  }
}
#endif

}  // namespace
}  // namespace tolva::test
