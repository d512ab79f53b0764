// The start-up routine.
#pragma once

namespace app {

/// Opens the document that the command line names, registers the document type, shows the main
/// window and runs the program until the window is closed. An error in one of the first two steps
/// is ignored. Returns the process's exit code.
int Main();

}  // namespace app
