#include "mainwindow/status_text.h"

#include "values/checked.h"
#include "values/number_text.h"

namespace mainwindow {

std::string statusText(int count, int current) {
  if (count == 0) return {};
  // Deliberate: the plural is used for a single contact too.
  return values::integerText(current + 1) + " of " + values::integerText(count) + " contacts.";
}

std::string titleText(std::string_view product, std::string_view path) {
  return std::string(product) + " - (" + std::string(path.empty() ? "Untitled" : path) + ")";
}

std::int16_t innerHeight(const LayoutHeights& heights) {
  double sum = heights.tabs.value + heights.header.value + layoutMargin;
  if (heights.toolbarShown) sum += heights.toolbar.value;
  if (heights.statusBarShown) sum += heights.statusBar.value;
  return values::roundTo<std::int16_t>(sum);
}

std::int16_t windowHeight(const LayoutHeights& heights) {
  return values::checkedAdd<std::int16_t>(innerHeight(heights), frameAllowance);
}

}  // namespace mainwindow
