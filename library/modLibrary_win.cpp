#include "library/modLibrary_win.h"

namespace library {

ProgramVariables& modLibrary() {
  static ProgramVariables variables;
  return variables;
}

clsLibrary& LIBRARY() {
  static clsLibrary library;
  return library;
}

}  // namespace library
