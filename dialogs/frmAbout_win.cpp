#include "dialogs/frmAbout_win.h"

#include "controls/TXTSEP_win.h"
#include "dialogs/frmAbout_design_win.h"
#include "library/clsLibrary_win.h"
#include "library/maker_site.h"
#include "library/placement.h"
#include "library/resource_ids.h"
#include "values/handles_win.h"
#include "windowing/application_win.h"
#include "windowing/container_win.h"
#include "windowing/fonts_win.h"
#include "windowing/handle_text_win.h"
#include "windowing/screen_win.h"

namespace dialogs {

using library::LIBRARY;

namespace {

// Deliberate: two blanks after the first sentence.
constexpr char warning[] =
    "Warning: This computer program is protected by copyright law and international treaties.  "
    "Unauthorized reproduction or distribution of this program, or any portion of it, may result "
    "in severe civil and criminal penalties, and will be prosecuted to the maximum extent possible "
    "under law.";

/// The logo's picture by the resolution it is drawn for.
struct LogoPicture {
  int dpi;
  int resource;
};
constexpr LogoPicture logoPictures[] = {{96, IDB_LOGO96}, {144, IDB_LOGO144}, {192, IDB_LOGO192}};

// The smallest picture that is large enough; the largest where none is.
int logoResource() {
  for (const LogoPicture& picture : logoPictures)
    if (picture.dpi >= windowing::screenDpi()) return picture.resource;
  return IDB_LOGO192;
}

std::string upperCase(std::string text) {
  CharUpperBuffA(text.data(), static_cast<DWORD>(text.size()));
  return text;
}

void centreOnScreen(windowing::Form& form) {
  RECT place = form.outerPixels();
  const values::Pixels screenWide{GetSystemMetrics(SM_CXSCREEN)};
  const values::Pixels screenHigh{GetSystemMetrics(SM_CYSCREEN)};
  const int left = library::centred(screenWide, {place.right - place.left}).value;
  const int top = library::centred(screenHigh, {place.bottom - place.top}).value;
  OffsetRect(&place, left - place.left, top - place.top);
  form.moveOuter(place);
}

}  // namespace

frmAbout::frmAbout() : Form(about_design::form) {}

void frmAbout::onLoad() {
  windowing::setSurface(control(about_id::FRAMTITLE).handle(), windowing::Surface::window);
  control(about_id::LBLPROGRAMNAME).setFont(windowing::font("Times New Roman", 24, true));
  centreOnScreen(*this);
  setFirstFocus(control(about_id::BTNCLOSE));

  control(about_id::LBLPROGRAMNAME).setText(upperCase(windowing::productName()));
  control(about_id::LBLVERSNO).setText(LIBRARY().GETAPPNUMBER());
  control(about_id::LBLREGNAME).setText(LIBRARY().GETCOMPANYNAME());
  control(about_id::LBLREGCO).setText(LIBRARY().GETCOMPANYREG());
  control(about_id::LBLCOPYRIGHT).setText(windowing::legalCopyright());
  control(about_id::LBLWRITTEN).setText("Written and Developed by " + windowing::companyName());
  logoPointer_ = LoadCursorA(nullptr, IDC_HAND);
  control(about_id::IMGCURSOR)
      .send(STM_SETIMAGE, IMAGE_CURSOR, reinterpret_cast<LPARAM>(logoPointer_));
  control(about_id::LBLWARNING).setText(warning);
}

void frmAbout::onClick(int clicked) {
  if (clicked == about_id::BTNCLOSE) unload();
  if (clicked == about_id::IMGLOGO)
    LIBRARY().INTERNETACCESS(windowing::handleText(handle()), "", library::makerSite);
}

// The two lines below the title look like one edge: the upper one is dark, the lower one light.
HBRUSH frmAbout::onColour(HDC, int asked) {
  if (asked == about_id::LNTITLE1) return GetSysColorBrush(COLOR_BTNSHADOW);
  if (asked == about_id::LNTITLE2) return GetSysColorBrush(COLOR_BTNHIGHLIGHT);
  return nullptr;
}

void frmAbout::drawLogo(HDC dc, const RECT& area) const {
  const values::BitmapHandle picture(static_cast<HBITMAP>(
      LoadImageA(windowing::programInstance(), MAKEINTRESOURCEA(logoResource()), IMAGE_BITMAP, 0, 0,
                 LR_CREATEDIBSECTION)));
  BITMAP facts{};
  if (GetObjectA(picture.get(), sizeof facts, &facts) == 0) return;
  const values::MemoryDc memory(CreateCompatibleDC(dc));
  const values::Selected selected(memory.get(), picture.get());
  SetStretchBltMode(dc, HALFTONE);
  SetBrushOrgEx(dc, 0, 0, nullptr);
  StretchBlt(dc, area.left, area.top, area.right - area.left, area.bottom - area.top, memory.get(),
             0, 0, facts.bmWidth, facts.bmHeight, SRCCOPY);
}

LRESULT frmAbout::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
      if (item.CtlID == about_id::IMGLOGO) drawLogo(item.hDC, item.rcItem);
      return TRUE;
    }
    case WM_SETCURSOR:
      if (reinterpret_cast<HWND>(wParam) != control(about_id::IMGLOGO).handle()) break;
      SetCursor(logoPointer_);
      return TRUE;
    default:
      break;
  }
  return Form::handleMessage(message, wParam, lParam);
}

}  // namespace dialogs
