#include <algorithm>
#include <iterator>
#include <string>

#include "demo.h"

namespace demo {
namespace {

// ---- analysis details --------------------------------------------------------------------------

bool ShowAnalysisDetails(const Folders& folders) {
  using namespace CpsAnalysisDetailsConf;
  const auto print = [](IanalysisDetails& root) {
    Iviolations* violations = nullptr;
    if (root.GetViolations(&violations) != 0) return;
    for (DWORD i = 0; i < violations->GetViolationCount(); ++i) {
      Iviolation& violation = *violations->GetViolationAt(i);
      std::cout << "  " << ToUtf8(violation.GetName()->GetContent()) << ": "
                << violation.GetNumOfMatches()->GetContent() << " matches\n";
      IdetectedValues& values = *violation.GetDetectedValues();
      for (DWORD k = 0; k < values.GetDetectedValueCount(); ++k) {
        std::cout << "    " << ToUtf8(values.GetDetectedValueAt(k)->GetValue()->GetContent())
                  << "\n";
      }
    }
  };
  const auto change = [](IanalysisDetails& root) {
    Iviolations* violations = nullptr;
    if (root.GetViolations(&violations) != 0) return false;
    const std::wstring severity = L"Medium, <\"reviewed\">";
    const auto leaf = support::MakeNode(&severity_CreateNewInstance);
    leaf->SetContent(&severity);
    violations->RemoveViolationAt(2);
    return violations->GetViolationAt(1)->SetSeverity(leaf.get()) == 0;
  };
  return ShowDocument<IanalysisDetails>(folders, "Analysis details", print, change);
}

// ---- message catalogue -------------------------------------------------------------------------

void PrintCatalogue(MessageConf::IEndPointMessage& catalogue, const std::string& indentation) {
  std::wstring language = L"no language";
  catalogue.GetLanguage(&language);
  std::cout << indentation << ToUtf8(language) << ": " << catalogue.GetMessageCount()
            << " messages\n";
  for (DWORD i = 0; i < catalogue.GetEndpointLocalMsgCount(); ++i) {
    MessageConf::IEndpointLocalMsg& local = *catalogue.GetEndpointLocalMsgAt(i);
    for (DWORD k = 0; k < local.GetEndPointMessageCount(); ++k) {
      PrintCatalogue(*local.GetEndPointMessageAt(k), indentation + "  ");
    }
  }
}

bool ShowMessageCatalogue(const Folders& folders) {
  using namespace MessageConf;
  const auto print = [](IEndPointMessage& root) { PrintCatalogue(root, "  "); };
  const auto change = [](IEndPointMessage& root) {
    const std::wstring text = L"Prüfung beendet.";
    const DWORD id = 1003;
    const auto message = support::MakeNode(&Message_CreateNewInstance);
    message->SetID(&id);
    message->GetContent()->SetContent(&text);
    message->SetDescription(root.GetMessageAt(2)->GetDescription());
    return root.GetEndpointLocalMsgAt(0)->GetEndPointMessageAt(0)->AddMessage(message.get()) == 0;
  };
  return ShowDocument<IEndPointMessage>(folders, "Message catalogue", print, change);
}

// ---- installation ------------------------------------------------------------------------------

bool ShowInstallConfig(const Folders& folders) {
  using namespace IpbtConf;
  const auto print = [](IInstallConfig& root) {
    DWORD discovery = 0;
    root.GetFeature()->GetDiscoveryEnable(&discovery);
    std::wstring directory = L"the usual directory";
    root.GetInstallSetting()->GetInstallDirectory(&directory);
    std::cout << "  into " << ToUtf8(directory) << (discovery == 0 ? ", without" : ", with")
              << " discovery\n";
  };
  const auto change = [](IInstallConfig& root) {
    const DWORD on = 1;
    root.GetInstallSetting()->SetInstallDirectory(nullptr);
    return root.GetFeature()->SetDiscoveryEnable(&on) == 0;
  };
  return ShowDocument<IInstallConfig>(folders, "Installation", print, change);
}

// ---- patch history -----------------------------------------------------------------------------

bool ShowPatchHistory(const Folders& folders) {
  using namespace PatchFileHistory;
  const auto print = [](IEndpointFilePatches& root) {
    for (DWORD i = 0; i < root.GetPatchFileInfoCount(); ++i) {
      IPatchFileInfo& patch = *root.GetPatchFileInfoAt(i);
      std::cout << "  " << ToUtf8(patch.GetUpdateDate()) << " " << ToUtf8(patch.GetName()) << ": "
                << patch.GetModuleListingArray()->GetWSModuleCount() << " modules\n";
    }
  };
  const auto change = [](IEndpointFilePatches& root) {
    const std::wstring version = L"24.3.1125";
    const std::wstring date = L"2024-11-02";
    root.SetLastAppliedPatchVersion(&version);
    root.SetUpdateDate(&date);
    root.AddPatchFileInfo(root.GetPatchFileInfoAt(2));
    IPatchFileInfo& added = *root.GetPatchFileInfoAt(3);
    return added.SetPatchVersion(&version) == 0 && added.SetUpdateDate(&date) == 0;
  };
  return ShowDocument<IEndpointFilePatches>(folders, "Patch history", print, change);
}

}  // namespace

bool ShowRecords(const Folders& folders) {
  const bool all[] = {ShowAnalysisDetails(folders), ShowMessageCatalogue(folders),
                      ShowInstallConfig(folders), ShowPatchHistory(folders)};
  return std::all_of(std::begin(all), std::end(all), [](bool shown) { return shown; });
}

}  // namespace demo
