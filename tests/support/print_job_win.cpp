#include "tests/support/print_job_win.h"

#include <map>
#include <sstream>

namespace test_support {
namespace {

char characterOf(const std::string& glyph) {
  static const std::map<std::string, char> names{
      {"space", ' '}, {"uni00A0", ' '}, {"period", '.'}, {"comma", ','}, {"colon", ':'},
      {"slash", '/'}, {"hyphen", '-'},  {"zero", '0'},   {"one", '1'},   {"two", '2'},
      {"three", '3'}, {"four", '4'},    {"five", '5'},   {"six", '6'},   {"seven", '7'},
      {"eight", '8'}, {"nine", '9'}};
  if (glyph.size() == 1) return glyph.front();
  const auto found = names.find(glyph);
  return found == names.end() ? '?' : found->second;
}

bool endsWith(const std::string& line, const std::string& end) {
  return line.size() >= end.size() && line.compare(line.size() - end.size(), end.size(), end) == 0;
}

}  // namespace

std::string JobPage::joined() const {
  std::string all;
  for (const JobText& text : texts) all += text.text + '|';
  return all;
}

JobText JobPage::find(const std::string& start) const {
  for (const JobText& text : texts)
    if (text.text.rfind(start, 0) == 0) return text;
  return {-1, -1, {}};
}

std::vector<JobPage> pagesOf(const std::string& postScript) {
  std::vector<JobPage> pages;
  int glyphs = 0;  // since the last move
  bool bold = false;
  std::istringstream lines(postScript);
  for (std::string line; std::getline(lines, line);) {
    if (line.rfind("%%Page:", 0) == 0) {
      pages.emplace_back();
      glyphs = 0;
    }
    if (pages.empty()) continue;
    JobPage& page = pages.back();
    if (endsWith(line, " findfont")) {
      bold = line.find("Bold") != std::string::npos;
    } else if (endsWith(line, " moveto")) {
      JobText text;
      text.bold = bold;
      std::istringstream(line) >> text.x >> text.y;
      // A text that was spread has a move before each of its characters.
      const bool goesOn = glyphs == 1 && page.texts.back().y == text.y;
      if (!goesOn) page.texts.push_back(text);
      glyphs = 0;
    } else if (endsWith(line, " lineto") && !page.texts.empty()) {
      const JobText& from = page.texts.back();
      page.rules.push_back({from.x, from.y, std::stoi(line)});
    } else if (endsWith(line, " glyphshow") && !page.texts.empty()) {
      page.texts.back().text += characterOf(line.substr(1, line.find(' ') - 1));
      ++glyphs;
    }
  }
  // Rules have moves of their own.
  for (JobPage& page : pages)
    std::erase_if(page.texts, [](const JobText& text) { return text.text.empty(); });
  return pages;
}

std::string lines(int last) {
  std::string text;
  for (int line = 1; line <= last; ++line) text += "Line " + std::to_string(line) + "\r\n";
  return text;
}

}  // namespace test_support
