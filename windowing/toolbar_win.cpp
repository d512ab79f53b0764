#include "windowing/toolbar_win.h"

#include "windowing/screen_win.h"

namespace windowing {
namespace {

// Room round a picture, pixels at 96 dots per inch.
constexpr int buttonPadding = 7;

void addButton(const ToolBar& bar, const TBBUTTON& button) {
  bar.send(TB_ADDBUTTONSA, 1, reinterpret_cast<LPARAM>(&button));
}

}  // namespace

void ToolBar::setImages(const ImageList& images) const {
  send(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
  send(TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_DOUBLEBUFFER);
  send(TB_SETBITMAPSIZE, 0, MAKELPARAM(images.size(), images.size()));
  send(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images.enabled()));
  send(TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(images.disabled()));
  const int side = images.size() + scaled(buttonPadding);
  send(TB_SETBUTTONSIZE, 0, MAKELPARAM(side, side));
}

void ToolBar::add(int command, int image) const {
  TBBUTTON button{};
  button.iBitmap = image;
  button.idCommand = command;
  button.fsState = TBSTATE_ENABLED;
  button.fsStyle = BTNS_BUTTON;
  addButton(*this, button);
}

void ToolBar::addSeparator() const {
  TBBUTTON button{};
  button.fsStyle = BTNS_SEP;
  addButton(*this, button);
}

void ToolBar::setButtonEnabled(int command, bool on) const {
  if (buttonEnabled(command) == on) return;
  send(TB_ENABLEBUTTON, static_cast<WPARAM>(command), MAKELPARAM(on ? TRUE : FALSE, 0));
}

bool ToolBar::buttonEnabled(int command) const {
  return send(TB_ISBUTTONENABLED, static_cast<WPARAM>(command)) > 0;
}

int ToolBar::naturalWidth() const {
  RECT last{};
  const LRESULT count = send(TB_BUTTONCOUNT);
  if (count == 0) return 0;
  send(TB_GETITEMRECT, static_cast<WPARAM>(count - 1), reinterpret_cast<LPARAM>(&last));
  return last.right;
}

int ToolBar::naturalHeight() const {
  RECT first{};
  send(TB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&first));
  return first.bottom;
}

}  // namespace windowing
