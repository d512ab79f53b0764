#include "pagesetup/sample_page.h"

#include <algorithm>
#include <cmath>

#include "library/text_utilities.h"
#include "values/number_text.h"

namespace pagesetup {
namespace {

constexpr double freeInWindow = 200;  // twips beside the paper, both sides together
constexpr double shadowOffset = 60;
constexpr double areaOutset = 15;  // one pixel: the line round the area is drawn outside of it
constexpr double leastBetweenMargins = 1;  // inches
constexpr double tenthsInInch = 10;

}  // namespace

// Deliberately by way of the texts: half an inch becomes a whole one.
double wholeInches(double inches, char sign) {
  const std::string tenths = library::textJustify(values::doubleText(inches, sign), sign);
  return std::trunc(values::toNumber(library::currencyFormat(tenths, sign), sign) + 0.5);
}

std::optional<SamplePage> samplePage(const PaperFacts& paper, const Sides& margins, double window) {
  if (!(paper.width > 0 && paper.height > 0)) return std::nullopt;
  const double scale = (window - freeInWindow) / std::max(paper.width, paper.height);
  const double width = paper.width * scale;
  const double height = paper.height * scale;

  SamplePage page;
  page.PICPAPER = {(window - width) / 2, (window - height) / 2, width, height};
  page.PICSHADOW = page.PICPAPER;
  page.PICSHADOW.left += shadowOffset;
  page.PICSHADOW.top += shadowOffset;

  const auto scaled = [&](double margin, double strip) { return std::max(margin, strip) * scale; };
  const double left = scaled(margins.left, paper.strips.left);
  const double top = scaled(margins.top, paper.strips.top);
  const double areaWidth = width - left - scaled(margins.right, paper.strips.right);
  const double areaHeight = height - top - scaled(margins.bottom, paper.strips.bottom);
  if (areaWidth > 0 && areaHeight > 0)
    page.SHPAREA = {page.PICPAPER.left + left - areaOutset, page.PICPAPER.top + top - areaOutset,
                    areaWidth, areaHeight};
  return page;
}

std::string sizeText(std::string_view caption, double inches, char decimalSign) {
  return std::string(caption) + values::formatDecimals(inches, 0, 2, decimalSign);
}

double largestMargin(double side) {
  // A number that differs from whole tenths only by rounding counts as whole tenths.
  constexpr double nothing = 1e-6;
  const double half = (side - leastBetweenMargins) / 2 * tenthsInInch;
  return std::max(0.0, std::ceil(half - nothing) - 1) / tenthsInInch;
}

}  // namespace pagesetup
