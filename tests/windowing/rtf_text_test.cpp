#include "windowing/rtf_text.h"

#include <gtest/gtest.h>

namespace windowing {
namespace {

std::string body(std::u16string_view text) {
  const std::string rtf = rtfOfText(text, {}, 0);
  const std::size_t start = rtf.find("\\fs20 ") + 6;
  return rtf.substr(start, rtf.size() - start - 1);
}

TEST(RtfOfText, TakesEveryCharacterLiterally) {
  EXPECT_EQ(body(u"plain"), "plain");
  EXPECT_EQ(body(u"{\\rtf1 \\b}"), "\\{\\\\rtf1 \\\\b\\}");
  EXPECT_EQ(body(u"a\r\nb\rc\nd\r\n"), "a\\par b\\par c\\par d\\par ");
  EXPECT_EQ(body(u"a\tb\x01"), "a\\tab b\\u1?");
  EXPECT_EQ(body(u"\u00e9\u20ac\uf000"), "\\u233?\\u8364?\\u-4096?") << "a signed number";
}

TEST(RtfOfText, NamesItsFormat) {
  const std::string rtf = rtfOfText(u"x", {"Times New Roman", 12, true}, 204);
  EXPECT_NE(rtf.find("\\fcharset204 Times New Roman;"), std::string::npos);
  EXPECT_NE(rtf.find("\\fs24\\b x}"), std::string::npos);
  EXPECT_EQ(rtfOfText(u"x", {}, 0).find("\\b "), std::string::npos);
}

}  // namespace
}  // namespace windowing
