#include "library/placement.h"

#include <gtest/gtest.h>

#include <sstream>

#include "values/runtime_error.h"

using namespace library;
using values::ErrorNumber;
using values::Pixels;
using values::Twips;

namespace {

constexpr FormPlacement design{WindowState::normal, {10}, {20}, {9000}, {6000}};

FormPlacement loaded(const StoredPlacement& stored, bool sizable = true, double width = 15360) {
  return loadPlacement(stored, design, {{width}, {11520}}, sizable, '.');
}

std::string written(const FormPlacement& form, bool sizable) {
  std::string all;
  for (const StoredValue& value : placementToStore(form, sizable, ','))
    all += std::string(settingRow(value.setting).name) + "=" + value.text + ";";
  return all;
}

}  // namespace

TEST(Placement, EachAxisAsStoredOrAtTheCentre) {
  const struct {
    StoredPlacement stored;
    std::string placed;
  } rows[] = {
      {{}, "0 3180 2760 9000 6000"},
      {{{}, "-200", "100", {}, {}}, "0 3180 100 9000 6000"},
      {{{}, "6360", "5521", {}, {}}, "0 6360 2760 9000 6000"},  // flush, and one twip too far
      {{{}, "1237,5", "1237.5", "3000", "2000"}, "0 1237.5 1237.5 3000 2000"},
      {{{}, {}, {}, "3001", "2003"}, "0 6180 4758 3001 2003"},  // halves go to the even twip
      {{{}, "0", "0", "20000", "12000"}, "0 -2320 -240 20000 12000"},
      {{"2", "100", "200", "3000", "2000"}, "2 100 200 3000 2000"},
      {{"2", "100", "200", "3000", "tall"}, "2 10 20 9000 6000"},
  };
  for (const auto& row : rows) {
    const FormPlacement form = loaded(row.stored);
    std::ostringstream placed;
    placed << static_cast<int>(form.state) << ' ' << form.left.value << ' ' << form.top.value << ' '
           << form.width.value << ' ' << form.height.value;
    EXPECT_EQ(placed.str(), row.placed);
  }
  const FormPlacement fixed = loaded({"2", "100", "200", "1", "x"}, false);
  EXPECT_EQ(fixed.state, WindowState::normal);
  EXPECT_EQ(fixed.left, Twips{100});
  EXPECT_EQ(fixed.width, design.width);
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
    } catch (const values::RuntimeError& error) {
      EXPECT_EQ(error.number(), row.number);
    }
  // A screen more than 65,535 twips wider than the form, though a place is stored.
  EXPECT_THROW((void)loaded({{}, "0", "0", {}, {}}, false, 9000 + 65536), values::RuntimeError);
  EXPECT_EQ(loaded({{}, "0", "0", {}, {}}, false, 9000 + 65534).left, Twips{0});
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
      const auto twips = [&](int pixels) { return values::toTwips(Pixels{pixels}, dpi); };
      const FormPlacement form{WindowState::normal, twips(1920 - width), twips(0), twips(width),
                               twips(400)};
      const std::vector<StoredValue> stored = placementToStore(form, true, ',');
      const StoredPlacement texts{{}, stored[1].text, {}, stored[3].text, {}};
      const FormPlacement again = loadPlacement(texts, form, {twips(1920), twips(1080)}, true, ',');
      ASSERT_EQ(values::toPixels(again.left, dpi), Pixels{1920 - width}) << dpi;
    }
}
