#include "dialogs/frmAbout_win.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dialogs/frmAbout_ids.h"
#include "tests/support/scratch_registry_win.h"
#include "windowing/seams_win.h"

namespace dialogs {
namespace {

using library::Setting;

class AboutBox : public testing::Test {
 protected:
  void TearDown() override { form_.unload(); }
  [[nodiscard]] std::string text(int control) const { return form_.control(control).text(); }

  test_support::ScratchRegistry registry_;
  frmAbout form_;
};

TEST_F(AboutBox, NamesTheOwnersWithoutAccessKeys) {
  form_.load();
  EXPECT_EQ(text(about_id::LBLREGNAME) + text(about_id::LBLREGCO), "");
  form_.unload();
  registry_.store(Setting::registeredOwner, "Mill & Sons");
  registry_.store(Setting::registeredOrganization, "A && B");
  form_.load();
  EXPECT_EQ(text(about_id::LBLREGNAME), "Mill & Sons");
  EXPECT_EQ(text(about_id::LBLREGCO), "A && B");
  for (const int control : {about_id::LBLREGNAME, about_id::LBLREGCO})
    EXPECT_TRUE(GetWindowLongA(form_.control(control).handle(), GWL_STYLE) & SS_NOPREFIX);
}

TEST_F(AboutBox, LogoOpensTheMakersSite) {
  form_.load();
  std::vector<std::string> opened;
  const windowing::Replaced open(
      windowing::seams().shellOpen,
      [&](HWND owner, const std::string& verb, const std::string& file, const std::string&) {
        EXPECT_EQ(owner, form_.handle());
        opened.push_back(verb + " " + file);
      });
  const auto pointerOver = [this](int control) {
    const HWND window = form_.control(control).handle();
    SetCursor(LoadCursorA(nullptr, IDC_ARROW));
    SendMessageA(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    return GetCursor();
  };
  EXPECT_EQ(pointerOver(about_id::IMGLOGO), LoadCursorA(nullptr, IDC_HAND));
  EXPECT_EQ(pointerOver(about_id::FRAMTITLE), LoadCursorA(nullptr, IDC_ARROW));
  const HWND logo = form_.control(about_id::IMGLOGO).handle();
  for (const bool takesInput : {true, false}) {
    EnableWindow(form_.handle(), takesInput);
    SendMessageA(logo, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageA(logo, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  }
  EXPECT_EQ(opened, std::vector<std::string>{"Open http://www.zandor.example/"});
}

TEST_F(AboutBox, OpensInTheMiddleAndClosesByButtonEnterAndEscape) {
  const struct {
    UINT message;
    WPARAM key;
  } ways[] = {{BM_CLICK, 0}, {WM_KEYDOWN, VK_RETURN}, {WM_KEYDOWN, VK_ESCAPE}};
  for (const auto& [message, key] : ways) {
    form_.load();
    RECT place = form_.outerPixels();
    EXPECT_NEAR(place.left + place.right, GetSystemMetrics(SM_CXSCREEN), 1);
    EXPECT_NEAR(place.top + place.bottom, GetSystemMetrics(SM_CYSCREEN), 1);
    OffsetRect(&place, 40, 40);
    form_.moveOuter(place);
    // Without an answer the box would stay for good.
    PostMessageA(form_.control(about_id::BTNCLOSE).handle(), message, key, 0);
    form_.showModal();
    EXPECT_FALSE(form_.loaded());
  }
}

}  // namespace
}  // namespace dialogs
