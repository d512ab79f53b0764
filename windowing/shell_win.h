// Preparing a thread to call the Windows shell.
#pragma once

namespace windowing {

/// Starts COM in the calling thread, at the first call only. The shell's extensions are COM
/// objects; without COM its functions still answer, but some of them not completely.
void prepareShell();

}  // namespace windowing
