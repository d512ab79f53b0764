#include <gtest/gtest.h>

#include <windows.h>

#include <commdlg.h>

#include "library/centred_dialog_win.h"
#include "library/clsLibrary_win.h"
#include "tests/support/dialog_driver_win.h"
#include "tests/support/plain_form_win.h"
#include "tests/support/scratch_folder_win.h"
#include "tests/support/scratch_registry_win.h"
#include "windowing/application_win.h"
#include "windowing/screen_win.h"
#include "windowing/seams_win.h"

namespace library {
namespace {

using test_support::DialogDriver;
using test_support::PlainForm;

bool isCentred(const RECT& place) {
  return std::abs((place.left + place.right - GetSystemMetrics(SM_CXSCREEN)) / 2) <= 1 &&
         std::abs((place.top + place.bottom - GetSystemMetrics(SM_CYSCREEN)) / 2) <= 1;
}

class PlacementTest : public testing::Test {
 protected:
  PlacementTest() { form.load(); }
  [[nodiscard]] std::string stored(Setting setting) const {
    return registry.stored(setting, "frmPlain");
  }
  static void expectPlace(const PlainForm& form, const RECT& place) {
    const RECT now = form.outerPixels();
    EXPECT_TRUE(EqualRect(&now, &place)) << now.left << "," << now.top;
  }
  test_support::ScratchRegistry registry;
  PlainForm form;
};

TEST_F(PlacementTest, FormsComeBackWhereTheyWereWithoutDrifting) {
  const RECT place{37, 53, 537, 403};
  form.moveOuter(place);
  for (int round = 0; round < 10; ++round) {
    LIBRARY().FORMSAVE("frmPlain", form, true);
    form.unload();
    form.load();
    LIBRARY().FORMLOAD("frmPlain", form, true);
    expectPlace(form, place);
  }
  EXPECT_EQ(stored(Setting::windowState), "0");
  if (windowing::screenDpi() == values::designDpi) {
    EXPECT_EQ(stored(Setting::windowLeft), "555");
    EXPECT_EQ(stored(Setting::windowHeight), "5250");
  }
}

TEST_F(PlacementTest, MaximisedFormsReopenMaximisedAndRestoreToTheStoredPlace) {
  const RECT place{50, 70, 450, 370};
  form.moveOuter(place);
  LIBRARY().FORMSAVE("frmPlain", form, true);
  form.show();
  ShowWindow(form.handle(), SW_MAXIMIZE);
  LIBRARY().FORMSAVE("frmPlain", form, true);
  form.unload();
  EXPECT_EQ(stored(Setting::windowState), "2");
  form.load();
  LIBRARY().FORMLOAD("frmPlain", form, true);
  EXPECT_FALSE(IsWindowVisible(form.handle()));
  form.show();
  EXPECT_TRUE(IsZoomed(form.handle()));
  ShowWindow(form.handle(), SW_RESTORE);
  expectPlace(form, place);
}

TEST_F(PlacementTest, MinimisedFormsStoreNothingAndNeverOpenMinimised) {
  registry.store(Setting::windowState, "1", "frmPlain");
  LIBRARY().FORMLOAD("frmPlain", form, true);
  form.show();
  EXPECT_FALSE(IsIconic(form.handle()));
  ShowWindow(form.handle(), SW_MINIMIZE);
  LIBRARY().FORMSAVE("frmPlain", form, true);
  EXPECT_EQ(stored(Setting::windowLeft) + stored(Setting::windowState), "(none)1");
}

// A dialog that opens near the screen's corner unless something moves it.
struct CornerDialog {
  DLGTEMPLATE design{WS_POPUP | WS_CAPTION | WS_VISIBLE | DS_ABSALIGN, 0, 0, 5, 5, 120, 60};
  WORD menu = 0, windowClass = 0, title = 0;
};
INT_PTR CALLBACK answerCornerDialog(HWND window, UINT message, WPARAM wParam, LPARAM) {
  if (message == WM_COMMAND) EndDialog(window, LOWORD(wParam));
  return message == WM_INITDIALOG ? TRUE : FALSE;
}
void openCornerDialog(bool unicode) {
  const auto open = unicode ? DialogBoxIndirectParamW : DialogBoxIndirectParamA;
  const CornerDialog dialog;
  open(windowing::programInstance(), &dialog.design, nullptr, answerCornerDialog, 0);
}

TEST(CentringHook, ServesTheNextDialogOnlyAndKeepsItsKind) {
  for (const bool unicode : {false, true}) {
    DialogDriver driver(IDOK);
    openCornerDialog(unicode);
    {
      const CentredDialog centred;
      openCornerDialog(unicode);
      openCornerDialog(unicode);
    }
    openCornerDialog(unicode);
    ASSERT_EQ(driver.seen().size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
      EXPECT_EQ(isCentred(driver.seen()[i].place), i == 1) << i;
      EXPECT_EQ(driver.seen()[i].unicode, unicode) << i;
    }
  }
}

int faults = 0;
LONG CALLBACK countFault(EXCEPTION_POINTERS* exception) {
  if (exception->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION) ++faults;
  return EXCEPTION_CONTINUE_SEARCH;
}

// A fault inside the system goes unseen until it has used up what it leaks: the 60th dialog.
TEST(CentringHook, LeavesFileDialogsSoundHoweverManyAreCancelled) {
  faults = 0;
  void* counting = AddVectoredExceptionHandler(1, countFault);
  DialogDriver driver(IDCANCEL);
  const test_support::ScratchFolder scratch;
  windowing::FileDialog asked;
  asked.folder = scratch.path();
  asked.flags = OFN_EXPLORER | OFN_LONGNAMES | OFN_HIDEREADONLY;
  for (int i = 0; i < 70 && faults == 0; ++i) {
    const CentredDialog centred;
    asked.save = i % 2 != 0;
    EXPECT_FALSE(windowing::seams().fileDialog(nullptr, asked)) << i;
  }
  RemoveVectoredExceptionHandler(counting);
  EXPECT_EQ(faults, 0);
  ASSERT_EQ(driver.seen().size(), 70U);
  for (const test_support::SeenDialog& dialog : driver.seen()) EXPECT_TRUE(isCentred(dialog.place));
}

}  // namespace
}  // namespace library
