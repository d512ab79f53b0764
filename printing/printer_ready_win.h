// Whether there is a printer for the commands that print. Both functions tell the user when there
// is none.
#pragma once

namespace printing {

/// Whether any printer is installed.
[[nodiscard]] bool printerInstalled();

/// Whether the current printer answers. Without this question, printing on one that was removed
/// would end without a message.
[[nodiscard]] bool printerReady();

}  // namespace printing
