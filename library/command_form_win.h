// A form with icon menus: it owns an ICOMNU and an image list besides its controls.
#pragma once

#include <string_view>

#include "values/runtime_error.h"
#include "windowing/form_win.h"
#include "windowing/image_list_win.h"

namespace controls {
class ICOMNU;
}

namespace library {

class CommandForm : public windowing::Form {
 public:
  using windowing::Form::Form;
  /// The form's icon menus and image list; each raises when the form has none.
  [[nodiscard]] virtual controls::ICOMNU& iconMenus() { raiseMissing("ICOMNU"); }
  [[nodiscard]] virtual const windowing::ImageList& imageList() const { raiseMissing("IMGLST"); }

 private:
  [[noreturn]] void raiseMissing(const char* what) const {
    throw values::RuntimeError(values::ErrorNumber::objectMissing,
                               std::string(name()) + " has no " + what);
  }
};

/// Raises that there was too little memory for the command with this caption.
[[noreturn]] void raiseNoMemoryFor(std::string_view caption);

/// Runs what a command does. Out of memory is raised with the command's name; other errors as they
/// are.
template <typename Step>
void attempt(std::string_view caption, Step step) {
  try {
    step();
  } catch (const std::exception& error) {
    if (!values::isOutOfMemory(error)) throw;
    raiseNoMemoryFor(caption);
  }
}

}  // namespace library
