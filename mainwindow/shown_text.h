// What a text box makes of a text.
#pragma once

#include <string_view>

namespace mainwindow {

/// Whether a box that was filled with `text` and gives `back` in return has taken all of it that a
/// box can carry. It ends a text at the first NUL, and may drop control characters; in a code page
/// of `multipleBytes` it may also put others in place of bytes that stand for nothing there. A
/// text that was refused or cut off is not whole.
[[nodiscard]] bool shownWhole(std::string_view text, std::string_view back, bool multipleBytes);

}  // namespace mainwindow
