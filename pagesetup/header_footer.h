// Header and footer of a page: which settings decide about them, and where each item stands.
// All of it is arithmetic over plain data; printer and preview draw what comes out.
#pragma once

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

/// The settings of header and footer stand together in the table of settings.
constexpr auto firstOption = static_cast<std::size_t>(Setting::header);
constexpr std::size_t optionCount =
    static_cast<std::size_t>(Setting::footerField2Text) - firstOption + 1;
[[nodiscard]] constexpr std::span<const library::SettingRow, optionCount> optionRows() {
  return std::span(library::settings).subspan<firstOption, optionCount>();
}

/// What the defaults are made of.
struct DefaultTexts {
  std::string product;
  std::string owner;         ///< registered owner of this Windows
  std::string documentName;  ///< its file's name; empty while it has no file
};

/// Text of a setting when nothing is stored: "1" for a switch.
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
  /// Whether a switch is on: only exactly "1" is.
  [[nodiscard]] bool on(Setting option) const { return (*this)[option] == "1"; }

 private:
  std::array<std::string, optionCount> values_;
};

/// Margins in twips, in the order in which the page routines take them. The print engine hands
/// over left, top, right, bottom, so that its right margin stands in `bottom` here and its
/// bottom margin in `right`. That crossing is deliberate.
struct Margins {
  std::int16_t left = 0;
  std::int16_t top = 0;
  std::int16_t bottom = 0;
  std::int16_t right = 0;
};

enum class Surface { printer, preview };

/// One page as its header and footer see it. Width and height are those of the surface, twips.
struct Page {
  Surface surface = Surface::printer;
  std::int32_t width = 0;
  std::int32_t height = 0;
  Margins margins;
  std::string number;
  std::string date;
  std::string time;
};

/// A line from (x, y) to (toX, y), or a text whose first line has its top at y. Fractional
/// twips from the surface's top-left corner; they may be negative.
struct DrawCommand {
  enum class Kind { line, text };
  Kind kind = Kind::line;
  double x = 0;
  double y = 0;
  double toX = 0;
  std::string text;
};

/// What to draw on a page, in order. Centred texts are placed by their number of characters, for
/// which `isLead` tells bytes that begin a character of two. Raises overflow where an offset from a
/// margin leaves 16 bits or a distance leaves 32.
[[nodiscard]] std::vector<DrawCommand> headerAndFooter(const HeaderFooterOptions& options,
                                                       const Page& page,
                                                       library::LeadByteTest isLead);

/// "DD/MM/YYYY" and "h:mm:ss" (24 hours, no leading zero on the hour), whatever the locale.
[[nodiscard]] std::string dateText(int year, int month, int day);
[[nodiscard]] std::string timeText(int hour, int minute, int second);

}  // namespace pagesetup
