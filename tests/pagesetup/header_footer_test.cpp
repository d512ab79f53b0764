#include "pagesetup/header_footer.h"

#include <gtest/gtest.h>

#include <sstream>

#include "values/runtime_error.h"

namespace pagesetup {
namespace {

HeaderFooterOptions defaults() {
  HeaderFooterOptions options;
  for (const library::SettingRow& row : optionRows())
    options[row.setting] = defaultText(row.setting, {"Tellary", "Ann Bee", ""});
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

// As in a Japanese code page.
bool isLeadByte(unsigned char byte) {
  return byte == 0x83 || byte == 0x95;
}

// Commands as text: "x,y-x text" with "-" before the end of a line.
std::string drawn(const HeaderFooterOptions& options, const Page& page) {
  std::ostringstream all;
  for (const DrawCommand& command : headerAndFooter(options, page, isLeadByte)) {
    all << command.x << ',' << command.y;
    if (command.kind == DrawCommand::Kind::line) all << '-' << command.toX;
    all << (command.kind == DrawCommand::Kind::text ? " " : "") << command.text << '|';
  }
  return all.str();
}

TEST(HeaderAndFooter, StandWhereTheFamilyPutsThem) {
  EXPECT_EQ(drawn(defaults(), letterPage()),
            "1240,1140-10800|1640,740 05/02/2024|9740,740 9:05:07|5245,740 Tellary Report.|"
            "1240,14600-10800|1740,14760 Ann Bee|8240,14760 Untitled|6035,14760 3|");
  Page preview = letterPage();
  preview.surface = Surface::preview;
  EXPECT_EQ(drawn(defaults(), preview),
            "1240,1140-10800|1640,740 05/02/2024|9740,740 9:05:07|5545,740 Tellary Report.|"
            "1240,14600-10800|1740,14760 Ann Bee|7240,14760 Untitled|6035,14760 3|");
}

TEST(HeaderAndFooter, SwitchesAreOnOnlyWhenExactlyOne) {
  for (const char* off : {"0", "2", "", "True", "01", " 1", "1.0"}) {
    HeaderFooterOptions options = defaults();
    options[Setting::header] = off;
    EXPECT_EQ(headerAndFooter(options, letterPage(), isLeadByte).size(), 4U) << off;
    options[Setting::footer] = off;
    EXPECT_EQ(drawn(options, letterPage()), "") << off;
  }
  const std::string all = drawn(defaults(), letterPage());
  for (const library::SettingRow& row : optionRows()) {
    if (row.kind != library::SettingKind::tick) continue;
    HeaderFooterOptions options = defaults();
    options[row.setting] = "0";
    EXPECT_NE(drawn(options, letterPage()), all) << row.name << " prints nothing";
  }
  std::size_t start = 0;
  for (const Setting item : {Setting::headerRule, Setting::headerDate, Setting::headerTime,
                             Setting::headerTitle, Setting::footerRule, Setting::footerField1,
                             Setting::footerField2, Setting::footerPageNumber}) {
    HeaderFooterOptions options = defaults();
    options[item] = "0";
    const std::size_t end = all.find('|', start) + 1;
    EXPECT_EQ(drawn(options, letterPage()), all.substr(0, start) + all.substr(end))
        << "the others stay where they are";
    start = end;
  }
}

TEST(HeaderAndFooter, OverflowInSixteenBits) {
  const struct {
    std::int32_t width, height;
    std::int16_t left, top;
    bool overflows;
  } cases[] = {
      {12240, 15840, 32767 - 300, 1440, false},       {12240, 15840, 32767 - 299, 1440, true},
      {12240, 15840, 1440, -32768 + 700, false},      {12240, 15840, 1440, -32768 + 699, true},
      {12240, 32767 + 1440 - 360, 1440, 1440, false}, {12240, 32767 + 1440 - 359, 1440, 1440, true},
      {INT32_MIN + 2000, 15840, 1440, 1440, true}};
  for (const auto& c : cases) {
    Page page = letterPage();
    page.width = c.width;
    page.height = c.height;
    page.margins.left = c.left;
    page.margins.top = c.top;
    bool overflowed = false;
    try {
      (void)headerAndFooter(defaults(), page, isLeadByte);
    } catch (const values::RuntimeError& error) {
      overflowed = error.number() == values::ErrorNumber::overflow;
    }
    EXPECT_EQ(overflowed, c.overflows) << &c - cases;
  }
  HeaderFooterOptions options = defaults();
  options[Setting::header] = "0";
  Page page = letterPage();
  page.margins.top = -32768;
  EXPECT_NO_THROW((void)headerAndFooter(options, page, isLeadByte))
      << "what is off is not computed";
  options = {};
  options[Setting::footer] = "1";
  page.height = 32767 + 1441;
  EXPECT_THROW((void)headerAndFooter(options, page, isLeadByte), values::RuntimeError)
      << "the base itself has 16 bits";
}

TEST(HeaderAndFooter, WriteDateAndTimeLiterally) {
  EXPECT_EQ(dateText(2024, 2, 5) + " " + timeText(0, 5, 7), "05/02/2024 0:05:07");
  EXPECT_EQ(dateText(1999, 12, 31) + " " + timeText(15, 0, 0), "31/12/1999 15:00:00");
}

}  // namespace
}  // namespace pagesetup
