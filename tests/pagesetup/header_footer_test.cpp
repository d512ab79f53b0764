#include "pagesetup/header_footer.h"

#include <gtest/gtest.h>

#include <set>

#include "windowing/runtime_error.h"

namespace pagesetup {
namespace {

HeaderFooterOptions defaults() {
  HeaderFooterOptions options;
  for (const StoredOption& stored : storedOptions)
    options[stored.option] = defaultText(stored.otherwise, {"Tellary", "Ann Bee", ""});
  return options;
}

Page letterPage() {
  Page page;
  page.width = 12240;
  page.height = 15840;
  page.margins = {1440, 1440, 1440, 1440};
  page.number = "3";
  page.date = "05/02/2024";
  page.time = "9:05:07";
  return page;
}

// Commands as text: "x,y-x text" with "-" before the end of a line.
std::string drawn(const HeaderFooterOptions& options, const Page& page) {
  std::string all;
  const auto number = [](double value) {
    std::string text = std::to_string(value);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text;
  };
  for (const DrawCommand& command : headerAndFooter(options, page)) {
    all += number(command.x) + ',' + number(command.y);
    all += command.kind == DrawCommand::Kind::line ? '-' + number(command.toX) : ' ' + command.text;
    all += '|';
  }
  return all;
}

bool overflows(const HeaderFooterOptions& options, const Page& page) {
  try {
    (void)headerAndFooter(options, page);
    return false;
  } catch (const windowing::RuntimeError& error) {
    return error.number() == windowing::ErrorNumber::overflow;
  }
}

TEST(HeaderAndFooter, StandWhereTheFamilyPutsThem) {
  HeaderFooterOptions options = defaults();
  EXPECT_EQ(drawn(options, letterPage()),
            "1240,1140-10800|1640,740 05/02/2024|9740,740 9:05:07|5245,740 Tellary Report.|"
            "1240,14600-10800|1740,14760 Ann Bee|8240,14760 Untitled|6035,14760 3|");
  Page preview = letterPage();
  preview.surface = Surface::preview;
  EXPECT_EQ(drawn(options, preview),
            "1240,1140-10800|1640,740 05/02/2024|9740,740 9:05:07|5545,740 Tellary Report.|"
            "1240,14600-10800|1740,14760 Ann Bee|7240,14760 Untitled|6035,14760 3|");
}

TEST(HeaderAndFooter, CentreByTheNumberOfCharacters) {
  HeaderFooterOptions options;
  options[Option::header] = options[Option::title] = "1";
  options[Option::footer] = options[Option::pageNumber] = "1";
  options[Option::titleText] = std::string(20, 'x');
  Page page = letterPage();
  page.number = "10";
  EXPECT_EQ(headerAndFooter(options, page).at(0).x, 4820);
  EXPECT_EQ(headerAndFooter(options, page).at(1).x, (12240 - 340) / 2);
  page.surface = Surface::preview;
  EXPECT_EQ(headerAndFooter(options, page).at(0).x, 5120);
  page.width = 12241;
  EXPECT_EQ(headerAndFooter(options, page).at(1).x, 5950.5) << "fractions are kept";
  page.number.clear();
  EXPECT_EQ(headerAndFooter(options, page).at(1).x, 6120.5);
  options[Option::titleText] = std::string(254, 'x');
  EXPECT_EQ(headerAndFooter(options, page).at(0).x, (12241 - 43180) / 2.0 + 700);
}

TEST(HeaderAndFooter, TakeTheMarginsCrossedAndUnclamped) {
  Page page = letterPage();
  page.margins.bottom = 2880;  // the right margin of the page, as the engine hands it over
  const std::vector<DrawCommand> crossed = headerAndFooter(defaults(), page);
  EXPECT_EQ(crossed.at(4).y, 15840 - 2880 + 200);
  EXPECT_EQ(crossed.at(4).toX, 12240 - 1440);
  EXPECT_EQ(crossed.at(0).toX, 12240 - 1440);
  page.margins.top = 576;
  EXPECT_EQ(headerAndFooter(defaults(), page).at(1).y, -124);
  page.margins.left = 0;
  EXPECT_EQ(headerAndFooter(defaults(), page).at(0).x, -200);
}

TEST(HeaderAndFooter, SwitchesAreOnOnlyWhenExactlyOne) {
  for (const char* off : {"0", "2", "", "abc", "True", "01", " 1", "1.0"}) {
    HeaderFooterOptions options = defaults();
    options[Option::header] = off;
    EXPECT_EQ(headerAndFooter(options, letterPage()).size(), 4U) << off;
    options[Option::footer] = off;
    EXPECT_TRUE(headerAndFooter(options, letterPage()).empty()) << off;
  }
  constexpr Option items[] = {Option::headerRule, Option::date,       Option::time,
                              Option::title,      Option::footerRule, Option::field1,
                              Option::field2,     Option::pageNumber};
  for (std::size_t i = 0; i < std::size(items); ++i) {
    HeaderFooterOptions options = defaults();
    const std::vector<DrawCommand> all = headerAndFooter(options, letterPage());
    options[items[i]] = "0";
    const std::vector<DrawCommand> others = headerAndFooter(options, letterPage());
    ASSERT_EQ(others.size(), 7U);
    for (std::size_t k = 0; k < others.size(); ++k)
      EXPECT_EQ(others[k].x, all[k < i ? k : k + 1].x) << "the others stay where they are";
  }
}

TEST(HeaderAndFooter, OverflowInSixteenBits) {
  const HeaderFooterOptions options = defaults();
  Page page = letterPage();
  page.margins.left = 32767 - 300;
  EXPECT_FALSE(overflows(options, page));
  page.margins.left = 32767 - 299;
  EXPECT_TRUE(overflows(options, page));
  HeaderFooterOptions headerOnly = options;
  headerOnly[Option::footer] = "0";
  EXPECT_FALSE(overflows(headerOnly, page)) << "what is off is not computed";

  page = letterPage();
  page.margins.top = -32768 + 699;
  EXPECT_TRUE(overflows(options, page));
  page = letterPage();
  page.height = 32767 + 1440 - 360;
  EXPECT_FALSE(overflows(options, page));
  ++page.height;
  EXPECT_TRUE(overflows(options, page));
  page = letterPage();
  page.height = 32767 + 1441;
  HeaderFooterOptions nothing;
  nothing[Option::footer] = "1";
  EXPECT_TRUE(overflows(nothing, page)) << "the base itself has 16 bits";
  page = letterPage();
  page.width = INT32_MIN + 2000;
  EXPECT_TRUE(overflows(options, page));
}

TEST(HeaderAndFooter, HaveThirteenSettings) {
  std::set<std::pair<std::string, std::string>> places;
  for (const StoredOption& stored : storedOptions)
    places.insert({stored.section, stored.valueName});
  EXPECT_EQ(places.size(), optionCount);
  const DefaultTexts texts{"Tellary", "Ann", "friends.tly"};
  EXPECT_EQ(defaultText(Default::documentName, texts), "friends.tly");
  EXPECT_EQ(defaultText(Default::documentName, {}), "Untitled");
  EXPECT_EQ(defaultText(Default::reportTitle, texts), "Tellary Report.");
  EXPECT_EQ(defaultText(Default::owner, texts), "Ann");
  EXPECT_EQ(defaultText(Default::on, texts), "1");
}

TEST(HeaderAndFooter, WriteDateAndTimeLiterally) {
  EXPECT_EQ(dateText(2024, 2, 5), "05/02/2024");
  EXPECT_EQ(dateText(1999, 12, 31), "31/12/1999");
  EXPECT_EQ(timeText(9, 5, 7), "9:05:07");
  EXPECT_EQ(timeText(0, 5, 7), "0:05:07");
  EXPECT_EQ(timeText(15, 0, 0), "15:00:00");
}

}  // namespace
}  // namespace pagesetup
