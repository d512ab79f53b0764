// Header and footer of a page: their settings, and the place of each item. These are computed here
// from plain data; other code draws them on the printer or in the preview.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "library/path_utilities.h"
#include "library/settings.h"

namespace pagesetup {

using library::Setting;

/// The settings of header and footer are neighbours in the table of settings.
constexpr auto firstOption = static_cast<std::size_t>(Setting::header);
constexpr std::size_t optionCount =
    static_cast<std::size_t>(Setting::footerField2Text) - firstOption + 1;
[[nodiscard]] constexpr std::span<const library::SettingRow, optionCount> optionRows() {
  return std::span(library::settings).subspan<firstOption, optionCount>();
}
static_assert(std::ranges::all_of(library::settings, [](const library::SettingRow& row) {
  const auto at = static_cast<std::size_t>(row.setting);
  const std::string_view section = row.section;
  return (at >= firstOption && at < firstOption + optionCount) ==
         (section.ends_with("\\Header") || section.ends_with("\\Footer"));
}));

/// The texts that the defaults are made from.
struct DefaultTexts {
  std::string product;
  std::string owner;         ///< registered owner of Windows
  std::string documentName;  ///< name of the document's file; empty while it has none
};

/// Text of a setting for which nothing is stored; "1" for a check box.
[[nodiscard]] std::string defaultText(Setting option, const DefaultTexts& texts);

/// The settings as texts, by option.
class HeaderFooterOptions {
 public:
  [[nodiscard]] std::string& operator[](Setting option) {
    return values_[static_cast<std::size_t>(option) - firstOption];
  }
  [[nodiscard]] const std::string& operator[](Setting option) const {
    return values_[static_cast<std::size_t>(option) - firstOption];
  }
  /// Whether a check box is ticked: only the text "1" means that.
  [[nodiscard]] bool on(Setting option) const { return (*this)[option] == "1"; }

 private:
  std::array<std::string, optionCount> values_;
};

/// Margins in twips, in the order of the page routines' arguments. Deliberate: the print engine
/// passes left, top, right, bottom, so that `bottom` is the page's right margin and `right` its
/// bottom margin.
struct Margins {
  std::int16_t left = 0;
  std::int16_t top = 0;
  std::int16_t bottom = 0;
  std::int16_t right = 0;
};

enum class Surface { printer, preview };

/// The facts of a page that its header and footer depend on. Width and height are those of the
/// surface, twips.
struct Page {
  Surface surface = Surface::printer;
  std::int32_t width = 0;
  std::int32_t height = 0;
  Margins margins;
  std::string number;
  std::string date;
  std::string time;
};

/// A line from (x, y) to (toX, y), or a text with its top-left corner at (x, y). Twips from the
/// surface's top-left corner; they may have fractions and be negative.
struct DrawCommand {
  enum class Kind { line, text };
  Kind kind = Kind::line;
  double x = 0;
  double y = 0;
  double toX = 0;
  std::string text;
};

/// What to draw on a page, in order. Centred texts are placed by their number of characters;
/// `isLead` tells the bytes that begin a character of two bytes. Raises overflow where an offset
/// from a margin does not fit in 16 bits or a distance does not fit in 32.
[[nodiscard]] std::vector<DrawCommand> headerAndFooter(const HeaderFooterOptions& options,
                                                       const Page& page,
                                                       library::LeadByteTest isLead);

/// "DD/MM/YYYY" and "h:mm:ss" (24 hours, no leading zero on the hour), whatever the locale.
[[nodiscard]] std::string dateText(int year, int month, int day);
[[nodiscard]] std::string timeText(int hour, int minute, int second);

}  // namespace pagesetup
