// What a form's status bar says about the command under the pointer, and when that ends.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "library/command_form_win.h"
#include "windowing/toolbar_win.h"

namespace library {

/// What a toolbar button's hints are made from; both empty for a button without any.
struct ButtonHint {
  std::string_view key;
  std::string_view caption;
};

/// Descriptions of one form's menu items and of the buttons of its `TBARMAIN`. They are shown as
/// long as the pointer is on what they describe; the timer `TMR1` finds out when it has left.
class CommandHints {
 public:
  static constexpr UINT_PTR TMR1 = 1;

  /// `noun` is what a document is called in the descriptions.
  CommandHints(CommandForm& form, std::string noun) : form_(form), noun_(std::move(noun)) {}

  /// A menu item was highlighted; 0 for none.
  void item(int number);
  /// A command of the system menu was highlighted, by its SC_ code.
  void systemItem(std::uint32_t code);
  /// The pointer came to the button with this key.
  void button(const std::string& key);
  /// A notice of the toolbar or its tooltip; `hint` gives what belongs to a command.
  void notify(NMHDR& header, const std::function<ButtonHint(int command)>& hint);
  /// The form's timer: ends a description once the pointer has left the toolbar.
  void onTimer(UINT_PTR timer);
  /// Empties the status bar while it still shows the description, and stops the timer.
  void end();

 private:
  [[nodiscard]] windowing::StatusBar bar() const;
  void remember();

  CommandForm& form_;
  std::string noun_;
  std::string shown_;
};

}  // namespace library
