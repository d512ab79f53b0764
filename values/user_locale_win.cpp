#include "values/user_locale_win.h"

#include <windows.h>

#include "values/number_sign.h"

namespace values {
namespace {

// The character as one byte of the ANSI code page; NUL where the code page lacks it. A byte for a
// character that only looks similar does not count.
char inCodePage(wchar_t character) {
  if (character < 0x80) return static_cast<char>(character);
  char bytes[8] = {};
  BOOL replaced = FALSE;
  const int length = WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, &character, 1, bytes,
                                         sizeof bytes, nullptr, &replaced);
  return length == 1 && !replaced ? bytes[0] : '\0';
}

// The user's sign; the first character of it if it is longer. Read as wide text, because the ANSI
// function gives "?" for a sign that the code page lacks.
char userSign(LCTYPE information, char otherwise) {
  wchar_t text[8] = {};
  if (GetLocaleInfoW(LOCALE_USER_DEFAULT, information, text, 8) == 0) return otherwise;
  return numberSign(static_cast<char16_t>(text[0]), inCodePage(text[0]), otherwise);
}

}  // namespace

char userDecimalSign() {
  return userSign(LOCALE_SDECIMAL, '.');
}

char userGroupSeparator() {
  return userSign(LOCALE_STHOUSAND, '\0');
}

bool isLeadByte(unsigned char byte) {
  return IsDBCSLeadByte(byte) != FALSE;
}

}  // namespace values
