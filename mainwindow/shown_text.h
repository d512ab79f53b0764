// Comparing the text that a box was given with the text that it has.
#pragma once

#include <string_view>

namespace mainwindow {

/// Whether a box that was filled with `text`, and now has the text `back`, has taken all that a box
/// can hold. A box ends a text at the first NUL and may drop control characters. In a code page
/// with `multipleBytes`, it may replace bytes that are no character there. False where the box has
/// refused the text or cut it off.
[[nodiscard]] bool shownWhole(std::string_view text, std::string_view back, bool multipleBytes);

}  // namespace mainwindow
