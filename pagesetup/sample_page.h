// The sample of the page: how large its parts are drawn, and what stands below it. All of it is
// arithmetic over the figures that the printer reports.
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

/// A paper as the printer reports it: its size in inches, and the strips at its sides that the
/// sample keeps free, in whole inches.
struct PaperFacts {
  double width = 0;
  double height = 0;
  Sides strips;
};

/// The parts of the sample: the paper, its shadow, and the area between the margins. There is no
/// area where the margins leave none.
struct SamplePage {
  Box PICPAPER;
  Box PICSHADOW;
  std::optional<Box> SHPAREA;
};

/// An unprintable strip in the whole inches that the sample counts in: rounded to tenths of an
/// inch first, and to an inch from there.
[[nodiscard]] double wholeInches(double inches, char decimalSign);

/// The sample of a paper in a square window of `window` twips; `margins` are inches. On each side
/// the larger of margin and strip counts. Nothing for a paper without a size.
[[nodiscard]] std::optional<SamplePage> samplePage(const PaperFacts& paper, const Sides& margins,
                                                   double window);

/// "Width: 8.50"; below an inch no zero stands before the decimal sign.
[[nodiscard]] std::string sizeText(std::string_view caption, double inches, char decimalSign);

/// The largest margin, in inches to one decimal, that a paper of `side` inches has room for: two
/// of them leave more than an inch between them.
[[nodiscard]] double largestMargin(double side);

}  // namespace pagesetup
