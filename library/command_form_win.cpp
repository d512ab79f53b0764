#include "library/command_form_win.h"

#include "library/clsLibrary_win.h"

namespace library {

void raiseOutOfMemory(std::string_view caption) {
  throw windowing::RuntimeError(windowing::ErrorNumber::outOfMemory,
                                "Out of memory. \"" + LIBRARY().GETCAPTION(std::string(caption)) +
                                    "\" could not be carried out.");
}

}  // namespace library
