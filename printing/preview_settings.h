// Where the preview's settings are kept: the maker's products share them.
#pragma once

namespace printing {

constexpr char previewSection[] = "\\GLOBAL\\frmPPrev\\Items";
constexpr char zoomValue[] = "Zoom";
constexpr char toolbarValue[] = "Toolbar";
constexpr char statusBarValue[] = "Status Bar";

/// The section that the window's place is kept in.
constexpr char previewPlaceName[] = "GLOBAL";

}  // namespace printing
