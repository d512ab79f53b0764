#include "windowing/rtf_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace windowing {
namespace {

TEST(RtfOfText, TakesEveryCharacterLiterallyInItsFormat) {
  const std::pair<std::u16string_view, const char*> rows[] = {
      {u"{\\rtf1 \\b}", "\\{\\\\rtf1 \\\\b\\}"},
      {u"a\r\nb\rc\nd\r\n", "a\\par b\\par c\\par d\\par "},
      {u"a\tb\x01", "a\\tab b\\u1?"},
      {u"\u00e9\u20ac\uf000", "\\u233?\\u8364?\\u-4096?"}};  // signed numbers
  for (const auto& [text, written] : rows) {
    EXPECT_THAT(rtfOfText(text, {}, 0), testing::EndsWith("\\fs20 " + std::string(written) + "}"));
    const std::string bold = rtfOfText(text, {"Times New Roman", 12, true}, 204);
    EXPECT_THAT(bold, testing::HasSubstr("\\fcharset204 Times New Roman;"));
    EXPECT_THAT(bold, testing::EndsWith("\\fs24\\b " + std::string(written) + "}"));
  }
}

}  // namespace
}  // namespace windowing
