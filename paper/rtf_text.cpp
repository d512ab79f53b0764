#include "paper/rtf_text.h"

#include <cstdint>

namespace paper {
namespace {

constexpr char16_t firstPrintable = 0x20;
constexpr char16_t lastAscii = 0x7E;

void appendCharacter(std::string& rtf, char16_t character) {
  if (character == u'\\' || character == u'{' || character == u'}') {
    rtf += '\\';
    rtf += static_cast<char>(character);
  } else if (character == u'\t') {
    rtf += "\\tab ";
  } else if (character >= firstPrintable && character <= lastAscii) {
    rtf += static_cast<char>(character);
  } else {
    // A signed 16-bit number; programs that do not know Unicode show the "?" after it.
    rtf += "\\u" + std::to_string(static_cast<std::int16_t>(character)) + '?';
  }
}

}  // namespace

std::string rtfOfText(std::u16string_view text, const TextFormat& format, int charset) {
  constexpr int halfPoints = 2;
  std::string rtf = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil\\fcharset";
  rtf += std::to_string(charset) + ' ' + format.face;
  rtf += ";}}{\\colortbl ;\\red0\\green0\\blue0;}\\uc1\\pard\\plain\\f0\\cf1\\fs";
  rtf += std::to_string(format.points * halfPoints);
  rtf += format.bold ? "\\b " : " ";
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == u'\r' || text[i] == u'\n') {
      rtf += "\\par ";
      if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
    } else {
      appendCharacter(rtf, text[i]);
    }
  }
  rtf += '}';
  return rtf;
}

}  // namespace paper
