#include "library/placement.h"

#include <gtest/gtest.h>

#include "windowing/runtime_error.h"

using namespace library;
using windowing::ErrorNumber;
using windowing::Pixels;
using windowing::Twips;

namespace {

constexpr ScreenSize screen{{15360}, {11520}};
constexpr FormPlacement design{WindowState::normal, {10}, {20}, {9000}, {6000}};

FormPlacement loaded(const StoredPlacement& stored, bool sizable = true,
                     const ScreenSize& on = screen) {
  return loadPlacement(stored, design, on, sizable, ',');
}

std::string written(const FormPlacement& form, bool sizable) {
  std::string all;
  for (const StoredValue& value : placementToStore(form, sizable, ','))
    all += std::string(value.name) + "=" + value.text + ";";
  return all;
}

}  // namespace

TEST(Placement, EachAxisAsStoredOrAtTheCentre) {
  const struct {
    std::optional<std::string> left, top, width, height;
    double expected[4];
  } rows[] = {
      {{}, {}, {}, {}, {3180, 2760, 9000, 6000}},
      {"0", "0", {}, {}, {0, 0, 9000, 6000}},
      {"-200", "100", {}, {}, {3180, 100, 9000, 6000}},
      {"100", "-1", {}, {}, {100, 2760, 9000, 6000}},
      {"6360", "5520", {}, {}, {6360, 5520, 9000, 6000}},  // flush with the screen stays
      {"6361", "5521", {}, {}, {3180, 2760, 9000, 6000}},
      {"1237,5", "1237.5", "3000", "2000", {1237.5, 1237.5, 3000, 2000}},
      {{}, {}, "3001", "2003", {6180, 4758, 3001, 2003}},         // halves go to the even twip
      {"0", "0", "20000", "12000", {-2320, -240, 20000, 12000}},  // larger than the screen
  };
  for (const auto& row : rows) {
    const FormPlacement form = loaded({{}, row.left, row.top, row.width, row.height});
    EXPECT_EQ(form.left.value, row.expected[0]);
    EXPECT_EQ(form.top.value, row.expected[1]);
    EXPECT_EQ(form.width.value, row.expected[2]);
    EXPECT_EQ(form.height.value, row.expected[3]);
  }
}

TEST(Placement, FixedFormsKeepSizeAndState) {
  const FormPlacement form = loaded({"2", "100", "200", "1", "x"}, false);
  EXPECT_EQ(form.state, WindowState::normal);
  EXPECT_EQ(form.width, design.width);
  EXPECT_EQ(form.left, Twips{100});
  EXPECT_EQ(form.top, Twips{200});
}

TEST(Placement, MaximisedFormsRestoreToTheStoredRectangle) {
  FormPlacement form = loaded({"2", "100", "200", "3000", "2000"});
  EXPECT_EQ(form.state, WindowState::maximized);
  EXPECT_EQ(form.left, Twips{100});
  EXPECT_EQ(form.height, Twips{2000});
  form = loaded({"2", "100", "200", "3000", "tall"});
  EXPECT_EQ(form.state, WindowState::maximized);
  EXPECT_EQ(form.left, design.left);
  EXPECT_EQ(form.width, design.width);
}

TEST(Placement, WhatCannotBeReadRaises) {
  const struct {
    StoredPlacement stored;
    ErrorNumber number;
  } rows[] = {{{{}, "left", {}, {}, {}}, ErrorNumber::typeMismatch},
              {{{}, {}, {}, {}, ""}, ErrorNumber::typeMismatch},
              {{"big", {}, {}, {}, {}}, ErrorNumber::typeMismatch},
              {{"7", {}, {}, {}, {}}, ErrorNumber::invalidCall},
              {{"-1", {}, {}, {}, {}}, ErrorNumber::invalidCall},
              {{{}, "0", "0", {}, "-60000"}, ErrorNumber::overflow}};
  for (const auto& row : rows) try {
      (void)loaded(row.stored);
      ADD_FAILURE();
    } catch (const windowing::RuntimeError& error) {
      EXPECT_EQ(error.number(), row.number);
    }
  // A screen more than 65,535 twips wider than the form, though a place is stored.
  EXPECT_THROW((void)loaded({{}, "0", "0", {}, {}}, false, {{9000 + 65536}, {11520}}),
               windowing::RuntimeError);
  EXPECT_EQ(loaded({{}, "0", "0", {}, {}}, false, {{9000 + 65534}, {11520}}).left, Twips{0});
}

TEST(Placement, WhatIsStoredOnClosing) {
  FormPlacement form{WindowState::normal, {1237.5}, {-15}, {9000}, {60000.0 / 7}};
  EXPECT_EQ(written(form, true), "Window State=0;Left=1237,5;Top=-15;Width=9000;Height=8571,429;");
  EXPECT_EQ(written(form, false), "Left=1237,5;Top=-15;");
  form.state = WindowState::maximized;
  EXPECT_EQ(written(form, true), "Window State=2;");
  form.state = WindowState::minimized;
  EXPECT_EQ(written(form, true), "");
  EXPECT_EQ(written(form, false), "");
}

TEST(Placement, AWindowAtTheScreensEdgeStaysThereAtEveryResolution) {
  for (const int dpi : {96, 120, 144, 168, 192})
    for (int width = 300; width < 340; ++width) {
      const auto twips = [&](int pixels) { return windowing::toTwips(Pixels{pixels}, dpi); };
      const FormPlacement form{WindowState::normal, twips(1920 - width), twips(0), twips(width),
                               twips(400)};
      StoredPlacement stored;
      for (const StoredValue& value : placementToStore(form, true, ',')) {
        if (value.name == placement_value::left) stored.left = value.text;
        if (value.name == placement_value::width) stored.width = value.text;
      }
      const FormPlacement again =
          loadPlacement(stored, form, {twips(1920), twips(1080)}, true, ',');
      ASSERT_EQ(windowing::toPixels(again.left, dpi), Pixels{1920 - width}) << dpi;
    }
}

TEST(Placement, ButtonsAndDialogs) {
  EXPECT_EQ(closeButtonLeft({6000}, {1215}), Twips{4650});
  EXPECT_EQ(okCancelLefts({6000}, {1215}).cancel, Twips{4650});
  EXPECT_EQ(okCancelLefts({6000}, {1215}).ok, Twips{3300});
  for (const int dpi : {96, 120, 144, 168, 192})
    EXPECT_EQ(screenPixels(windowing::toTwips(Pixels{1366}, dpi), 1440.0 / dpi), Pixels{1366});
  EXPECT_EQ(centred({1024}, {421}), Pixels{302});
  EXPECT_EQ(centred({1024}, {423}), Pixels{300});
  EXPECT_EQ(centred({800}, {1000}), Pixels{-100});
}
