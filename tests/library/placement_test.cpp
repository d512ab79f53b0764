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
    StoredPlacement stored;
    bool sizable;
    FormPlacement expected;
  } rows[] = {
      {{}, true, {{}, {3180}, {2760}, {9000}, {6000}}},
      {{{}, "-200", "100", {}, {}}, true, {{}, {3180}, {100}, {9000}, {6000}}},
      {{{}, "6360", "5520", {}, {}}, true, {{}, {6360}, {5520}, {9000}, {6000}}},  // flush
      {{{}, "6361", "5521", {}, {}}, true, {{}, {3180}, {2760}, {9000}, {6000}}},
      {{{}, "1237,5", "1237.5", "3000", "2000"}, true, {{}, {1237.5}, {1237.5}, {3000}, {2000}}},
      // Halves go to the even twip.
      {{{}, {}, {}, "3001", "2003"}, true, {{}, {6180}, {4758}, {3001}, {2003}}},
      // Larger than the screen.
      {{{}, "0", "0", "20000", "12000"}, true, {{}, {-2320}, {-240}, {20000}, {12000}}},
      {{"2", "100", "200", "1", "x"}, false, {{}, {100}, {200}, {9000}, {6000}}},
      {{"2", "100", "200", "3000", "2000"},
       true,
       {WindowState::maximized, {100}, {200}, {3000}, {2000}}},
      {{"2", "100", "200", "3000", "tall"},
       true,
       {WindowState::maximized, {10}, {20}, {9000}, {6000}}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(&row - rows);
    const FormPlacement form = loaded(row.stored, row.sizable);
    EXPECT_EQ(form.state, row.expected.state);
    EXPECT_EQ(form.left, row.expected.left);
    EXPECT_EQ(form.top, row.expected.top);
    EXPECT_EQ(form.width, row.expected.width);
    EXPECT_EQ(form.height, row.expected.height);
  }
}

TEST(Placement, WhatCannotBeReadRaises) {
  const struct {
    StoredPlacement stored;
    ErrorNumber number;
  } rows[] = {{{{}, "left", {}, {}, {}}, ErrorNumber::typeMismatch},
              {{{}, {}, {}, {}, ""}, ErrorNumber::typeMismatch},
              {{"big", {}, {}, {}, {}}, ErrorNumber::typeMismatch},
              {{"7", {}, {}, {}, {}}, ErrorNumber::invalidCall},
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
}

TEST(Placement, AWindowAtTheScreensEdgeStaysThereAtEveryResolution) {
  for (const int dpi : {96, 120, 144, 168, 192})
    for (int width = 300; width < 340; ++width) {
      const auto twips = [&](int pixels) { return windowing::toTwips(Pixels{pixels}, dpi); };
      const FormPlacement form{WindowState::normal, twips(1920 - width), twips(0), twips(width),
                               twips(400)};
      const std::vector<StoredValue> stored = placementToStore(form, true, ',');
      const FormPlacement again = loadPlacement({{}, stored[1].text, {}, stored[3].text, {}}, form,
                                                {twips(1920), twips(1080)}, true, ',');
      ASSERT_EQ(windowing::toPixels(again.left, dpi), Pixels{1920 - width}) << dpi;
    }
}
