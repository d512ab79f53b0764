// The sample of the page: the sizes of its parts and the texts below it, computed from the figures
// that the printer reports.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pagesetup {

struct Sides {
  double left = 0;
  double right = 0;
  double top = 0;
  double bottom = 0;
};

/// Twips from the window's top-left corner.
struct Box {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
};

/// A paper as the printer reports it: its size in inches, and the unprintable strips at its sides
/// in whole inches.
struct PaperFacts {
  double width = 0;
  double height = 0;
  Sides strips;
};

/// The parts of the sample: the paper, its shadow, and the area between the margins, if there is
/// any.
struct SamplePage {
  Box PICPAPER;
  Box PICSHADOW;
  std::optional<Box> SHPAREA;
};

/// The width of an unprintable strip in whole inches, as the sample needs it: rounded first to
/// tenths of an inch, then to whole inches.
[[nodiscard]] double wholeInches(double inches, char decimalSign);

/// The sample of a paper in a square window of `window` twips; `margins` are inches. On each side
/// the larger of margin and unprintable strip is used. No value for a paper without a size.
[[nodiscard]] std::optional<SamplePage> samplePage(const PaperFacts& paper, const Sides& margins,
                                                   double window);

/// "Width: 8.50"; less than an inch has no zero before the decimal sign.
[[nodiscard]] std::string sizeText(std::string_view caption, double inches, char decimalSign);

/// The largest margin, in inches with one decimal, for a side of `side` inches: two such margins
/// leave more than an inch between them.
[[nodiscard]] double largestMargin(double side);

}  // namespace pagesetup
