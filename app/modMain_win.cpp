#include "app/modMain_win.h"

#include <exception>

#include "app/modAssociate_win.h"
#include "app/startup_path_win.h"
#include "library/modLibrary_win.h"
#include "mainwindow/frmMain_win.h"
#include "values/runtime_error.h"
#include "windowing/application_win.h"
#include "windowing/window_win.h"

namespace app {
using values::ignoringErrors;

int Main() {
  static mainwindow::frmMain form;
  const std::string requested = windowing::commandLineTail();
  if (!requested.empty()) ignoringErrors([&] { form.openNamedAtStart(documentPathOf(requested)); });
  ignoringErrors([] { Associate("tly", windowing::productName() + " Document", "2"); });
  try {
    form.show();
  } catch (const std::exception& error) {
    windowing::reportError(error);
    if (!IsWindowVisible(form.handle())) return 1;
  }
  return windowing::runMessageLoop(form);
}

}  // namespace app
