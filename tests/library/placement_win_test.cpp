#include <gtest/gtest.h>

#include <windows.h>

#include "library/centred_dialog_win.h"
#include "library/clsLibrary_win.h"
#include "tests/support/dialog_driver_win.h"
#include "tests/support/plain_form_win.h"
#include "tests/support/scratch_registry_win.h"
#include "windowing/application_win.h"
#include "windowing/runtime_error.h"
#include "windowing/screen_win.h"
#include "windowing/units.h"

namespace library {
namespace {

using test_support::DialogDriver;
using test_support::PlainForm;
using test_support::ScratchRegistry;
using windowing::screenPixels;

std::string windowKeyOf(const std::string& form) {
  return "SOFTWARE\\" + windowing::companyName() + "\\" + windowing::productName() + "\\" + form +
         "\\Window";
}

POINT middle(const RECT& place) {
  return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}
POINT screenMiddle() {
  return {GetSystemMetrics(SM_CXSCREEN) / 2, GetSystemMetrics(SM_CYSCREEN) / 2};
}

class PlacementTest : public testing::Test {
 protected:
  void store(const std::string& name, const std::string& text) const {
    ScratchRegistry::putText(registry.user(), windowKeyOf("frmPlain"), name, text);
  }
  [[nodiscard]] std::string stored(const std::string& name) const {
    return ScratchRegistry::text(registry.user(), windowKeyOf("frmPlain"), name);
  }
  ScratchRegistry registry;
};

TEST_F(PlacementTest, FormsComeBackWhereTheyWereWithoutDrifting) {
  const RECT place{37, 53, 537, 403};
  for (int round = 0; round < 10; ++round) {
    PlainForm form;
    form.load();
    if (round == 0)
      form.moveOuter(place);
    else
      LIBRARY().FORMLOAD("frmPlain", form, true);
    const RECT now = form.outerPixels();
    ASSERT_TRUE(EqualRect(&now, &place)) << "round " << round << ": " << now.left << "," << now.top;
    LIBRARY().FORMSAVE("frmPlain", form, true);
  }
  EXPECT_EQ(stored("Window State"), "0");
  if (windowing::screenDpi() == windowing::designDpi) {
    EXPECT_EQ(stored("Left"), "555");
    EXPECT_EQ(stored("Height"), "5250");
  }
}

TEST_F(PlacementTest, MaximisedFormsReopenMaximisedAndRestoreToTheStoredPlace) {
  const RECT place{50, 70, 450, 370};
  {
    PlainForm form;
    form.load();
    form.moveOuter(place);
    LIBRARY().FORMSAVE("frmPlain", form, true);
    form.show();
    ShowWindow(form.handle(), SW_MAXIMIZE);
    LIBRARY().FORMSAVE("frmPlain", form, true);
  }
  EXPECT_EQ(stored("Window State"), "2");
  PlainForm form;
  form.load();
  LIBRARY().FORMLOAD("frmPlain", form, true);
  EXPECT_FALSE(IsWindowVisible(form.handle()));
  EXPECT_EQ(form.windowState(), 2);
  form.show();
  EXPECT_TRUE(IsZoomed(form.handle()));
  ShowWindow(form.handle(), SW_RESTORE);
  const RECT restored = form.outerPixels();
  EXPECT_TRUE(EqualRect(&restored, &place)) << restored.left << "," << restored.top;
  EXPECT_EQ(form.windowState(), 0);
}

TEST_F(PlacementTest, WhatCannotBeReadRaisesAndLeavesTheDesign) {
  PlainForm form;
  form.load();
  const RECT design = form.outerPixels();
  store("Left", "0");
  store("Height", "0x10");
  EXPECT_THROW(LIBRARY().FORMLOAD("frmPlain", form, true), windowing::RuntimeError);
  const RECT now = form.outerPixels();
  EXPECT_TRUE(EqualRect(&now, &design));
  // Values of another type or too long count as missing.
  ScratchRegistry::put(registry.user(), windowKeyOf("frmPlain"), "Height", REG_DWORD, "1234");
  store("Left", std::string(10000, '9'));
  LIBRARY().FORMLOAD("frmPlain", form, true);
  EXPECT_NEAR(middle(form.outerPixels()).x, screenMiddle().x, 1);
}

TEST_F(PlacementTest, MinimisedFormsStoreNothingAndNeverOpenMinimised) {
  store("Window State", "1");
  PlainForm form;
  form.load();
  LIBRARY().FORMLOAD("frmPlain", form, true);
  form.show();
  EXPECT_FALSE(IsIconic(form.handle()));
  ShowWindow(form.handle(), SW_MINIMIZE);
  LIBRARY().FORMSAVE("frmPlain", form, true);
  EXPECT_EQ(stored("Left") + stored("Window State"), "(none)1");
}

TEST_F(PlacementTest, OneOfTheStandardButtonsMayBeMissing) {
  PlainForm form;
  form.load();
  LIBRARY().RESIZEBTNSOKCANCEL(form);
  EXPECT_EQ(form.control("BTNOK").pixels().top, screenPixels(165));
  EXPECT_NEAR(form.control("BTNOK").pixels().left, screenPixels(6000 - 135 - 1050 - 135 - 1050), 1);
  PlainForm okOnly("frmOk", std::span(test_support::plainFormControls).first(2));
  okOnly.load();
  LIBRARY().RESIZEBTNSOKCANCEL(okOnly);
  EXPECT_EQ(okOnly.control("BTNOK").pixels().left, screenPixels(30));
  EXPECT_THROW(LIBRARY().RESIZEBTNCLOSE(okOnly), windowing::RuntimeError);
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
void ansiDialog() {
  const CornerDialog dialog;
  DialogBoxIndirectParamA(windowing::programInstance(), &dialog.design, nullptr, answerCornerDialog,
                          0);
}
void unicodeDialog() {
  const CornerDialog dialog;
  DialogBoxIndirectParamW(windowing::programInstance(), &dialog.design, nullptr, answerCornerDialog,
                          0);
}

bool isCentred(const test_support::SeenDialog& dialog) {
  const POINT at = middle(dialog.place);
  return std::abs(at.x - screenMiddle().x) <= 1 && std::abs(at.y - screenMiddle().y) <= 1;
}

TEST(CentringHook, ServesTheNextDialogOnlyAndKeepsItsKind) {
  for (const auto open : {ansiDialog, unicodeDialog}) {
    DialogDriver driver(IDOK);
    open();
    {
      const CentredDialog centred;
      open();
      open();
    }
    open();
    ASSERT_EQ(driver.seen().size(), 4U);
    EXPECT_TRUE(isCentred(driver.seen()[1]));
    for (const std::size_t other : {0U, 2U, 3U}) {
      EXPECT_FALSE(isCentred(driver.seen()[other])) << other;
      EXPECT_EQ(driver.seen()[other].unicode, driver.seen()[1].unicode);
    }
    EXPECT_EQ(driver.seen()[1].unicode, open == unicodeDialog);
  }
}

TEST(CentringHook, MessageBoxOpensInTheMiddle) {
  DialogDriver driver(IDOK);
  const CentredDialog centred;
  LIBRARY().MESSAGEBOX(12, "", "", "", "");
  ASSERT_EQ(driver.seen().size(), 1U);
  EXPECT_TRUE(isCentred(driver.seen()[0]));
}

}  // namespace
}  // namespace library
