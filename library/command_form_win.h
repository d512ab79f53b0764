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
  int body;  ///< control that gets the focus when a bar that has it is hidden
};

/// Its controls include the toolbar TBARMAIN and the status bar SBMAIN.
class CommandForm : public windowing::Form {
 public:
  /// The timer that looks whether the pointer has left the button whose description is shown.
  static constexpr UINT_PTR TMR1 = 1;

  CommandForm(const windowing::FormDesign& design, const CommandDesign& commands);

  /// Builds the icon menus, again if they exist. Items keep whether they are enabled and checked.
  void ICONMENUS();
  /// Runs the command with this number. Does nothing where it is disabled or no command. Raises an
  /// error that the command does not report itself; "out of memory" then names the command.
  void runCommand(int number) { run(number, false); }

  [[nodiscard]] Commands commands() const { return commands_.commands; }
  [[nodiscard]] bool commandEnabled(int number) const;
  [[nodiscard]] bool commandChecked(int number) const { return ICOMNU.isChecked(number); }

  [[nodiscard]] controls::ICOMNU& iconMenus() { return ICOMNU; }
  [[nodiscard]] const windowing::ImageList& imageList() const { return IMGLST; }

  bool handleKey(const MSG& message) override;

 protected:
  /// Runs a command. `byButton`: it was chosen on the toolbar.
  virtual void carryOut(int number, bool byButton) = 0;
  /// Places the form's controls. Called only when the form is ready.
  virtual void arrange() {}
  /// Called when the user has shown or hidden a bar.
  virtual void viewChanged() { arrange(); }

  void setCommandEnabled(int number, bool enabled);
  void setCommandChecked(int number, bool checked) { ICOMNU.setChecked(number, checked); }
  /// Enables or disables every command. `availability` gives no value for a row that is no command.
  void enableCommands(const std::function<std::optional<bool>(int number)>& availability);
  void toggleBar(int number);

  // The steps of loading, in this order, and of storing.
  void buildToolbar();  ///< adds the buttons, centred in their strip
  void applyView();     ///< shows the bars that the settings say are shown
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
  std::string described_;  ///< the description that the status bar was given
  bool ready_ = false;
};

}  // namespace library
