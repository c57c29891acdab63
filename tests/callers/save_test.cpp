// Files that are replaced by whole ones, or not at all.
#include <gtest/gtest.h>
#include <tolva/support.h>

#include <string>

#include "callers/folder.h"
#include "support/capabilities.h"

namespace tolva::support {
namespace {

namespace fs = std::filesystem;
using ClientConfig::IActiveDirectory;
using test::Folder;

TEST(Save, KeepsEveryDocument) {
  TOLVA_REQUIRE(WriterEscapes);
  const Folder folder;
  const fs::path file = folder.In(PathFromUtf8("Z\xC3\xBCrich-\xE6\x97\xA5\xE6\x9C\xAC.xml"));
  for (const DocumentKind* const kind : kDocuments) {
    const auto example = fs::path(TOLVA_DOCUMENTS) / (std::string(kind->name) + ".xml");
    const auto [root, loaded] = Load(*kind, example);
    ASSERT_TRUE(loaded) << loaded.message;
    const SaveReport saved = Save(*kind, *root, file);
    ASSERT_TRUE(saved) << kind->name << ": " << saved.message;
    EXPECT_EQ(saved.message, "");
    const auto [again, reloaded] = Load(*kind, file);
    ASSERT_TRUE(reloaded) << reloaded.message;
    EXPECT_EQ(folder.Count(), 1);
  }
}

/// An attribute that reads as present when it is absent is no difference.
TEST(Save, AcceptsWhatReadingSupplies) {
  const Folder folder;
  const fs::path file = folder.In("ci.xml");
  const auto root = MakeNode(&CIConfInterface::ICIClientConfiguration_CreateNewInstance);
  root->GetClientSetting()->SetEnableTelemetry(nullptr);
  const SaveReport report = Save(*root, file);
  EXPECT_TRUE(report) << report.message;
  EXPECT_EQ(test::TempFile::ReadFile(file).find("EnableTelemetry"), std::string::npos);
}

/// What cannot be written, or not be read back as it is, leaves the file as it was.
void ExpectRefused(const DocumentKind& kind, const node::INode& root, SaveOutcome outcome,
                   const std::string& words) {
  const Folder folder;
  const fs::path file = folder.In("document.xml");
  ASSERT_TRUE(SaveBytes("old", file));
  const SaveReport report = Save(kind, root, file);
  EXPECT_EQ(report.outcome, outcome) << report.message;
  EXPECT_NE(report.message.find(words), std::string::npos) << report.message;
  EXPECT_EQ(test::TempFile::ReadFile(file), "old");
  EXPECT_EQ(folder.Count(), 1);
}

TEST(Save, RefusesWhatWouldNotReadBack) {
  const DWORD negative = 0x80000000;
  const auto install = MakeNode(&IpbtConf::InstallConfig_CreateNewInstance);
  install->GetInstallSetting()->SetAutoReboot(&negative);
  ExpectRefused(kDocument<IpbtConf::IInstallConfig>, *install, SaveOutcome::kNotReadBack,
                "AutoReboot");
  ExpectRefused(kDocument<IActiveDirectory>, *install, SaveOutcome::kNotReadBack,
                "'InstallConfig'");

  const std::wstring text = L"x";
  const std::wstring empty;
  const auto message = MakeNode(&MessageConf::Message_CreateNewInstance);
  message->GetContent()->SetContent(&empty);  // reads back as absent
  message->GetDescription()->SetContent(&text);
  const auto catalogue = MakeNode(&MessageConf::EndPointMessage_CreateNewInstance);
  catalogue->AddMessage(message.get());
  ExpectRefused(kDocument<MessageConf::IEndPointMessage>, *catalogue, SaveOutcome::kNotReadBack,
                "'Content' changes");
}

TEST(Save, RefusesWhatHasNoWrittenForm) {
  const DocumentKind& kind = kDocument<PatchFileHistory::IEndpointFilePatches>;
  const std::wstring forbidden = L"a\x01";
  const std::wstring date = L"2024-11-02";
  const auto patches = MakeNode(&PatchFileHistory::EndpointFilePatches_CreateNewInstance);
  patches->SetUpdateDate(&forbidden);
  ExpectRefused(kind, *patches, SaveOutcome::kContentRefused, "attr:UpdateDate");
  patches->SetUpdateDate(&date);
  patches->SetRefId(&forbidden);  // optional
  // A writer that refuses the line feed after the root, as Wine's does, hides the code.
  TOLVA_REQUIRE(WriterEscapes);
  ExpectRefused(kind, *patches, SaveOutcome::kContentRefused, "does not allow");

  // Before the location that cannot be written, an element has been announced.
  using TolvaInterface::IILPClientConfiguration;
  const auto [policy, loaded] =
      Load<IILPClientConfiguration>(fs::path(TOLVA_DOCUMENTS) / "policy.xml");
  ASSERT_TRUE(loaded);
  policy->GetLocationArray()->GetLocationAt(1)->SetName(&forbidden);
  ExpectRefused(kDocument<IILPClientConfiguration>, *policy, SaveOutcome::kContentRefused,
                "element:Location, attr:Name");
}

TEST(SaveBytes, ReplacesWhatMayBeReplaced) {
  const Folder folder;
  const fs::path file = folder.In("file");
  const std::string large(3'000'000, 'x');
  for (const std::string& bytes : {std::string(), large, std::string("a\0b", 3)}) {
    const SaveReport report = SaveBytes(bytes, file);
    EXPECT_TRUE(report) << report.message;
    EXPECT_EQ(test::TempFile::ReadFile(file), bytes);
  }
  const auto refused = [&folder](const fs::path& path) {
    const std::ptrdiff_t count = folder.Count();
    const SaveReport report = SaveBytes("new", path);
    EXPECT_EQ(folder.Count(), count);
    EXPECT_TRUE(report.outcome != SaveOutcome::kTargetRefused || report.error != 0);
    return report.outcome == SaveOutcome::kTargetRefused ? report.message : "";
  };
  fs::create_directory(folder.In("sub"));
  EXPECT_EQ(refused(folder.In("sub")), "The file cannot be replaced: it is a directory.");
  EXPECT_EQ(refused(folder.In("sub/")), "The file cannot be replaced: it is a directory.");
  EXPECT_NE(refused(""), "");
  EXPECT_NE(refused(PathFromUtf8(std::string("a\0b", 3))), "");
  EXPECT_FALSE(SaveBytes("new", folder.In("none/file")));

  fs::create_hard_link(file, folder.In("other"));
  EXPECT_EQ(refused(file), "The file cannot be replaced: it has further hard links.");
  SaveOptions options;
  options.break_hard_links = true;
  EXPECT_TRUE(SaveBytes("new", file, options));
  EXPECT_EQ(test::TempFile::ReadFile(file), "new");
  EXPECT_EQ(folder.Content("other"), std::string("a\0b", 3));
}

}  // namespace
}  // namespace tolva::support
