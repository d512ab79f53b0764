// What the Windows shell asks of a thread that calls it.
#pragma once

namespace windowing {

/// Readies the calling thread for functions of the shell, whose extensions are COM objects; once,
/// when the first of them is called. Without COM they still answer, but not all of them fully.
void prepareShell();

}  // namespace windowing
