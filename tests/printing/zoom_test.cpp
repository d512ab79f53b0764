#include "printing/zoom.h"

#include <gtest/gtest.h>

namespace printing {
namespace {

TEST(Zoom, StepsThroughThePercentagesAndStopsAtTheEnds) {
  struct Case {
    std::string_view text, in, out;
  };
  for (const auto& [text, in, out] : {Case{"25 %", "50 %", "25 %"},
                                      {"50 %", "75 %", "25 %"},
                                      {"75 %", "100 %", "50 %"},
                                      {"100 %", "150 %", "75 %"},
                                      {"150 %", "200 %", "100 %"},
                                      {"200 %", "200 %", "150 %"},
                                      {"Page Width", "Page Width", "Page Width"},
                                      {"Whole Page", "Whole Page", "Whole Page"},
                                      {"", "", ""},
                                      {"60 %", "60 %", "60 %"}}) {
    EXPECT_EQ(zoomedIn(text), in);
    EXPECT_EQ(zoomedOut(text), out);
  }
}

TEST(Zoom, KnowsNoOtherTexts) {
  for (const std::string_view text : {"", "50", "50%", "page width", "50 % ", "300 %"})
    EXPECT_FALSE(zoomIndex(text)) << text;
  EXPECT_EQ(zoomIndex("Whole Page"), 7);
}

}  // namespace
}  // namespace printing
