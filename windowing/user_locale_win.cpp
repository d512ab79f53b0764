#include "windowing/user_locale_win.h"

#include <windows.h>

namespace windowing {
namespace {

char firstCharacter(LCTYPE information, char otherwise) {
  char text[8] = {};
  const int size = GetLocaleInfoA(LOCALE_USER_DEFAULT, information, text, sizeof text);
  return size > 0 ? text[0] : otherwise;
}

}  // namespace

char userDecimalSign() {
  const char sign = firstCharacter(LOCALE_SDECIMAL, '.');
  return sign == '\0' ? '.' : sign;
}

char userGroupSeparator() {
  return firstCharacter(LOCALE_STHOUSAND, '\0');
}

bool isLeadByte(unsigned char byte) {
  return IsDBCSLeadByte(byte) != FALSE;
}

}  // namespace windowing
