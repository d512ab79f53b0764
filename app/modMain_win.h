// The start-up routine.
#pragma once

namespace app {

/// Opens a document named on the command line, registers the document type, shows the main
/// window and runs the program until it is closed. Errors before the window shows are ignored,
/// step by step. Returns the process's exit code.
int Main();

}  // namespace app
