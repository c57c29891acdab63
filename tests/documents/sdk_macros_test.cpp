// Some accessors share their names with macros of the Windows SDK: whoever includes it can call
// them all the same.
#if defined(_WIN32)
#include <gtest/gtest.h>
#include <tolva/policy/discovery.h>
#include <windows.h>
// (windows.h comes first)
#include <tolva/tolva.h>
#include <winspool.h>

#include <memory>
#include <string>

namespace tolva::test {
namespace {

using namespace TolvaInterface;

TEST(SdkMacros, DoNotHideAccessors) {
  const std::wstring text = L"x";
  std::wstring found;
  const std::unique_ptr<IFileFilter> filter(FileFilter_CreateNewInstance());
  filter->SetDriveType(&text);
  EXPECT_EQ(filter->GetDriveType(&found), 0);
  EXPECT_EQ(found, text);
  const std::unique_ptr<ILocalProxy> proxy(LocalProxy_CreateNewInstance());
  EXPECT_EQ(proxy->SetPort(&text), 0);
  EXPECT_EQ(proxy->GetPort(nullptr), 0);
  const std::unique_ptr<ITrustedPrinters> printers(TrustedPrinters_CreateNewInstance());
  const std::unique_ptr<IPrinter> printer(Printer_CreateNewInstance());
  EXPECT_EQ(printers->AddPrinter(printer.get()), 0);
  EXPECT_EQ(printers->GetPrinterCount(), 1U);
}

}  // namespace
}  // namespace tolva::test
#endif
