// A form with commands: from their table it builds the icon menus, the toolbar and the shortcuts,
// enables and describes them, and shows and hides its bars.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "controls/ICOMNU_win.h"
#include "library/command.h"
#include "windowing/form_win.h"
#include "windowing/image_list_win.h"
#include "windowing/toolbar_win.h"

namespace library {

struct CommandDesign {
  Commands commands;
  int body;  ///< control that takes the focus when the bar that has it is hidden
};

/// Its controls include the toolbar TBARMAIN and the status bar SBMAIN.
class CommandForm : public windowing::Form {
 public:
  /// The timer that finds out when the pointer has left a button that is described.
  static constexpr UINT_PTR TMR1 = 1;

  CommandForm(const windowing::FormDesign& design, const CommandDesign& commands);

  /// Builds the icon menus; called again, it builds them anew. What was enabled and checked stays.
  void ICONMENUS();
  /// Runs the command with this number, if it is offered; any other does nothing. Raises what the
  /// command does not tell the user itself; out of memory names the command.
  void runCommand(int number) { run(number, false); }

  [[nodiscard]] Commands commands() const { return commands_.commands; }
  [[nodiscard]] bool commandEnabled(int number) const;
  [[nodiscard]] bool commandChecked(int number) const { return ICOMNU.isChecked(number); }

  [[nodiscard]] controls::ICOMNU& iconMenus() { return ICOMNU; }
  [[nodiscard]] const windowing::ImageList& imageList() const { return IMGLST; }

  bool handleKey(const MSG& message) override;

 protected:
  /// Does what a command is for. `byButton`: it was chosen on the toolbar.
  virtual void carryOut(int number, bool byButton) = 0;
  /// Places the form's parts; not called before it is ready.
  virtual void arrange() {}
  /// The user has shown or hidden a bar.
  virtual void viewChanged() { arrange(); }

  void setCommandEnabled(int number, bool enabled);
  void setCommandChecked(int number, bool checked) { ICOMNU.setChecked(number, checked); }
  /// Enables all commands anew. `availability` says nothing of what is no command, as a menu.
  void enableCommands(const std::function<std::optional<bool>(int number)>& availability);
  void toggleBar(int number);

  // Steps of loading, in this order, and of storing.
  void buildToolbar();  ///< the buttons stand in the middle of their strip
  void applyView();     ///< shows the bars that were shown when they were stored
  void becomeReady() { ready_ = true; }
  void storeView() const;

  /// Whether controls, menus and settings are in place.
  [[nodiscard]] bool ready() const { return ready_; }
  [[nodiscard]] windowing::ToolBar TBARMAIN() const;
  [[nodiscard]] windowing::StatusBar SBMAIN() const;

  void onCommand(int number) override { run(number, false); }
  void onToolButton(int number) override { run(number, true); }
  void onSize() override;
  void onTimer(UINT_PTR timer) override;
  LRESULT onNotify(NMHDR& header) override;
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  [[nodiscard]] const Command* findCommand(int number) const;
  void run(int number, bool byButton);
  void showBar(const Command& command, bool shown);
  void describeItem(int number);
  void describeButton(const Command& command);
  void endDescription();

  CommandDesign commands_;
  windowing::ImageList IMGLST;
  controls::ICOMNU ICOMNU;
  std::string described_;  ///< what the status bar says of the command under the pointer
  bool ready_ = false;
};

}  // namespace library
