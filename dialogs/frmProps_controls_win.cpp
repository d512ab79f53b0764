// The icon and the check boxes of the properties.
#include <windows.h>

#include <commctrl.h>

#include "dialogs/frmProps_design_win.h"
#include "dialogs/frmProps_win.h"
#include "library/resource_ids.h"
#include "values/handles_win.h"
#include "windowing/application_win.h"
#include "windowing/fonts_win.h"
#include "windowing/screen_win.h"

namespace dialogs {

namespace id = dialogs::props_id;

namespace {

constexpr int tickCount = 3;

}  // namespace

// Where the file has no icon, or there is no file, the icon of documents is shown.
void frmProps::showIcon(HICON icon) const {
  HANDLE shown = icon;
  if (shown == nullptr)
    shown = LoadImageA(windowing::programInstance(), MAKEINTRESOURCEA(IDI_DOCUMENT), IMAGE_ICON,
                       GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON), LR_SHARED);
  control(id::PICICON).send(STM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(shown));
}

// Draws the label of a check box. It is black beside a disabled one too, so that it can be read.
// When the check box has the focus, the focus mark is drawn round the label.
void frmProps::drawTickLabel(const DRAWITEMSTRUCT& item) const {
  const auto behind = reinterpret_cast<HBRUSH>(
      SendMessageA(GetParent(item.hwndItem), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(item.hDC),
                   reinterpret_cast<LPARAM>(item.hwndItem)));
  FillRect(item.hDC, &item.rcItem, behind);
  const windowing::Control label(item.hwndItem);
  const std::string text = label.text();
  const values::Selected font(item.hDC, windowing::formFont());
  RECT area = item.rcItem;
  InflateRect(&area, -windowing::scaled(2), -windowing::scaled(1));
  constexpr UINT format = DT_SINGLELINE | DT_NOPREFIX;
  DrawTextA(item.hDC, text.c_str(), -1, &area, format | DT_VCENTER);

  const windowing::Control box = control(label.id() - id::LBLREAD + id::CHKATTR);
  const bool hidden = (SendMessageA(handle(), WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS) != 0;
  if (!box.focused() || hidden) return;
  RECT mark = area;
  DrawTextA(item.hDC, text.c_str(), -1, &mark, format | DT_CALCRECT);
  OffsetRect(&mark, 0, (area.bottom - mark.bottom) / 2);
  InflateRect(&mark, windowing::scaled(1), windowing::scaled(1));
  DrawFocusRect(item.hDC, &mark);
}

LRESULT frmProps::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DRAWITEM) {
    const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
    const auto label = static_cast<int>(item.CtlID);
    if (label >= id::LBLREAD && label < id::LBLREAD + tickCount) drawTickLabel(item);
    return TRUE;
  }
  if (message == WM_COMMAND && lParam != 0) {
    switch (wParam) {
      case MAKEWPARAM(id::CHKATTR, BN_SETFOCUS):
      case MAKEWPARAM(id::CHKATTR, BN_KILLFOCUS):
        control(id::LBLREAD).repaint();
        return 0;
      case MAKEWPARAM(id::LBLREAD, STN_CLICKED):
      case MAKEWPARAM(id::LBLREAD, STN_DBLCLK):
      case MAKEWPARAM(id::CHKATTR, BN_DOUBLECLICKED):
        if (!IsWindowEnabled(handle())) return 0;
        // A click on the label counts as a click on its check box.
        if (CHKATTR(0).enabled()) CHKATTR(0).focus();
        changeReadOnly();
        return 0;
      default:
        break;
    }
  }
  return Form::handleMessage(message, wParam, lParam);
}

}  // namespace dialogs
