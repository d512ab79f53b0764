#include "library/command_form_win.h"

#include <commctrl.h>

#include <utility>

#include "controls/menu_text.h"
#include "library/clsLibrary_win.h"
#include "library/resource_ids.h"
#include "library/stored_settings_win.h"
#include "values/runtime_error.h"

namespace library {
namespace {

constexpr windowing::ImageStrip imageStrips[] = {
    {16, IDB_TOOLBAR16}, {20, IDB_TOOLBAR20}, {24, IDB_TOOLBAR24}, {32, IDB_TOOLBAR32}};

// First number for separator lines. The menus need numbers for them; nothing else uses these.
constexpr int firstLine = 101;

constexpr char documentNoun[] = "tellary";  // what the descriptions call a document
constexpr UINT timerInterval = 100;         // milliseconds

constexpr LPARAM wasDown = 1 << 30;  // of a key message: the key was down before

KeyUser userOfKeys(HWND focus) {
  if (windowing::isClass(focus, "ComboBox")) return list;
  if (!windowing::isClass(focus, "Edit")) return nobody;
  return windowing::isMultilineBox(focus) ? linesBox : lineBox;
}

std::string menuCaption(const Command& command) {
  std::string text(command.caption);
  const std::string shortcut = shortcutText(command.shortcut);
  return shortcut.empty() ? text : text + '\t' + shortcut;
}

// A tooltip is the command's caption without access key and dots.
std::string tooltipText(std::string_view caption) {
  std::string text(caption);
  std::erase(text, '&');
  while (text.ends_with('.')) text.pop_back();
  return text;
}

}  // namespace

CommandForm::CommandForm(const windowing::FormDesign& design, const CommandDesign& commands)
    : Form(design), commands_(commands), IMGLST(imageStrips) {
  ICOMNU.onHighlight = [this](int number) { describeItem(number); };
  ICOMNU.onSystemHighlight = [this](std::uint32_t code) {
    LIBRARY().describeSystemCommand(*this, code);
    described_ = SBMAIN().panel();
  };
}

const Command* CommandForm::findCommand(int number) const {
  return library::findCommand(commands(), number);
}

windowing::ToolBar CommandForm::TBARMAIN() const {
  return windowing::ToolBar(control("TBARMAIN").handle());
}

windowing::StatusBar CommandForm::SBMAIN() const {
  return windowing::StatusBar(control("SBMAIN").handle());
}

void CommandForm::ICONMENUS() {
  // Removing the menu bar changes the form's size. It is not laid out again until the bar is back.
  const bool wasReady = std::exchange(ready_, false);
  // While the window has the bar, Windows draws the bar again for each item that is added.
  SetMenu(handle(), nullptr);
  ICOMNU.clear();
  int nextLine = firstLine;
  for (const Command& command : commands()) {
    if (command.parent == noMenu) continue;
    LIBRARY().MENUCREATE(*this, *this, menuCaption(command), std::string(command.picture),
                         command.parent, true, false,
                         command.number == line ? nextLine++ : command.number);
  }
  SetMenu(handle(), ICOMNU.bar());
  ready_ = wasReady;
}

void CommandForm::buildToolbar() {
  const windowing::ToolBar bar = TBARMAIN();
  bar.setImages(IMGLST);
  for (const Command& command : commands()) {
    if (command.button == ToolButton::none) continue;
    if (command.button == ToolButton::afterGap) bar.addSeparator();
    bar.add(command.number, imageIndex(command.picture));
  }
  RECT strip{};
  GetClientRect(GetParent(bar.handle()), &strip);
  const int left = bar.pixels().left;
  const int height = bar.naturalHeight();
  bar.placePixels(
      {left, (strip.bottom - height) / 2, left + bar.naturalWidth(), (strip.bottom + height) / 2});
}

void CommandForm::run(int number, bool byButton) {
  const Command* command = findCommand(number);
  if (command == nullptr || !commandEnabled(number)) return;
  try {
    carryOut(number, byButton);
  } catch (const std::exception& error) {
    if (!values::isOutOfMemory(error)) throw;
    values::raiseOutOfMemory("'" + controls::spokenText(command->caption) +
                             "' could not be completed.");
  }
}

// A key that the control with the focus uses itself runs no command.
bool CommandForm::handleKey(const MSG& message) {
  if (message.message != WM_KEYDOWN || GetKeyState(VK_SHIFT) < 0) return false;
  const Shortcut pressed{static_cast<Key>(message.wParam),
                         GetKeyState(VK_CONTROL) < 0 ? Held::control : Held::nothing};
  const KeyDesign key = designOf(pressed.key);
  for (const Command& command : commands()) {
    if (command.shortcut != pressed || pressed.key == Key::none) continue;
    if ((key.users & userOfKeys(message.hwnd)) != 0) return false;
    if (key.repeats || (message.lParam & wasDown) == 0) runCommand(command.number);
    return true;
  }
  return false;
}

void CommandForm::enableCommands(
    const std::function<std::optional<bool>(int number)>& availability) {
  for (const Command& command : commands()) {
    const std::optional<bool> available = availability(command.number);
    if (available) setCommandEnabled(command.number, *available);
  }
}

void CommandForm::setCommandEnabled(int number, bool enabled) {
  const Command* command = findCommand(number);
  if (command == nullptr) return;
  if (command->parent != noMenu) ICOMNU.setEnabled(number, enabled);
  if (command->button != ToolButton::none) TBARMAIN().setButtonEnabled(number, enabled);
}

bool CommandForm::commandEnabled(int number) const {
  const Command* command = findCommand(number);
  if (command == nullptr) return false;
  return command->parent != noMenu ? ICOMNU.isEnabled(number) : TBARMAIN().buttonEnabled(number);
}

void CommandForm::showBar(const Command& command, bool shown) {
  setCommandChecked(command.number, shown);
  control(command.bar.control).setVisible(shown);
}

void CommandForm::toggleBar(int number) {
  const Command& command = *findCommand(number);
  const bool shown = !commandChecked(number);
  // The focus must not stay on a hidden control: no key would reach a visible one.
  if (!shown && IsChild(control(command.bar.control).handle(), GetFocus()))
    control(commands_.body).focus();
  showBar(command, shown);
  viewChanged();
}

void CommandForm::applyView() {
  for (const Command& command : commands())
    if (command.bar.control != 0) showBar(command, readTruth(command.bar.setting));
}

void CommandForm::storeView() const {
  for (const Command& command : commands())
    if (command.bar.control != 0) writeTruth(command.bar.setting, commandChecked(command.number));
}

void CommandForm::onSize() {
  if (ready_) arrange();
}

// Shows the description of a highlighted menu item, until another one is highlighted.
void CommandForm::describeItem(int number) {
  endDescription();
  if (number == 0) return;
  LIBRARY().STATUSTEXTDESC(*this, *this, number, false, documentNoun);
  described_ = SBMAIN().panel();
}

void CommandForm::describeButton(const Command& command) {
  LIBRARY().GETTBARDESCRIPTIONS(*this, std::string(command.picture), documentNoun);
  described_ = SBMAIN().panel();
  SetTimer(handle(), TMR1, timerInterval, nullptr);
}

// Clears the description, unless the status bar shows another text by now.
void CommandForm::endDescription() {
  KillTimer(handle(), TMR1);
  if (!described_.empty() && SBMAIN().panel() == described_)
    LIBRARY().STATUSBARCAPTION(*this, "", false);
  described_.clear();
}

LRESULT CommandForm::onNotify(NMHDR& header) {
  if (header.code == TBN_HOTITEMCHANGE) {
    const auto& hot = reinterpret_cast<const NMTBHOTITEM&>(header);
    const Command* command = findCommand(hot.idNew);
    if (command != nullptr && (hot.dwFlags & HICF_LEAVING) == 0) describeButton(*command);
  } else if (header.code == TTN_GETDISPINFOA) {
    auto& tip = reinterpret_cast<NMTTDISPINFOA&>(header);
    const Command* command = findCommand(static_cast<int>(header.idFrom));
    if (command != nullptr)
      lstrcpynA(tip.szText, tooltipText(command->caption).c_str(), sizeof tip.szText);
  }
  return 0;
}

void CommandForm::onTimer(UINT_PTR timer) {
  if (timer != TMR1) return;
  // Deliberately not the fixed rectangle of the maker's other products (1, 533, 44, 65), which is
  // right for one theme at one resolution only.
  const HWND toolbar = TBARMAIN().handle();
  RECT area{};
  GetClientRect(toolbar, &area);
  MapWindowPoints(toolbar, handle(), reinterpret_cast<POINT*>(&area), 2);
  if (!LIBRARY().MOUSEMOVE(*this, area.left, area.right, area.top, area.bottom)) endDescription();
}

LRESULT CommandForm::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT answer = 0;
  if (ICOMNU.handleMessage(handle(), message, wParam, lParam, answer)) return answer;
  switch (message) {
    case WM_QUERYENDSESSION:
      // The only question when Windows shuts down. "No" discards nothing until the session has
      // really ended.
      return onQueryUnload() ? TRUE : FALSE;
    case WM_ENDSESSION:
      if (wParam != FALSE) onUnload();
      return 0;
    case WM_DESTROY:
      endDescription();
      ready_ = false;
      break;
    default:
      break;
  }
  return Form::handleMessage(message, wParam, lParam);
}

}  // namespace library
