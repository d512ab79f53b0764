#include "values/number_sign.h"

#include <string_view>

namespace values {
namespace {

// Spaces of every width, non-breaking ones included.
constexpr std::u16string_view spaces =
    u" \u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009\u200A\u202F\u205F"
    u"\u3000";

}  // namespace

char numberSign(char16_t sign, char inCodePage, char otherwise) {
  if (spaces.find(sign) != std::u16string_view::npos) return ' ';
  return inCodePage == '\0' ? otherwise : inCodePage;
}

}  // namespace values
