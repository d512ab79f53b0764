// Whether the commands that print have a printer to work with. The user is told when not.
#pragma once

namespace printing {

/// Whether any printer is installed.
[[nodiscard]] bool printerInstalled();

/// Whether there is a current printer that answers: one that was taken away, or whose driver is
/// gone, would end printing without a word.
[[nodiscard]] bool printerReady();

}  // namespace printing
