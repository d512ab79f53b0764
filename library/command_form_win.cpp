#include "library/command_form_win.h"

#include "controls/menu_text.h"

namespace library {

void raiseNoMemoryFor(std::string_view caption) {
  values::raiseOutOfMemory("'" + controls::spokenText(caption) + "' could not be completed.");
}

}  // namespace library
